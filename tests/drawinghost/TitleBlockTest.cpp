#include <algorithm>
#include <array>
#include <gtest/gtest.h>
#include <map>
#include <set>
#include <string>
#include <tuple>
#include <vector>

#include "drawing/host/DrawingPicture.h"
#include "drawing/host/TitleBlock.h"
#include "platform/console/ConsoleServices.h"
#include "tests/drawinghost/PlainDrawings.h"

namespace trelonit::test {
namespace {

/// The texts with the middle of the room that they take, from the lower left corner of the block.
std::map<std::string, PlacePoint> TextsOf(const Drawing& picture) {
  std::map<std::string, PlacePoint> texts;
  for (const DrawingEntity& entity : picture.ModelSpace) {
    if (const auto* text = std::get_if<DrawingText>(&entity)) {
      texts[text->Text] = text->TextAlignmentPoint;
    }
  }
  return texts;
}

/// Whether the point lies in the field, which is given as the standard draws it.
void ExpectIn(const PlacePoint& point, double left, double bottom, double right, double top) {
  EXPECT_GE(point.X, left);
  EXPECT_LE(point.X, right);
  EXPECT_GE(point.Y, bottom);
  EXPECT_LE(point.Y, top);
}

TEST(TitleBlock, HasTheSizeOfForm3) {
  const DrawingBounds box = BoundsOf(PictureOfTitleBlock({}, "М 1:50", {592, 5}));
  EXPECT_DOUBLE_EQ(box.Least.X, 592 - 185);
  EXPECT_DOUBLE_EQ(box.Least.Y, 5);
  EXPECT_DOUBLE_EQ(box.Greatest.X, 592);
  EXPECT_DOUBLE_EQ(box.Greatest.Y, 5 + 55);
}

TEST(TitleBlock, HasItsTextsInTheFieldsOfTheStandard) {
  const auto texts = TextsOf(PictureOfTitleBlock(FilledTitleBlock(), "М 1:50", {185, 0}));
  ExpectIn(texts.at("15-2026-КМ"), 65, 45, 185, 55);
  ExpectIn(texts.at("Склад готовой продукции"), 65, 30, 185, 45);
  ExpectIn(texts.at("Корпус 2"), 65, 15, 135, 30);
  ExpectIn(texts.at("Ферма ФС1, М 1:50"), 65, 0, 135, 15);
  ExpectIn(texts.at("Проектное бюро"), 135, 0, 185, 15);
  ExpectIn(texts.at("Стадия"), 135, 25, 150, 30);
  ExpectIn(texts.at("Р"), 135, 15, 150, 25);
  ExpectIn(texts.at("Лист"), 30, 25, 165, 35);
  ExpectIn(texts.at("3"), 150, 15, 165, 25);
  ExpectIn(texts.at("12"), 165, 15, 185, 25);
  ExpectIn(texts.at("Иванов"), 20, 25, 40, 30);
  ExpectIn(texts.at("Петров"), 20, 20, 40, 25);
  ExpectIn(texts.at("22.11.26"), 55, 20, 65, 30);
  for (const char* head : {"Изм.", "Кол.уч", "№ док.", "Подп.", "Дата", "Разраб.", "Проверил"}) {
    EXPECT_TRUE(texts.contains(head)) << head;
  }
}

using Rule = std::tuple<std::string, double, double, double, double>;

/// Layer and ends of each line, the left or lower end first, each line once.
std::set<Rule> RulesOf(const Drawing& picture) {
  std::set<Rule> rules;
  for (const DrawingEntity& entity : picture.ModelSpace) {
    if (const auto* line = std::get_if<DrawingLine>(&entity)) {
      rules.emplace(line->Layer, std::min(line->Start.X, line->End.X),
                    std::min(line->Start.Y, line->End.Y), std::max(line->Start.X, line->End.X),
                    std::max(line->Start.Y, line->End.Y));
    }
  }
  return rules;
}

TEST(TitleBlock, HasTheLinesOfForm3) {
  std::set<Rule> expected;
  // Fields as left, bottom, right, top.
  for (const auto& [left, bottom, right, top] :
       std::vector<std::array<double, 4>>{{0, 0, 185, 55},
                                          {65, 45, 185, 55},
                                          {65, 30, 185, 45},
                                          {65, 15, 135, 30},
                                          {65, 0, 135, 15},
                                          {135, 0, 185, 15},
                                          {135, 25, 150, 30},
                                          {150, 25, 165, 30},
                                          {165, 25, 185, 30},
                                          {135, 15, 150, 25},
                                          {150, 15, 165, 25},
                                          {165, 15, 185, 25}}) {
    expected.insert({{"Thick", left, bottom, right, bottom},
                     {"Thick", left, top, right, top},
                     {"Thick", left, bottom, left, top},
                     {"Thick", right, bottom, right, top}});
  }
  // The columns of the changes end on the signatures, which have fewer.
  for (const double column : {10.0, 30.0}) {
    expected.emplace("Thick", column, 30, column, 55);
  }
  for (const double column : {20.0, 40.0, 55.0, 65.0}) {
    expected.emplace("Thick", column, 0, column, 55);
  }
  // Rows of 5 mm, of which the heads of the changes lie between thick lines.
  for (const double row : {5, 10, 15, 20, 25, 40, 45, 50}) {
    expected.emplace("Thin", 0, row, 65, row);
  }
  for (const double row : {30, 35}) {
    expected.emplace("Thick", 0, row, 65, row);
  }
  EXPECT_EQ(RulesOf(PictureOfTitleBlock(FilledTitleBlock(), "М 1:50", {185, 0})), expected);
}

TEST(TitleBlock, HasItsTextsInTheMiddleOfTheirFields) {
  using Placed = std::tuple<double, double, double, std::string>;
  std::multiset<Placed> placed;
  for (const DrawingEntity& entity :
       PictureOfTitleBlock(FilledTitleBlock(), "М 1:50", {185, 0}).ModelSpace) {
    if (const auto* text = std::get_if<DrawingText>(&entity)) {
      const bool onLine = text->Alignment == TextAlignment::Left;
      // From the base line to the middle of the capitals.
      const double rise = onLine ? 0 : text->Height / 2;
      placed.emplace(text->TextAlignmentPoint.X, text->TextAlignmentPoint.Y + rise, text->Height,
                     text->Text);
    }
  }
  EXPECT_EQ(placed, (std::multiset<Placed>{{5, 32.5, 2.5, "Изм."},
                                           {15, 32.5, 2.5, "Кол.уч"},
                                           {25, 32.5, 2.5, "Лист"},
                                           {35, 32.5, 2.5, "№ док."},
                                           {47.5, 32.5, 2.5, "Подп."},
                                           {60, 32.5, 2.5, "Дата"},
                                           // One millimetre off the lines of their fields.
                                           {1, 26, 2.5, "Разраб."},
                                           {1, 21, 2.5, "Проверил"},
                                           {21, 26, 2.5, "Иванов"},
                                           {21, 21, 2.5, "Петров"},
                                           {60, 27.5, 2.5, "22.11.26"},
                                           {60, 22.5, 2.5, "22.11.26"},
                                           {125, 50, 5, "15-2026-КМ"},
                                           {125, 37.5, 3.5, "Склад готовой продукции"},
                                           {100, 22.5, 3.5, "Корпус 2"},
                                           {100, 7.5, 3.5, "Ферма ФС1, М 1:50"},
                                           {160, 7.5, 3.5, "Проектное бюро"},
                                           {142.5, 27.5, 2.5, "Стадия"},
                                           {157.5, 27.5, 2.5, "Лист"},
                                           {175, 27.5, 2.5, "Листов"},
                                           {142.5, 20, 3.5, "Р"},
                                           {157.5, 20, 3.5, "3"},
                                           {175, 20, 3.5, "12"}}));
}

TEST(TitleBlock, DividesALongNameNearestToItsMiddle) {
  TitleBlock block;
  block.Project = "Реконструкция базы строительного предприятия с заменой покрытия цеха";
  const auto texts = TextsOf(PictureOfTitleBlock(block, "М 1:50", {185, 0}));
  // Lines of 3.5 mm stand 5.6 mm apart, half of that over and under the middle at 37.5.
  const PlacePoint upper = texts.at("Реконструкция базы строительного");
  EXPECT_DOUBLE_EQ(upper.X, 125);
  EXPECT_DOUBLE_EQ(upper.Y, 37.5 + 2.8 - 1.75);
  const PlacePoint lower = texts.at("предприятия с заменой покрытия цеха");
  EXPECT_DOUBLE_EQ(lower.X, 125);
  EXPECT_DOUBLE_EQ(lower.Y, 37.5 - 2.8 - 1.75);
}

TEST(TitleBlock, DividesALongNameAtEitherOfTwoBlanks) {
  TitleBlock block;
  const std::string before(29, 'a');
  const std::string behind(30, 'b');
  block.Project = before + "  " + behind;
  const auto texts = TextsOf(PictureOfTitleBlock(block, "М 1:50", {185, 0}));
  EXPECT_TRUE(texts.contains(before + " "));
  EXPECT_TRUE(texts.contains(behind));
}

TEST(TitleBlock, NarrowsALongWordUntilItFillsItsField) {
  TitleBlock block;
  block.Author = "Константинопольский";
  block.Organisation = "Проектгражданпромстройконструкция";
  const Drawing picture = PictureOfTitleBlock(block, "М 1:50", {185, 0});
  std::map<std::string, double> widths;
  for (const DrawingEntity& entity : picture.ModelSpace) {
    if (const auto* text = std::get_if<DrawingText>(&entity)) {
      widths[text->Text] = FindTextStyle(picture, text->Style)->Width;
    }
  }
  // Letters of the usual width take 0.85 of their height; fields of 20 and 50 mm leave 1 mm free
  // on either side.
  EXPECT_DOUBLE_EQ(widths.at(block.Author), 18 / (19 * 0.85 * 2.5));
  EXPECT_DOUBLE_EQ(widths.at(block.Organisation), 48 / (33 * 0.85 * 3.5));
  EXPECT_DOUBLE_EQ(widths.at("Проверил"), 0.7);
}

TEST(TitleBlock, LeavesEmptyWhatIsNotFilled) {
  const auto texts = TextsOf(PictureOfTitleBlock({.Date = "22.11.26"}, "М 1:50", {185, 0}));
  EXPECT_FALSE(texts.contains(""));
  // A date belongs to who signs.
  EXPECT_FALSE(texts.contains("22.11.26"));
  EXPECT_TRUE(texts.contains("М 1:50"));
}

TEST(TitleBlock, DividesALongNameAndNarrowsALongWord) {
  const TitleBlock block = CrowdedTitleBlock();
  const Drawing picture = PictureOfTitleBlock(block, "М 1:50", {185, 0});
  const auto texts = TextsOf(picture);
  EXPECT_FALSE(texts.contains(block.Project));
  double narrowest = 1;
  for (const DrawingEntity& entity : picture.ModelSpace) {
    const auto* text = std::get_if<DrawingText>(&entity);
    if (text == nullptr) {
      continue;
    }
    const DrawingTextStyle* style = FindTextStyle(picture, text->Style);
    ASSERT_NE(style, nullptr);
    narrowest = std::min(narrowest, style->Width);
    if (block.Project.find(text->Text) != std::string::npos && text->Text.size() > 20) {
      ExpectIn(text->TextAlignmentPoint, 65, 30, 185, 45);
    }
  }
  EXPECT_LT(narrowest, 0.7);
}

TEST(TitleBlock, IsRemembered) {
  MemorySettings settings;
  const TitleBlockChoice fresh = LoadTitleBlock(settings);
  EXPECT_FALSE(fresh.Shown);
  EXPECT_EQ(fresh.Block.Stage, "Р");
  EXPECT_EQ(fresh.Block.Author, "");
  const TitleBlockChoice filled{true, FilledTitleBlock()};
  StoreTitleBlock(settings, filled);
  EXPECT_EQ(LoadTitleBlock(settings), filled);
}

}  // namespace
}  // namespace trelonit::test
