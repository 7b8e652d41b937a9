#pragma once

#include "catalogue/ProfileRecord.h"
#include "workstation/design/Calculation.h"
#include "workstation/design/DesignInputs.h"
#include "workstation/design/EnteredDesign.h"

namespace trelonit {

/// The design that the program holds, its last calculation, and the catalogue.
struct DesignModel {
  /// Scheme, bracing, sections and loads are live at all times; the rest is as it was when it was
  /// last read from the inputs.
  DesignInputs Inputs;
  AcceptedGeometry Accepted;
  /// Of the loads of the inputs.
  OwnWeightState OwnWeight;
  /// An edited input leaves it as it is; it brings the inputs that it was made from.
  Calculation Last;
  /// The catalogue in memory, loaded at start and never changed.
  ProfileTypeArray ProfileTypes;

  /// The truss that is calculated: the accepted sizes, everything else as it was entered.
  Design ToCalculate() const;
};

}  // namespace trelonit
