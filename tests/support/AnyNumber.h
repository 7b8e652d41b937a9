#pragma once

#include <array>
#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>
#include <rapidcheck.h>

namespace trelonit::test {

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double notANumber = std::numeric_limits<double>::quiet_NaN();

/// Any finite Double: every exponent alike, the ends of the range, zeros and tame numbers.
inline rc::Gen<double> AnyNumber() {
  using Limits = std::numeric_limits<double>;
  const auto word = rc::gen::resize(rc::kNominalSize, rc::gen::arbitrary<std::uint64_t>());
  const auto bits = rc::gen::map(word, [](std::uint64_t pattern) {
    const auto value = std::bit_cast<double>(pattern);
    return std::isfinite(value) ? value : 1.0;
  });
  return rc::gen::weightedOneOf<double>(
      {{6, bits},
       {2, rc::gen::element(0.0, -0.0, Limits::max(), -Limits::max(), Limits::min(),
                            Limits::denorm_min(), -1.0, 1.0)},
       {3, rc::gen::map(rc::gen::inRange(-100000, 100001), [](int n) { return n / 1000.0; })}});
}

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
