#include "platform/system/SystemTimeText.h"

namespace trelonit {

// A desktop's locale tells forms for programs that speak its language; this one speaks Russian.
std::optional<std::string> SystemTimeText(const ClockReading& /*reading*/) {
  return std::nullopt;
}

}  // namespace trelonit
