#include <cmath>
#include <gtest/gtest.h>

#include "tests/workstation/design/SelectionLadder.h"

namespace trelonit::test {
namespace {

TEST(GapForThickness, StaysWithinAFifthEitherWay) {
  for (const double thickness : {5.0, 10.0, 20.0}) {
    for (const double part : {0.8, 0.81, 0.9, 1.0, 1.1, 1.19, 1.2}) {
      EXPECT_EQ(GapForThickness(part * thickness, thickness), part * thickness) << part;
    }
  }
}

TEST(GapForThickness, BecomesTheThicknessBeyond) {
  for (const double thickness : {5.0, 10.0, 20.0}) {
    for (const double part : {0.0, 0.5, 0.79, 0.799999, 1.200001, 1.21, 2.0, 100.0}) {
      EXPECT_EQ(GapForThickness(part * thickness, thickness), thickness) << part;
    }
  }
}

TEST(GapForThickness, CountsItsLimitsIn) {
  EXPECT_EQ(GapForThickness(8, 10), 8);
  EXPECT_EQ(GapForThickness(12, 10), 12);
  EXPECT_EQ(GapForThickness(std::nextafter(8, 0), 10), 10);
  EXPECT_EQ(GapForThickness(std::nextafter(12, 13), 10), 10);
}

TEST(GapForThickness, IsZeroForARecordWithoutThickness) {
  EXPECT_EQ(GapForThickness(10, 0), 0);
  EXPECT_EQ(GapForThickness(0, 0), 0);
}

TEST(GapForThickness, LeavesNoNegativeGap) {
  EXPECT_EQ(GapForThickness(-10, 10), 10);
}

/// Walks a paired lower chord over sizes of these thicknesses and coefficients.
class PairedWalk {
 public:
  PairedWalk(const std::vector<double>& uses, const std::vector<double>& thicknesses, Long start)
      : ladder_(optionDwnPoyas, uses, start) {
    for (Long size = 1; size <= static_cast<Long>(thicknesses.size()); ++size) {
      ladder_.Size(size).s = thicknesses[static_cast<std::size_t>(size - 1)];
    }
    ladder_.Put(optionDwnPoyas, start);
  }

  SectionRec From(double gap, bool paired = true) {
    ladder_.Pair(optionDwnPoyas, gap);
    ladder_.SectionOf(optionDwnPoyas).Paired = paired;
    return ladder_.Select().Sections[sectionDwnPoyas];
  }

 private:
  Ladder ladder_;
};

TEST(SelectionOfAPair, KeepsItsGapWhileItIsNearTheThickness) {
  PairedWalk walk({3, 2, 1.5, 0.9}, {9, 9, 10, 11}, 1);
  EXPECT_EQ(walk.From(10).SizeIdx, 4);
  EXPECT_EQ(walk.From(10).Gdist, 10);
  EXPECT_EQ(walk.From(9.5).Gdist, 9.5);
}

TEST(SelectionOfAPair, ResetsItsGapAtTheFirstTry) {
  PairedWalk walk({3, 2, 1.5, 0.9}, {9, 9, 10, 10}, 1);
  // The second size is the first tried; its thickness then lasts to the end.
  EXPECT_EQ(walk.From(20).Gdist, 9);
  EXPECT_EQ(walk.From(0).Gdist, 9);
  // 11 is more than a fifth above the 9, though it is near enough to the 10 of the last size.
  EXPECT_EQ(walk.From(11).Gdist, 9);
}

TEST(SelectionOfAPair, FollowsAThicknessThatGrowsStepByStep) {
  // 5 stays beside 6 (4.8 to 7.2), then 8 is too thick for it, then 9 is near enough to 8.
  PairedWalk walk({4, 3, 2, 0.9}, {5, 6, 8, 9}, 1);
  EXPECT_EQ(walk.From(5).SizeIdx, 4);
  EXPECT_EQ(walk.From(5).Gdist, 8);
}

TEST(SelectionOfAPair, KeepsTheGapOfTheSizeThatFailed) {
  // Down from 12: 10 keeps it, 4 does not; the step back to the third size leaves the 4.
  PairedWalk walk({3, 1.5, 0.9, 0.5}, {3, 4, 10, 12}, 4);
  EXPECT_EQ(walk.From(12).SizeIdx, 3);
  EXPECT_EQ(walk.From(12).Gdist, 4);
}

TEST(SelectionOfAPair, AppliesNoGapWithoutATry) {
  PairedWalk walk({0.9, 0.5, 0.3}, {4, 10, 12}, 1);
  EXPECT_EQ(walk.From(50).SizeIdx, 1);
  EXPECT_EQ(walk.From(50).Gdist, 50);
}

TEST(SelectionOfAPair, GoesByThePairingAndNotByTheLayout) {
  PairedWalk walk({3, 2, 0.9}, {4, 10, 12}, 1);
  EXPECT_EQ(walk.From(50, false).Gdist, 50);
  EXPECT_EQ(walk.From(50, true).Gdist, 10);
}

TEST(SelectionOfAPair, ChecksWithTheGapOfTheTry) {
  Ladder ladder(optionDwnPoyas, {3, 2, 1.5}, 1);
  ladder.SectionOf(optionDwnPoyas).Layout = 2;
  ladder.Pair(optionDwnPoyas, 100);
  ladder.Check();
  const SelectionProposal proposal = ladder.Select();
  ASSERT_EQ(proposal.Sections[sectionDwnPoyas].SizeIdx, 3);
  ASSERT_EQ(proposal.Sections[sectionDwnPoyas].Gdist, 5);
  const CheckResult expected =
      CheckueStress(ladder.Model.Last.TreloData, ladder.Model.Last.TreloResult, ladder.Numbers,
                    proposal.Sections)
          .Value;
  EXPECT_EQ(proposal.Check.DwnPoyas.Jout, expected.DwnPoyas.Jout);
  EXPECT_EQ(proposal.Check.DwnPoyas.KUserY, expected.DwnPoyas.KUserY);
}

}  // namespace
}  // namespace trelonit::test
