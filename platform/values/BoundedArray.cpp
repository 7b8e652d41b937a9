#include "platform/values/BoundedArray.h"

#include "platform/errors/RuntimeError.h"

namespace trelonit {

void RaiseSubscriptOutOfRange() {
  throw RuntimeError(ErrorNumber::SubscriptOutOfRange);
}

std::size_t BoundedCount(Long lower, Long upper) {
  const std::ptrdiff_t count = static_cast<std::ptrdiff_t>(upper) - lower + 1;
  if (count < 0) {
    RaiseSubscriptOutOfRange();
  }
  return static_cast<std::size_t>(count);
}

}  // namespace trelonit
