#pragma once

#include <optional>
#include <string>

#include "platform/system/Services.h"

namespace trelonit {

/// Date and time in the text form that the user has chosen for the whole system; nothing where the
/// system has none.
std::optional<std::string> SystemTimeText(const ClockReading& reading);

}  // namespace trelonit
