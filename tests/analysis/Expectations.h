#pragma once

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <vector>

#include "platform/values/BoundedArray.h"

namespace trelonit::test {

/// Greatest magnitude of the values, at least 1: what a rounding error is measured by.
inline double Magnitude(const std::vector<double>& values) {
  double greatest = 1;
  for (const double value : values) {
    greatest = std::max(greatest, std::abs(value));
  }
  return greatest;
}

/// Whether two rows of forces are the same but for rounding.
inline bool AlmostEqual(const std::vector<double>& actual, const std::vector<double>& expected,
                        double relative = 1e-10) {
  if (actual.size() != expected.size()) {
    return false;
  }
  const double tolerance = relative * std::max(Magnitude(actual), Magnitude(expected));
  return std::equal(actual.begin(), actual.end(), expected.begin(),
                    [=](double a, double b) { return std::abs(a - b) <= tolerance; });
}

inline void ExpectForces(const BoundedArray<double>& actual, const std::vector<double>& expected) {
  const std::vector<double> values(actual.begin(), actual.end());
  EXPECT_TRUE(AlmostEqual(values, expected, 1e-13))
      << testing::PrintToString(values) << " is not " << testing::PrintToString(expected);
}

}  // namespace trelonit::test
