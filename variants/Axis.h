#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/values/Integers.h"
#include "variants/VariantSpace.h"

namespace trelonit {

// What a user writes to say which values of one thing are to be tried: numbers and ranges
// from:to:step, separated by commas. The decimal point is a point. All raise 5 with a text that
// tells the user what is wrong: no number, a step that is not positive, a range that runs
// backwards.

/// No study has more variants.
constexpr double mostVariants = 100'000'000;

/// Values of a range end where its end is, whatever the rounding of its steps. A range that alone
/// has more than most raises 5.
std::vector<double> ParseNumbers(std::string_view text, double most = mostVariants);

/// The same for whole numbers.
std::vector<Long> ParseWholeNumbers(std::string_view text, double most = mostVariants);

/// The parts of a text between its commas, without blanks around them. Raises 5 for an empty one.
std::vector<std::string> ParseList(std::string_view text);

/// Kinds of section, each as layout/standard.
std::vector<SectionKind> ParseKinds(std::string_view text);

/// Steels, each as name:strength in MPa, which is greater than zero.
std::vector<SteelKind> ParseSteels(std::string_view text);

/// Two parts of a text around the sign. Raises 5 where it is not there: the text is written as the
/// form says.
std::pair<std::string, std::string> Halves(const std::string& text, char sign,
                                           const std::string& form);

/// Raises 5 where it is not one whole number.
Long ParseOneWhole(const std::string& text);

}  // namespace trelonit
