#include <cmath>
#include <cstdlib>
#include <functional>
#include <gtest/gtest.h>
#include <limits>
#include <locale>
#include <optional>
#include <stdexcept>
#include <string>
#include <utility>

#include "platform/text/NumberText.h"
#include "tests/support/AnyNumber.h"
#include "tests/support/TestServices.h"

#ifndef _WIN32
#include "platform/posix/PosixLocale.h"
#endif

namespace trelonit::test {

int ErrorOf(const std::function<void()>& body);

namespace {

TEST(NumberToText, WritesWholeNumbersWithoutSeparator) {
  EXPECT_EQ(NumberToText(1, PointLocale()), "1");
  EXPECT_EQ(NumberToText(-42, CommaLocale()), "-42");
  EXPECT_EQ(NumberToText(1234567, PointLocale()), "1234567");
}

TEST(NumberToText, WritesTheDecimalSeparatorOfTheLocale) {
  EXPECT_EQ(NumberToText(1.5, PointLocale()), "1.5");
  EXPECT_EQ(NumberToText(1.5, CommaLocale()), "1,5");
  EXPECT_EQ(NumberToText(-1.5, {.DecimalSeparator = "\u066B"}), "-1\u066B5");
}

TEST(NumberToText, WritesAFractionWithItsLeadingZero) {
  EXPECT_EQ(NumberToText(0.5, PointLocale()), "0.5");
  EXPECT_EQ(NumberToText(-0.25, CommaLocale()), "-0,25");
}

TEST(NumberToText, WritesZeroWithoutASign) {
  EXPECT_EQ(NumberToText(0.0, PointLocale()), "0");
  EXPECT_EQ(NumberToText(-0.0, PointLocale()), "0");
}

TEST(NumberToText, WritesFifteenSignificantDigitsWithoutTrailingZeros) {
  EXPECT_EQ(NumberToText(1.0 / 3, PointLocale()), "0.333333333333333");
  EXPECT_EQ(NumberToText(2.0 / 3, PointLocale()), "0.666666666666667");
  EXPECT_EQ(NumberToText(0.1 + 0.2, PointLocale()), "0.3");
  EXPECT_EQ(NumberToText(123456.789012345678, PointLocale()), "123456.789012346");
  EXPECT_EQ(NumberToText(1.10, PointLocale()), "1.1");
}

TEST(NumberToText, TakesTheExponentFormBeyondFifteenDigits) {
  EXPECT_EQ(NumberToText(999999999999999, PointLocale()), "999999999999999");
  EXPECT_EQ(NumberToText(1e15, PointLocale()), "1E+15");
  EXPECT_EQ(NumberToText(-1.25e100, CommaLocale()), "-1,25E+100");
}

TEST(NumberToText, TakesTheExponentFormBelowOneTenThousandth) {
  EXPECT_EQ(NumberToText(0.0001, PointLocale()), "0.0001");
  EXPECT_EQ(NumberToText(0.00001, PointLocale()), "1E-05");
  EXPECT_EQ(NumberToText(1.5e-7, CommaLocale()), "1,5E-07");
  EXPECT_EQ(NumberToText(5e-324, PointLocale()), "4.94065645841247E-324");
}

TEST(NumberToText, RefusesWhatIsNotFinite) {
  EXPECT_EQ(ErrorOf([] { NumberToText(infinity, PointLocale()); }), 6);
  EXPECT_EQ(ErrorOf([] { NumberToText(-infinity, PointLocale()); }), 6);
  EXPECT_EQ(ErrorOf([] { NumberToText(notANumber, PointLocale()); }), 6);
}

TEST(FormatPlain, KeepsTheNumberOfDecimals) {
  EXPECT_EQ(FormatPlain(2, 3, PointLocale()), "2.000");
  EXPECT_EQ(FormatPlain(2.5, 3, CommaLocale()), "2,500");
  EXPECT_EQ(FormatPlain(0.5, 1, PointLocale()), "0.5");
  EXPECT_EQ(FormatPlain(0, 4, PointLocale()), "0.0000");
  EXPECT_EQ(FormatPlain(1.0 / 3, 15, PointLocale()), "0.333333333333333");
}

TEST(FormatPlain, WritesNoSeparatorWithoutDecimals) {
  EXPECT_EQ(FormatPlain(12, 0, PointLocale()), "12");
  EXPECT_EQ(FormatPlain(0.4, 0, CommaLocale()), "0");
  EXPECT_EQ(FormatPlain(0, 0, CommaLocale()), "0");
}

TEST(FormatPlain, RoundsHalfAwayFromZero) {
  EXPECT_EQ(FormatPlain(0.5, 0, PointLocale()), "1");
  EXPECT_EQ(FormatPlain(1.5, 0, PointLocale()), "2");
  EXPECT_EQ(FormatPlain(2.5, 0, PointLocale()), "3");
  EXPECT_EQ(FormatPlain(-2.5, 0, PointLocale()), "-3");
  EXPECT_EQ(FormatPlain(-0.5, 0, PointLocale()), "-1");
  EXPECT_EQ(FormatPlain(0.125, 2, PointLocale()), "0.13");
}

TEST(FormatPlain, DecidesOnTheFifteenDigitText) {
  // In binary 1.005 and 2.345 lie below the half, and 0.15 does too.
  EXPECT_EQ(FormatPlain(1.005, 2, PointLocale()), "1.01");
  EXPECT_EQ(FormatPlain(2.345, 2, PointLocale()), "2.35");
  EXPECT_EQ(FormatPlain(0.15, 1, PointLocale()), "0.2");
  EXPECT_EQ(FormatPlain(-1.005, 2, PointLocale()), "-1.01");
  // 17 digits tell this one from the half, 15 do not.
  EXPECT_EQ(FormatPlain(2.4999999999999996, 0, PointLocale()), "3");
  EXPECT_EQ(FormatPlain(2.49999999999999, 0, PointLocale()), "2");
}

TEST(FormatPlain, CarriesThroughNines) {
  EXPECT_EQ(FormatPlain(9.995, 2, PointLocale()), "10.00");
  EXPECT_EQ(FormatPlain(99.96, 1, PointLocale()), "100.0");
  EXPECT_EQ(FormatPlain(1.096, 2, PointLocale()), "1.10");
  EXPECT_EQ(FormatPlain(0.96, 1, PointLocale()), "1.0");
  EXPECT_EQ(FormatPlain(-0.9996, 3, PointLocale()), "-1.000");
}

TEST(FormatPlain, RoundsFractionsWithLeadingZeros) {
  EXPECT_EQ(FormatPlain(0.05, 1, PointLocale()), "0.1");
  EXPECT_EQ(FormatPlain(0.006, 2, PointLocale()), "0.01");
  EXPECT_EQ(FormatPlain(0.0449, 1, PointLocale()), "0.0");
  EXPECT_EQ(FormatPlain(0.00123, 4, PointLocale()), "0.0012");
  EXPECT_EQ(FormatPlain(1.02, 3, PointLocale()), "1.020");
}

TEST(FormatPlain, WritesAValueThatRoundsToZeroWithoutASign) {
  EXPECT_EQ(FormatPlain(-0.0, 4, PointLocale()), "0.0000");
  EXPECT_EQ(FormatPlain(-0.00004, 4, PointLocale()), "0.0000");
  EXPECT_EQ(FormatPlain(-1e-300, 2, CommaLocale()), "0,00");
  EXPECT_EQ(FormatPlain(-0.4, 0, PointLocale()), "0");
  EXPECT_EQ(FormatPlain(-0.00005, 4, PointLocale()), "-0.0001");
}

TEST(FormatPlain, TakesNoGroups) {
  EXPECT_EQ(FormatPlain(1234567.5, 1, PointLocale()), "1234567.5");
  EXPECT_EQ(FormatPlain(1234567.5, 1, CommaLocale()), "1234567,5");
}

TEST(FormatPlain, FillsLargeNumbersWithZerosBehindFifteenDigits) {
  EXPECT_EQ(FormatPlain(123456789012345678.0, 1, PointLocale()), "123456789012346000.0");
  EXPECT_EQ(FormatPlain(1e20, 0, PointLocale()), "100000000000000000000");
}

TEST(FormatPlain, RefusesWhatIsNotFinite) {
  EXPECT_EQ(ErrorOf([] { FormatPlain(infinity, 2, PointLocale()); }), 6);
  EXPECT_EQ(ErrorOf([] { FormatPlain(notANumber, 2, PointLocale()); }), 6);
}

TEST(FormatShown, TakesTheGroupsOfTheLocale) {
  EXPECT_EQ(FormatShown(1234567.891, 2, PointLocale()), "1,234,567.89");
  EXPECT_EQ(FormatShown(1234567.891, 2, CommaLocale()), "1\u00A0234\u00A0567,89");
  EXPECT_EQ(FormatShown(-123456, 0, PointLocale()), "-123,456");
}

TEST(FormatShown, SeparatesFromTheFourthDigitOn) {
  EXPECT_EQ(FormatShown(999, 0, PointLocale()), "999");
  EXPECT_EQ(FormatShown(-999, 0, PointLocale()), "-999");
  EXPECT_EQ(FormatShown(1000, 0, PointLocale()), "1,000");
  EXPECT_EQ(FormatShown(999.995, 2, PointLocale()), "1,000.00");
}

TEST(FormatShown, LeavesTheDecimalsUngrouped) {
  EXPECT_EQ(FormatShown(0.123456, 6, PointLocale()), "0.123456");
}

TEST(FormatShown, FollowsTheGroupSize) {
  NumberLocale locale = PointLocale();
  locale.GroupSize = 4;
  EXPECT_EQ(FormatShown(123456789, 0, locale), "1,2345,6789");
  locale.GroupSize = 1;
  EXPECT_EQ(FormatShown(123, 0, locale), "1,2,3");
  locale.GroupSize = 0;
  EXPECT_EQ(FormatShown(123456789, 0, locale), "123456789");
  // Thousands unless the locale says otherwise.
  EXPECT_EQ(FormatShown(123456789, 0, {.GroupSeparator = "'"}), "123'456'789");
}

TEST(FormatShown, TakesNoGroupsWithoutASeparator) {
  EXPECT_EQ(FormatShown(123456789.5, 1, {}), "123456789.5");
}

TEST(FormatShown, WritesAValueThatRoundsToZeroWithoutASign) {
  EXPECT_EQ(FormatShown(-0.00004, 4, PointLocale()), "0.0000");
}

TEST(RoundToDecimals, GivesTheValueOfTheFormattedText) {
  EXPECT_EQ(RoundToDecimals(1.005, 2), 1.01);
  EXPECT_EQ(RoundToDecimals(2.5, 0), 3.0);
  EXPECT_EQ(RoundToDecimals(-1234567.25, 1), -1234567.3);
  EXPECT_EQ(RoundToDecimals(7, 3), 7.0);
}

TEST(RoundToDecimals, GivesZeroWithoutASign) {
  EXPECT_FALSE(std::signbit(RoundToDecimals(-0.001, 2)));
}

TEST(BooleanToText, WritesTheEnglishWords) {
  EXPECT_EQ(BooleanToText(true), "True");
  EXPECT_EQ(BooleanToText(false), "False");
}

#ifndef _WIN32

/// A locale that need not be installed.
class OwnPunctuation : public std::numpunct<wchar_t> {
 public:
  OwnPunctuation(wchar_t separator, std::string grouping)
      : separator_(separator), grouping_(std::move(grouping)) {}

