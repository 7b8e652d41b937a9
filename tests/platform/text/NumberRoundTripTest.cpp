#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <gtest/gtest.h>
#include <limits>
#include <rapidcheck.h>
#include <rapidcheck/gtest.h>
#include <regex>
#include <string>
#include <vector>

#include "platform/text/NumberText.h"
#include "tests/support/TestServices.h"

namespace trelonit::test {

int ErrorOf(const std::function<void()>& body);
double AnyDouble();

namespace {

std::vector<NumberLocale> WrittenLocales() {
  return {PointLocale(), CommaLocale(), {",", ".", 3}, {"\u066B", "\u066C", 3}, {}};
}

NumberLocale NarrowBlankLocale() {
  return {",", "\u202F", 3};
}

std::int64_t PowerOfTen(int exponent) {
  std::int64_t power = 1;
  for (int count = 0; count < exponent; ++count) {
    power *= 10;
  }
  return power;
}

/// The double nearest to mantissa * 10^exponent.
double Decimal(std::int64_t mantissa, int exponent) {
  const std::string text = std::to_string(mantissa) + "e" + std::to_string(exponent);
  return std::strtod(text.c_str(), nullptr);
}

/// A whole number of at most this many digits, of every length, of either sign.
std::int64_t AnyMantissa(int digits) {
  const int length = *rc::gen::inRange(1, digits + 1);
  const std::int64_t limit = PowerOfTen(length);
  return *rc::gen::resize(rc::kNominalSize, rc::gen::inRange<std::int64_t>(-limit + 1, limit));
}

std::string Without(std::string text, const std::string& part) {
  for (std::size_t place = text.find(part); place != std::string::npos; place = text.find(part)) {
    text.erase(place, part.size());
  }
  return text;
}

RC_GTEST_PROP(NumberToText, WritesWhatTheStandardLibraryWrites, ()) {
  const double value = AnyDouble();
  char expected[64];
  std::snprintf(expected, sizeof expected, "%.15G", value);
  RC_ASSERT(NumberToText(value, PointLocale()) == expected);
}

RC_GTEST_PROP(NumberToText, WritesTheSameInEveryLocaleButForTheSeparator, ()) {
  const double value = AnyDouble();
  std::string comma = NumberToText(value, CommaLocale());
  std::replace(comma.begin(), comma.end(), ',', '.');
  RC_ASSERT(comma == NumberToText(value, PointLocale()));
}

RC_GTEST_PROP(NumberToText, IsReadBackAsTheSameNumberOfFifteenDigits, ()) {
  const double value = Decimal(AnyMantissa(15), *rc::gen::inRange(-290, 291));
  for (const NumberLocale& locale : WrittenLocales()) {
    const std::string text = NumberToText(value, locale);
    RC_ASSERT(TextToNumber(text, locale) == value);
    RC_ASSERT(ParseNumber(text, locale) == value);
  }
}

RC_GTEST_PROP(NumberToText, WritesTheSameTextForWhatWasReadBack, ()) {
  const double value = AnyDouble();
  // The text of the very largest doubles is rounded up beyond the range.
  RC_PRE(std::abs(value) <= 1.79769313486231E308);
  for (const NumberLocale& locale : WrittenLocales()) {
    const std::string text = NumberToText(value, locale);
    RC_ASSERT(NumberToText(TextToNumber(text, locale), locale) == text);
  }
}

TEST(NumberToText, WritesTheLargestDoubleRoundedUpBeyondTheRange) {
  const std::string text = NumberToText(std::numeric_limits<double>::max(), PointLocale());
  EXPECT_EQ(text, "1.79769313486232E+308");
  EXPECT_EQ(ErrorOf([&] { TextToNumber(text, PointLocale()); }), 6);
}

RC_GTEST_PROP(FormatPlain, IsReadBackAsTheSameNumberOfThatManyDecimals, ()) {
  const int decimals = *rc::gen::inRange(0, 16);
  const double value = Decimal(AnyMantissa(15), -decimals);
  for (const NumberLocale& locale : WrittenLocales()) {
    const std::string text = FormatPlain(value, decimals, locale);
    RC_ASSERT(TextToNumber(text, locale) == value);
    RC_ASSERT(ParseNumber(text, locale) == value);
  }
}

RC_GTEST_PROP(FormatPlain, WritesTheSameTextForWhatWasReadBack, ()) {
  // Up to 15 digits in all, as every length and force of a truss has.
  const double value = Decimal(AnyMantissa(15), -*rc::gen::inRange(0, 25));
  const int decimals = *rc::gen::inRange(0, 16);
  for (const NumberLocale& locale : WrittenLocales()) {
    const std::string text = FormatPlain(value, decimals, locale);
    RC_ASSERT(FormatPlain(TextToNumber(text, locale), decimals, locale) == text);
  }
}

RC_GTEST_PROP(FormatPlain, RoundsDecimalsHalfAwayFromZero, ()) {
  const std::int64_t mantissa = AnyMantissa(15);
  const int decimals = *rc::gen::inRange(0, 15);
  const int dropped = *rc::gen::inRange(1, 6);
  const std::int64_t unit = PowerOfTen(dropped);
  const std::int64_t whole = (std::abs(mantissa) + unit / 2) / unit;

  std::string expected = std::to_string(whole);
  if (decimals > 0) {
    const auto least = static_cast<std::size_t>(decimals) + 1;
    expected.insert(0, least > expected.size() ? least - expected.size() : 0, '0');
    expected.insert(expected.size() - static_cast<std::size_t>(decimals), ".");
  }
  if (mantissa < 0 && whole != 0) {
    expected.insert(0, "-");
  }
  RC_ASSERT(FormatPlain(Decimal(mantissa, -decimals - dropped), decimals, PointLocale()) ==
            expected);
}

RC_GTEST_PROP(FormatPlain, NeverGivesANegativeZero, ()) {
  const double value = -std::abs(AnyDouble());
  const int decimals = *rc::gen::inRange(0, 16);
  const std::string text = FormatPlain(value, decimals, PointLocale());
  const bool zero = text.find_first_of("123456789") == std::string::npos;
  RC_ASSERT(text.starts_with('-') == !zero);
}

RC_GTEST_PROP(FormatShown, IsReadBackWhereGroupsAreSeparatedByNoBreakBlanks, ()) {
  const int decimals = *rc::gen::inRange(0, 10);
  const double value = Decimal(AnyMantissa(15), -decimals);
  for (const NumberLocale& locale : {CommaLocale(), NarrowBlankLocale(), NumberLocale()}) {
    const std::string text = FormatShown(value, decimals, locale);
    RC_ASSERT(TextToNumber(text, locale) == value);
    RC_ASSERT(ParseNumber(text, locale) == value);
  }
}

RC_GTEST_PROP(FormatShown, IsThePlainTextWithGroupsOfThreeDigits, ()) {
  const int decimals = *rc::gen::inRange(0, 10);
  const double value = Decimal(AnyMantissa(15), -*rc::gen::inRange(0, 16));
  const std::string shown = FormatShown(value, decimals, PointLocale());
  RC_ASSERT(Without(shown, ",") == FormatPlain(value, decimals, PointLocale()));
  static const std::regex form("-?[0-9]{1,3}(,[0-9]{3})*([.][0-9]+)?");
  RC_ASSERT(std::regex_match(shown, form));
}

RC_GTEST_PROP(RoundToDecimals, IsStable, ()) {
  const double value = Decimal(AnyMantissa(15), -*rc::gen::inRange(0, 25));
  const int decimals = *rc::gen::inRange(0, 16);
  const double once = RoundToDecimals(value, decimals);
  RC_ASSERT(RoundToDecimals(once, decimals) == once);
  RC_ASSERT(std::abs(once - value) <=
            0.5000001 * std::pow(10.0, -decimals) + std::abs(value) * 1e-15);
}

}  // namespace

}  // namespace trelonit::test
