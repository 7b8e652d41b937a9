#pragma once

#include <optional>

#include "analysis/CheckRecord.h"
#include "checks/CheckNumbers.h"
#include "platform/errors/Outcome.h"
#include "workstation/design/Design.h"
#include "workstation/design/ProgibResult.h"

namespace trelonit {

/// A finished calculation with the design that it was made from. What is shown of a result - lists,
/// pictures, report, drawings - is made from one of these, so that no result is ever shown with
/// another truss.
struct Calculation : Design {
  CheckNumbers Numbers;
  struct TreloResult TreloResult;  ///< empty where the analysis failed
  CheckResult CheckData;           ///< empty where the checks failed
  std::optional<ProgibResult> Progib;
};

/// Analyses and checks a design. A failed analysis leaves an empty result, which goes on to the
/// checks; what failed is told.
Outcome<Calculation> Calculate(Design design, const CheckNumbers& numbers);

/// The same with own weight brought into the loads first, for whoever calculates on the side: tells
/// nothing. Raises 6 or 11 where there is no own weight to be had.
Calculation CalculateWithOwnWeight(Design design, const CheckNumbers& numbers);

}  // namespace trelonit
