#pragma once

#include <string>
#include <string_view>

#include "platform/values/Integers.h"

namespace trelonit {

/// How the user's system writes numbers. A value, handed to whoever converts; the default is the
/// neutral form with a point and no groups.
struct NumberLocale {
  std::string DecimalSeparator = ".";
  std::string GroupSeparator;
  int GroupSize = 3;
};

/// The locale of the user's system, as its environment tells it.
NumberLocale SystemNumberLocale();

/// Up to 15 significant digits, no trailing zeros, exponent form as "%.15G" writes it, no groups.
/// Zero is "0", never "-0". Raises 6 for a value that is not finite.
std::string NumberToText(double value, const NumberLocale& locale);

/// With a fixed count of decimals (0 to 15), rounded half away from zero on the 15-digit text, and
/// with the locale's groups: what the user is shown. A value that rounds to zero has no sign.
std::string FormatShown(double value, int decimals, const NumberLocale& locale);

/// The same without groups: for text boxes, which are read back.
std::string FormatPlain(double value, int decimals, const NumberLocale& locale);

/// The value that the formatted text stands for.
double RoundToDecimals(double value, int decimals);

/// The locale-aware conversion: blanks around, a sign, digits with the locale's decimal separator,
/// an exponent. No-break blanks between digit groups are accepted, other group separators are not,
/// so that a comma or a point is never taken for a group separator. Raises 13 for any other text
/// and 6 beyond the range of Double.
double TextToNumber(std::string_view text, const NumberLocale& locale);

/// TextToNumber rounded half to even; raise 6 beyond 16 and 32 bits.
Integer TextToInteger(std::string_view text, const NumberLocale& locale);
Long TextToLong(std::string_view text, const NumberLocale& locale);

/// The tolerant parser behind every text box: comma and point are both decimal separators in every
/// locale; of a text with several only the first two parts count; text that is no number gives 0.
/// Never fails.
double ParseNumber(std::string_view text, const NumberLocale& locale);

/// "True" or "False".
std::string BooleanToText(bool value);

/// Accepts "True" and "False" in any case, and numbers (0 is False); raises 13 otherwise.
bool TextToBoolean(std::string_view text, const NumberLocale& locale);

}  // namespace trelonit
