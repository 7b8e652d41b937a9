#pragma once

#include "workstation/design/Calculation.h"

namespace trelonit::test {

/// A calculation with just these in it; the rest is empty.
inline Calculation CalculationOf(Long scheme, const TreloResult& result,
                                 const CheckResult& check = {}) {
  Calculation calculation;
  calculation.TreloData.TreloType = scheme;
  calculation.TreloResult = result;
  calculation.CheckData = check;
  return calculation;
}

inline Calculation CalculationOf(Long scheme, const CheckResult& check) {
  return CalculationOf(scheme, TreloResult(), check);
}

/// The same where nothing but the mass counts of the checks.
inline Calculation CalculationOf(Long scheme, const TreloResult& result, double mass) {
  CheckResult check;
  check.Mass = mass;
  return CalculationOf(scheme, result, check);
}

inline Calculation CalculationOf(const TreloData& data, const TreloResult& result) {
  Calculation calculation;
  calculation.TreloData = data;
  calculation.TreloResult = result;
  return calculation;
}

}  // namespace trelonit::test
