#pragma once

#include <ctime>

namespace trelonit {

/// The time in the user's time zone.
std::tm LocalTime(std::time_t time);

}  // namespace trelonit
