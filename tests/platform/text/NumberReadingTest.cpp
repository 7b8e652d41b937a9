#include <cmath>
#include <functional>
#include <gtest/gtest.h>
#include <limits>
#include <rapidcheck.h>
#include <rapidcheck/gtest.h>
#include <string>
#include <vector>

#include "platform/text/NumberText.h"
#include "tests/support/TestServices.h"

namespace trelonit::test {

int ErrorOf(const std::function<void()>& body);

namespace {

std::vector<NumberLocale> AllLocales() {
  return {PointLocale(),      CommaLocale(),          {",", ".", 3}, {".", "'", 3}, {},
          {",", "\u202F", 3}, {"\u066B", "\u066C", 3}};
}

std::string Zeros(std::size_t count) {
  return std::string(count, '0');
}

TEST(TextToNumber, ReadsTheDecimalSeparatorOfTheLocale) {
  EXPECT_EQ(TextToNumber("1.5", PointLocale()), 1.5);
  EXPECT_EQ(TextToNumber("1,5", CommaLocale()), 1.5);
  EXPECT_EQ(TextToNumber("1\u066B5", {.DecimalSeparator = "\u066B"}), 1.5);
}

TEST(TextToNumber, ReadsSignsAndBlanksAround) {
  EXPECT_EQ(TextToNumber("-2", PointLocale()), -2.0);
  EXPECT_EQ(TextToNumber("+2", PointLocale()), 2.0);
  EXPECT_EQ(TextToNumber("  7.25\t", PointLocale()), 7.25);
}

TEST(TextToNumber, ReadsANumberWithoutWholePartOrWithoutDecimals) {
  EXPECT_EQ(TextToNumber(".5", PointLocale()), 0.5);
  EXPECT_EQ(TextToNumber("-,5", CommaLocale()), -0.5);
  EXPECT_EQ(TextToNumber("5.", PointLocale()), 5.0);
  EXPECT_EQ(TextToNumber("007", PointLocale()), 7.0);
}

TEST(TextToNumber, ReadsExponents) {
  EXPECT_EQ(TextToNumber("1e3", PointLocale()), 1000.0);
  EXPECT_EQ(TextToNumber("1,5E+02", CommaLocale()), 150.0);
  EXPECT_EQ(TextToNumber("25E-1", PointLocale()), 2.5);
  EXPECT_EQ(TextToNumber("5.e1", PointLocale()), 50.0);
}

TEST(TextToNumber, AcceptsNoBreakBlanksBetweenDigits) {
  for (const NumberLocale& locale : {PointLocale(), CommaLocale()}) {
    EXPECT_EQ(TextToNumber("1\u00A0234\u00A0567", locale), 1234567.0);
    EXPECT_EQ(TextToNumber("-1\u202F234", locale), -1234.0);
  }
  EXPECT_EQ(TextToNumber("1\u00A0234,5", CommaLocale()), 1234.5);
  EXPECT_EQ(TextToNumber("1\u00A02\u00A03", CommaLocale()), 123.0);
}

TEST(TextToNumber, RefusesNoBreakBlanksElsewhere) {
  for (const std::string text : {"\u00A01", "1\u00A0", "1\u00A0\u00A0234", "-\u00A01",
                                 "1,000\u00A0000", "1\u00A0,5", "1E1\u00A00", "1\u00A0E1"}) {
    EXPECT_EQ(ErrorOf([&] { TextToNumber(text, CommaLocale()); }), 13) << text;
  }
}

TEST(TextToNumber, RefusesEveryOtherGroupSeparator) {
  EXPECT_EQ(ErrorOf([] { TextToNumber("1,234", PointLocale()); }), 13);
  EXPECT_EQ(ErrorOf([] { TextToNumber("1,234.5", PointLocale()); }), 13);
  EXPECT_EQ(ErrorOf([] { TextToNumber("1.234", {",", ".", 3}); }), 13);
  EXPECT_EQ(ErrorOf([] { TextToNumber("1'234", {".", "'", 3}); }), 13);
  EXPECT_EQ(ErrorOf([] { TextToNumber("1 234", {",", " ", 3}); }), 13);
}

TEST(TextToNumber, RefusesWhatIsNoNumber) {
  for (const std::string& text : {std::string(),
                                  std::string(" \t "),
                                  std::string("abc"),
                                  std::string("1a"),
                                  std::string("a1"),
                                  std::string("."),
                                  std::string("-"),
                                  std::string("+-1"),
                                  std::string("--1"),
                                  std::string("- 1"),
                                  std::string("1-"),
                                  std::string("1.2.3"),
                                  std::string("e5"),
                                  std::string("1e"),
                                  std::string("1e+"),
                                  std::string("1e1.5"),
                                  std::string("1e5e5"),
                                  std::string("1e--5"),
                                  std::string("inf"),
                                  std::string("nan"),
                                  std::string("INFINITY"),
                                  std::string("0x10"),
                                  std::string("1 2"),
                                  std::string("1\0", 2),
                                  std::string("\xD0"),
                                  std::string("\u0661"),
                                  std::string("\u2212"
                                              "1")}) {
    EXPECT_EQ(ErrorOf([&] { TextToNumber(text, PointLocale()); }), 13) << text;
  }
}

TEST(TextToNumber, ReadsTheEndsOfTheRange) {
  EXPECT_EQ(TextToNumber("1.7976931348623157E308", PointLocale()),
            std::numeric_limits<double>::max());
  EXPECT_EQ(TextToNumber("4.94065645841247E-324", PointLocale()),
            std::numeric_limits<double>::denorm_min());
  EXPECT_EQ(TextToNumber("2.2250738585072014E-308", PointLocale()),
            std::numeric_limits<double>::min());
}

TEST(TextToNumber, RaisesOverflowForANumberBeyondTheRangeHoweverItIsWritten) {
  for (const std::string& text :
       {std::string("1E309"), std::string("-1E309"), std::string("1.8E308"),
        std::string("1E+99999999999999999999"), std::string("12E9223372036854775807"),
        std::string("12E2147483647"), "1" + Zeros(400), "1" + Zeros(400) + ".5",
        "9" + Zeros(330) + "E-5", std::string("0.1E999"), std::string(".5E400"),
        "0." + Zeros(20) + "1E+500"}) {
    EXPECT_EQ(ErrorOf([&] { TextToNumber(text, PointLocale()); }), 6) << text;
  }
}

TEST(TextToNumber, ReadsANumberTooSmallForTheRangeAsZero) {
  for (const std::string& text :
       {std::string("1E-400"), std::string("-1E-400"), std::string("1234.5E-400"),
        std::string("1E-99999999999999999999"), "0." + Zeros(400) + "1",
        "0." + Zeros(400) + "1E+5"}) {
    EXPECT_EQ(TextToNumber(text, PointLocale()), 0.0) << text;
  }
}

TEST(TextToNumber, ReadsZeroWithAnyExponentAsZero) {
  for (const std::string text : {"0E0", "0E999", "0.000E-999", "-0", "0E99999999999999999999"}) {
    EXPECT_EQ(TextToNumber(text, PointLocale()), 0.0) << text;
  }
}

TEST(TextToNumber, ReadsLongDigitRuns) {
  EXPECT_EQ(TextToNumber("1" + Zeros(400) + "E-395", PointLocale()), 100000.0);
  EXPECT_EQ(TextToNumber("0." + Zeros(400) + "1E+401", PointLocale()), 1.0);
  EXPECT_EQ(TextToNumber("0.1000000000000000055511151231257827", PointLocale()), 0.1);
}

TEST(TextToInteger, RoundsHalfToEven) {
  EXPECT_EQ(TextToInteger("2,5", CommaLocale()), 2);
  EXPECT_EQ(TextToInteger("3,5", CommaLocale()), 4);
  EXPECT_EQ(TextToInteger("-0.6", PointLocale()), -1);
}

TEST(TextToInteger, RaisesOverflowBeyondSixteenBits) {
  EXPECT_EQ(TextToInteger("32767", PointLocale()), 32767);
  EXPECT_EQ(ErrorOf([] { TextToInteger("32768", PointLocale()); }), 6);
  EXPECT_EQ(ErrorOf([] { TextToInteger("-40000", PointLocale()); }), 6);
}

TEST(TextToInteger, RaisesTypeMismatchForGarbage) {
  EXPECT_EQ(ErrorOf([] { TextToInteger("x", PointLocale()); }), 13);
}

TEST(TextToLong, ReadsThirtyTwoBits) {
  EXPECT_EQ(TextToLong("2147483647", PointLocale()), 2147483647);
  EXPECT_EQ(TextToLong("1000000,5", CommaLocale()), 1000000);
  EXPECT_EQ(ErrorOf([] { TextToLong("2147483648", PointLocale()); }), 6);
  EXPECT_EQ(ErrorOf([] { TextToLong("", PointLocale()); }), 13);
}

TEST(TextToBoolean, AcceptsTheWordsInAnyCase) {
  for (const std::string text : {"True", "TRUE", "true", " tRuE "}) {
    EXPECT_TRUE(TextToBoolean(text, PointLocale())) << text;
  }
  for (const std::string text : {"False", "FALSE", "false", "\tfAlSe"}) {
    EXPECT_FALSE(TextToBoolean(text, PointLocale())) << text;
  }
}

TEST(TextToBoolean, TakesEveryNumberButZeroForTrue) {
  EXPECT_TRUE(TextToBoolean("-1", PointLocale()));
  EXPECT_TRUE(TextToBoolean("0,5", CommaLocale()));
  EXPECT_FALSE(TextToBoolean("0", PointLocale()));
  EXPECT_FALSE(TextToBoolean("0,00", CommaLocale()));
}

TEST(TextToBoolean, RaisesTypeMismatchForGarbage) {
  for (const std::string text : {"", "yes", "True1", "T rue"}) {
    EXPECT_EQ(ErrorOf([&] { TextToBoolean(text, PointLocale()); }), 13) << text;
  }
}

TEST(ParseNumber, TakesCommaAndPointForDecimalSeparatorsInEveryLocale) {
  for (const NumberLocale& locale : AllLocales()) {
    EXPECT_EQ(ParseNumber("1,5", locale), 1.5) << locale.DecimalSeparator;
    EXPECT_EQ(ParseNumber("1.5", locale), 1.5) << locale.DecimalSeparator;
    EXPECT_EQ(ParseNumber("-,25", locale), -0.25) << locale.DecimalSeparator;
    EXPECT_EQ(ParseNumber("-.25", locale), -0.25) << locale.DecimalSeparator;
    EXPECT_EQ(ParseNumber("2,5e1", locale), 25.0) << locale.DecimalSeparator;
    EXPECT_EQ(ParseNumber("2.5e1", locale), 25.0) << locale.DecimalSeparator;
  }
}

TEST(ParseNumber, NeverTakesCommaOrPointForAGroupSeparator) {
  for (const NumberLocale& locale : AllLocales()) {
    EXPECT_EQ(ParseNumber("1,500", locale), 1.5) << locale.DecimalSeparator;
    EXPECT_EQ(ParseNumber("1.500", locale), 1.5) << locale.DecimalSeparator;
  }
}

TEST(ParseNumber, TakesTheFirstTwoPartsOfATextWithSeveralSeparators) {
  for (const NumberLocale& locale : AllLocales()) {
    EXPECT_EQ(ParseNumber("1,5,7", locale), 1.5) << locale.DecimalSeparator;
    EXPECT_EQ(ParseNumber("1.5.7", locale), 1.5) << locale.DecimalSeparator;
    EXPECT_EQ(ParseNumber("1,5,7,9", locale), 1.5) << locale.DecimalSeparator;
    EXPECT_EQ(ParseNumber("1,5,abc", locale), 1.5) << locale.DecimalSeparator;
    EXPECT_EQ(ParseNumber("1.5.", locale), 1.5) << locale.DecimalSeparator;
    EXPECT_EQ(ParseNumber("1,,5", locale), 1.0) << locale.DecimalSeparator;
  }
}

TEST(ParseNumber, GivesZeroWhereCommaAndPointStandTogether) {
  for (const NumberLocale& locale : AllLocales()) {
    EXPECT_EQ(ParseNumber("1,234.5", locale), 0.0) << locale.DecimalSeparator;
    EXPECT_EQ(ParseNumber("1.234,5", locale), 0.0) << locale.DecimalSeparator;
  }
}

TEST(ParseNumber, GivesZeroForTextThatIsNoNumber) {
  for (const NumberLocale& locale : AllLocales()) {
    for (const std::string text :
         {"", " ", "abc", ",", ".", "-", "1a", "a,5", "1,a", "nan", "inf"}) {
      EXPECT_EQ(ParseNumber(text, locale), 0.0) << text;
    }
  }
}

TEST(ParseNumber, GivesZeroBeyondTheRange) {
  for (const NumberLocale& locale : AllLocales()) {
    for (const std::string text : {"1e999", "-1e999", "1,5e999", "1.5e999"}) {
      EXPECT_EQ(ParseNumber(text, locale), 0.0) << text;
    }
  }
}

TEST(ParseNumber, ReadsBlanksAroundAndNoBreakBlanksBetweenGroups) {
  for (const NumberLocale& locale : AllLocales()) {
    EXPECT_EQ(ParseNumber(" 12 ", locale), 12.0);
    EXPECT_EQ(ParseNumber(" 1\u00A0234,5 ", locale), 1234.5);
    EXPECT_EQ(ParseNumber("1\u202F234.5", locale), 1234.5);
  }
}

RC_GTEST_PROP(ParseNumber, NeverFails, (const std::string& text)) {
  for (const NumberLocale& locale : AllLocales()) {
    RC_ASSERT(std::isfinite(ParseNumber(text, locale)));
  }
}

rc::Gen<std::string> AlmostNumber() {
  return rc::gen::map(
      rc::gen::container<std::vector<std::string>>(rc::gen::elementOf(std::vector<std::string>{
          "0", "1", "5", "9", "00",     "123",    "999", "+",  "-",   ".",
          ",", "e", "E", " ", "\u00A0", "\u202F", "'",   "e9", "E-3", "\xC2"})),
      [](const std::vector<std::string>& parts) {
        std::string text;
        for (const std::string& part : parts) {
          text += part;
        }
        return text;
      });
}

RC_GTEST_PROP(ParseNumber, NeverFailsOnAlmostNumbers, ()) {
  const std::string text = *AlmostNumber();
  for (const NumberLocale& locale : AllLocales()) {
    RC_ASSERT(std::isfinite(ParseNumber(text, locale)));
  }
}

RC_GTEST_PROP(ParseNumber, AgreesWithTheStrictConversionWhereThatSucceeds, ()) {
  const std::string text = *AlmostNumber();
  for (const NumberLocale& locale : AllLocales()) {
    double strict = 0;
    if (ErrorOf([&] { strict = TextToNumber(text, locale); }) == 0) {
      RC_ASSERT(ParseNumber(text, locale) == strict);
    }
  }
}

RC_GTEST_PROP(ParseNumber, GivesTheSameInEveryLocale, ()) {
  const std::string text = *AlmostNumber();
  const double expected = ParseNumber(text, PointLocale());
  for (const NumberLocale& locale : AllLocales()) {
    RC_ASSERT(ParseNumber(text, locale) == expected);
  }
}

RC_GTEST_PROP(TextToNumber, RaisesOnlyTypeMismatchAndOverflow, ()) {
  const std::string text = *rc::gen::oneOf(AlmostNumber(), rc::gen::arbitrary<std::string>());
  for (const NumberLocale& locale : AllLocales()) {
    double value = 0;
    const int error = ErrorOf([&] { value = TextToNumber(text, locale); });
    RC_ASSERT(error == 0 || error == 13 || error == 6);
    RC_ASSERT(std::isfinite(value));
  }
}

}  // namespace

}  // namespace trelonit::test
