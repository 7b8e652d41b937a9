#include <gtest/gtest.h>
#include <map>
#include <string>

#include "drawing/host/DrawingPicture.h"
#include "drawing/host/TitleBlock.h"
#include "platform/console/ConsoleServices.h"

namespace trelonit::test {
namespace {

TitleBlock Filled() {
  return {.Code = "15-2026-КМ",
          .Project = "Склад готовой продукции",
          .Building = "Корпус 2",
          .Images = "Ферма ФС1",
          .Organisation = "Проектное бюро",
          .Author = "Иванов",
          .Checker = "Петров",
          .Date = "22.11.26",
          .Stage = "Р",
          .Sheet = "3",
          .Sheets = "12"};
}

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
  const auto texts = TextsOf(PictureOfTitleBlock(Filled(), "М 1:50", {185, 0}));
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

TEST(TitleBlock, LeavesEmptyWhatIsNotFilled) {
  const auto texts = TextsOf(PictureOfTitleBlock({.Date = "22.11.26"}, "М 1:50", {185, 0}));
  EXPECT_FALSE(texts.contains(""));
  // A date belongs to who signs.
  EXPECT_FALSE(texts.contains("22.11.26"));
  EXPECT_TRUE(texts.contains("М 1:50"));
}

TEST(TitleBlock, DividesALongNameAndNarrowsALongWord) {
  TitleBlock block = Filled();
  block.Project =
      "Реконструкция производственной базы предприятия с заменой покрытия над главным пролетом "
      "цеха";
  block.Organisation = "Проектгражданпромстройконструкция";
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
  const TitleBlockChoice filled{true, Filled()};
  StoreTitleBlock(settings, filled);
  EXPECT_EQ(LoadTitleBlock(settings), filled);
}

}  // namespace
}  // namespace trelonit::test
