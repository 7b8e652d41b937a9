#include "platform/text/NumberText.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <system_error>

#include "platform/errors/RuntimeError.h"
#include "platform/text/Text.h"
#include "platform/values/Arithmetic.h"

namespace trelonit {

namespace {

constexpr int significantDigits = 15;

/// A value as its 15 significant digits: 0.d1d2d3... * 10^Exponent.
struct DecimalDigits {
  bool Negative = false;
  std::string Digits;
  int Exponent = 0;
};

DecimalDigits ToDigits(double value) {
  std::array<char, 64> buffer{};
  const auto written =
      std::to_chars(buffer.data(), buffer.data() + buffer.size(), std::abs(Finite(value)),
                    std::chars_format::scientific, significantDigits - 1);
  const std::string_view text(buffer.data(), static_cast<std::size_t>(written.ptr - buffer.data()));
  const std::size_t mark = text.find('e');
  DecimalDigits decimal;
  decimal.Negative = std::signbit(value);
  decimal.Digits.reserve(significantDigits + 2);
  decimal.Digits.push_back(text[0]);
  decimal.Digits.append(text.substr(2, mark - 2));
  const char* first = text.data() + mark + 1;
  if (*first == '+') {
    ++first;
  }
  std::from_chars(first, text.data() + text.size(), decimal.Exponent);
  ++decimal.Exponent;
  return decimal;
}

/// Cuts to this many decimals, half away from zero. Leaves no digits for a value that rounds to 0.
void RoundDigits(DecimalDigits& decimal, int decimals) {
  const int kept = decimal.Exponent + decimals;
  if (kept < 0) {
    decimal.Digits.clear();
    return;
  }
  const std::size_t size = std::min(static_cast<std::size_t>(kept), decimal.Digits.size());
  // The end of the text is below every digit.
  const bool up = decimal.Digits[size] >= '5';
  decimal.Digits.resize(size);
  if (up) {
    std::size_t place = decimal.Digits.size();
    while (place > 0 && decimal.Digits[place - 1] == '9') {
      decimal.Digits[--place] = '0';
    }
    if (place > 0) {
      ++decimal.Digits[place - 1];
    } else {
      decimal.Digits.insert(decimal.Digits.begin(), '1');
      ++decimal.Exponent;
    }
  }
}

void InsertGroups(std::string& whole, const NumberLocale& locale) {
  if (locale.GroupSeparator.empty() || locale.GroupSize <= 0) {
    return;
  }
  const auto size = static_cast<std::size_t>(locale.GroupSize);
  for (std::size_t place = whole.size(); place > size;) {
    place -= size;
    whole.insert(place, locale.GroupSeparator);
  }
}

std::string Format(double value, int decimals, const NumberLocale& locale, bool groups) {
  DecimalDigits decimal = ToDigits(value);
  RoundDigits(decimal, decimals);
  const bool zero = decimal.Digits.find_first_not_of('0') == std::string::npos;

  const auto digitAt = [&decimal](int place) {
    return place >= 0 && place < static_cast<int>(decimal.Digits.size())
               ? decimal.Digits[static_cast<std::size_t>(place)]
               : '0';
  };
  std::string whole;
  if (decimal.Exponent > 0) {
    const auto length = static_cast<std::size_t>(decimal.Exponent);
    whole.append(decimal.Digits, 0, length).resize(length, '0');
  }
  if (zero || whole.empty()) {
    whole = "0";
  }
  if (groups) {
    InsertGroups(whole, locale);
  }
  std::string text = decimal.Negative && !zero ? "-" : "";
  text += whole;
  if (decimals > 0) {
    text += locale.DecimalSeparator;
    for (int place = 0; place < decimals; ++place) {
      text.push_back(zero ? '0' : digitAt(decimal.Exponent + place));
    }
  }
  return text;
}

bool IsDigit(char character) {
  return character >= '0' && character <= '9';
}

/// Number of digits from this place on.
std::size_t DigitsAt(std::string_view text, std::size_t place) {
  const auto first = text.begin() + static_cast<std::ptrdiff_t>(place);
  return static_cast<std::size_t>(std::find_if_not(first, text.end(), IsDigit) - first);
}

/// Length of a no-break blank (U+00A0 or U+202F) at this place, or 0.
std::size_t NoBreakBlankAt(std::string_view text, std::size_t place) {
  for (const std::string_view blank : {std::string_view("\u00A0"), std::string_view("\u202F")}) {
    if (text.substr(place, blank.size()) == blank) {
      return blank.size();
    }
  }
  return 0;
}

/// The text in the neutral form that from_chars reads, or an empty text when it is no number.
std::string ToNeutral(std::string_view text, const NumberLocale& locale) {
  text = Trim(text);
  std::string neutral;
  neutral.reserve(text.size());
  std::size_t place = 0;
  if (place < text.size() && (text[place] == '+' || text[place] == '-')) {
    if (text[place] == '-') {
      neutral.push_back('-');
    }
    ++place;
  }
  bool digits = false;
  bool fraction = false;
  while (place < text.size()) {
    if (const std::size_t run = DigitsAt(text, place); run > 0) {
      neutral.append(text, place, run);
      place += run;
      digits = true;
    } else if (const std::size_t blank = NoBreakBlankAt(text, place);
               blank > 0 && !fraction && place > 0 && IsDigit(text[place - 1]) &&
               DigitsAt(text, place + blank) > 0) {
      place += blank;
    } else if (!fraction && text.substr(place).starts_with(locale.DecimalSeparator)) {
      neutral.push_back('.');
      place += locale.DecimalSeparator.size();
      fraction = true;
    } else {
      break;
    }
  }
  if (!digits) {
    return {};
  }
  if (place < text.size()) {
    if (text[place] != 'e' && text[place] != 'E') {
      return {};
    }
    neutral.push_back('e');
    ++place;
    if (place < text.size() && (text[place] == '+' || text[place] == '-')) {
      neutral.push_back(text[place++]);
    }
    if (place == text.size() ||
        !std::all_of(text.begin() + static_cast<std::ptrdiff_t>(place), text.end(), IsDigit)) {
      return {};
    }
    neutral.append(text.substr(place));
  }
  return neutral;
}

/// Of a number that from_chars finds out of range: whether it is too large, and not too small. That
/// is told by the decimal place of its first digit other than 0; there is one, because 0 is in
/// range.
bool IsTooLarge(std::string_view neutral) {
  const std::size_t mark = std::min(neutral.find('e'), neutral.size());
  const std::string_view digits = neutral.substr(0, mark);
  const auto lead = static_cast<std::ptrdiff_t>(digits.find_first_of("123456789"));
  const auto point = static_cast<std::ptrdiff_t>(std::min(digits.find('.'), digits.size()));
  std::string_view exponent = neutral.substr(std::min(mark + 1, neutral.size()));
  const bool negative = exponent.starts_with('-');
  if (negative || exponent.starts_with('+')) {
    exponent.remove_prefix(1);
  }
  std::int32_t power = 0;
  const auto read = std::from_chars(exponent.data(), exponent.data() + exponent.size(), power);
  if (read.ec == std::errc::result_out_of_range) {
    return !negative;
  }
  return point - lead + (negative ? -power : power) > 0;
}

enum class Reading { Done, NoNumber, TooLarge };

/// One conversion without exceptions: the tolerant parser tries several.
Reading Read(std::string_view text, const NumberLocale& locale, double& value) {
  const std::string neutral = ToNeutral(text, locale);
  if (neutral.empty()) {
    return Reading::NoNumber;
  }
  const auto read = std::from_chars(neutral.data(), neutral.data() + neutral.size(), value);
  if (read.ec == std::errc::result_out_of_range) {
    value = 0;
    return IsTooLarge(neutral) ? Reading::TooLarge : Reading::Done;
  }
  // The neutral form is a number from its first letter to its last.
  return Reading::Done;
}

/// Reads the first two parts of the text at the separator as one number with it; the whole text
/// where there is no separator.
bool ReadParts(std::string_view text, char separator, double& value) {
  const std::size_t first = text.find(separator);
  if (first != std::string_view::npos) {
    text = text.substr(0, text.find(separator, first + 1));
  }
  return Read(text, {.DecimalSeparator = std::string(1, separator)}, value) == Reading::Done;
}

}  // namespace

std::string NumberToText(double value, const NumberLocale& locale) {
  if (Finite(value) == 0) {
    return "0";
  }
  std::array<char, 64> buffer{};
  const auto written = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                                     std::chars_format::general, significantDigits);
  std::string text;
  for (const char* place = buffer.data(); place != written.ptr; ++place) {
    if (*place == '.') {
      text += locale.DecimalSeparator;
    } else {
      text.push_back(*place == 'e' ? 'E' : *place);
    }
  }
  return text;
}

