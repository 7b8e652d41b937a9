#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "tests/workstation/design/SmallTruss.h"

namespace trelonit::test {
namespace {

using Texts = std::vector<std::string>;

/// What stands beside the rows of the grid.
class ResultRows : public ::testing::Test {
 protected:
  static const ResultRow& RowOf(const ResultLists& lists, const std::string& caption) {
    const auto found = std::find_if(lists.MSFlexGKoefUse.begin(), lists.MSFlexGKoefUse.end(),
                                    [&](const Grid::Row& row) { return row.front() == caption; });
    EXPECT_NE(found, lists.MSFlexGKoefUse.end()) << caption;
    return lists.Rows.at(static_cast<std::size_t>(found - lists.MSFlexGKoefUse.begin()));
  }
};

TEST_F(ResultRows, AreAsManyAsThoseOfTheGrid) {
  for (const Long scheme : {1, 2, 3, 4}) {
    SmallTruss desk(scheme);
    desk.Load(true, 1, "4");
    const ResultLists& lists = desk.Calculate();
    ASSERT_EQ(lists.Rows.size(), lists.MSFlexGKoefUse.size()) << scheme;
    for (std::size_t row = 0; row < lists.Rows.size(); ++row) {
      // The heads of the groups have no check and no figure.
      const bool head = lists.MSFlexGKoefUse[row].back() == "***";
      EXPECT_EQ(lists.Rows[row].Checks.empty(), head) << scheme << row;
      if (head) {
        EXPECT_EQ(lists.Rows[row].Opinion, "");
        EXPECT_FALSE(lists.Rows[row].Bar);
      }
    }
  }
}

TEST_F(ResultRows, NameTheChecksBehindTheirCaption) {
  SmallTruss desk(1);
  desk.Load(true, 1, "4");
  const ResultLists& lists = desk.Calculate();
  EXPECT_EQ(RowOf(lists, "Прочность верхнего пояса").Checks, Texts{"Strength"});
  EXPECT_EQ(RowOf(lists, "Устойчивость верхнего пояса в плоскости фермы").Checks, Texts{"StabX"});
  EXPECT_EQ(RowOf(lists, "Устойчивость верхнего пояса из плоскости фермы").Checks, Texts{"StabY"});
  EXPECT_EQ(RowOf(lists, "Гибкость верхнего пояса ").Checks, (Texts{"FlexX", "FlexY"}));
  EXPECT_EQ(
      RowOf(lists, "Гибкость верхнего пояса по предельной гибкости, заданной пользователем").Checks,
      (Texts{"UserX", "UserY"}));
  EXPECT_EQ(RowOf(lists, "Прочность нижнего пояса").Group, ElementGroup::DwnPoyas);
  EXPECT_EQ(RowOf(lists, "Прочность стоек").Group, ElementGroup::Stoyka);
}

TEST_F(ResultRows, HaveTheOpinionsFigureWithFiveDecimals) {
  // 4 t at the second upper joint of four panels: 3 t and 1 t at the supports. The second bar of
  // the upper chord has the moment in the middle, 1 t * 4 m over 2 m, and the first 3 t * 2 m over
  // 2 m: 3 t on a tube of 3.9 cm2.
  SmallTruss desk(1);
  desk.Load(true, 1, "4");
  const ResultLists& lists = desk.Calculate();
  const ResultRow& strength = RowOf(lists, "Прочность верхнего пояса");
  EXPECT_EQ(strength.Opinion, FormatShown(3 * 98.1 / (3.9 * 240 * 0.9), 5, PointLocale()));
  EXPECT_EQ(strength.Bar, 1);
  EXPECT_FALSE(strength.OpinionFails);
}

TEST_F(ResultRows, HaveTheGreaterOfBothPlanesForSlenderness) {
  // The tube of the upper chord, J = 14.4 in both planes: 2 m in the plane, half of 8 m out of it.
  // A compressed chord; its first bar is used up beyond one half and may be 180 - 60 alpha slender.
  SmallTruss desk(1);
  desk.Load(true, 1, "4");
  const ResultLists& lists = desk.Calculate();
  const GroupJudgement* upper = lists.Opinion.Figures.FindGroup(ElementGroup::UpPoyas);
  ASSERT_NE(upper, nullptr);
  EXPECT_GT(upper->Figure(MemberCheck::FlexY), upper->Figure(MemberCheck::FlexX));
  const double lambda = 400 / std::sqrt(14.4 / 3.9);
  const ResultRow& row = RowOf(lists, "Гибкость верхнего пояса ");
  EXPECT_GE(std::stod(row.Opinion), lambda / 150 - 1e-5);
  EXPECT_LE(std::stod(row.Opinion), lambda / 120 + 1e-5);
  EXPECT_TRUE(row.OpinionFails);
}

TEST_F(ResultRows, AreEmptyWhereTheNormHasNoSuchCheck) {
  SmallTruss desk(1);
  desk.Load(true, 1, "4");
  const ResultLists& lists = desk.Calculate();
  const ResultRow& user =
      RowOf(lists, "Гибкость верхнего пояса по предельной гибкости, заданной пользователем");
  EXPECT_EQ(user.Opinion, "");
  EXPECT_FALSE(user.OpinionFails);
  EXPECT_FALSE(user.Bar);
}

TEST_F(ResultRows, FailOnlyBeyondOne) {
  SmallTruss desk(1);
  desk.Load(true, 1, "4");
  const double yield = 3 * 98.1 / (3.9 * 0.9);
  // Just enough for 3 t, and just too little.
  for (const auto& [Ry, fails] :
       {std::pair(yield * 1.000001, false), std::pair(yield / 1.000001, true)}) {
    desk.Main.tabMain.SetTab(2);
    desk.Main.txtRy.SetText(NumberToText(Ry, PointLocale()));
    EXPECT_EQ(RowOf(desk.Calculate(), "Прочность верхнего пояса").OpinionFails, fails) << Ry;
  }
}

TEST_F(ResultRows, AreWrittenInTheUsersLocale) {
  SmallTruss desk(1, CommaLocale());
  desk.Load(true, 1, "4");
  EXPECT_EQ(RowOf(desk.Calculate(), "Прочность верхнего пояса").Opinion,
            FormatShown(3 * 98.1 / (3.9 * 240 * 0.9), 5, CommaLocale()));
}

TEST_F(ResultRows, AreEmptyOfARefusedOpinion) {
  // Overlapping end panels: the calculation has figures, and there is no such truss.
  SmallTruss desk(1);
  desk.Load(true, 1, "4");
  desk.Main.tabMain.SetTab(0);
  desk.Main.txtLenOporn.SetText("5");
  desk.Main.tabMain.SetTab(2);
  const ResultLists& lists = desk.Calculate();
  EXPECT_TRUE(lists.Opinion.Figures.HasRefused());
  EXPECT_TRUE(lists.Opinion.Findings.empty());
  ASSERT_EQ(lists.Rows.size(), lists.MSFlexGKoefUse.size());
  for (const ResultRow& row : lists.Rows) {
    EXPECT_EQ(row.Opinion, "");
    EXPECT_FALSE(row.OpinionFails);
  }
}

}  // namespace
}  // namespace trelonit::test
