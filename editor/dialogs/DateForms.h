#pragma once

#include <string>
#include <vector>

#include "platform/system/Services.h"
#include "platform/values/Integers.h"

namespace trelonit {

constexpr Long dateFormCount = 8;

/// A date and time in the form with this index, 0 to 7; weekday and month in Russian, 7 in the form
/// that the user has chosen for the system, where it has one. Raises 9 for another index.
std::string DateForm(Long index, const ClockReading& reading);

/// The eight forms as a list offers them.
std::vector<std::string> DateFormList(const ClockReading& reading);

}  // namespace trelonit
