#pragma once

#include <array>
#include <limits>

namespace trelonit::test {

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

/// The ends of the range of Double, zeros, and a number of the wrong sign.
constexpr std::array<double, 9> extremeNumbers{0.0,
                                               -0.0,
                                               std::numeric_limits<double>::max(),
                                               -std::numeric_limits<double>::max(),
                                               std::numeric_limits<double>::min(),
                                               -std::numeric_limits<double>::min(),
                                               std::numeric_limits<double>::denorm_min(),
                                               -std::numeric_limits<double>::denorm_min(),
                                               -1};

}  // namespace trelonit::test