std::string FormatShown(double value, int decimals, const NumberLocale& locale) {
  return Format(value, decimals, locale, true);
}

std::string FormatPlain(double value, int decimals, const NumberLocale& locale) {
  return Format(value, decimals, locale, false);
}

double RoundToDecimals(double value, int decimals) {
  return TextToNumber(FormatPlain(value, decimals, {}), {});
}

double TextToNumber(std::string_view text, const NumberLocale& locale) {
  double value = 0;
  switch (Read(text, locale, value)) {
    case Reading::NoNumber:
      throw RuntimeError(ErrorNumber::TypeMismatch);
    case Reading::TooLarge:
      throw RuntimeError(ErrorNumber::Overflow);
    case Reading::Done:
      break;
  }
  return value;
}

Integer TextToInteger(std::string_view text, const NumberLocale& locale) {
  return RoundToInteger(TextToNumber(text, locale));
}

Long TextToLong(std::string_view text, const NumberLocale& locale) {
  return RoundToLong(TextToNumber(text, locale));
}

double ParseNumber(std::string_view text, const NumberLocale& locale) {
  double value = 0;
  if (Read(text, locale, value) == Reading::Done || ReadParts(text, ',', value) ||
      ReadParts(text, '.', value)) {
    return value;
  }
  return 0;
}

std::string BooleanToText(bool value) {
  return value ? "True" : "False";
}

bool TextToBoolean(std::string_view text, const NumberLocale& locale) {
  const std::string lower = LowerLatin(std::string(Trim(text)));
  if (lower == "true") {
    return true;
  }
  if (lower == "false") {
    return false;
  }
  return TextToNumber(text, locale) != 0;
}

}  // namespace trelonit
