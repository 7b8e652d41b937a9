#include <gtest/gtest.h>

#include "tests/catalogue/CatalogueWorld.h"

namespace trelonit {
namespace {

ProfileType Standard(std::initializer_list<const char*> designations) {
  ProfileType standard;
  standard.Rec = BoundedArray<ProfileRec>(1, 0);
  for (const char* designation : designations) {
    standard.Rec.Append({.Name = designation});
  }
  return standard;
}

TEST(SizeLookup, FindsADesignationWithAndWithoutItsTrailingBlanks) {
  const ProfileTypeArray catalogue = test::CatalogueWorld().Load();
  test::RecordingMessages messages;
  EXPECT_EQ(FindSizeIndex(messages, catalogue[22], "Тр230x100x8"), 248);
  EXPECT_EQ(FindSizeIndex(messages, catalogue[22], "Тр230x100x8    "), 248);
  EXPECT_EQ(FindSizeIndex(messages, catalogue[1], "L25x16x3"), 1);
  EXPECT_TRUE(messages.Shown.empty());
}

TEST(SizeLookup, FindsEveryDesignationOfTheCatalogueAtItsPlace) {
  const ProfileTypeArray catalogue = test::CatalogueWorld().Load();
  test::RecordingMessages messages;
  for (const ProfileType& standard : catalogue) {
    for (Long size = 1; size <= standard.Rec.UpperBound(); ++size) {
      ASSERT_EQ(FindSizeIndex(messages, standard, standard.Rec[size].Name.Trimmed()), size);
    }
  }
  EXPECT_TRUE(messages.Shown.empty());
}

TEST(SizeLookup, TakesTheLastOfEqualDesignations) {
  test::RecordingMessages messages;
  EXPECT_EQ(FindSizeIndex(messages, Standard({"A", "B", "A", "C"}), "A"), 3);
}

TEST(SizeLookup, WarnsAndTakesTheFirstWhenNothingMatches) {
  test::RecordingMessages messages;
  const ProfileType standard = Standard({"A", "B"});
  EXPECT_EQ(FindSizeIndex(messages, standard, "L1x2 "), 1);
  const Message expected{.Title = "Трелонит v 1.0.0 (alpha) отладка",
                         .Text = "Не найден типоразмер L1x2  перехожу в начало списка типоразмеров",
                         .Style = MessageStyle::Exclamation};
  ASSERT_EQ(messages.Shown.size(), 1U);
  EXPECT_EQ(messages.Shown.front(), expected);
}

TEST(SizeLookup, TellsCaseAndAlphabetsApart) {
  test::RecordingMessages messages;
  // "10KT1" is Latin in the catalogue; the second text is Cyrillic.
  const ProfileType standard = Standard({"first", "10KT1"});
  EXPECT_EQ(FindSizeIndex(messages, standard, "10KT1"), 2);
  EXPECT_EQ(FindSizeIndex(messages, standard, "10КТ1"), 1);
  EXPECT_EQ(FindSizeIndex(messages, standard, "10kt1"), 1);
  EXPECT_EQ(messages.Shown.size(), 2U);
}

TEST(SizeLookup, WarnsInAnEmptyStandard) {
  test::RecordingMessages messages;
  EXPECT_EQ(FindSizeIndex(messages, Standard({}), "A"), 1);
  EXPECT_EQ(messages.Shown.size(), 1U);
}

TEST(SizeLookup, RaisesForAStandardThatWasNeverLoaded) {
  test::RecordingMessages messages;
  EXPECT_EQ(test::ErrorOf([&] { FindSizeIndex(messages, ProfileType(), "A"); }), 9);
  EXPECT_TRUE(messages.Shown.empty());
}

}  // namespace
}  // namespace trelonit
