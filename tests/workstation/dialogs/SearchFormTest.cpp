#include <gtest/gtest.h>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "platform/errors/RuntimeError.h"
#include "tests/workstation/design/SelectionLadder.h"
#include "tests/workstation/design/SmallTruss.h"
#include "workstation/design/SelectionComparison.h"
#include "workstation/dialogs/frmSearch.h"

namespace trelonit::test {
namespace {

/// A proposal that names its sizes after the groups, and a form that shows it.
class SearchForm : public ::testing::Test {
 protected:
  SearchForm() {
    proposal.Sections = SectionArray(1, sectionCount);
    proposal.Sections[sectionUpPoyas].Profile.Name = "up";
    proposal.Sections[sectionDwnPoyas].Profile.Name = "down";
    proposal.Sections[sectionRaskos].Profile.Name = "diagonal";
    proposal.Sections[sectionOpornRaskos].Profile.Name = "support";
    proposal.Sections[sectionStoyka].Profile.Name = "vertical";
    for (Long option = 1; option <= groupCount; ++option) {
      pictures[option].Show({Picture::Source::SectionLayout, static_cast<Integer>(option + 1)});
    }
  }

  void Fill(Long scheme = 1) { form.Fill({.Proposal = proposal}, pictures, scheme); }

  std::vector<std::string> SizesShown() const { return Captions(form.lblProfilName); }
  std::vector<std::string> WorriesShown() const { return Captions(form.lblWorry); }
  static std::vector<std::string> Captions(const BoundedArray<Label>& labels) {
    std::vector<std::string> captions;
    for (const Label& label : labels) {
      captions.push_back(label.Caption());
    }
    return captions;
  }
  /// Whether each of the row's controls is to be seen.
  std::vector<bool> RowSeen(Long option) const {
    return {form.imgProfileSec[option].Visible(), form.lblProfilName[option].Visible(),
            form.lblWorry[option].Visible(), form.lblName[option - 1].Visible()};
  }

