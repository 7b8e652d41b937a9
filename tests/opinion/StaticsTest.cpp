#include <algorithm>
#include <cmath>
#include <functional>
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "opinion/Opinion.h"
#include "tests/analysis/Expectations.h"
#include "tests/analysis/RandomDesigns.h"
#include "tests/opinion/OpinionCase.h"

namespace trelonit::test {

namespace {

using LoadMember = BoundedArray<double> LoadArrays::*;
constexpr LoadMember loadMembers[] = {&LoadArrays::UpPForce, &LoadArrays::UpDistForce,
                                      &LoadArrays::DwnPForce, &LoadArrays::DwnDistForce};

std::vector<double> Forces(const TreloData& data) {
  return AllForces(SolveTruss(data).Forces);
}

/// Forces by what a bar is and not by its place, so that a truss and its mirror image compare: the
/// bars between two joints at these places, from the left or from the right.
std::vector<double> ForcesByPlace(const TreloData& data, bool fromTheRight) {
  const JudgedTruss truss = SolveTruss(data);
  struct Placed {
    double Middle, Height, Force;
  };
  std::vector<Placed> placed;
  for (std::size_t bar = 0; bar < truss.Model.Bars.size(); ++bar) {
    const TrussJoint& a = truss.Model.Joints[truss.Model.Bars[bar].A];
    const TrussJoint& b = truss.Model.Joints[truss.Model.Bars[bar].B];
    const double middle = (a.X + b.X) / 2;
    placed.push_back(
        {fromTheRight ? data.LengthF - middle : middle, a.Y + b.Y, truss.Forces.Forces[bar]});
  }
  std::sort(placed.begin(), placed.end(), [&](const Placed& first, const Placed& second) {
    // A post and a chord's bar never have one middle: their heights differ by half the truss.
    const bool together = std::abs(first.Middle - second.Middle) < 1e-9 * data.LengthF;
    return together ? first.Height < second.Height : first.Middle < second.Middle;
  });
  std::vector<double> forces;
  std::transform(placed.begin(), placed.end(), std::back_inserter(forces),
                 [](const Placed& one) { return one.Force; });
  const double left = truss.Forces.ReactLeft;
  const double right = truss.Forces.ReactRight;
  forces.push_back(fromTheRight ? right : left);
  forces.push_back(fromTheRight ? left : right);
  return forces;
}

RC_GTEST_PROP(OpinionStatics, MirroredLoadsGiveMirroredForces, ()) {
  TreloData data = PickDesign(PickScheme());
  const std::vector<double> expected = ForcesByPlace(data, false);
  for (const LoadMember member : loadMembers) {
    std::reverse((data.*member).begin(), (data.*member).end());
  }
  RC_ASSERT(AlmostEqual(ForcesByPlace(data, true), expected, 1e-9));
}

RC_GTEST_PROP(OpinionStatics, ForcesOfTwoLoadSetsAddUp, ()) {
  const TreloData first = PickDesign(PickScheme());
  TreloData second = first;
  PickLoads(second);
  const double share = PickBetween(-3, 3);
  TreloData both = first;
  for (const LoadMember member : loadMembers) {
    std::transform((first.*member).begin(), (first.*member).end(), (second.*member).begin(),
                   (both.*member).begin(), [=](double a, double b) { return a + share * b; });
  }
  std::vector<double> sum = Forces(first);
  const std::vector<double> other = Forces(second);
  std::transform(sum.begin(), sum.end(), other.begin(), sum.begin(),
                 [=](double a, double b) { return a + share * b; });
  RC_ASSERT(AlmostEqual(Forces(both), sum, 1e-9));
}

TreloData Scaled(TreloData data, double factor) {
  data.LengthF *= factor;
  data.Hight *= factor;
  data.LenOporn *= factor;
  return data;
}

void Scale(std::vector<double>& values, double factor) {
  std::transform(values.begin(), values.end(), values.begin(),
                 [=](double value) { return value * factor; });
}

RC_GTEST_PROP(OpinionStatics, ForcesOfPointLoadsDoNotDependOnTheScaleOfTheTruss, ()) {
  TreloData data = PickDesign(PickScheme());
  Clear(data.UpDistForce);
  Clear(data.DwnDistForce);
  RC_ASSERT(AlmostEqual(Forces(Scaled(data, PickBetween(0.2, 5))), Forces(data), 1e-9));
}

RC_GTEST_PROP(OpinionStatics, ForcesOfDistributedLoadsGrowWithTheScaleOfTheTruss, ()) {
  TreloData data = PickDesign(PickScheme());
  Clear(data.UpPForce);
  Clear(data.DwnPForce);
  const double factor = PickBetween(0.2, 5);
  std::vector<double> expected = Forces(data);
  Scale(expected, factor);
  RC_ASSERT(AlmostEqual(Forces(Scaled(data, factor)), expected, 1e-9));
}

std::vector<double> Slendernesses(const TreloData& data) {
  std::vector<double> found;
  const Opinion opinion = OpinionCase(data).Form();
  RC_ASSERT(opinion.Refusal == "");
  for (const BarJudgement& bar : opinion.Bars) {
    found.push_back(bar.X.Slenderness);
    found.push_back(bar.Y.Slenderness);
  }
  return found;
}

RC_GTEST_PROP(OpinionStatics, SlendernessGrowsWithTheScaleOfTheTruss, ()) {
  const TreloData data = PickDesign(PickScheme());
  const double factor = PickBetween(0.2, 5);
  std::vector<double> expected = Slendernesses(data);
  Scale(expected, factor);
  RC_ASSERT(AlmostEqual(Slendernesses(Scaled(data, factor)), expected, 1e-9));
}

RC_GTEST_PROP(OpinionStatics, EveryJointIsInEquilibrium, ()) {
  const JudgedTruss truss = SolveTruss(PickDesign(PickScheme()));
  const double tolerance = 1e-9 * Magnitude(AllForces(truss.Forces));
  for (const trelonit::Residual& residual : Residuals(truss.Model, truss.Forces)) {
    RC_ASSERT(residual.Size() <= tolerance);
  }
}

RC_GTEST_PROP(OpinionStatics, ReactionsCarryAllLoadsTogether, ()) {
  const Statics statics = SolveTruss(PickDesign(PickScheme())).Forces;
  double total = 0;
  for (const double load : statics.Loads) {
    total += load;
  }
  const double size = Magnitude(AllForces(statics));
  RC_ASSERT(std::abs(statics.ReactLeft + statics.ReactRight - total) <= 1e-9 * size);
}

/// The same truss with its joints numbered from the other end.
Truss NumberedFromTheRight(Truss truss) {
  const auto renumber = [last = truss.Joints.size() - 1](std::size_t& place) {
    place = last - place;
  };
  std::reverse(truss.Joints.begin(), truss.Joints.end());
  std::for_each(truss.Upper.begin(), truss.Upper.end(), renumber);
  std::for_each(truss.Lower.begin(), truss.Lower.end(), renumber);
  for (TrussBar& bar : truss.Bars) {
    renumber(bar.A);
    renumber(bar.B);
  }
  renumber(truss.LeftSupport);
  renumber(truss.RightSupport);
  return truss;
}

RC_GTEST_PROP(OpinionStatics, DoesNotHangOnTheNumbersOfTheJoints, ()) {
  const JudgedTruss truss = SolveTruss(PickDesign(PickScheme()));
  const Truss renumbered = NumberedFromTheRight(truss.Model);
  std::vector<double> loads = truss.Forces.Loads;
  std::reverse(loads.begin(), loads.end());
  const Statics found = SolveStatics(renumbered, loads);
  RC_ASSERT(AlmostEqual(AllForces(found), AllForces(truss.Forces), 1e-9));

  const auto movements = [&](const Truss& model) {
    const std::vector<double> areas(model.Bars.size(), 10);
    std::vector<double> numbers;
    for (const Displacement& moved : Displacements(model, truss.Forces.Forces, areas, 206000)) {
      numbers.insert(numbers.end(), {moved.Down, moved.Right});
    }
    return numbers;
  };
  std::vector<double> expected = movements(truss.Model);
  std::vector<double> moved = movements(renumbered);
  // Joint by joint from the other end, and the two directions of each the other way round.
  std::reverse(expected.begin(), expected.end());
  for (std::size_t joint = 0; joint < expected.size(); joint += 2) {
    std::swap(expected[joint], expected[joint + 1]);
  }
  RC_ASSERT(AlmostEqual(moved, expected, 1e-7));
}

// By hand: panels of 2 and 3 m, so that a joint between an end panel and a regular one takes
// (q1 2 + q2 3) / 2.
TEST(JointLoads, AreHalfOfThePanelsBesideWithTheirTrueLengths) {
  TreloData data = Design(1, 4, 10, 2, 2);
  data.UpDistForce[0] = 1;
  data.UpDistForce[1] = 2;
  data.UpDistForce[2] = 4;
  data.UpDistForce[3] = 8;
  data.UpPForce[3] = 0.5;
  data.DwnDistForce[3] = 1;
  const Truss truss = TrussOf(data);
  const std::vector<double> loads = JointLoads(truss, data);
  const double upper[] = {1, 1 + 3, 3 + 6, 6 + 8 + 0.5, 8};
  const double lower[] = {0, 0, 0, 1, 1};
  for (std::size_t i = 0; i <= 4; ++i) {
    EXPECT_DOUBLE_EQ(loads[truss.Upper[i]], upper[i]) << i;
    EXPECT_DOUBLE_EQ(loads[truss.Lower[i]], lower[i]) << i;
  }
}

TEST(JointLoads, OfALowerPanelUnderTwoUpperOnesComeFromItsWholeLength) {
  TreloData data = Design(4, 8, 16, 2, 2);
  data.DwnDistForce[1] = 3;
  const Truss truss = TrussOf(data);
  const std::vector<double> loads = JointLoads(truss, data);
  // The lower panels are 4 m long: 3 t/m make 12 t, half of it at either end.
  EXPECT_DOUBLE_EQ(loads[truss.Lower[1]], 6);
  EXPECT_DOUBLE_EQ(loads[truss.Lower[2]], 6);
  EXPECT_DOUBLE_EQ(loads[truss.Lower[0]] + loads[truss.Lower[3]], 0);
}

TEST(JointLoads, LeaveNoJointOut) {
  for (Long scheme = 1; scheme <= 4; ++scheme) {
    for (const Long n : PanelCounts(scheme)) {
      TreloData data = Design(scheme, n, 30, 2.25, 1.75);
      for (const LoadMember member : loadMembers) {
        Fill(data.*member, 1);
      }
      const Truss truss = TrussOf(data);
      for (const double load : JointLoads(truss, data)) {
        EXPECT_GT(load, 1) << scheme << ", " << n;
      }
    }
  }
}

TEST(JointLoads, AreNoneForArraysThatAreTooShort) {
  const TreloData data = Design(1, 8, 30, 2.25, 1.75);
  for (const LoadMember member : loadMembers) {
    TreloData shorter = data;
    (shorter.*member).ResizeUpper((shorter.*member).UpperBound() - 1);
    EXPECT_THROW(JointLoads(TrussOf(data), shorter), RuntimeError);
  }
}

// Both supports stand at the ends of the upper chord. Two bars of 3 m, 10 cm2, are pressed by 5 t
// each: the roller moves to the left by 2 * 5 * 9810 N * 3 m / (1e-3 m2 * 2e11 Pa) = 1.4715 mm.
TEST(Displacements, OfTheRollerIsTheShorteningOfTheUpperChord) {
  TreloData data = Design(3, 2, 6, 1.5, 0);
  data.UpPForce[1] = 6;
  data.DwnPForce[0] = 2;
  data.DwnPForce[1] = 2;
  const JudgedTruss truss = SolveTruss(data);
  const std::vector<double> areas(truss.Model.Bars.size(), 10);
  const auto moved = Displacements(truss.Model, truss.Forces.Forces, areas, 200000);
  EXPECT_NEAR(moved[truss.Model.RightSupport].Right, -1.4715e-3, 1e-12);
  EXPECT_NEAR(moved[truss.Model.RightSupport].Down, 0, 1e-15);
  EXPECT_NEAR(moved[truss.Model.LeftSupport].Right, 0, 1e-15);
  EXPECT_NEAR(moved[truss.Model.LeftSupport].Down, 0, 1e-15);
}

TEST(Displacements, AreNoneForABarWithoutArea) {
  const JudgedTruss truss = SolveTruss(SnowyTruss(2));
  std::vector<double> areas(truss.Model.Bars.size(), 10);
  areas[3] = 0;
  EXPECT_THROW(Displacements(truss.Model, truss.Forces.Forces, areas, 200000), RuntimeError);
}

}  // namespace

}  // namespace trelonit::test
