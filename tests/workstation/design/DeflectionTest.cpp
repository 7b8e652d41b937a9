#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>

#include "analysis/modMaxProgib.h"
#include "tests/workstation/design/SmallTruss.h"

namespace trelonit::test {
namespace {

/// A truss under 4 t at its second upper joint, with the deflection asked for. By virtual work with
/// the areas of its groups that joint sinks by 0.00688 m, more than any other of its chord.
class Deflection : public ::testing::Test {
 protected:
  Deflection() {
    desk.Load(true, 1, "4");
    form.tabMain.SetTab(0);
    form.chkProgib.SetChecked(true);
    form.tabMain.SetTab(2);
  }

  /// The lines that follow the blank line under the reactions.
  std::vector<std::string> Calculated() {
    const std::vector<std::string>& lines = desk.Calculate().lstForces;
    constexpr std::size_t linesOnForces = 40;
    if (lines.size() < linesOnForces) {
      throw std::logic_error("lines on the forces are missing");
    }
    return {lines.begin() + linesOnForces, lines.end()};
  }

  SmallTruss desk{1};
  frmMain& form = desk.Main;
};

TEST_F(Deflection, WithinTheLimitIsShownOnTheFirstTab) {
  form.imgLenLimoverflow.Show(BitmapOf(101));
  EXPECT_EQ(Calculated(), (std::vector<std::string>{" ", "Максимальный прогиб : 0.00688 м ",
                                                    "Допустимый прогиб фермы : 0.06667 м "}));
  EXPECT_EQ(form.tabMain.Tab(), 0);
  EXPECT_EQ(form.txtProgib.Text(), "0.00688");
  EXPECT_EQ(form.imgLenLimoverflow.Shown(), Picture());
  ASSERT_TRUE(desk.Results.back().Of.Progib);
  EXPECT_NEAR(desk.Results.back().Of.Progib->Value, 0.006876915539791482, 1e-12);
  EXPECT_EQ(desk.Results.back().Of.Progib->Limit, 8.0 / 120);
  EXPECT_TRUE(desk.Results.back().Of.Progib->Satisfied);
  EXPECT_EQ(desk.TakeMessages(), Messages());
}

TEST_F(Deflection, BeyondTheLimitIsMarked) {
  Choose(form.cmbLenlim, "1 / 1200");
  EXPECT_EQ(Calculated(), (std::vector<std::string>{" ", "Не выполнено условие жесткости !!! ",
                                                    "Максимальный прогиб фермы : 0.00688 м ",
                                                    "Допустимый прогиб фермы : 0.00667 м "}));
  EXPECT_EQ(form.tabMain.Tab(), 0);
  EXPECT_EQ(form.txtProgib.Text(), "0.00688");
  EXPECT_EQ(form.imgLenLimoverflow.Shown(), BitmapOf(101));
  EXPECT_FALSE(desk.Results.back().Of.Progib->Satisfied);
  EXPECT_EQ(desk.TakeMessages(), Messages());
}

TEST_F(Deflection, MarkGoesWithALimitThatHolds) {
  Choose(form.cmbLenlim, "1 / 1200");
  Calculated();
  Choose(form.cmbLenlim, "1 / 1150");
  EXPECT_EQ(Calculated().size(), 3U);
  EXPECT_EQ(form.imgLenLimoverflow.Shown(), Picture());
}

TEST_F(Deflection, OfTheLowerChordIsTakenWhenItIsChosen) {
  form.optNP.SetValue(true);
  EXPECT_EQ(Calculated().at(1), "Максимальный прогиб : 0.00590 м ");
  EXPECT_EQ(form.txtProgib.Text(), "0.00590");
}

TEST_F(Deflection, FallsWithTheElasticModulus) {
  form.Steel.ModulYung = "105000";
  EXPECT_EQ(Calculated().at(1), "Максимальный прогиб : 0.01375 м ");
}

TEST_F(Deflection, IsWrittenInTheUsersLocale) {
  SmallTruss comma(1, CommaLocale());
  comma.Load(true, 1, "4");
  comma.Main.chkProgib.SetChecked(true);
  EXPECT_EQ(comma.Calculate().lstForces.back(), "Допустимый прогиб фермы : 0,06667 м ");
  EXPECT_EQ(comma.Main.txtProgib.Text(), "0,00688");
}

TEST_F(Deflection, IsNotLookedAtUnasked) {
  form.chkProgib.SetChecked(false);
  form.txtProgib.SetText("old");
  form.imgLenLimoverflow.Show(BitmapOf(101));
  EXPECT_EQ(Calculated(), std::vector<std::string>());
  EXPECT_FALSE(desk.Results.back().Of.Progib);
  EXPECT_EQ(form.tabMain.Tab(), 2);
  EXPECT_EQ(form.txtProgib.Text(), "old");
  EXPECT_EQ(form.imgLenLimoverflow.Shown(), BitmapOf(101));
}

TEST_F(Deflection, WithoutLoadsIsNone) {
  form.cmdClearLoads_Click();
  EXPECT_EQ(Calculated().at(1), "Максимальный прогиб : 0.00000 м ");
}

TEST_F(Deflection, TakesTheOwnWeightWithTheLoads) {
  form.chkOwnWeight.SetChecked(true);
  Calculated();
  EXPECT_GT(desk.Results.back().Of.Progib->Value, 0.00689);
}

TEST_F(Deflection, WithoutAReadableLimitTakesTheTail) {
  for (const char* text : {"1 / x", "1 /", ""}) {
    form.cmbLenlim.SetText(text);
    form.cmdCalculate_Click();
    EXPECT_EQ(desk.TakeMessages(), Messages{TypeMismatchTail("cmdCalculate_Click")}) << text;
  }
  EXPECT_TRUE(desk.Results.empty());
  EXPECT_EQ(form.tabMain.Tab(), 2);
}

TEST_F(Deflection, WithoutItsPictureTakesTheTail) {
  desk.Resources.MissingBitmaps = {101};
  Choose(form.cmbLenlim, "1 / 2500");
  form.cmdCalculate_Click();
  EXPECT_EQ(desk.TakeMessages(), Messages{BitmapTail("cmdCalculate_Click", 101)});
  EXPECT_EQ(form.tabMain.Tab(), 0);
  EXPECT_EQ(form.txtProgib.Text(), "0.00688");
}

TEST_F(Deflection, IsOnTheFormBeforeTheResultsOpen) {
  std::string shown;
  Integer tab = -1;
  frmMain* other = nullptr;
  frmMain late(desk.Outside.Bundle(), {.ShowKoeffOfUse = [&](const ResultLists&) {
                 shown = other->txtProgib.Text();
                 tab = other->tabMain.Tab();
               }});
  other = &late;
  late.Form_Load();
  late.tabMain.SetTab(2);
  late.chkProgib.SetChecked(true);
  late.cmdCalculate_Click();
  EXPECT_EQ(shown, "0.00000");
  EXPECT_EQ(tab, 0);
}

/// A scheme and the deflections of its chords, m.
struct SchemeDeflection {
  Long Scheme;
  double Upper;
  double Lower;
};

class DeflectionOfScheme : public ::testing::TestWithParam<SchemeDeflection> {};

TEST_P(DeflectionOfScheme, IsThatOfVirtualWork) {
  SmallTruss desk(GetParam().Scheme);
  if (GetParam().Scheme == 3) {
    desk.Load(true, 1, "2");
    desk.Load(false, 0, "4");
  } else {
    desk.Load(true, 1, "4");
  }
  desk.Calculate();
  const auto deflection = [&desk](bool upper) {
    const Calculation& last = desk.Main.Model.Last;
    return CalcProgib(last.TreloData, last.TreloResult, last.CheckData, upper, 210000).Value;
  };
  EXPECT_NEAR(deflection(true), GetParam().Upper, 1e-12);
  EXPECT_NEAR(deflection(false), GetParam().Lower, 1e-12);
  EXPECT_EQ(desk.TakeMessages(), Messages());
}

// From a general solution of the joints, each chord bar taken with the length of a panel. In scheme
// 2 the lower chord is intended to give the value of its first joint: a load on the second one is
// not assembled, and from the middle on the walk takes the load of the next joint.
INSTANTIATE_TEST_SUITE_P(Solved, DeflectionOfScheme,
                         ::testing::Values(SchemeDeflection{1, 0.0068769155398, 0.0059048827428},
                                           SchemeDeflection{2, 0.0048633687418, 0.0024471125841},
                                           SchemeDeflection{3, 0.0028743320691, 0.0021365001684},
                                           SchemeDeflection{4, 0.0055872130010, 0.0023655381241}),
                         [](const auto& scheme) {
                           return "Scheme" + std::to_string(scheme.param.Scheme);
                         });

/// A model in which only the middle vertical has a force and only its own joint makes it work, with
/// numbers that are powers of two where they do not cancel: the deflection is force / 512 exactly.
ProgibResult ExactDeflection(double force, const std::string& limit) {
  SmallTruss desk(1);
  desk.Calculate();
  DesignModel& model = desk.Main.Model;
  for (GroupCheck* group :
       {&model.Last.CheckData.UpPoyas, &model.Last.CheckData.DwnPoyas, &model.Last.CheckData.Stoyka,
        &model.Last.CheckData.Raskos, &model.Last.CheckData.OpornRaskos}) {
    group->Area = 1024;
  }
  for (BoundedArray<double>* forces :
       {&model.Last.TreloResult.UpPoyasForce, &model.Last.TreloResult.DwnPoyasForce,
        &model.Last.TreloResult.RaskosForce, &model.Last.TreloResult.StoykaForce}) {
    std::fill(forces->begin(), forces->end(), 0);
  }
  model.Last.TreloResult.StoykaForce[3] = -force;
  constexpr double modulus = 98.1;
  const Calculation& last = model.Last;
  const double progib =
      CalcProgib(last.TreloData, last.TreloResult, last.CheckData, true, modulus).Value;
  return JudgeProgib(progib, last.TreloData.LengthF, limit, PointLocale());
}

TEST(DeflectionLimit, IsSatisfiedByADeflectionThatEqualsIt) {
  // 8 m / 128 is 32 / 512.
  const ProgibResult equal = ExactDeflection(32, "1 / 128");
  EXPECT_EQ(equal.Value, 0.0625);
  EXPECT_EQ(equal.Limit, 0.0625);
  EXPECT_TRUE(equal.Satisfied);
}

TEST(DeflectionLimit, IsPassedByTheLeastAmountAboveIt) {
  const ProgibResult above = ExactDeflection(std::nextafter(32, 64), "1 / 128");
  EXPECT_EQ(above.Value, std::nextafter(0.0625, 1));
  EXPECT_FALSE(above.Satisfied);
  EXPECT_TRUE(ExactDeflection(std::nextafter(32, 0), "1 / 128").Satisfied);
}

TEST(DeflectionLimit, StandsFromTheFifthCharacterOn) {
  EXPECT_EQ(ExactDeflection(1, "1 / 200").Limit, 8.0 / 200);
  EXPECT_EQ(ExactDeflection(1, "abcd250").Limit, 8.0 / 250);
  EXPECT_EQ(ExactDeflection(1, "1 /   400 ").Limit, 8.0 / 400);
}

}  // namespace
}  // namespace trelonit::test
