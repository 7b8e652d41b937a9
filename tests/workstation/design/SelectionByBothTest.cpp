#include <algorithm>
#include <gtest/gtest.h>
#include <optional>
#include <set>
#include <vector>

#include "catalogue/SectionComposition.h"
#include "checks/ElementGroups.h"
#include "tests/workstation/design/SelectionTruss.h"
#include "workstation/design/OpinionSelection.h"
#include "workstation/design/modHelper.h"

namespace trelonit::test {
namespace {

/// The main form with a user who asks for sizes that pass the norm too, and takes them. 24 m in 8
/// panels, 2.8 m high, two equal angles for every group, half of the upper chord between held
/// joints by its caption.
class SelectionByBoth : public ::testing::Test {
 protected:
  SelectionByBoth() {
    form.Form_Load();
    EnterTrussOfAngles(form, [this] { Choose(form.cmbGdist, "10"); });
    outside.Messages.Shown.clear();
  }

  frmMain::Openers Openers() {
    return {.ShowKoeffOfUse = [this](const ResultLists& lists) { results = lists; },
            .ShowSearch =
                [this](const SelectionOffer& offer) {
                  usual = offer.Proposal;
                  byBoth = offer.ByOpinion();
                  return byBoth;
                }};
  }

  double GreatestOfOpinion() const {
    double greatest = 0;
    for (const GroupJudgement& group : results->Opinion.Figures.Groups) {
      greatest = std::max(greatest, LargestFigure(group));
    }
    return greatest;
  }
  double GreatestTold() const {
    double greatest = 0;
    for (const ElementGroupRow& row : elementGroups) {
      greatest = std::max(greatest, LargestUse(form.Model.Last.CheckData.*row.Block));
    }
    return greatest;
  }

