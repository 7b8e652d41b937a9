#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "platform/errors/RuntimeError.h"
#include "variants/Axis.h"

namespace trelonit::test {

namespace {

std::string RefusalOf(const std::string& text) {
  try {
    ParseWholeNumbers(text);
  } catch (const RuntimeError& error) {
    EXPECT_EQ(error.Number(), 5);
    return error.Description();
  }
  return "taken";
}

TEST(AxisText, HoldsNumbersAndRanges) {
  EXPECT_EQ(ParseNumbers("2.5"), std::vector<double>{2.5});
  EXPECT_EQ(ParseNumbers("1, 2.5,4"), (std::vector<double>{1, 2.5, 4}));
  EXPECT_EQ(ParseNumbers("2:3:0.5,7"), (std::vector<double>{2, 2.5, 3, 7}));
  EXPECT_EQ(ParseNumbers("2:2:1"), std::vector<double>{2});
}

TEST(AxisText, EndsARangeAtItsEndAndGivesNumbersAsTheyAreWritten) {
  const std::vector<double> tenths = ParseNumbers("2:4:0.1");
  ASSERT_EQ(tenths.size(), 21U);
  EXPECT_EQ(tenths[3], 2.3);
  EXPECT_EQ(tenths.back(), 4);
  EXPECT_EQ(ParseNumbers("0:1:0.3"), (std::vector<double>{0, 0.3, 0.6, 0.9}));
}

template <typename Parse>
std::string RefusalBy(Parse parse, const std::string& text) {
  try {
    parse(text);
  } catch (const RuntimeError& error) {
    return error.Description();
  }
  return "taken";
}

TEST(AxisText, HoldsNoNumberWithoutABound) {
  for (const char* text : {"inf", "-inf", "nan", "1e999"}) {
    EXPECT_EQ(RefusalOf(text), "«" + std::string(text) + "» не число");
  }
}

TEST(AxisText, HoldsNoWholeNumberBeyondABillion) {
  EXPECT_EQ(ParseWholeNumbers("-1000000000,1000000000"),
            (std::vector<Long>{-1000000000, 1000000000}));
  for (const char* text : {"1000000001", "-1000000001", "1.5"}) {
    EXPECT_EQ(RefusalOf(text), "в «" + std::string(text) + "» не все числа целые");
  }
}

TEST(AxisText, OfAKindHasOneLayoutAndOneStandard) {
  const std::vector<SectionKind> kinds = ParseKinds("1/2");
  ASSERT_EQ(kinds.size(), 1U);
  EXPECT_EQ(kinds[0].Layout, 1);
  EXPECT_EQ(kinds[0].Standard, 2);
  EXPECT_EQ(RefusalBy([](const auto& text) { ParseKinds(text); }, "1:3:1/2"),
            "«1:3:1» не одно число");
  EXPECT_EQ(RefusalBy([](const auto& text) { ParseKinds(text); }, "1/2:4:1"),
            "«2:4:1» не одно число");
  EXPECT_EQ(RefusalBy([](const auto& text) { ParseKinds(text); }, "12"),
            "«12» записывается как расположение/сортамент");
}

TEST(AxisText, OfASteelHasOneStrengthAboveZero) {
  const std::vector<SteelKind> steels = ParseSteels("С245:240");
  ASSERT_EQ(steels.size(), 1U);
  EXPECT_EQ(steels[0].Name, "С245");
  EXPECT_EQ(steels[0].Ry, 240);
  for (const char* text : {"С245:0", "С245:-240", "С245:240:260:10"}) {
    EXPECT_EQ(RefusalBy([](const auto& steel) { ParseSteels(steel); }, text),
              "расчетное сопротивление стали «" + std::string(text) + "» не больше нуля");
  }
  EXPECT_EQ(RefusalBy([](const auto& text) { ParseSteels(text); }, "С245"),
            "«С245» записывается как марка:Ry");
}

TEST(AxisText, HoldsWholeNumbers) {
  EXPECT_EQ(ParseWholeNumbers("6:10:2,1"), (std::vector<Long>{6, 8, 10, 1}));
}

TEST(AxisText, IsRefusedWithTheReason) {
  EXPECT_EQ(RefusalOf("x"), "«x» не число");
  EXPECT_EQ(RefusalOf("1e999"), "«1e999» не число");
  EXPECT_EQ(RefusalOf("nan"), "«nan» не число");
  EXPECT_EQ(RefusalOf("1,,2"), "в списке «1,,2» пропущено значение");
  EXPECT_EQ(RefusalOf(""), "в списке «» пропущено значение");
  EXPECT_EQ(RefusalOf("1:2"), "диапазон «1:2» записывается как от:до:шаг");
  EXPECT_EQ(RefusalOf("1:2:0"), "в диапазоне «1:2:0» шаг не больше нуля");
  EXPECT_EQ(RefusalOf("1:2:-1"), "в диапазоне «1:2:-1» шаг не больше нуля");
  EXPECT_EQ(RefusalOf("4:2:1"), "диапазон «4:2:1» идет назад");
  EXPECT_EQ(RefusalOf("0:1e9:1"), "в диапазоне «0:1e9:1» больше 100 000 000 значений");
  EXPECT_EQ(RefusalOf("6.5"), "в «6.5» не все числа целые");
}

}  // namespace

}  // namespace trelonit::test
