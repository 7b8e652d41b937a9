#include <cmath>
#include <gtest/gtest.h>

#include "tests/analysis/Designs.h"
#include "tests/analysis/Expectations.h"

namespace trelonit::test {
namespace {

// All examples have slopes of 45 degrees; root2 is the pull of a diagonal that carries 1 t of
// shear.
const double root2 = std::sqrt(2.0);

void ExpectGeometry(const TreloResult& result) {
  EXPECT_NEAR(result.AngleOporn, std::atan(1.0), 1e-15);
  EXPECT_NEAR(result.AngleRaskos, std::atan(1.0), 1e-15);
  EXPECT_EQ(result.LenPanel, 2);
  EXPECT_NEAR(result.LenOpornRaskos, 2 * root2, 1e-14);
  EXPECT_NEAR(result.LenRaskos, 2 * root2, 1e-14);
}

TEST(Scheme1, CarriesALoadAtMidspan) {
  TreloData data = SquareDesign(1, 4);
  data.UpPForce[2] = 4;
  const TreloResult result = Solved(data);
  EXPECT_DOUBLE_EQ(result.ReactLeft, 2);
  EXPECT_DOUBLE_EQ(result.ReactRight, 2);
  ExpectForces(result.UpPoyasForce, {-2, -4, -4, -2});
  ExpectForces(result.DwnPoyasForce, {0, 2, 2, 0});
  ExpectForces(result.RaskosForce, {2 * root2, 2 * root2, 2 * root2, 2 * root2});
  ExpectForces(result.StoykaForce, {-2, -2, -4, -2, -2});
  EXPECT_TRUE(result.Balanced);
  ExpectGeometry(result);
  EXPECT_EQ(result.KnotNum, 10);
  EXPECT_EQ(result.SumLenUpPoyas, 8);
  EXPECT_EQ(result.SumLenDwnPoyas, 8);
  EXPECT_NEAR(result.SumLenOpornRaskos, 4 * root2, 1e-14);
  EXPECT_NEAR(result.SumLenRaskos, 4 * root2, 1e-14);
  EXPECT_EQ(result.SumLenStoyka, 10);
}

TEST(Scheme1, StepsFromJointThreeStraightToJointSixInTheSmallestTruss) {
  TreloData data = SquareDesign(1, 4);
  data.UpPForce[2] = 4;
  const SquareTable<double> table = Solved(data).BarForce;
  EXPECT_DOUBLE_EQ(table(3, 6), 2);
  EXPECT_DOUBLE_EQ(table(6, 3), 2);
  EXPECT_EQ(table(3, 5), 0);
  EXPECT_DOUBLE_EQ(table(4, 5), -4);
  EXPECT_DOUBLE_EQ(table(5, 6), -4);
  EXPECT_DOUBLE_EQ(table(9, 10), -2);
}

TEST(Scheme1, PutsAUnitLoadAtMidspanIntoTheMiddleVertical) {
  TreloData data = StartDesign(1);
  data.UpPForce[5] = 1;
  EXPECT_EQ(Solved(data).StoykaForce[6], -1);
}

TEST(Scheme1, LeavesTheFirstLowerBarWithoutForceUnderAnyLoad) {
  TreloData data = StartDesign(1);
  FillIrregular(data);
  const TreloResult result = Solved(data);
  EXPECT_EQ(result.DwnPoyasForce[1], 0);
  EXPECT_NE(result.DwnPoyasForce[2], 0);
}

TEST(Scheme1, KeepsLoadsOverTheSupportsInTheEndColumns) {
  TreloData data = StartDesign(1);
  data.UpPForce[0] = 3;
  data.DwnPForce[0] = 5;
  data.UpPForce[10] = 7;
  data.DwnPForce[10] = 11;
  const TreloResult result = Solved(data);
  EXPECT_EQ(result.ReactLeft, 8);
  EXPECT_EQ(result.ReactRight, 18);
  ExpectForces(result.UpPoyasForce, std::vector<double>(10));
  ExpectForces(result.DwnPoyasForce, std::vector<double>(10));
  ExpectForces(result.RaskosForce, std::vector<double>(10));
  ExpectForces(result.StoykaForce, {-3, 0, 0, 0, 0, 0, 0, 0, 0, 0, -7});
  EXPECT_TRUE(result.Balanced);
}

TEST(Scheme1, StaysBalancedUnderUnlikeLoadsOnTheLastTwoUpperPanels) {
  TreloData data = Design(1, 8, 30, 2, 1.25);
  data.UpDistForce[6] = 2;
  data.UpDistForce[7] = 5;
  const TreloResult result = Solved(data);
  EXPECT_TRUE(result.Balanced);
  EXPECT_NE(result.ReactRight, 0);
}

TEST(Scheme2, CarriesALoadAtMidspan) {
  TreloData data = SquareDesign(2, 4);
  data.UpPForce[2] = 4;
  const TreloResult result = Solved(data);
  EXPECT_DOUBLE_EQ(result.ReactLeft, 2);
  EXPECT_DOUBLE_EQ(result.ReactRight, 2);
  ExpectForces(result.UpPoyasForce, {-2, -4, -4, -2});
  ExpectForces(result.DwnPoyasForce, {2, 2});
  ExpectForces(result.RaskosForce, {2 * root2, 2 * root2, 2 * root2, 2 * root2});
  ExpectForces(result.StoykaForce, {-2, -4, -2});
  EXPECT_TRUE(result.Balanced);
  ExpectGeometry(result);
  EXPECT_EQ(result.KnotNum, 8);
  EXPECT_EQ(result.SumLenUpPoyas, 8);
  EXPECT_EQ(result.SumLenDwnPoyas, 4);
  EXPECT_NEAR(result.SumLenOpornRaskos, 4 * root2, 1e-14);
  EXPECT_NEAR(result.SumLenRaskos, 4 * root2, 1e-14);
  EXPECT_EQ(result.SumLenStoyka, 6);
}

TEST(Scheme2, StepsFromJointTwoToJointFiveInTheSmallestTruss) {
  TreloData data = SquareDesign(2, 4);
  data.UpPForce[2] = 4;
  const SquareTable<double> table = Solved(data).BarForce;
  EXPECT_DOUBLE_EQ(table(2, 5), 2);
  EXPECT_DOUBLE_EQ(table(5, 7), 2);
  EXPECT_DOUBLE_EQ(table(4, 5), -4);
  EXPECT_EQ(table(2, 4), 0);
}

TEST(Scheme2, WalksWithTheLowerLoadsOneIndexAheadFromTheMiddleOn) {
  // 6 t on the fourth lower joint, two thirds along the span. The reactions have it in its place;
  // the walk already takes it at the middle column, so that from there on the shear is 4 t too low.
  TreloData data = SquareDesign(2, 6);
  data.DwnPForce[3] = 6;
  const TreloResult result = Solved(data);
  EXPECT_DOUBLE_EQ(result.ReactLeft, 2);
  EXPECT_DOUBLE_EQ(result.ReactRight, 4);
  ExpectForces(result.UpPoyasForce, {-2, -4, -6, -6, -2, 2});
  ExpectForces(result.DwnPoyasForce, {2, 4, 2, -2});
  ExpectForces(result.RaskosForce,
               {2 * root2, 2 * root2, 2 * root2, 4 * root2, 4 * root2, -2 * root2});
  ExpectForces(result.StoykaForce, {-2, -2, 0, -4, -4});
  EXPECT_FALSE(result.Balanced);
}

TEST(Scheme2, TakesTheLastLowerLoadTwice) {
  // 6 t on the last lower joint: once under column 4 and once in its place.
  TreloData data = SquareDesign(2, 6);
  data.DwnPForce[4] = 6;
  const TreloResult result = Solved(data);
  EXPECT_DOUBLE_EQ(result.ReactLeft, 1);
  EXPECT_DOUBLE_EQ(result.ReactRight, 5);
  ExpectForces(result.UpPoyasForce, {-1, -2, -3, -3, -4, 1});
  ExpectForces(result.DwnPoyasForce, {1, 2, 4, -1});
  EXPECT_FALSE(result.Balanced);
}

TEST(Scheme2, ClosesWhereTheLowerLoadsOfTheRightHalfAreAlike) {
  // The one that the walk leaves out and the one that it takes twice are the same, and so are the
  // moments: three columns of the first are one of the second and two of the third.
  TreloData data = SquareDesign(2, 6);
  for (const Long joint : {2, 3, 4}) {
    data.DwnPForce[joint] = 6;
  }
  EXPECT_TRUE(Solved(data).Balanced);
}

TEST(Scheme2, LeavesTheLoadUnderTheMiddleOutOfTheWalk) {
  TreloData data = SquareDesign(2, 6);
  data.DwnPForce[2] = 6;
  const TreloResult result = Solved(data);
  EXPECT_DOUBLE_EQ(result.ReactLeft, 3);
  EXPECT_DOUBLE_EQ(result.ReactRight, 3);
  // The diagonals go on with the shear of the left half where it should change its sign.
  ExpectForces(result.StoykaForce, {-3, -3, 0, 3, 3});
  EXPECT_FALSE(result.Balanced);
}

TEST(Scheme2, ClosesUnderLoadsAlongTheUpperChordAlone) {
  for (const Long n : PanelCounts(2)) {
    TreloData data = Design(2, n, 24, 2, 1.75);
    FillIrregular(data.UpPForce, 2);
    FillIrregular(data.UpDistForce, -1);
    EXPECT_TRUE(Solved(data).Balanced) << n;
  }
}

TEST(Scheme2, StaysOpenUnderAnEvenLoadOfTheLowerChord) {
  TreloData data = SquareDesign(2, 6);
  for (double& load : data.DwnDistForce) {
    load = 1.5;
  }
  const TreloResult result = Solved(data);
  EXPECT_EQ(result.DwnKnotLoad[1], 0);
  EXPECT_EQ(result.DwnKnotLoad[2], 3);
  EXPECT_FALSE(result.Balanced);
  EXPECT_NE(result.UpPoyasForce[3], 0);
  EXPECT_EQ(result.SumLenUpPoyas, 12);
}

TEST(Scheme2, FeelsNothingOfALoadOnTheSecondLowerJoint) {
  TreloData data = StartDesign(2);
  data.DwnPForce[1] = 25;
  const TreloResult result = Solved(data);
  for (const double force : AllForces(result)) {
    EXPECT_EQ(force, 0);
  }
  EXPECT_TRUE(result.Balanced);
}

TEST(Scheme3, CarriesALoadAtMidspanOfTheSmallestLattice) {
  TreloData data = SquareDesign(3, 2);
  data.UpPForce[1] = 2;
  const TreloResult result = Solved(data);
  EXPECT_EQ(result.KnotNum, 5);
  EXPECT_DOUBLE_EQ(result.ReactLeft, 1);
  EXPECT_DOUBLE_EQ(result.ReactRight, 1);
  ExpectForces(result.UpPoyasForce, {-1, -1});
  ExpectForces(result.DwnPoyasForce, {2});
  ExpectForces(result.RaskosForce, {root2, -root2, -root2, root2});
  ExpectForces(result.StoykaForce, {0, 0});
  EXPECT_TRUE(result.Balanced);
  EXPECT_EQ(result.LenPanel, 2);
  EXPECT_EQ(result.SumLenUpPoyas, 4);
  EXPECT_EQ(result.SumLenDwnPoyas, 2);
  EXPECT_NEAR(result.SumLenRaskos, 4 * root2, 1e-14);
}

TEST(Scheme3, NeedsNoMiddleForAnOddPanelCount) {
  // 2 t on the middle one of three lower joints.
  TreloData data = SquareDesign(3, 3);
  data.DwnPForce[1] = 2;
  const TreloResult result = Solved(data);
  EXPECT_DOUBLE_EQ(result.ReactLeft, 1);
  ExpectForces(result.UpPoyasForce, {-1, -3, -1});
  ExpectForces(result.DwnPoyasForce, {2, 2});
  ExpectForces(result.RaskosForce, {root2, -root2, root2, root2, -root2, root2});
  EXPECT_TRUE(result.Balanced);
}

TEST(Scheme3, NumbersItsJointsInZigzag) {
  TreloData data = SquareDesign(3, 3);
  data.DwnPForce[1] = 2;
  const SquareTable<double> table = Solved(data).BarForce;
  EXPECT_DOUBLE_EQ(table(1, 2), root2);
  EXPECT_DOUBLE_EQ(table(6, 7), root2);
  EXPECT_DOUBLE_EQ(table(3, 5), -3);
  EXPECT_DOUBLE_EQ(table(2, 4), 2);
  EXPECT_EQ(table(1, 4), 0);
}

TEST(Scheme4, CarriesALoadAtMidspanOfTheSmallestTruss) {
  TreloData data = SquareDesign(4, 4);
  data.UpPForce[2] = 4;
  const TreloResult result = Solved(data);
  EXPECT_EQ(result.KnotNum, 7);
  EXPECT_DOUBLE_EQ(result.ReactLeft, 2);
  EXPECT_DOUBLE_EQ(result.ReactRight, 2);
  ExpectForces(result.UpPoyasForce, {-2, -2, -2, -2});
  ExpectForces(result.DwnPoyasForce, {4});
  ExpectForces(result.RaskosForce, {2 * root2, -2 * root2, -2 * root2, 2 * root2});
  ExpectForces(result.StoykaForce, {0, 0});
  EXPECT_DOUBLE_EQ(result.BarForce(3, 6), 4);
  EXPECT_TRUE(result.Balanced);
  ExpectGeometry(result);
  EXPECT_EQ(result.SumLenUpPoyas, 8);
  EXPECT_EQ(result.SumLenDwnPoyas, 4);
  EXPECT_NEAR(result.SumLenOpornRaskos, 4 * root2, 1e-14);
  EXPECT_NEAR(result.SumLenRaskos, 4 * root2, 1e-14);
  EXPECT_EQ(result.SumLenStoyka, 4);
}

TEST(Scheme4, PassesEveryUpperLoadStraightIntoTheVerticalBelow) {
  for (const Long n : PanelCounts(4)) {
    SCOPED_TRACE(n);
    TreloData data = Design(4, n, 24, 2, 1.75);
    FillIrregular(data);
    const TreloResult result = Solved(data);
    for (Long i = 0; i < n / 2; ++i) {
      EXPECT_NE(result.UpKnotLoad[2 * i + 1], 0);
      EXPECT_EQ(result.StoykaForce[i + 1], -result.UpKnotLoad[2 * i + 1]);
    }
  }
}

TEST(Scheme4, ClosesUnderAnyLoadOfTheLowerChord) {
  for (const Long n : PanelCounts(4)) {
    TreloData data = Design(4, n, 24, 2, 1.75);
    FillIrregular(data.DwnPForce, 2);
    FillIrregular(data.DwnDistForce, -1);
    const TreloResult result = Solved(data);
    EXPECT_TRUE(result.Balanced) << n;
    EXPECT_NE(result.ReactLeft, 0) << n;
  }
}

TEST(BarForces, AreExactlyZeroWhereABarCarriesNothing) {
  // Two loads at equal distances from midspan leave no shear between them. The lengths are no round
  // numbers, so that the walk itself comes out with rounding noise.
  for (const double height : {1.1, 1.3, 1.7, 1.9, 2.3}) {
    SCOPED_TRACE(height);
    TreloData data = Design(1, 10, 20.3, height, 1.7);
    data.UpPForce[3] = 2.7;
    data.UpPForce[7] = 2.7;
    const TreloResult result = Solved(data);
    for (Long bar = 4; bar <= 7; ++bar) {
      EXPECT_EQ(result.RaskosForce[bar], 0) << bar;
    }
    EXPECT_EQ(result.DwnPoyasForce[10], 0);
    EXPECT_NE(result.RaskosForce[3], 0);
    EXPECT_EQ(result.BarForce(10, 12), 0);
  }
}

TEST(BarForces, OfATinyLoadAreNoNoise) {
  TreloData data = StartDesign(4);
  data.UpPForce[1] = 1e-9;
  data.UpPForce[4] = 10;
  EXPECT_EQ(Solved(data).StoykaForce[1], -1e-9);
}

TEST(BalanceCheck, TakesAResidualBelowHalfAUnitOfTheFourthDecimalForZero) {
  // A load on the last lower joint but one of scheme 2 leaves a residual of its own size.
  TreloData data = SquareDesign(2, 6);
  data.DwnPForce[3] = 0.000049;
  EXPECT_TRUE(Solved(data).Balanced);
  data.DwnPForce[3] = 0.000051;
  EXPECT_FALSE(Solved(data).Balanced);
  data.DwnPForce[3] = -0.000049;
  EXPECT_TRUE(Solved(data).Balanced);
  data.DwnPForce[3] = -0.000051;
  EXPECT_FALSE(Solved(data).Balanced);
}

}  // namespace
}  // namespace trelonit::test
