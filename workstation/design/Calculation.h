#pragma once

#include <optional>

#include "analysis/CheckRecord.h"
#include "analysis/modDatatypes.h"
#include "catalogue/SectionRecord.h"
#include "checks/CheckNumbers.h"
#include "platform/errors/Outcome.h"
#include "workstation/design/ProgibResult.h"

namespace trelonit {

/// One truss design as it is to be calculated.
struct Design {
  /// The analysis input. The scheme and the bracing are live at all times; the geometry is what the
  /// geometry check last accepted; the loads are copied in before each analysis.
  struct TreloData TreloData;
  /// Subscripts by SectionPlace.
  SectionArray ElementSection{1, sectionCount};
  /// The master loads, which the load inputs edit and projects keep.
  LoadArrays Loads;
  /// Own weight is at present inside the distributed master loads.
  bool OwnWeightAdded = false;
  /// The amount inside them, tonnes per metre; subtracting it restores the user's loads.
  double OwnWeightPerMetre = 0;
};

/// A finished calculation with everything that it was made from. What is shown of a result - lists,
/// pictures, report, drawings - is made from one of these, so that no result is ever shown with
/// another truss.
struct Calculation {
  struct TreloData TreloData;  ///< with the loads that were calculated
  SectionArray ElementSection{1, sectionCount};
  CheckNumbers Numbers;
  struct TreloResult TreloResult;  ///< empty where the analysis failed
  CheckResult CheckData;           ///< empty where the checks failed
  std::optional<ProgibResult> Progib;
  bool OwnWeightAdded = false;  ///< own weight is in the loads
  double OwnWeightPerMetre = 0;
};

/// Analyses and checks a design. A failed analysis leaves an empty result, which goes on to the
/// checks; what failed is told.
Outcome<Calculation> Calculate(const Design& design, const CheckNumbers& numbers);

/// The same with own weight brought into the loads of the design first, for whoever calculates on
/// the side: tells nothing. Raises 6 or 11 where there is no own weight to be had.
Calculation CalculateWithOwnWeight(Design& design, const CheckNumbers& numbers);

}  // namespace trelonit