 protected:
  wchar_t do_decimal_point() const override { return L','; }
  wchar_t do_thousands_sep() const override { return separator_; }
  std::string do_grouping() const override { return grouping_; }

 private:
  wchar_t separator_;
  std::string grouping_;
};

NumberLocale LocaleWith(wchar_t separator, const std::string& grouping) {
  // The locale owns its facet.
  return NumberLocaleOf(
      std::locale(std::locale::classic(), new OwnPunctuation(separator, grouping)));
}

TEST(NumberLocaleOf, TakesTheSeparatorsAndTheSizeOfTheLastGroup) {
  const NumberLocale locale = LocaleWith(L'\u202F', "\3\2");
  EXPECT_EQ(locale.DecimalSeparator, ",");
  EXPECT_EQ(locale.GroupSeparator, "\u202F");
  EXPECT_EQ(locale.GroupSize, 3);
  EXPECT_EQ(LocaleWith(L' ', "\1").GroupSeparator, " ");
  EXPECT_EQ(LocaleWith(L' ', "\1").GroupSize, 1);
}

TEST(NumberLocaleOf, MakesNoGroupsWhereTheLocaleHasNone) {
  EXPECT_EQ(LocaleWith(L' ', "").GroupSeparator, "");
  EXPECT_EQ(LocaleWith(L' ', std::string(1, '\0')).GroupSeparator, "");
  EXPECT_EQ(LocaleWith(L'\0', "\3").GroupSeparator, "");
}

#endif

/// Sets the variable that rules the system's locale, and puts it back.
class SystemNumberLocaleTest : public testing::Test {
 protected:
  ~SystemNumberLocaleTest() override { Set(before_); }

