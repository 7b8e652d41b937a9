#include <gtest/gtest.h>

#include "tests/workstation/design/SelectionLadder.h"
#include "tests/workstation/design/SelectionTruss.h"
#include "workstation/design/RepeatedSelection.h"

namespace trelonit::test {
namespace {

SelectionProposal Settle(const Ladder& ladder) {
  trelonit::Design design = ladder.Model.Last;
  design.ElementSection = ladder.Model.Inputs.ElementSection;
  return SelectUntilSettled(design, ladder.Model.ProfileTypes, ladder.Numbers, false);
}

Long SizeOf(const SelectionProposal& proposal, GroupOption group) {
  return proposal.Sections[PlaceOfOption(group)].SizeIdx;
}

TEST(RepeatedSelection, EndsAtOnceWhereNothingChanges) {
  const SelectionProposal settled = Settle(Ladder(optionRaskos, {1.3, 1.2, 0.9, 0.8}, 3));
  EXPECT_FALSE(settled.Circles);
  EXPECT_EQ(settled.Rounds, 1);
  EXPECT_EQ(SizeOf(settled, optionRaskos), 3);
}

TEST(RepeatedSelection, SearchesOnceMoreThanItChanges) {
  const SelectionProposal proposal = Settle(Ladder(optionRaskos, {1.3, 1.2, 0.9, 0.8, 0.7}, 5));
  EXPECT_EQ(SizeOf(proposal, optionRaskos), 3);
  EXPECT_EQ(proposal.Rounds, 2);
  EXPECT_FALSE(proposal.Circles);
  EXPECT_TRUE(proposal.Impossible.empty());
}

TEST(RepeatedSelection, BringsTheCheckOfItsOwnSizes) {
  const SelectionProposal proposal = Settle(Ladder(optionRaskos, {1.3, 1.2, 0.9, 0.8, 0.7}, 5));
  ASSERT_TRUE(proposal.Settled);
  EXPECT_EQ(proposal.Settled->ElementSection, proposal.Sections);
  EXPECT_NEAR(BlockOf(proposal.Check, optionRaskos).KUserX, 0.9, 1e-12);
  EXPECT_NEAR(BlockOf(proposal.Settled->CheckData, optionRaskos).KUserX, 0.9, 1e-12);
}

TEST(RepeatedSelection, TakesTheRoundThatPassesOutOfACircle) {
  // From the second size the walk goes down to the first and stays there, though it fails; from the
  // first it goes up to the second; and so on.
  const SelectionProposal proposal = Settle(Ladder(optionRaskos, {1.2, 0.9, 0.8}, 3));
  EXPECT_TRUE(proposal.Circles);
  EXPECT_EQ(SizeOf(proposal, optionRaskos), 2);
  EXPECT_EQ(proposal.Rounds, 3);
}

TEST(RepeatedSelection, NamesWhatStaysImpossible) {
  const SelectionProposal proposal = Settle(Ladder(optionRaskos, {1.4, 1.3}, 1));
  EXPECT_EQ(proposal.Impossible, std::set<GroupOption>{optionRaskos});
  EXPECT_EQ(SizeOf(proposal, optionRaskos), 2);
  EXPECT_FALSE(proposal.Circles);
}

/// The main form with own weight, and a user who asks for the selection until nothing changes.
class RepeatedSelectionOfATruss : public ::testing::Test {
 protected:
  RepeatedSelectionOfATruss() {
    form.Form_Load();
    EnterTrussOfAngles(form, [this] {
      // Heavy ones at first, so that own weight falls a good deal.
      form.cmbSectType.Select(static_cast<Long>(form.cmbSectType.List().size()) - 1);
    });
  }

  PartialResources resources;
  World outside{resources};
  std::optional<SelectionProposal> repeated;
  std::optional<ResultLists> results;
  frmMain form{outside.Bundle(),
               {.ShowKoeffOfUse = [this](const ResultLists& lists) { results = lists; },
                .ShowSearch =
                    [this](const SelectionOffer& offer) {
                      repeated = offer.Repeated();
                      return repeated;
                    }}};
};

TEST_F(RepeatedSelectionOfATruss, IsWhatAnotherSelectionFindsAgain) {
  form.cmdCalcAndSelect_Click();
  ASSERT_TRUE(repeated && repeated->Settled);
  ASSERT_FALSE(repeated->Circles);
  const SectionArray taken = form.Model.Inputs.ElementSection;
  EXPECT_EQ(taken, repeated->Sections);
  form.cmdCalcAndSelect_Click();
  EXPECT_EQ(repeated->Rounds, 1);
  EXPECT_EQ(repeated->Sections, taken);
}

TEST_F(RepeatedSelectionOfATruss, NeedsNoFurtherCalculation) {
  form.cmdCalcAndSelect_Click();
  const double force = results->Of.TreloResult.UpPoyasForce[4];
  const double mass = results->Of.CheckData.Mass;
  form.cmdCalculate_Click();
  EXPECT_DOUBLE_EQ(results->Of.TreloResult.UpPoyasForce[4], force);
  EXPECT_DOUBLE_EQ(results->Of.CheckData.Mass, mass);
  // The loads hold the weight of these sizes: 24 m of upper and 24 m of lower chord share it.
  EXPECT_NEAR(
      form.Model.OwnWeight.PerMetre,
      mass / (results->Of.TreloResult.SumLenUpPoyas + results->Of.TreloResult.SumLenDwnPoyas),
      5e-5);
}

TEST_F(RepeatedSelectionOfATruss, LeavesTheDesignAloneUntilItIsTaken) {
  const SectionArray before = form.Model.Inputs.ElementSection;
  frmMain untaken{outside.Bundle(), {.ShowSearch = [this](const SelectionOffer& offer) {
                    repeated = offer.Repeated();
                    return std::optional<SelectionProposal>();
                  }}};
  untaken.Form_Load();
  const SectionArray sections = untaken.Model.Inputs.ElementSection;
  untaken.tabMain.SetTab(2);
  untaken.cmdCalcAndSelect_Click();
  EXPECT_EQ(untaken.Model.Inputs.ElementSection, sections);
  EXPECT_EQ(form.Model.Inputs.ElementSection, before);
}

}  // namespace
}  // namespace trelonit::test
