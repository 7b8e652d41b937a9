#include <gtest/gtest.h>
#include <set>
#include <string>
#include <vector>

#include "catalogue/SectionLayouts.h"
#include "tests/catalogue/CatalogueWorld.h"

namespace trelonit {
namespace {

std::vector<Long> Offered(Long layout) {
  const auto standardsOfLayout = FindSectionLayout(layout)->Standards;
  return {standardsOfLayout.begin(), standardsOfLayout.end()};
}

TEST(SectionLayouts, AreNumberedFromOneToEleven) {
  for (Long number = 1; number <= 11; ++number) {
    ASSERT_NE(FindSectionLayout(number), nullptr) << number;
    EXPECT_EQ(FindSectionLayout(number)->Number, number);
  }
  for (const Long number : {-2147483647 - 1, -1, 0, 12, 2147483647}) {
    EXPECT_EQ(FindSectionLayout(number), nullptr) << number;
  }
}

TEST(SectionLayouts, CarryTheirCaptionsWithTheirSpelling) {
  const std::vector<std::string> captions{
      "Одиночный уголок",
      "Уголок спареный в тавр длинная полка в плоскости фермы",
      "Уголок спареный в тавр длинная полка из плоскости фермы",
      "Для неравнополочных уголков длинная полка располагается в плоскости фермы !!",
      "Швеллер",
      "Двутавр",
      "Тавр",
      "Швеллер спаренный в двутавр",
      "Квадратная или прямоугольная труба (высота профиля в плоскости фермы)",
      "Квадратная или прямоугольная труба (высота профиля из плоскости фермы)",
      "Труба круглая"};
  for (Long number = 1; number <= 11; ++number) {
    EXPECT_EQ(FindSectionLayout(number)->Caption, captions[static_cast<std::size_t>(number - 1)]);
  }
}

TEST(SectionLayouts, PairTwoProfilesInFourOfThem) {
  for (Long number = 1; number <= 11; ++number) {
    const bool paired = number == 2 || number == 3 || number == 4 || number == 8;
    EXPECT_EQ(FindSectionLayout(number)->Paired, paired) << number;
  }
}

TEST(SectionLayouts, OfferTheirStandardsInListOrder) {
  for (const Long number : {1, 2, 3, 4}) {
    EXPECT_EQ(Offered(number), (std::vector<Long>{1, 2})) << number;
  }
  for (const Long number : {5, 8}) {
    EXPECT_EQ(Offered(number), (std::vector<Long>{3, 4, 10, 11})) << number;
  }
  EXPECT_EQ(Offered(6), (std::vector<Long>{5, 6, 7}));
  EXPECT_EQ(Offered(7), (std::vector<Long>{8, 9}));
  for (const Long number : {9, 10}) {
    EXPECT_EQ(Offered(number), (std::vector<Long>{12, 13, 15, 16, 17, 18, 19, 20, 21, 22}));
  }
  EXPECT_EQ(Offered(11), std::vector<Long>{14});
}

TEST(SectionLayouts, BeginWithTheFirstStandardOfTheirList) {
  const std::vector<Long> defaults{1, 1, 1, 1, 3, 5, 8, 3, 12, 12, 14};
  for (Long number = 1; number <= 11; ++number) {
    EXPECT_EQ(FindSectionLayout(number)->DefaultStandard,
              defaults[static_cast<std::size_t>(number - 1)]);
    EXPECT_EQ(FindSectionLayout(number)->DefaultStandard, Offered(number).front());
  }
}

TEST(SectionLayouts, OfferEveryStandardOfTheCatalogueSomewhere) {
  std::set<Long> offered;
  for (Long number = 1; number <= 11; ++number) {
    const std::vector<Long> standardsOfLayout = Offered(number);
    offered.insert(standardsOfLayout.begin(), standardsOfLayout.end());
  }
  const ProfileTypeArray catalogue = test::CatalogueWorld().Load();
  EXPECT_EQ(offered.size(), static_cast<std::size_t>(catalogue.UpperBound()));
  EXPECT_EQ(*offered.begin(), 1);
  EXPECT_EQ(*offered.rbegin(), catalogue.UpperBound());
}

TEST(SectionLayouts, ShowABitmapForPairsAndTheirOwnImageOtherwise) {
  EmbeddedResources resources;
  for (Long number = 1; number <= 11; ++number) {
    const Picture view = FindSectionLayout(number)->View;
    const Picture own{Picture::Source::SectionLayout, static_cast<Integer>(number)};
    switch (number) {
      case 2:
        EXPECT_EQ(view, resources.Bitmap(205));
        break;
      case 3:
        EXPECT_EQ(view, resources.Bitmap(206));
        break;
      case 4:
        EXPECT_EQ(view, resources.Bitmap(207));
        break;
      case 8:
        EXPECT_EQ(view, resources.Bitmap(208));
        break;
      default:
        EXPECT_EQ(view, own) << number;
    }
  }
}

}  // namespace
}  // namespace trelonit