  static void Set(const std::optional<std::string>& name) {
#ifdef _WIN32
    _putenv_s("LC_ALL", name.value_or("").c_str());
#else
    if (name) {
      ::setenv("LC_ALL", name->c_str(), 1);
    } else {
      ::unsetenv("LC_ALL");
    }
#endif
  }

 private:
  static std::optional<std::string> Present() {
    const char* name = std::getenv("LC_ALL");
    return name != nullptr ? std::optional<std::string>(name) : std::nullopt;
  }
  std::optional<std::string> before_ = Present();
};

TEST_F(SystemNumberLocaleTest, IsNeutralInThePlainEnvironment) {
  Set("C");
  const NumberLocale locale = SystemNumberLocale();
  EXPECT_EQ(locale.DecimalSeparator, ".");
  EXPECT_EQ(locale.GroupSeparator, "");
}

TEST_F(SystemNumberLocaleTest, IsNeutralWhereTheEnvironmentNamesAnUnknownLocale) {
  Set("xx_NOWHERE");
  NumberLocale locale;
  EXPECT_NO_THROW(locale = SystemNumberLocale());
  EXPECT_EQ(locale.DecimalSeparator, ".");
  EXPECT_EQ(locale.GroupSeparator, "");
}

TEST_F(SystemNumberLocaleTest, TakesSeparatorsFromTheEnvironment) {
  try {
    const std::locale installed("ru_RU.UTF-8");
  } catch (const std::runtime_error&) {
    GTEST_SKIP() << "no Russian locale on this machine";
  }
  Set("ru_RU.UTF-8");
  const NumberLocale locale = SystemNumberLocale();
  EXPECT_EQ(locale.DecimalSeparator, ",");
  EXPECT_TRUE(locale.GroupSeparator == "\u00A0" || locale.GroupSeparator == "\u202F")
      << locale.GroupSeparator;
  EXPECT_EQ(locale.GroupSize, 3);
  EXPECT_EQ(TextToNumber(FormatShown(1234567.5, 1, locale), locale), 1234567.5);
}

}  // namespace

}  // namespace trelonit::test