  SelectionProposal proposal;
  BoundedArray<Image> pictures{1, groupCount};
  frmSearch form;
};

using Texts = std::vector<std::string>;
const Texts noWorries(5, "");

TEST_F(SearchForm, HasItsTitle) {
  Fill();
  EXPECT_EQ(form.Form.Caption(), "Результаты подбора профиля");
}

TEST_F(SearchForm, NamesTheSizesInTheOrderOfTheForm) {
  Fill();
  // Verticals before the support diagonals, unlike in storage.
  EXPECT_EQ(SizesShown(), (Texts{"up", "down", "diagonal", "vertical", "support"}));
}

TEST_F(SearchForm, ShowsTheSizesWithoutTheirBlanks) {
  proposal.Sections[sectionUpPoyas].Profile.Name = "L25x16x3       ";
  Fill();
  EXPECT_EQ(SizesShown().front(), "L25x16x3");
}

TEST_F(SearchForm, TakesThePicturesOfTheMainForm) {
  Fill();
  for (Long option = 1; option <= groupCount; ++option) {
    EXPECT_EQ(form.imgProfileSec[option].Shown(), pictures[option].Shown());
  }
}

TEST_F(SearchForm, WorriesAboutNothingThatIsPossible) {
  Fill();
  EXPECT_EQ(WorriesShown(), noWorries);
  for (const Label& name : form.lblProfilName) {
    EXPECT_NE(name.ForeColor(), 255U);
  }
}

TEST_F(SearchForm, ShowsWhatIsImpossibleInRed) {
  for (Long option = 1; option <= groupCount; ++option) {
    proposal.Impossible = {static_cast<GroupOption>(option)};
    Fill();
    Texts worries = noWorries;
    worries[static_cast<std::size_t>(option - 1)] = "Подбор невозможен";
    EXPECT_EQ(WorriesShown(), worries);
    for (Long other = 1; other <= groupCount; ++other) {
      EXPECT_EQ(form.lblProfilName[other].ForeColor() == 255, other == option) << option << other;
    }
    // The largest size is named all the same.
    EXPECT_EQ(SizesShown(), (Texts{"up", "down", "diagonal", "vertical", "support"}));
  }
}

TEST_F(SearchForm, ShowsAllGroupsOfTheSchemesWithVerticals) {
  for (const Long scheme : {1, 2, 4}) {
    Fill(scheme);
    for (Long option = 1; option <= groupCount; ++option) {
      EXPECT_EQ(RowSeen(option), std::vector<bool>(4, true)) << scheme << ", " << option;
    }
  }
}

TEST_F(SearchForm, HidesTheRowOfTheVerticalsInSchemeThree) {
  proposal.Impossible = {optionStoyka};
  Fill(3);
  for (Long option = 1; option <= groupCount; ++option) {
    EXPECT_EQ(RowSeen(option), std::vector<bool>(4, option != 4)) << option;
  }
}

TEST_F(SearchForm, CountsTheNamesOfTheGroupsFromZero) {
  EXPECT_EQ(form.lblName.LowerBound(), 0);
  EXPECT_EQ(form.lblName.UpperBound(), 4);
  EXPECT_EQ(form.lblWorry.LowerBound(), 1);
  std::set<std::string> names;
  for (const Label& name : form.lblName) {
    EXPECT_FALSE(name.Caption().empty());
    names.insert(name.Caption());
  }
  EXPECT_EQ(names.size(), 5U);
}

TEST_F(SearchForm, ForgetsTheLastProposal) {
  proposal.Impossible = {optionUpPoyas, optionOpornRaskos};
  Fill(3);
  form.cmdApply_Click();
  form.tmrTimer_Timer();
  proposal.Impossible.clear();
  proposal.Sections[sectionUpPoyas].Profile.Name = "other";
  pictures[1].Show({Picture::Source::SectionLayout, 9});
  Fill(1);
  EXPECT_FALSE(form.SearchApplied);
  EXPECT_EQ(form.Form.Caption(), "Результаты подбора профиля");
  EXPECT_EQ(SizesShown(), (Texts{"other", "down", "diagonal", "vertical", "support"}));
  EXPECT_EQ(WorriesShown(), noWorries);
  EXPECT_EQ(form.imgProfileSec[1].Shown(), pictures[1].Shown());
  for (Long option = 1; option <= groupCount; ++option) {
    EXPECT_NE(form.lblProfilName[option].ForeColor(), 255U);
    EXPECT_EQ(RowSeen(option), std::vector<bool>(4, true));
  }
}

TEST_F(SearchForm, IsAppliedByItsButtonOnlyWhichUnloadsIt) {
  EXPECT_FALSE(form.SearchApplied);
  int unloads = 0;
  bool appliedByThen = false;
  form.Unload = [&] {
    ++unloads;
    appliedByThen = form.SearchApplied;
  };
  Fill();
  EXPECT_FALSE(form.SearchApplied);
  EXPECT_EQ(unloads, 0);
  form.cmdApply_Click();
  EXPECT_TRUE(form.SearchApplied);
  EXPECT_EQ(unloads, 1);
  EXPECT_TRUE(appliedByThen);
}

TEST_F(SearchForm, IsAppliedAlsoWhereNothingUnloadsIt) {
  Fill();
  EXPECT_NO_THROW(form.cmdApply_Click());
  EXPECT_TRUE(form.SearchApplied);
}

TEST(SearchFormOfADesign, ShowsTheLayoutsThatTheMainFormShows) {
  SmallTruss desk(1);
  desk.Load(true, 1, "4");
  desk.Main.cmdCalcAndSelect_Click();
  frmSearch form;
  form.Fill({.Proposal = desk.Proposals.at(0)}, desk.Main.imgProfileSec, 1);
  const std::vector<Long> layouts{9, 2, 5, 1, 6};
  for (Long option = 1; option <= groupCount; ++option) {
    const Long layout = layouts[static_cast<std::size_t>(option - 1)];
    EXPECT_EQ(form.imgProfileSec[option].Shown(), desk.Main.imgProfileSecSelect[layout].Shown());
    const SectionRec& section = desk.Proposals[0].Sections[PlaceOfOption(option)];
    EXPECT_EQ(form.lblProfilName[option].Caption(),
              SizeName(desk.Main, section.TypeIdx, section.SizeIdx));
  }
}

TEST_F(SearchForm, RepeatsTheSelectionWhereItIsAsked) {
  SelectionProposal repeated = proposal;
  repeated.Sections[sectionRaskos].Profile.Name = "repeated";
  repeated.Rounds = 3;
  const auto fill = [&] {
    form.Fill({.Proposal = proposal, .Repeated = [&repeated] { return repeated; }}, pictures, 1);
  };
  fill();
  EXPECT_TRUE(form.chkRepeat.Enabled());
  EXPECT_EQ(form.lblRounds.Caption(), "");
  form.chkRepeat.SetChecked(true);
  EXPECT_EQ(SizesShown(), (Texts{"up", "down", "repeated", "vertical", "support"}));
  EXPECT_EQ(form.lblRounds.Caption(), "Кругов подбора до неизменности: 3");
  form.chkRepeat.SetChecked(false);
  EXPECT_EQ(SizesShown(), (Texts{"up", "down", "diagonal", "vertical", "support"}));
  EXPECT_EQ(form.lblRounds.Caption(), "");
  repeated.Circles = true;
  form.chkRepeat.SetChecked(true);
  EXPECT_EQ(form.lblRounds.Caption(), "Размеры чередуются, взят лучший из кругов подбора: 3");
}

TEST_F(SearchForm, ClearsTheBoxOfARepeatedSelectionThatFails) {
  form.Fill({.Proposal = proposal,
             .Repeated = []() -> SelectionProposal {
               throw RuntimeError(ErrorNumber::SubscriptOutOfRange);
             }},
            pictures, 1);
  form.chkRepeat.SetChecked(true);
  EXPECT_FALSE(form.chkRepeat.Checked());
  EXPECT_EQ(SizesShown(), (Texts{"up", "down", "diagonal", "vertical", "support"}));
}

TEST_F(SearchForm, DoesNotOfferToRepeatASelectionThatRepeatsItself) {
  form.Fill({.Proposal = proposal,
             .ByOpinion = [this] { return std::optional(proposal); },
             .Repeated = [this] { return proposal; }},
            pictures, 1);
  EXPECT_TRUE(form.chkRepeat.Enabled());
  form.chkOpinion.SetChecked(true);
  EXPECT_FALSE(form.chkRepeat.Enabled());
  form.chkOpinion.SetChecked(false);
  EXPECT_TRUE(form.chkRepeat.Enabled());
}

TEST_F(SearchForm, ComparesTheProposalWithTheDesignAsItIs) {
  Ladder ladder(optionRaskos, {1.3, 1.2, 0.9, 0.8}, 2);
  const SelectionProposal selected = ladder.Select();
  form.Fill({.Proposal = selected, .Before = ladder.Model.Last, .Locale = CommaLocale()}, pictures,
            1);
  EXPECT_EQ(form.lblSizeBefore[optionRaskos].Caption(), "S2");
  EXPECT_EQ(form.lblUseBefore[optionRaskos].Caption(), "1,200");
  EXPECT_EQ(form.lblUseBefore[optionRaskos].ForeColor(), colorRed);
  EXPECT_EQ(form.lblUse[optionRaskos].Caption(), "0,900");
  EXPECT_EQ(form.lblUse[optionRaskos].ForeColor(), colorWindowText);
  EXPECT_EQ(form.lblSizeBefore[optionUpPoyas].Caption(), "thick");
}

TEST_F(SearchForm, TellsTheMassBeforeAndAfterAndWhatThatIsInHundredths) {
  Ladder ladder(optionRaskos, {1.3, 1.2, 0.9, 0.8}, 4);
  const SelectionProposal selected = ladder.Select();
  Calculation before = ladder.Model.Last;
  const auto massAfter = [&](double massBefore) {
    before.CheckData.Mass = massBefore;
    form.Fill({.Proposal = selected, .Before = before, .Locale = PointLocale()}, pictures, 1);
    return form.lblMass.Caption();
  };
  const double after = CompareSelection(before, selected).MassAfter;
  const std::string shown = FormatShown(after, 3, PointLocale());
  EXPECT_EQ(massAfter(2 * after), "Масса фермы: " + FormatShown(2 * after, 3, PointLocale()) +
                                      " т, станет " + shown + " т (-50.0 %)");
  EXPECT_EQ(massAfter(after / 2), "Масса фермы: " + FormatShown(after / 2, 3, PointLocale()) +
                                      " т, станет " + shown + " т (+100.0 %)");
  EXPECT_EQ(massAfter(0), "Масса фермы: 0.000 т, станет " + shown + " т");
}

}  // namespace
}  // namespace trelonit::test
