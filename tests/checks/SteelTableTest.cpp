#include <gtest/gtest.h>
#include <rapidcheck.h>
#include <rapidcheck/gtest.h>
#include <string>
#include <vector>

#include "checks/SteelTable.h"
#include "platform/text/CodePage1251.h"
#include "resources/EmbeddedResources.h"
#include "tests/support/SteelRows.h"

namespace trelonit {
namespace {

std::vector<SteelRec> Parse(const std::string& text) {
  return ParseSteelTable(EncodeCodePage1251(text));
}

std::vector<SteelRec> Shipped() {
  EmbeddedResources resources;
  return ParseSteelTable(resources.CustomBlock(101));
}

TEST(SteelTable, HasThirteenGradesAndTheLastOneThreeTimesMore) {
  const std::vector<SteelRec> steels = Shipped();
  ASSERT_EQ(steels.size(), 16U);
  EXPECT_EQ(steels[12].Name, "С590К");
  EXPECT_EQ(steels[11].Name, "С590 ");
  for (std::size_t place = 13; place < 16; ++place) {
    EXPECT_EQ(steels[place], steels[12]) << place;
  }
}

TEST(SteelTable, HoldsEveryRangeInItsPlace) {
  const std::vector<SteelRec> steels = Shipped();
  std::size_t grade = 0;
  std::size_t range = 0;
  for (const test::SteelRow& row : test::steelRows) {
    ASSERT_LT(grade, steels.size());
    if (range == steels[grade].Ranges.size()) {
      ++grade;
      range = 0;
    }
    ASSERT_LT(grade, steels.size());
    ASSERT_LT(range, steels[grade].Ranges.size());
    EXPECT_EQ(steels[grade].Name.Trimmed(), row.Grade);
    EXPECT_EQ(steels[grade].Ranges[range].Caption, row.Range);
    EXPECT_EQ(steels[grade].Ranges[range].RySheet, row.Sheet);
    // A value of three digits leaves no room for the line's end.
    const bool endsLine = range + 1 == steels[grade].Ranges.size() && row.Shaped[0] == '-';
    EXPECT_EQ(steels[grade].Ranges[range].RyFason, endsLine ? "-\r" : row.Shaped);
    ++range;
  }
  EXPECT_EQ(grade, 12U);
  EXPECT_EQ(range, steels[12].Ranges.size());
}

TEST(SteelTable, KeepsValuesAsTextOfTheirFieldsWidth) {
  const ThickRange range = Shipped()[0].Ranges[0];
  EXPECT_EQ(range.Caption.Padded(), "От 2 до 20     ");
  EXPECT_EQ(range.RySheet.Padded(), "230");
  EXPECT_EQ(range.RyFason.Padded(), "230");
}

TEST(SteelTable, IsEmptyWithoutALineEnd) {
  EXPECT_TRUE(Parse("").empty());
  EXPECT_TRUE(Parse("A#x*1*2").empty());
}

TEST(SteelTable, RepeatsTheLineBeforeForAnEmptyLine) {
  const std::vector<SteelRec> steels = Parse("A#x*1*2\n\nB#y*3*4\n\n");
  ASSERT_EQ(steels.size(), 4U);
  EXPECT_EQ(steels[1], steels[0]);
  EXPECT_EQ(steels[2].Name, "B");
  EXPECT_EQ(steels[3], steels[2]);
}

TEST(SteelTable, KeepsTheRangesOfTheLineBeforeForANameAlone) {
  const std::vector<SteelRec> steels = Parse("A#x*1*2$y*3*4\nB\n");
  ASSERT_EQ(steels.size(), 2U);
  EXPECT_EQ(steels[1].Name, "B");
  EXPECT_EQ(steels[1].Ranges, steels[0].Ranges);
}

TEST(SteelTable, LeavesFieldsBlankThatARangeLacks) {
  const std::vector<SteelRec> steels = Parse("A#x*1*2\nB#y*5$z\n");
  ASSERT_EQ(steels.size(), 2U);
  ASSERT_EQ(steels[1].Ranges.size(), 2U);
  EXPECT_EQ(steels[1].Ranges[0], (ThickRange{"y", "5", ""}));
  EXPECT_EQ(steels[1].Ranges[1], (ThickRange{"z", "", ""}));
}

TEST(SteelTable, CutsTextsThatAreLongerThanTheirFields) {
  const std::vector<SteelRec> steels = Parse("С345КТ#12345678901234567*1234*5678*9\n");
  ASSERT_EQ(steels.size(), 1U);
  EXPECT_EQ(steels[0].Name, "С345К");
  ASSERT_EQ(steels[0].Ranges.size(), 1U);
  EXPECT_EQ(steels[0].Ranges[0], (ThickRange{"123456789012345", "123", "567"}));
}

TEST(SteelTable, EndsALineAtEveryByteFromTheEndOfTheTextOn) {
  // The line is whole at byte 671; byte 672 and whatever follows it close one line each.
  const std::string head = "A#x*1*2$";
  const std::string text = head + std::string(672 - head.size(), 'y');
  EXPECT_EQ(Parse(text).size(), 0U);
  for (const std::size_t more : {1U, 2U, 4U, 10U}) {
    const std::vector<SteelRec> steels = Parse(text + std::string(more, 'z'));
    ASSERT_EQ(steels.size(), more);
    EXPECT_EQ(steels[0].Ranges.size(), 2U);
    EXPECT_EQ(steels.back(), steels.front());
  }
}

RC_GTEST_PROP(SteelTable, TakesAnyBytes, ()) {
  const auto bytes = *rc::gen::container<std::string>(
      rc::gen::oneOf(rc::gen::arbitrary<char>(), rc::gen::elementOf(std::string("#$*\r\n\n-А"))));
  std::size_t lines = 0;
  for (std::size_t place = 0; place < bytes.size(); ++place) {
    lines += bytes[place] == '\n' || place >= 672 ? 1U : 0U;
  }
  RC_ASSERT(ParseSteelTable(bytes).size() == lines);
}

}  // namespace
}  // namespace trelonit
