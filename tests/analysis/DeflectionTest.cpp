#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <rapidcheck/gtest.h>
#include <stdexcept>
#include <string>
#include <vector>

#include "analysis/modMaxProgib.h"
#include "tests/analysis/Designs.h"
#include "tests/analysis/Expectations.h"
#include "tests/analysis/RandomDesigns.h"
#include "tests/analysis/TrussModel.h"

namespace trelonit::test {
namespace {

constexpr double modulus = 206000;

/// Different areas for all groups, cm2.
CheckResult Areas() {
  CheckResult check;
  check.UpPoyas.Area = 40;
  check.DwnPoyas.Area = 30;
  check.Stoyka.Area = 10;
  check.Raskos.Area = 15;
  check.OpornRaskos.Area = 25;
  return check;
}

CheckResult PickAreas() {
  CheckResult check;
  for (GroupCheck* group :
       {&check.UpPoyas, &check.DwnPoyas, &check.Stoyka, &check.Raskos, &check.OpornRaskos}) {
    group->Area = PickBetween(1, 200);
  }
  return check;
}

/// CalcProgib where nothing may be shown.
double Progib(const TreloData& data, const TreloResult& result, const CheckResult& check,
              bool upChord, double E = modulus) {
  const Outcome<double> progib = CalcProgib(data, result, check, upChord, E);
  if (!progib.Told.empty()) {
    throw std::logic_error(progib.Told.front().Text);
  }
  return progib.Value;
}

TreloData Unloaded(TreloData data) {
  static_cast<LoadArrays&>(data) = ZeroLoads(BoundsOfLoads(data.TreloType, data.PanelNum).value());
  return data;
}

bool IsEnd(Long subscript, const BoundedArray<double>& forces) {
  return subscript == 1 || subscript == forces.UpperBound();
}

/// Length over area of a bar as the deflection takes it, whatever the bar's own length.
double RuleSlack(const TreloData& data, const TreloResult& result, const CheckResult& check,
                 const ModelBar& bar) {
  switch (bar.Kind) {
    case BarKind::UpPoyas:
      return (IsEnd(bar.Subscript, result.UpPoyasForce) ? data.LenOporn : result.LenPanel) /
             check.UpPoyas.Area;
    case BarKind::DwnPoyas:
      return (data.TreloType == 1 && IsEnd(bar.Subscript, result.DwnPoyasForce) ? data.LenOporn
                                                                                : result.LenPanel) /
             check.DwnPoyas.Area;
    case BarKind::Stoyka:
      return data.Hight / check.Stoyka.Area;
    case BarKind::Raskos:
      return IsEnd(bar.Subscript, result.RaskosForce)
                 ? result.LenOpornRaskos / check.OpornRaskos.Area
                 : result.LenRaskos / check.Raskos.Area;
  }
  throw std::logic_error("no such kind of bar");
}

/// Deflections of the joints of a chord, bar by bar.
std::vector<double> RestatedDeflections(const TreloData& data, const TreloResult& result,
                                        const CheckResult& check, bool upChord) {
  const TrussModel model = ModelOf(data);
  const std::size_t joints = (upChord ? model.Upper : model.Lower).size();
  std::vector<double> deflections;
  for (std::size_t joint = 0; joint < joints; ++joint) {
    TreloData unitData = Unloaded(data);
    (upChord ? unitData.UpPForce : unitData.DwnPForce)[static_cast<Long>(joint)] = 1;
    const TreloResult unit = Solved(unitData);
    double sum = 0;
    for (const ModelBar& bar : model.Bars) {
      sum += 98.1 * ForceOf(result, bar) * ForceOf(unit, bar) *
             RuleSlack(data, result, check, bar) / modulus;
    }
    deflections.push_back(sum);
  }
  return deflections;
}

double Greatest(const std::vector<double>& values) {
  return *std::max_element(values.begin(), values.end());
}

/// The same but for the rounding that goes with the greatest value of the row.
bool SameProgib(double actual, double expected, const std::vector<double>& row) {
  double scale = 0;
  for (const double value : row) {
    scale = std::max(scale, std::abs(value));
  }
  return std::abs(actual - expected) <= 1e-8 * scale;
}

RC_GTEST_PROP(Deflection, IsTheGreatestOfTheWorkSumsOfTheJoints, ()) {
  const TreloData data = PickDesign(PickScheme());
  const TreloResult result = Solved(data);
  const CheckResult check = PickAreas();
  for (const bool upChord : {true, false}) {
    const std::vector<double> joints = RestatedDeflections(data, result, check, upChord);
    RC_ASSERT(SameProgib(Progib(data, result, check, upChord), Greatest(joints), joints));
  }
}

TEST(Deflection, IsTheGreatestOfTheWorkSumsForEverySchemeAndPanelCount) {
  for (Long scheme = 1; scheme <= 4; ++scheme) {
    for (const Long n : PanelCounts(scheme)) {
      TreloData data = Design(scheme, n, 30, 2.25, 1.75);
      FillIrregular(data);
      const TreloResult result = Solved(data);
      for (const bool upChord : {true, false}) {
        const std::vector<double> joints = RestatedDeflections(data, result, Areas(), upChord);
        EXPECT_TRUE(SameProgib(Progib(data, result, Areas(), upChord), Greatest(joints), joints))
            << "scheme " << scheme << ", n " << n << ", upper " << upChord;
      }
    }
  }
}

/// Downward displacements of a chord's joints by the stiffness method. A unit load of 1 t and areas
/// in cm2 make E A in tonnes A E / 98.1.
std::vector<double> ElasticDrops(const TreloData& data, const TreloResult& result,
                                 const CheckResult& check, bool upChord) {
  const TrussModel model = ModelOf(data);
  std::vector<double> stiffness;
  for (const ModelBar& bar : model.Bars) {
    double area = 0;
    switch (bar.Kind) {
      case BarKind::UpPoyas:
        area = check.UpPoyas.Area;
        break;
      case BarKind::DwnPoyas:
        // Intended: in scheme 4 the deflection takes a lower bar, which is 2d long, with d; that is
        // a bar of twice the area.
        area = check.DwnPoyas.Area * (data.TreloType == 4 ? 2 : 1);
        break;
      case BarKind::Stoyka:
        area = check.Stoyka.Area;
        break;
      case BarKind::Raskos:
        area =
            IsEnd(bar.Subscript, result.RaskosForce) ? check.OpornRaskos.Area : check.Raskos.Area;
        break;
    }
    stiffness.push_back(area * modulus / 98.1);
  }
  const ElasticSolution elastic = SolveElastic(model, JointLoads(model, result), stiffness);
  std::vector<double> drops;
  for (const std::size_t joint : upChord ? model.Upper : model.Lower) {
    drops.push_back(elastic.Drop[joint]);
  }
  return drops;
}

RC_GTEST_PROP(Deflection, IsTheGreatestDisplacementOfTheChord, ()) {
  const Long scheme = PickScheme();
  TreloData data = PickDesign(scheme);
  bool upChord = *rc::gen::arbitrary<bool>();
  if (scheme == 2) {
    // Loads of the lower chord, real ones and unit ones, are out of their places there.
    Clear(data.DwnPForce);
    Clear(data.DwnDistForce);
    upChord = true;
  }
  const TreloResult result = Solved(data);
  const CheckResult check = PickAreas();
  const std::vector<double> drops = ElasticDrops(data, result, check, upChord);
  RC_ASSERT(SameProgib(Progib(data, result, check, upChord), Greatest(drops), drops));
}

/// Loads of the program's start design with 1 t on every upper joint.
TreloData EvenlyLoaded(Long scheme) {
  TreloData data = StartDesign(scheme);
  for (double& load : data.UpPForce) {
    load = 1;
  }
  return data;
}

class DeflectionOfScheme : public testing::TestWithParam<Long> {};
INSTANTIATE_TEST_SUITE_P(EveryScheme, DeflectionOfScheme, testing::Values(1, 2, 3, 4));

TEST_P(DeflectionOfScheme, IsZeroWithoutLoad) {
  const TreloData data = StartDesign(GetParam());
  const TreloResult result = Solved(data);
  EXPECT_EQ(Progib(data, result, Areas(), true), 0);
  EXPECT_EQ(Progib(data, result, Areas(), false), 0);
}

TEST_P(DeflectionOfScheme, GoesWithTheInverseOfTheModulus) {
  const TreloData data = EvenlyLoaded(GetParam());
  const TreloResult result = Solved(data);
  const double value = Progib(data, result, Areas(), true);
  EXPECT_GT(value, 0);
  EXPECT_NEAR(Progib(data, result, Areas(), true, modulus / 4) / value, 4, 1e-12);
}

TEST_P(DeflectionOfScheme, IsZeroWhereAnyGroupHasNoArea) {
  // The verticals count in the lattice too, which has none.
  const TreloData data = EvenlyLoaded(GetParam());
  const TreloResult result = Solved(data);
  ASSERT_GT(Progib(data, result, Areas(), true), 0);
  for (const auto group : {&CheckResult::UpPoyas, &CheckResult::DwnPoyas, &CheckResult::Stoyka,
                           &CheckResult::Raskos, &CheckResult::OpornRaskos}) {
    CheckResult check = Areas();
    (check.*group).Area = 0;
    EXPECT_EQ(Progib(data, result, check, true), 0);
    EXPECT_EQ(Progib(data, result, check, false), 0);
  }
}

TEST_P(DeflectionOfScheme, IsZeroWithoutAModulus) {
  const TreloData data = EvenlyLoaded(GetParam());
  EXPECT_EQ(Progib(data, Solved(data), Areas(), true, 0), 0);
}

TEST_P(DeflectionOfScheme, TakesTheRealForcesFromTheResultAlone) {
  const TreloData data = EvenlyLoaded(GetParam());
  const TreloResult result = Solved(data);
  const double expected = Progib(data, result, Areas(), true);
  TreloData other = data;
  FillIrregular(other);
  EXPECT_EQ(Progib(other, result, Areas(), true), expected);
  static_cast<LoadArrays&>(other) = LoadArrays();
  EXPECT_EQ(Progib(other, result, Areas(), true), expected);
}

TEST_P(DeflectionOfScheme, LeavesItsDataAsTheyWere) {
  TreloData data = StartDesign(GetParam());
  FillIrregular(data);
  const LoadArrays before = data;
  EXPECT_NE(Progib(data, Solved(data), Areas(), false), 0);
  EXPECT_EQ(static_cast<const LoadArrays&>(data), before);
}

TEST_P(DeflectionOfScheme, IsZeroWithoutForces) {
  const TreloData data = EvenlyLoaded(GetParam());
  EXPECT_EQ(Progib(data, TreloResult(), Areas(), true), 0);
}

TEST_P(DeflectionOfScheme, ShowsTheFailuresOfTheUnitRunsAndCountsThemZero) {
  TreloData data = EvenlyLoaded(GetParam());
  const TreloResult result = Solved(data);
  data.Hight = 0;
  for (const bool upChord : {true, false}) {
    const Outcome<double> progib = CalcProgib(data, result, Areas(), upChord, modulus);
    EXPECT_EQ(progib.Value, 0);
    const LoadArrays loads = Unloaded(data);
    const Long last = (upChord ? loads.UpPForce : loads.DwnPForce).UpperBound();
    ASSERT_EQ(static_cast<Long>(progib.Told.size()), last + 1);
    for (const Message& message : progib.Told) {
      EXPECT_EQ(message.Title, "CalcTrelo" + std::to_string(GetParam()));
    }
  }
}

TEST(Deflection, OfASingleBarIsItsStretch) {
  // All of the load stands over the left support: only the first vertical works, and the joint
  // above it comes down by F H / (E A). The truss turns with it, so that the second lower joint,
  // nine tenths of the span from the right support, comes down by nine tenths of that.
  TreloData data = StartDesign(1);
  data.UpPForce[0] = 12;
  const TreloResult result = Solved(data);
  const double stretch = 98.1 * 12 * 1.5 / (10 * modulus);
  EXPECT_NEAR(Progib(data, result, Areas(), true), stretch, 1e-15);
  EXPECT_NEAR(Progib(data, result, Areas(), false), 0.9 * stretch, 1e-15);
}

TEST(Deflection, LeavesOutAGroupWhoseForcesAreMissing) {
  const TreloData data = EvenlyLoaded(1);
  const TreloResult whole = Solved(data);
  for (const auto group : {&TreloResult::UpPoyasForce, &TreloResult::DwnPoyasForce,
                           &TreloResult::RaskosForce, &TreloResult::StoykaForce}) {
    TreloResult silent = whole;
    Clear(silent.*group);
    TreloResult missing = whole;
    missing.*group = BoundedArray<double>();
    const double expected = Progib(data, silent, Areas(), true);
    EXPECT_NE(expected, Progib(data, whole, Areas(), true));
    EXPECT_DOUBLE_EQ(Progib(data, missing, Areas(), true), expected);
  }
}

TEST(Deflection, OfTheSmallLatticeIsTheSumOverItsSevenBars) {
  // 2 t at midspan, slopes of 45 degrees: chords -1, -1 and 2, diagonals of magnitude root 2; the
  // unit forces at the middle joint are half of them.
  TreloData data = SquareDesign(3, 2);
  data.UpPForce[1] = 2;
  const double chords = (0.5 + 0.5) * 2 / 40 + 2.0 * 2 / 30;
  const double root2 = std::sqrt(2.0);
  const double diagonals = 2 * root2 / 15 + 2 * root2 / 25;
  EXPECT_NEAR(Progib(data, Solved(data), Areas(), true), 98.1 / modulus * (chords + diagonals),
              1e-15);
}

TEST(Deflection, IsComparedWithItsSign) {
  // Pulled upward, every joint rises: the greatest is the one that rises least.
  TreloData data = StartDesign(1);
  for (double& load : data.UpPForce) {
    load = -1;
  }
  const TreloResult result = Solved(data);
  const std::vector<double> upper = RestatedDeflections(data, result, Areas(), true);
  ASSERT_LT(Greatest(upper), 0);
  EXPECT_NEAR(Progib(data, result, Areas(), true), Greatest(upper), 1e-15);
  // A joint on a support does not move.
  EXPECT_EQ(Progib(data, result, Areas(), false), 0);
}

TEST(Deflection, OfTheSecondSchemeFeelsNoUnitLoadOnTheSecondLowerJoint) {
  TreloData data = Unloaded(StartDesign(2));
  data.DwnPForce[1] = 1;
  const TreloResult unit = Solved(data);
  for (const double force : AllForces(unit)) {
    EXPECT_EQ(force, 0);
  }
  // Pulled upward all other lower joints rise, so that this one is the greatest with its 0.
  data = StartDesign(2);
  for (double& load : data.UpPForce) {
    load = -1;
  }
  const TreloResult result = Solved(data);
  const std::vector<double> lower = RestatedDeflections(data, result, Areas(), false);
  EXPECT_EQ(lower[1], 0);
  EXPECT_EQ(std::count_if(lower.begin(), lower.end(), [](double d) { return d < 0; }), 8);
  EXPECT_EQ(Progib(data, result, Areas(), false), 0);
}

TEST(Deflection, OfTheFourthSchemeTakesALowerBarWithOnePanel) {
  TreloData data = SquareDesign(4, 4);
  data.UpPForce[2] = 4;
  const TreloResult result = Solved(data);
  // Forces at midspan: chord -2 four times and 4 once, diagonals of 2 root 2; unit forces a
  // quarter.
  const double root2 = std::sqrt(2.0);
  const double expected = 4 * (2 * 0.5) * 2 / 40 + 4 * 1.0 * 2 / 30 + 2 * (4 * 2 * root2 / 2) / 25 +
                          2 * (4 * 2 * root2 / 2) / 15;
  // The lower bar is 4 m long and enters with 2 m.
  EXPECT_NEAR(Progib(data, result, Areas(), true) * modulus / 98.1, expected, 1e-12);
}

TEST(Deflection, OfReservedSchemesIsZeroInSilence) {
  const TreloData solved = EvenlyLoaded(1);
  const TreloResult result = Solved(solved);
  for (Long scheme = 5; scheme <= 10; ++scheme) {
    TreloData data = solved;
    data.TreloType = scheme;
    EXPECT_EQ(Progib(data, result, Areas(), true), 0) << scheme;
    EXPECT_EQ(Progib(data, TreloResult(), Areas(), false), 0) << scheme;
  }
}

TEST(Deflection, OfANegativePanelCountIsZero) {
  TreloData data = EvenlyLoaded(1);
  const TreloResult result = Solved(data);
  constexpr Long smallest = std::numeric_limits<Long>::min();
  for (const Long n : {-4, smallest, smallest + 1, smallest + 2, smallest + 3}) {
    data.PanelNum = n;
    EXPECT_EQ(Progib(data, result, Areas(), true), 0);
  }
}

RC_GTEST_PROP(Deflection, GrowsWithTheLoads, ()) {
  TreloData data = PickDesign(PickScheme());
  const CheckResult check = PickAreas();
  const double factor = PickBetween(0.1, 5);
  const TreloResult result = Solved(data);
  TreloResult scaled = result;
  for (auto* forces :
       {&scaled.UpPoyasForce, &scaled.DwnPoyasForce, &scaled.RaskosForce, &scaled.StoykaForce}) {
    for (double& force : *forces) {
      force *= factor;
    }
  }
  const std::vector<double> row = RestatedDeflections(data, result, check, true);
  RC_ASSERT(
      SameProgib(Progib(data, scaled, check, true), factor * Progib(data, result, check, true),
                 {factor * Greatest(row), factor * *std::min_element(row.begin(), row.end())}));
}

}  // namespace
}  // namespace trelonit::test
