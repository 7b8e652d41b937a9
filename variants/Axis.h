#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/values/Integers.h"

namespace trelonit {

// What a user writes to say which values of one thing are to be tried: numbers and ranges
// from:to:step, separated by commas. The decimal point is a point. All raise 5 with a text that
// tells the user what is wrong: no number, a step that is not positive, a range that runs
// backwards.

/// Values of a range end where its end is, whatever the rounding of its steps.
std::vector<double> ParseNumbers(std::string_view text);

/// The same for whole numbers.
std::vector<Long> ParseWholeNumbers(std::string_view text);

/// The parts of a text between its commas, without blanks around them. Raises 5 for an empty one.
std::vector<std::string> ParseList(std::string_view text);

/// No study has more variants; a range that alone has more raises 5.
constexpr double mostVariants = 100'000'000;

}  // namespace trelonit
