#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include "platform/errors/RuntimeError.h"
#include "tests/analysis/Designs.h"

namespace trelonit::test {
namespace {

/// Lower and upper bound.
using Bounds = std::pair<Long, Long>;

Bounds BoundsOf(const BoundedArray<double>& array) {
  return {array.LowerBound(), array.UpperBound()};
}

struct ResultBounds {
  Long KnotNum;
  Bounds UpKnotLoad, DwnKnotLoad, UpPoyasForce, DwnPoyasForce, RaskosForce, StoykaForce;
};

ResultBounds ExpectedBounds(Long scheme, Long n) {
  switch (scheme) {
    case 1:
      return {2 * n + 2, {0, n}, {0, n}, {1, n}, {1, n}, {1, n}, {1, n + 1}};
    case 2:
      return {2 * n, {0, n}, {0, n - 2}, {1, n}, {1, n - 2}, {1, n}, {1, n - 1}};
    case 3:
      return {2 * n + 1, {0, n}, {0, n - 1}, {1, n}, {1, n - 1}, {1, 2 * n}, {1, n}};
    default:
      return {3 * n / 2 + 1, {0, n}, {0, n / 2 - 1}, {1, n}, {1, n / 2 - 1}, {1, n}, {1, n / 2}};
  }
}

class EveryScheme : public testing::TestWithParam<Long> {};
INSTANTIATE_TEST_SUITE_P(DesignRecords, EveryScheme, testing::Values(1, 2, 3, 4));

TEST_P(EveryScheme, GivesResultArraysTheirBoundsForEveryPanelCount) {
  for (const Long n : PanelCounts(GetParam())) {
    SCOPED_TRACE(n);
    TreloData data = Design(GetParam(), n, 24, 2, 1.75);
    FillIrregular(data);
    const TreloResult result = Solved(data);
    const ResultBounds expected = ExpectedBounds(GetParam(), n);
    EXPECT_EQ(result.KnotNum, expected.KnotNum);
    EXPECT_EQ(result.BarForce.Size(), expected.KnotNum);
    EXPECT_EQ(BoundsOf(result.UpKnotLoad), expected.UpKnotLoad);
    EXPECT_EQ(BoundsOf(result.DwnKnotLoad), expected.DwnKnotLoad);
    EXPECT_EQ(BoundsOf(result.UpPoyasForce), expected.UpPoyasForce);
    EXPECT_EQ(BoundsOf(result.DwnPoyasForce), expected.DwnPoyasForce);
    EXPECT_EQ(BoundsOf(result.RaskosForce), expected.RaskosForce);
    EXPECT_EQ(BoundsOf(result.StoykaForce), expected.StoykaForce);
  }
}

TEST_P(EveryScheme, SizesLoadArraysFromZeroForEveryPanelCount) {
  for (const Long n : PanelCounts(GetParam())) {
    SCOPED_TRACE(n);
    const LoadArrays loads = ZeroLoads(BoundsOfLoads(GetParam(), n).value());
    const Long lowerJoints[] = {n, n - 2, n - 1, n / 2 - 1};
    const Long last = lowerJoints[GetParam() - 1];
    EXPECT_EQ(BoundsOf(loads.UpPForce), Bounds(0, n));
    EXPECT_EQ(BoundsOf(loads.UpDistForce), Bounds(0, n - 1));
    EXPECT_EQ(BoundsOf(loads.DwnPForce), Bounds(0, last));
    EXPECT_EQ(BoundsOf(loads.DwnDistForce), Bounds(0, last - 1));
    for (const auto* array :
         {&loads.UpPForce, &loads.UpDistForce, &loads.DwnPForce, &loads.DwnDistForce}) {
      EXPECT_EQ(Values(*array), std::vector<double>(Values(*array).size(), 0.0));
    }
  }
}

TEST_P(EveryScheme, LeavesItsDataAsTheyWere) {
  TreloData data = StartDesign(GetParam());
  FillIrregular(data);
  data.ReservedText = "kept";
  data.Reserved1 = 1.25;
  data.Reserved2 = -2.5;
  data.UpPoyasBrace = 3;
  data.DownPoyasBrace = 4;
  const TreloData before = data;
  EXPECT_NE(Solved(data).KnotNum, 0);
  EXPECT_EQ(static_cast<const LoadArrays&>(data), static_cast<const LoadArrays&>(before));
  const auto plain = [](const TreloData& d) {
    return std::tuple(d.ReservedText.Padded(), d.TreloType, d.LengthF, d.Hight, d.Reserved1,
                      d.LenOporn, d.Reserved2, d.PanelNum, d.UpPoyasBrace, d.DownPoyasBrace);
  };
  EXPECT_EQ(plain(data), plain(before));
}

TEST_P(EveryScheme, DoesNotLookAtReservedFieldsAndBracing) {
  TreloData data = StartDesign(GetParam());
  FillIrregular(data);
  const TreloResult plain = Solved(data);
  data.ReservedText = "anything";
  data.Reserved1 = 1e300;
  data.Reserved2 = -1e300;
  data.UpPoyasBrace = -7;
  data.DownPoyasBrace = 77;
  const TreloResult other = Solved(data);
  EXPECT_EQ(AllForces(other), AllForces(plain));
  EXPECT_EQ(other.BarForce, plain.BarForce);
}

TEST_P(EveryScheme, CopiesOfAResultKeepTheirOwnArrays) {
  TreloData data = StartDesign(GetParam());
  FillIrregular(data);
  TreloResult result = Solved(data);
  const TreloResult copy = result;
  const std::vector<double> forces = AllForces(result);
  const SquareTable<double> table = result.BarForce;
  for (auto* array : {&result.UpKnotLoad, &result.DwnKnotLoad, &result.UpPoyasForce,
                      &result.DwnPoyasForce, &result.RaskosForce, &result.StoykaForce}) {
    for (double& value : *array) {
      value += 1000;
    }
  }
  result.BarForce(1, 2) += 1000;
  EXPECT_EQ(AllForces(copy), forces);
  EXPECT_EQ(copy.BarForce, table);
  EXPECT_NE(Values(copy.UpKnotLoad), Values(result.UpKnotLoad));
  EXPECT_NE(Values(copy.DwnKnotLoad), Values(result.DwnKnotLoad));
}

TEST(DesignRecords, SmallestLatticeHasTwoLowerJointsAndOneLowerBar) {
  const TreloResult result = Solved(Design(3, 2, 6, 1, 0));
  EXPECT_EQ(BoundsOf(result.DwnKnotLoad), Bounds(0, 1));
  EXPECT_EQ(BoundsOf(result.DwnPoyasForce), Bounds(1, 1));
}

TEST(DesignRecords, LatticeHasOneAngleAndCountsAllDiagonalsAsRegular) {
  const TreloResult result = Solved(SquareDesign(3, 7));
  EXPECT_NEAR(result.AngleOporn, std::atan(1.0), 1e-15);
  EXPECT_EQ(result.AngleRaskos, 0);
  EXPECT_EQ(result.SumLenOpornRaskos, 0);
  EXPECT_EQ(result.SumLenStoyka, 0);
  EXPECT_NEAR(result.LenRaskos, std::sqrt(2.0), 1e-14);
  EXPECT_EQ(result.LenOpornRaskos, result.LenRaskos);
  EXPECT_NEAR(result.SumLenRaskos, 14 * std::sqrt(2.0), 1e-13);
}

TEST(DesignRecords, LowerBarsOfTheFourthSchemeSpanTwoPanels) {
  const TreloResult result = Solved(Design(4, 8, 22, 2, 2));
  EXPECT_EQ(result.LenPanel, 3);
  EXPECT_EQ(BoundsOf(result.DwnPoyasForce), Bounds(1, 3));
  EXPECT_EQ(result.SumLenDwnPoyas / 3, 2 * result.LenPanel);
}

TEST(DesignRecords, NoBoundsAreSettledForSchemesWithoutJoints) {
  for (const Long scheme : {-1, 0, 6, 7, 8, 9, 10, 11}) {
    EXPECT_FALSE(BoundsOfLoads(scheme, 10).has_value()) << scheme;
  }
}

TEST(DesignRecords, ReservedFifthSchemeHasLowerJointsUnderEverySecondColumn) {
  const LoadBounds bounds = BoundsOfLoads(5, 10).value();
  EXPECT_EQ(bounds.UpPForce, 10);
  EXPECT_EQ(bounds.UpDistForce, 9);
  EXPECT_EQ(bounds.DwnPForce, 5);
  EXPECT_EQ(bounds.DwnDistForce, 4);
}

TEST(DesignRecords, AChordWithoutPanelsHasNoLoadArrays) {
  constexpr Long smallest = std::numeric_limits<Long>::min();
  for (const Long scheme : {1, 2, 3, 4, 5}) {
    for (const Long n : {0, -1, -30000, smallest + 1, smallest}) {
      SCOPED_TRACE(testing::Message() << scheme << " with " << n);
      try {
        ZeroLoads(BoundsOfLoads(scheme, n).value());
        ADD_FAILURE() << "no error";
      } catch (const RuntimeError& error) {
        EXPECT_EQ(error.Number(), 9);
      }
    }
  }
}

TEST(DesignRecords, ANewDesignIsOfTheFirstSchemeAndHasNoLoadArrays) {
  const TreloData data;
  EXPECT_EQ(data.TreloType, 1);
  EXPECT_EQ(data.ReservedText.Padded(), std::string(50, ' '));
  EXPECT_FALSE(data.UpPForce.IsAllocated());
  EXPECT_FALSE(data.UpDistForce.IsAllocated());
  EXPECT_FALSE(data.DwnPForce.IsAllocated());
  EXPECT_FALSE(data.DwnDistForce.IsAllocated());
}

TEST(DesignRecords, ANewDesignHasNeitherSizesNorBracing) {
  const TreloData data;
  EXPECT_EQ(data.LengthF, 0);
  EXPECT_EQ(data.Hight, 0);
  EXPECT_EQ(data.Reserved1, 0);
  EXPECT_EQ(data.LenOporn, 0);
  EXPECT_EQ(data.Reserved2, 0);
  EXPECT_EQ(data.PanelNum, 0);
  EXPECT_EQ(data.UpPoyasBrace, 0);
  EXPECT_EQ(data.DownPoyasBrace, 0);
}

}  // namespace
}  // namespace trelonit::test
