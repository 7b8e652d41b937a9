#pragma once

#include "analysis/CheckRecord.h"
#include "analysis/modDatatypes.h"
#include "catalogue/ProfileRecord.h"
#include "catalogue/SectionRecord.h"

namespace trelonit {

/// One truss design with its last calculation. A value: a copy is calculated without touching the
/// original.
struct Design {
  /// The analysis input. The scheme and the bracing are live at all times; the geometry is what the
  /// geometry check last accepted; the loads are copied in before each analysis.
  struct TreloData TreloData;
  /// The last result; an edited input leaves it as it is.
  struct TreloResult TreloResult;
  /// Subscripts by SectionPlace.
  SectionArray ElementSection{1, sectionCount};
  /// The master loads, which the load inputs edit and projects keep.
  LoadArrays Loads;
  /// The last member check.
  CheckResult CheckData;
  /// Own weight is at present inside the distributed master loads.
  bool OwnWeightAdded = false;
  /// The amount inside them, tonnes per metre; subtracting it restores the user's loads.
  double OwnWeightPerMetre = 0;
};

/// The design that the program holds, with the catalogue that its sections come from.
struct DesignModel : Design {
  /// The catalogue in memory, loaded at start and never changed.
  ProfileTypeArray ProfileTypes;
};

}  // namespace trelonit
