#include "platform/values/Integers.h"

#include <cmath>
#include <limits>

#include "platform/errors/RuntimeError.h"

namespace trelonit {

namespace {

template <class Whole>
Whole RoundTo(double value) {
  // nearbyint follows the rounding mode, which the program never changes from to-nearest-even.
  const double rounded = std::nearbyint(value);
  if (!(rounded >= std::numeric_limits<Whole>::min() &&
        rounded <= std::numeric_limits<Whole>::max())) {
    throw RuntimeError(ErrorNumber::Overflow);
  }
  return static_cast<Whole>(rounded);
}

}  // namespace

Integer RoundToInteger(double value) {
  return RoundTo<Integer>(value);
}

Long RoundToLong(double value) {
  return RoundTo<Long>(value);
}

}  // namespace trelonit
