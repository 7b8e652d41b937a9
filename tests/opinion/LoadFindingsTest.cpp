#include <cmath>
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "tests/analysis/RandomDesigns.h"
#include "tests/opinion/FindingsTools.h"
#include "tests/opinion/OpinionCase.h"
#include "workstation/design/OwnWeight.h"

namespace trelonit::test {

namespace {

constexpr FindingCode notBalanced = FindingCode::NotBalanced;
constexpr FindingCode loadDiffers = FindingCode::LoadDiffers;

/// The second scheme with four panels of 2 m, 2 m high: all diagonals at 45 degrees.
TreloData SquareSecondScheme() {
  TreloData data = SquareDesign(2, 4);
  data.UpPForce[2] = 1;
  return data;
}

TEST(NotBalanced, IsNoneWhereTheCalculationFollowsStatics) {
  for (Long scheme = 1; scheme <= 4; ++scheme) {
    const std::vector<Finding> found = OpinionCase(SnowyTruss(scheme)).Find();
    EXPECT_EQ(TextsOf(found, notBalanced), Texts());
    EXPECT_EQ(TextsOf(found, loadDiffers), Texts());
  }
}

RC_GTEST_PROP(NotBalanced, IsNeverFoundInTheThirdAndFourthScheme, ()) {
  const TreloData data = PickDesign(*rc::gen::inRange<Long>(3, 5));
  const std::vector<Finding> found = OpinionCase(data).Find();
  RC_ASSERT(OfCode(found, notBalanced).empty());
  RC_ASSERT(OfCode(found, loadDiffers).empty());
}

// The calculation has no load at the second lower joint, whatever stands there: 4 t are in no bar
// and in no reaction.
TEST(NotBalanced, TellsOfALoadThatReachesNoBar) {
  TreloData data = SquareSecondScheme();
  data.DwnPForce[1] = 4;
  const std::vector<Finding> found = OpinionCase(data).Find();
  EXPECT_EQ(TextsOf(found, notBalanced),
            Texts{"Узлы не в равновесии под усилиями расчета: Н1; наибольшая невязка 4.000 т. "
                  "Нагрузка узлов Н1 в усилия стержней не вошла."});
  EXPECT_EQ(TextsOf(found, loadDiffers),
            Texts{"Расчет собрал в узлы не ту нагрузку, которая задана: Н1 (-4.000 т)."});
  EXPECT_EQ(OfCode(found, notBalanced)[0].Grade, Severity::Warning);
  EXPECT_EQ(OfCode(found, notBalanced)[0].Told, 4);
  // In equilibrium nothing is left over.
  EXPECT_EQ(OfCode(found, notBalanced)[0].Opinion, 0);
  EXPECT_EQ(OfCode(found, loadDiffers)[0].Grade, Severity::Warning);
  EXPECT_EQ(OfCode(found, loadDiffers)[0].Told, -4);
  EXPECT_EQ(OfCode(found, loadDiffers)[0].Opinion, 0);
}

// 1e9 t at Н1, of which the calculation takes nothing, are the greatest force of this truss, whose
// slopes are flat: a billionth of it is 1 t. The middle post is given just this force.
TEST(NotBalanced, TakesABillionthOfTheGreatestForceForNone) {
  TreloData data = Design(2, 4, 8, 4, 2);
  data.DwnPForce[1] = 1e9;
  OpinionCase design(data);
  design.Result.StoykaForce[2] = 1;
  ASSERT_EQ(design.Form().SmallestForce(), 1);
  EXPECT_EQ(TextsOf(design.Find(), notBalanced),
            Texts{"Узлы не в равновесии под усилиями расчета: Н1; наибольшая невязка "
                  "999,999,999.000 т. Нагрузка узлов Н1 в усилия стержней не вошла."});
}

TEST(NotBalanced, BeginsAtTheLeftSupport) {
  for (Long scheme = 1; scheme <= 4; ++scheme) {
    OpinionCase design(SnowyTruss(scheme));
    design.Result.ReactLeft += 1;
    const std::string support = scheme == 1 ? "Н0" : "В0";
    EXPECT_EQ(TextsOf(design.Find(), notBalanced),
              Texts{"Узлы не в равновесии под усилиями расчета: " + support +
                    "; наибольшая невязка 1.000 т."});
  }
}

// 4 t on the last lower joint: reactions 1 and 3 t. From the middle on the walk takes each lower
// load one joint early, so that the middle joint Н1 bears them: its diagonals rise by 1 + 3 there,
// 4 t too many. At Н2 post and diagonal pull down by 3 + 1 and the load by 4: 8 t are missing. At
// the right support B4 the reaction of 3 t and the diagonal of 1 t both push up.
TEST(NotBalanced, NamesAllJointsFromTheLeftAndTheGreatestResidual) {
  TreloData data = SquareSecondScheme();
  data.UpPForce[2] = 0;
  data.DwnPForce[2] = 4;
  const std::vector<Finding> found = OpinionCase(data).Find();
  EXPECT_EQ(TextsOf(found, notBalanced),
            Texts{"Узлы не в равновесии под усилиями расчета: Н1, Н2, В4; наибольшая невязка 8.000 "
                  "т."});
  // The load itself is told as it was entered.
  EXPECT_EQ(TextsOf(found, loadDiffers), Texts());
}

TEST(NotBalanced, AppearsFromABillionthOfTheGreatestForceOn) {
  OpinionCase design(SnowyTruss(2));
  const double greatest = design.Form().GreatestForce;
  const double kept = design.Result.StoykaForce[3];
  design.Result.StoykaForce[3] = kept + 0.9e-9 * greatest;
  EXPECT_EQ(TextsOf(design.Find(), notBalanced), Texts());
  design.Result.StoykaForce[3] = kept + 1.1e-9 * greatest;
  // Both ends of the post.
  ASSERT_EQ(TextsOf(design.Find(), notBalanced).size(), 1U);
  EXPECT_NE(TextsOf(design.Find(), notBalanced)[0].find("Н2, В3"), std::string::npos);
}

/// Scheme 1 with end panels of 2 m and two of 3 m; q3 and q4 on the last two upper panels.
OpinionCase LastPanels(double endPanel, double q3, double q4) {
  TreloData data = Design(1, 4, 10, 2, endPanel);
  data.UpDistForce[2] = q3;
  data.UpDistForce[3] = q4;
  return OpinionCase(data);
}

// 4 and 1 t/m: the joint between them bears 4 * 3 / 2 + 1 * 2 / 2 = 7 t; the calculation exchanges
// the lengths, 4 * 2 / 2 + 1 * 3 / 2 = 5.5 t.
TEST(LoadDiffers, TellsOfTheExchangedLengthsOfTheFirstScheme) {
  const std::vector<Finding> found = LastPanels(2, 4, 1).Find();
  EXPECT_EQ(TextsOf(found, loadDiffers),
            Texts{"Расчет собрал в узлы не ту нагрузку, которая задана: В3 (-1.500 т)."});
  EXPECT_NEAR(OfCode(found, loadDiffers)[0].Told.value(), -1.5, 1e-12);
  // The truss is in equilibrium with the wrong load, and so not with the right one.
  EXPECT_EQ(TextsOf(found, notBalanced),
            Texts{"Узлы не в равновесии под усилиями расчета: В3; наибольшая невязка 1.500 т."});
  const std::vector<Finding> other = LastPanels(2, 1, 4).Find();
  EXPECT_EQ(TextsOf(other, loadDiffers),
            Texts{"Расчет собрал в узлы не ту нагрузку, которая задана: В3 (+1.500 т)."});
}

// (1 - 2) t/m make (1 - 2) (2 - 3) / 2 = 0.5 t.
TEST(LoadDiffers, GivesEveryDifferenceItsSign) {
  EXPECT_EQ(TextsOf(LastPanels(2, 1, 2).Find(), loadDiffers),
            Texts{"Расчет собрал в узлы не ту нагрузку, которая задана: В3 (+0.500 т)."});
}

TEST(LoadDiffers, NamesAllJointsAndTellsTheFirstOfTheGreatest) {
  for (Long scheme = 1; scheme <= 4; ++scheme) {
    OpinionCase design(SnowyTruss(scheme));
    BoundedArray<double>& ofSupport =
        scheme == 1 ? design.Result.DwnKnotLoad : design.Result.UpKnotLoad;
    ofSupport[0] += 0.25;
    design.Result.UpKnotLoad[1] += 1;
    design.Result.UpKnotLoad[2] -= 1;
    const std::vector<Finding> found = OfCode(design.Find(), loadDiffers);
    ASSERT_EQ(found.size(), 1U);
    EXPECT_NE(found[0].Text.find(scheme == 1 ? "Н0 (+0.250 т)" : "В0 (+0.250 т)"),
              std::string::npos)
        << found[0].Text;
    EXPECT_NE(found[0].Text.find("В1 (+1.000 т)"), std::string::npos) << found[0].Text;
    EXPECT_NE(found[0].Text.find("В2 (-1.000 т)"), std::string::npos) << found[0].Text;
    EXPECT_NEAR(found[0].Told.value(), 1, 1e-12);
  }
}

TEST(LoadDiffers, IsNoneWithEqualLoadsOrEqualPanels) {
  EXPECT_EQ(TextsOf(LastPanels(2, 4, 4).Find(), loadDiffers), Texts());
  EXPECT_EQ(TextsOf(LastPanels(2.5, 4, 1).Find(), loadDiffers), Texts());
}

TEST(LoadDiffers, KeepsTheFirstDigitsOfASmallDifference) {
  // (q3 - q4) (3 - 2) / 2 t.
  EXPECT_EQ(TextsOf(LastPanels(2, 1.0004, 1).Find(), loadDiffers),
            Texts{"Расчет собрал в узлы не ту нагрузку, которая задана: В3 (-0.0002 т)."});
  // 1/6000 t, to a thousandth of a milligram.
  EXPECT_EQ(TextsOf(LastPanels(2, 1 + 1.0 / 3000, 1).Find(), loadDiffers),
            Texts{"Расчет собрал в узлы не ту нагрузку, которая задана: В3 (-0.000166666667 т)."});
}

RC_GTEST_PROP(LoadDiffers, AppearsWhereTheToldJointLoadsAreNotTheEnteredOnes, ()) {
  const TreloData data = PickDesign(PickScheme());
  const OpinionCase design(data);
  const double d = (data.LengthF - 2 * data.LenOporn) / (data.PanelNum - 2);
  const Long n = data.PanelNum;
  double expected = 0;
  if (data.TreloType == 1) {
    expected = (data.UpDistForce[n - 2] - data.UpDistForce[n - 1]) * (data.LenOporn - d) / 2;
  }
  if (data.TreloType == 2) {
    expected = -(data.DwnPForce[1] + d * (data.DwnDistForce[0] + data.DwnDistForce[1]) / 2);
  }
  const std::vector<Finding> found = OfCode(design.Find(), loadDiffers);
  const double smallest = design.Form().SmallestForce();
  RC_PRE(std::abs(expected) < 0.5 * smallest || std::abs(expected) > 2 * smallest);
  RC_ASSERT(found.size() == (std::abs(expected) > smallest ? 1U : 0U));
  if (!found.empty()) {
    RC_ASSERT(std::abs(found[0].Told.value() - expected) <= smallest);
  }
}

/// Squares of 2 m: chords 8 + 8 m, five posts of 2 m, four diagonals of 2 sqrt 2 m. With 20 cm2
/// throughout that are 37.3137085 m of 20e-4 m2 at 7.85 t/m3, 0.585825 t, over 16 m of chords:
/// 0.0366141 t/m.
constexpr double weightPerMetre = 0.0366141;

OpinionCase LoadedWith(double upper, double lower) {
  TreloData data = SquareDesign(1, 4);
  Fill(data.UpDistForce, upper);
  Fill(data.DwnDistForce, lower);
  return OpinionCase(data);
}

std::optional<double> InsideOf(const OpinionCase& design) {
  return OwnWeightInside(design.Data, design.Sections, design.Numbers.Density);
}

Texts DoubledTexts(const OpinionCase& design) {
  return TextsOf(design.Find({.DoubledOwnWeight = InsideOf(design)}), FindingCode::OwnWeightTwice);
}

TEST(OwnWeightTwice, TellsOfAnAmountThatAllPanelsHold) {
  const OpinionCase design = LoadedWith(0.5, 0.0367);
  EXPECT_EQ(DoubledTexts(design),
            Texts{"Собственный вес, похоже, уже есть в нагрузках проекта: на каждой панели обоих "
                  "поясов по 0.0367 т/м. Расчет прибавляет его еще раз, пока включен учет "
                  "собственного веса."});
  const Finding found =
      OfCode(design.Find({.DoubledOwnWeight = InsideOf(design)}), FindingCode::OwnWeightTwice)[0];
  EXPECT_EQ(found.Grade, Severity::Warning);
  EXPECT_EQ(found.Told, 0.0367);
  EXPECT_EQ(found.Opinion, 0);
  // Only the project's form can tell that the load was restored with own weight on.
  EXPECT_EQ(TextsOf(design.Find(), FindingCode::OwnWeightTwice), Texts());
}

TEST(OwnWeightTwice, IsNoneBeyondThreeTimesWhatTheTrussWeighs) {
  EXPECT_EQ(DoubledTexts(LoadedWith(1, 3 * weightPerMetre - 1e-6)).size(), 1U);
  EXPECT_EQ(DoubledTexts(LoadedWith(1, 3 * weightPerMetre + 1e-6)).size(), 0U);
}

TEST(OwnWeightTwice, IsNoneWhereAPanelHoldsLessOrALowerOneMore) {
  EXPECT_EQ(DoubledTexts(LoadedWith(0, 0)), Texts());
  EXPECT_EQ(DoubledTexts(LoadedWith(0.03, 0.04)), Texts());
  EXPECT_EQ(DoubledTexts(LoadedWith(-0.04, -0.04)), Texts());
  EXPECT_EQ(DoubledTexts(LoadedWith(0.04, 0.04)).size(), 1U);
  for (BoundedArray<double> LoadArrays::*chord :
       {&LoadArrays::UpDistForce, &LoadArrays::DwnDistForce}) {
    for (const double other : {0.0, 0.039}) {
      OpinionCase design = LoadedWith(0.04, 0.04);
      (design.Data.*chord)[2] = other;
      EXPECT_EQ(DoubledTexts(design), Texts());
    }
  }
  OpinionCase more = LoadedWith(0.04, 0.04);
  more.Data.UpDistForce[2] = 0.5;
  EXPECT_EQ(DoubledTexts(more).size(), 1U);
  more.Data.DwnDistForce[2] = 0.5;
  EXPECT_EQ(DoubledTexts(more), Texts());
}

TEST(OwnWeightTwice, IsNoneOfATrussThatIsNone) {
  OpinionCase design = LoadedWith(0.04, 0.04);
  design.Data.LengthF = 0;
  design.Data.TreloType = 7;
  EXPECT_EQ(InsideOf(design), std::nullopt);
}

TEST(ChordBending, TellsOfEachChordWithADistributedLoad) {
  const std::string tail =
      " пояс несет распределенную нагрузку: изгиб его стержней между узлами не проверяется ни "
      "расчетом, ни вторым мнением.";
  struct Bent {
    double Upper, Lower;
    Texts Expected;
  };
  const Bent cases[] = {{0, 0, {}},
                        {1, 0, {"Верхний" + tail}},
                        {0, -0.001, {"Нижний" + tail}},
                        {0.1, 0.1, {"Верхний" + tail, "Нижний" + tail}}};
  for (Long scheme = 1; scheme <= 4; ++scheme) {
    for (const Bent& bent : cases) {
      TreloData data = SnowyTruss(scheme);
      data.UpDistForce[2] = bent.Upper;
      data.DwnDistForce[1] = bent.Lower;
      const std::vector<Finding> found = OpinionCase(data).Find();
      EXPECT_EQ(TextsOf(found, FindingCode::ChordBending), bent.Expected);
      for (const Finding& finding : OfCode(found, FindingCode::ChordBending)) {
        EXPECT_EQ(finding.Grade, Severity::Note);
        EXPECT_EQ(finding.Group, finding.Text.starts_with("Верхний") ? ElementGroup::UpPoyas
                                                                     : ElementGroup::DwnPoyas);
      }
    }
  }
}

}  // namespace

}  // namespace trelonit::test