  EmbeddedResources resources;
  World outside{resources};
  std::optional<ResultLists> results;
  std::optional<SelectionProposal> usual;
  std::optional<SelectionProposal> byBoth;
  frmMain form{outside.Bundle(), Openers()};
};

TEST_F(SelectionByBoth, PassesBothWithTheOwnWeightOfItsSizes) {
  form.cmdCalcAndSelect_Click();
  ASSERT_TRUE(byBoth);
  EXPECT_TRUE(byBoth->Impossible.empty());
  EXPECT_LE(GreatestTold(), 1);
  EXPECT_LE(GreatestOfOpinion(), 1);
  EXPECT_FALSE(results->Opinion.HasDanger());
  // The own weight inside the loads is that of these sizes, spread over 48 m of chords.
  EXPECT_TRUE(form.Model.OwnWeight.Added);
  EXPECT_NEAR(form.Model.OwnWeight.PerMetre, form.Model.Last.CheckData.Mass / 48, 0.5001e-4);
  EXPECT_TRUE(outside.Messages.Shown.empty());
}

TEST_F(SelectionByBoth, TakesTheFirstSizeOfTheCatalogueThatPasses) {
  form.cmdCalcAndSelect_Click();
  // About 47 t on 12 m. L180x20, as far apart as they are thick: i = sqrt(5.49^2 + (5.2 + 1)^2) =
  // 8.28 cm, 145 slender, phi = 0.30, used 47 * 98.1 / (0.30 * 136.9 * 216) = 0.52, for which the
  // limit is 180 - 60 * 0.52 = 149. L180x18: 8.17 cm, 147 slender, used 0.59, limit 145.
  const SectionRec& upper = byBoth->Sections[sectionUpPoyas];
  EXPECT_EQ(upper.Profile.Name.Trimmed(), "L180x20");
  // The size before it fails.
  SectionRec smaller = upper;
  smaller.SizeIdx = upper.SizeIdx - 1;
  smaller.Profile = form.Model.ProfileTypes[equalAngles].Rec[smaller.SizeIdx];
  smaller.Gdist = GapForThickness(10, smaller.Profile.s);
  const JudgedTruss truss = SolveTruss(byBoth->Settled->TreloData);
  std::vector<BarJudgement> bars(truss.Model.Bars.size());
  EXPECT_GT(LargestFigure(JudgeGroup(truss, ElementGroup::UpPoyas, ComposeSection(smaller),
                                     CheckNumbersOf(form.ReadInputs()), bars)),
            1);
}

TEST_F(SelectionByBoth, IsHeavierThanTheUsualOneUnderTheSameCaption) {
  form.cmdCalcAndSelect_Click();
  EXPECT_GT(byBoth->Sections[sectionUpPoyas].Profile.A, usual->Sections[sectionUpPoyas].Profile.A);
  EXPECT_EQ(usual->Rounds, 0);
  EXPECT_GE(byBoth->Rounds, 2);
}

TEST_F(SelectionByBoth, IsTheDesignThatIsShownAndKept) {
  form.cmdCalcAndSelect_Click();
  EXPECT_EQ(form.Model.Inputs.ElementSection, byBoth->Sections);
  EXPECT_EQ(form.Model.Inputs.Loads, static_cast<const LoadArrays&>(byBoth->Settled->TreloData));
  EXPECT_EQ(form.lblProfilName[optionUpPoyas].Caption(),
            byBoth->Sections[sectionUpPoyas].Profile.Name.Trimmed());
  // The next calculation finds nothing to change.
  const ResultLists first = *results;
  form.tabMain.SetTab(2);
  form.cmdCalculate_Click();
  EXPECT_EQ(results->lstForces, first.lstForces);
  EXPECT_EQ(results->MSFlexGKoefUse, first.MSFlexGKoefUse);
}

TEST_F(SelectionByBoth, LeavesTheModelAloneWhileItSearches) {
  form.cmdCalculate_Click();
  const DesignModel before = form.Model;
  const SelectionProposal proposal = SelectByOpinion(
      form.Model.ToCalculate(), form.Model.ProfileTypes, CheckNumbersOf(form.ReadInputs()), true);
  EXPECT_EQ(form.Model.Inputs.ElementSection, before.Inputs.ElementSection);
  EXPECT_EQ(form.Model.Inputs.Loads, before.Inputs.Loads);
  EXPECT_NE(proposal.Sections, before.Inputs.ElementSection);
}

TEST_F(SelectionByBoth, SearchesOnceWithoutOwnWeight) {
  form.chkOwnWeight.SetChecked(false);
  form.cmdCalcAndSelect_Click();
  ASSERT_TRUE(byBoth);
  EXPECT_EQ(byBoth->Rounds, 1);
  EXPECT_FALSE(form.Model.OwnWeight.Added);
  EXPECT_EQ(Values(form.Model.Inputs.Loads.DwnDistForce), Zeros(8));
}

TEST_F(SelectionByBoth, NamesTheGroupOfWhichNoSizePasses) {
  // The whole chord between held joints: 24 m are too much for any pair of angles.
  form.optUpPoyas.Select(1);
  form.cmdCalcAndSelect_Click();
  ASSERT_TRUE(byBoth);
  EXPECT_EQ(byBoth->Impossible, std::set<GroupOption>{optionUpPoyas});
  EXPECT_EQ(byBoth->Sections[sectionUpPoyas].SizeIdx,
            form.Model.ProfileTypes[equalAngles].Rec.UpperBound());
}

TEST_F(SelectionByBoth, IsToldInABoxWhereThereIsNoOpinion) {
  // End panels that overlap: the program calculates, and there is no such truss.
  form.tabMain.SetTab(0);
  form.txtLenOporn.SetText("13");
  form.tabMain.SetTab(2);
  outside.Messages.Shown.clear();
  form.cmdCalcAndSelect_Click();
  EXPECT_FALSE(byBoth);
  const auto told = std::find_if(outside.Messages.Shown.begin(), outside.Messages.Shown.end(),
                                 [](const Message& box) { return box.Title == "Подбор по СНиП"; });
  ASSERT_NE(told, outside.Messages.Shown.end());
  EXPECT_TRUE(told->Text.starts_with("По заданным размерам ферма не строится")) << told->Text;
  EXPECT_EQ(told->Style, MessageStyle::Exclamation);
}

}  // namespace
}  // namespace trelonit::test
