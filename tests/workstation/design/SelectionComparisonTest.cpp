#include <gtest/gtest.h>

#include "tests/workstation/design/SelectionLadder.h"
#include "workstation/design/SelectionComparison.h"

namespace trelonit::test {
namespace {

const ComparedGroup& GroupOf(const SelectionComparison& comparison, GroupOption group) {
  return *std::find_if(comparison.Groups.begin(), comparison.Groups.end(),
                       [&](const ComparedGroup& one) { return one.Group == group; });
}

TEST(SelectionComparison, HasTheCoefficientsOfTheSizesThatAreProposed) {
  Ladder ladder(optionRaskos, {1.3, 1.2, 0.9, 0.8, 0.7}, 5);
  const SelectionProposal proposal = ladder.Select();
  // The search itself is left with the figure of the size below.
  const SelectionComparison comparison = CompareSelection(ladder.Model.Last, proposal);
  const ComparedGroup& group = GroupOf(comparison, optionRaskos);
  EXPECT_EQ(group.SizeBefore, "S5");
  EXPECT_EQ(group.SizeAfter, "S3");
  ASSERT_TRUE(group.UseBefore && group.UseAfter);
  EXPECT_NEAR(*group.UseBefore, 0.7, 1e-12);
  EXPECT_NEAR(*group.UseAfter, 0.9, 1e-12);
}

TEST(SelectionComparison, HasTheMassBeforeAndAfter) {
  Ladder ladder(optionRaskos, {1.3, 1.2, 0.9, 0.8, 0.7}, 5);
  // 40 cm2 at first, 10 cm2 then; all other groups stay.
  for (double ProfileRec::*figure : {&ProfileRec::A, &ProfileRec::Jy, &ProfileRec::Jz}) {
    ladder.Size(5).*figure *= 4;
  }
  ladder.Put(optionRaskos, 5);
  const SelectionComparison comparison = CompareSelection(ladder.Model.Last, ladder.Select());
  const double length = ladder.Model.Last.TreloResult.SumLenRaskos;
  EXPECT_NEAR(comparison.MassBefore - comparison.MassAfter, 30 * length * 7.85 / 10000, 1e-12);
  EXPECT_GT(comparison.MassAfter, 0);
}

TEST(SelectionComparison, GoesByTheOrderOfTheOptionsWithoutVerticalsThatAreNotThere) {
  for (const Long scheme : {1, 3}) {
    Ladder ladder(scheme);
    std::vector<GroupOption> groups;
    for (const ComparedGroup& group : CompareSelection(ladder.Model.Last, ladder.Select()).Groups) {
      groups.push_back(group.Group);
    }
    EXPECT_EQ(groups, scheme == 1 ? (std::vector{optionUpPoyas, optionDwnPoyas, optionRaskos,
                                                 optionStoyka, optionOpornRaskos})
                                  : (std::vector{optionUpPoyas, optionDwnPoyas, optionRaskos,
                                                 optionOpornRaskos}));
  }
}

TEST(SelectionComparison, HasNoCoefficientWhereTheChecksBrokeOff) {
  Ladder ladder(optionRaskos, {0.9}, 1);
  SelectionProposal proposal = ladder.Select();
  proposal.Sections[PlaceOfOption(optionRaskos)].Profile.A = 0;
  const SelectionComparison comparison = CompareSelection(ladder.Model.Last, proposal);
  EXPECT_TRUE(GroupOf(comparison, optionRaskos).UseBefore);
  EXPECT_FALSE(GroupOf(comparison, optionRaskos).UseAfter);
  EXPECT_EQ(comparison.MassAfter, 0);
}

TEST(SelectionComparison, TakesTheFiguresThatARepeatedSelectionBrings) {
  Ladder ladder(optionRaskos, {0.9}, 1);
  SelectionProposal proposal = ladder.Select();
  proposal.Settled = ladder.Model.Last;
  proposal.Settled->CheckData.Raskos.KStrength = 0.95;
  proposal.Settled->CheckData.Mass = 3.5;
  const SelectionComparison comparison = CompareSelection(ladder.Model.Last, proposal);
  EXPECT_EQ(GroupOf(comparison, optionRaskos).UseAfter, 0.95);
  EXPECT_EQ(comparison.MassAfter, 3.5);
}

}  // namespace
}  // namespace trelonit::test
