#pragma once

#include "catalogue/ProfileRecord.h"
#include "workstation/design/Calculation.h"

namespace trelonit {

/// The design that the program holds, its last calculation, and the catalogue.
struct DesignModel : Design {
  /// An edited input leaves it as it is; it brings the inputs that it was made from.
  Calculation Last;
  /// The catalogue in memory, loaded at start and never changed.
  ProfileTypeArray ProfileTypes;
};

}  // namespace trelonit
