#pragma once

#include "tests/checks/DriverCase.h"

namespace trelonit::test {

/// The whole check over again in plain numbers, apart from the product's own routines. Knows one
/// failure: the division by a buckling coefficient of 0.
Outcome Recomputed(const DriverCase& c);

}  // namespace trelonit::test
