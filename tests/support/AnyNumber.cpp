#include "tests/support/AnyNumber.h"

#include <bit>
#include <cmath>
#include <cstdint>

namespace trelonit::test {

rc::Gen<double> AnyNumber() {
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

}  // namespace trelonit::test
