#include <array>
#include <cmath>
#include <gtest/gtest.h>
#include <map>

#include "tests/workstation/design/Calculations.h"
#include "tests/workstation/design/SmallTruss.h"

namespace trelonit::test {
namespace {

/// A bar as text: group, number, ends and force, all to 4 decimals without trailing zeros.
std::string Text(const PictureBar& bar) {
  const auto number = [](double value) {
    return NumberToText(RoundToDecimals(value, 4), PointLocale());
  };
  return GroupName(bar.Group) + " " + std::to_string(bar.Number) + ": (" + number(bar.X1) + ", " +
         number(bar.Y1) + ") - (" + number(bar.X2) + ", " + number(bar.Y2) + ") " +
         number(bar.Force);
}

std::vector<std::string> BarTexts(const ResultPicture& picture) {
  std::vector<std::string> texts;
  for (const PictureBar& bar : picture.Bars) {
    texts.push_back(Text(bar));
  }
  return texts;
}

TEST(ResultPicture, DrawsATrussOnItsLowerChord) {
  SmallTruss desk(1);
  desk.Load(true, 1, "4");
  const std::vector<std::string> expected{
      "Верхний пояс 1: (0, 2) - (2, 2) -3",
      "Верхний пояс 2: (2, 2) - (4, 2) -2",
      "Верхний пояс 3: (4, 2) - (6, 2) -2",
      "Верхний пояс 4: (6, 2) - (8, 2) -1",
      "Нижний пояс 1: (0, 0) - (2, 0) 0",
      "Нижний пояс 2: (2, 0) - (4, 0) 3",
      "Нижний пояс 3: (4, 0) - (6, 0) 1",
      "Нижний пояс 4: (6, 0) - (8, 0) 0",
      "Опорные раскосы 1: (0, 2) - (2, 0) 4.2426",
      "Раскосы 1: (2, 2) - (4, 0) -1.4142",
      "Раскосы 2: (4, 0) - (6, 2) 1.4142",
      "Опорные раскосы 2: (6, 0) - (8, 2) 1.4142",
      "Стойки 1: (0, 0) - (0, 2) -3",
      "Стойки 2: (2, 0) - (2, 2) -3",
      "Стойки 3: (4, 0) - (4, 2) 0",
      "Стойки 4: (6, 0) - (6, 2) -1",
      "Стойки 5: (8, 0) - (8, 2) -1",
  };
  EXPECT_EQ(BarTexts(desk.Calculate().Picture), expected);
}

TEST(ResultPicture, DrawsATrussOnItsUpperChord) {
  SmallTruss desk(2);
  desk.Load(true, 1, "4");
  const std::vector<std::string> expected{
      "Верхний пояс 1: (0, 2) - (2, 2) -3",
      "Верхний пояс 2: (2, 2) - (4, 2) -2",
      "Верхний пояс 3: (4, 2) - (6, 2) -2",
      "Верхний пояс 4: (6, 2) - (8, 2) -1",
      "Нижний пояс 1: (2, 0) - (4, 0) 3",
      "Нижний пояс 2: (4, 0) - (6, 0) 1",
      "Опорные раскосы 1: (0, 2) - (2, 0) 4.2426",
      "Раскосы 1: (2, 2) - (4, 0) -1.4142",
      "Раскосы 2: (4, 0) - (6, 2) 1.4142",
      "Опорные раскосы 2: (6, 0) - (8, 2) 1.4142",
      "Стойки 1: (2, 0) - (2, 2) -3",
      "Стойки 2: (4, 0) - (4, 2) 0",
      "Стойки 3: (6, 0) - (6, 2) -1",
  };
  EXPECT_EQ(BarTexts(desk.Calculate().Picture), expected);
}

TEST(ResultPicture, DrawsALatticeWithoutVerticals) {
  SmallTruss desk(3);
  desk.Load(true, 1, "2");
  desk.Load(false, 0, "4");
  const std::vector<std::string> expected{
      "Верхний пояс 1: (0, 1) - (2, 1) -4",
      "Верхний пояс 2: (2, 1) - (4, 1) -2",
      "Нижний пояс 1: (1, 0) - (3, 0) 4",
      "Опорные раскосы 1: (0, 1) - (1, 0) 5.6569",
      "Раскосы 1: (1, 0) - (2, 1) 0",
      "Раскосы 2: (2, 1) - (3, 0) -2.8284",
      "Опорные раскосы 2: (3, 0) - (4, 1) 2.8284",
  };
  EXPECT_EQ(BarTexts(desk.Calculate().Picture), expected);
}

TEST(ResultPicture, DrawsATrussWithEverySecondVertical) {
  SmallTruss desk(4);
  desk.Load(true, 1, "4");
  const std::vector<std::string> expected{
      "Верхний пояс 1: (0, 2) - (2, 2) -3",
      "Верхний пояс 2: (2, 2) - (4, 2) -3",
      "Верхний пояс 3: (4, 2) - (6, 2) -1",
      "Верхний пояс 4: (6, 2) - (8, 2) -1",
      "Нижний пояс 1: (2, 0) - (6, 0) 2",
      "Опорные раскосы 1: (0, 2) - (2, 0) 4.2426",
      "Раскосы 1: (2, 0) - (4, 2) 1.4142",
      "Раскосы 2: (4, 2) - (6, 0) -1.4142",
      "Опорные раскосы 2: (6, 0) - (8, 2) 1.4142",
      "Стойки 1: (2, 0) - (2, 2) -4",
      "Стойки 2: (6, 0) - (6, 2) 0",
  };
  EXPECT_EQ(BarTexts(desk.Calculate().Picture), expected);
}

TEST(ResultPicture, PlacesTheJointsByTheEndPanels) {
  SmallTruss desk(1);
  desk.Main.tabMain.SetTab(0);
  desk.Main.txtLenOporn.SetText("1");
  desk.Main.tabMain.SetTab(2);
  const std::vector<PictureBar>& bars = desk.Calculate().Picture.Bars;
  std::vector<double> ends;
  for (std::size_t bar = 0; bar < 4; ++bar) {
    ends.push_back(bars.at(bar).X2);
  }
  EXPECT_EQ(ends, (std::vector<double>{1, 4, 7, 8}));
}

TEST(ResultPicture, BarsFitTheirForcesInEveryScheme) {
  // At every joint off the supports the drawn bars and the load on it are in balance, which no
  // wrong bar or force leaves standing.
  for (const Long scheme : {1, 2, 3, 4}) {
    SmallTruss desk(scheme);
    desk.Main.tabMain.SetTab(0);
    Choose(desk.Main.cmbPanelNum, "8");
    desk.Main.txtLengthF.SetText("20");
    desk.Main.txtHight.SetText("1.7");
    desk.Main.txtLenOporn.SetText("1.9");
    desk.Main.tabMain.SetTab(2);
    desk.Load(true, 3, "4");
    desk.Load(true, 6, "-1.5");
    const ResultPicture& picture = desk.Calculate().Picture;
    std::map<std::pair<long, long>, std::array<double, 2>> sums;
    const auto key = [](double x, double y) {
      return std::pair{std::lround(x * 1e6), std::lround(y * 1e6)};
    };
    for (const PictureBar& bar : picture.Bars) {
      const double length = std::hypot(bar.X2 - bar.X1, bar.Y2 - bar.Y1);
      const double x = bar.Force * (bar.X2 - bar.X1) / length;
      const double y = bar.Force * (bar.Y2 - bar.Y1) / length;
      auto& near = sums[key(bar.X1, bar.Y1)];
      near[0] += x;
      near[1] += y;
      auto& far = sums[key(bar.X2, bar.Y2)];
      far[0] -= x;
      far[1] -= y;
    }
    int loaded = 0;
    int unbalanced = 0;
    for (const auto& [joint, sum] : sums) {
      EXPECT_NEAR(sum[0], 0, 1e-9) << scheme;
      loaded += std::abs(sum[1] - 4) < 1e-9 || std::abs(sum[1] + 1.5) < 1e-9 ? 1 : 0;
      unbalanced += std::abs(sum[1]) > 1e-9 ? 1 : 0;
    }
    EXPECT_EQ(loaded, 2) << scheme;
    // The two loads and the two supports.
    EXPECT_EQ(unbalanced, 4) << scheme;
  }
}

TEST(ResultPicture, ShowsTheLargestUseOfEachGroupInTheOrderOfTheGrid) {
  CheckResult check;
  check.UpPoyas.KStrength = 1;
  check.DwnPoyas.KStabX = 2;
  check.Raskos.KStabY = 3;
  check.OpornRaskos.KFlexX = 4;
  check.Stoyka.KUserY = 5;
  const auto texts = [&check](Long scheme) {
    std::vector<std::string> result;
    for (const GroupUse& use : BuildUse(CalculationOf(scheme, check))) {
      result.push_back(GroupName(use.Group) + " " + NumberToText(use.Value, PointLocale()));
    }
    return result;
  };
  std::vector<std::string> expected{"Верхний пояс 1", "Нижний пояс 2", "Раскосы 3",
                                    "Опорные раскосы 4"};
  EXPECT_EQ(texts(3), expected);
  expected.emplace_back("Стойки 5");
  for (const Long scheme : {1, 2, 4}) {
    EXPECT_EQ(texts(scheme), expected) << scheme;
  }
}

TEST(ResultPicture, MarksTheRowsOfTheGridAboveOne) {
  for (const Long scheme : {1, 3}) {
    SmallTruss desk(scheme);
    desk.Load(true, 1, "4");
    const ResultLists& lists = desk.Calculate();
    ASSERT_EQ(lists.Picture.OverLimit.size(), lists.MSFlexGKoefUse.size());
    for (std::size_t row = 0; row < lists.MSFlexGKoefUse.size(); ++row) {
      const std::string& text = lists.MSFlexGKoefUse[row].at(1);
      EXPECT_EQ(lists.Picture.OverLimit[row], text != "***" && std::stod(text) > 1)
          << lists.MSFlexGKoefUse[row].at(0);
    }
  }
}

TEST(ResultPicture, DoesNotMarkARowOfExactlyOne) {
  CheckResult check;
  check.UpPoyas.KStrength = 1;
  check.UpPoyas.KStabX = std::nextafter(1, 2);
  const std::vector<bool> over = RowsOverLimit(CalculationOf(3, check));
  EXPECT_FALSE(over.at(1));
  EXPECT_TRUE(over.at(2));
}

TEST(ResultPicture, IsEmptyWithoutForces) {
  SmallTruss desk(1);
  desk.Calculate();
  EXPECT_TRUE(
      BuildBars(CalculationOf(desk.Main.Model.ToCalculate().TreloData, TreloResult())).empty());
  TreloData reserved = desk.Main.Model.ToCalculate().TreloData;
  reserved.TreloType = 5;
  EXPECT_TRUE(BuildBars(CalculationOf(reserved, desk.Main.Model.Last.TreloResult)).empty());
}

TEST(ResultPicture, IsEmptyWhereTheTrussHasChangedSinceTheForces) {
  SmallTruss desk(1);
  desk.Calculate();
  for (const Long panels : {2, 3, 6, 30}) {
    TreloData changed = desk.Main.Model.ToCalculate().TreloData;
    changed.PanelNum = panels;
    std::vector<PictureBar> bars;
    EXPECT_NO_THROW(bars = BuildBars(CalculationOf(changed, desk.Main.Model.Last.TreloResult)))
        << panels;
    EXPECT_TRUE(bars.empty()) << panels;
  }
}

}  // namespace
}  // namespace trelonit::test
