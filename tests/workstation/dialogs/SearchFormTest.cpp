#include <gtest/gtest.h>
#include <set>
#include <string>
#include <vector>

#include "tests/workstation/design/SmallTruss.h"
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

}  // namespace
}  // namespace trelonit::test
