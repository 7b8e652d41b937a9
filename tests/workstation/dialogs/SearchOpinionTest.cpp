#include <gtest/gtest.h>
#include <optional>
#include <string>

#include "workstation/dialogs/frmSearch.h"

namespace trelonit::test {
namespace {

/// A usual proposal with the size "usual" and one by both with "both" in every group.
class SearchOpinion : public ::testing::Test {
 protected:
  SearchOpinion() {
    byBoth = Named("both");
    byBoth->Rounds = 3;
  }

  static SelectionProposal Named(const char* size) {
    SelectionProposal proposal;
    proposal.Sections = SectionArray(1, sectionCount);
    for (SectionRec& section : proposal.Sections) {
      section.Profile.Name = size;
    }
    return proposal;
  }

  void Fill() {
    form.Fill({.Proposal = Named("usual"),
               .ByOpinion =
                   [this] {
                     ++searches;
                     return byBoth;
                   }},
              pictures, 1);
  }

  std::string Size() const { return form.lblProfilName[optionUpPoyas].Caption(); }

  BoundedArray<Image> pictures{1, groupCount};
  std::optional<SelectionProposal> byBoth;
  int searches = 0;
  frmSearch form;
};

TEST_F(SearchOpinion, IsOffAtFirst) {
  Fill();
  EXPECT_FALSE(form.chkOpinion.Checked());
  EXPECT_EQ(Size(), "usual");
  EXPECT_EQ(form.lblRounds.Caption(), "");
  EXPECT_EQ(searches, 0);
}

TEST_F(SearchOpinion, ShowsItsSizesAndRounds) {
  Fill();
  form.chkOpinion.SetChecked(true);
  EXPECT_EQ(Size(), "both");
  EXPECT_EQ(form.Shown().Rounds, 3);
  EXPECT_EQ(form.lblRounds.Caption(), "Кругов подбора до неизменности: 3");
}

TEST_F(SearchOpinion, GoesBackToTheUsualProposal) {
  Fill();
  form.chkOpinion.SetChecked(true);
  form.chkOpinion.SetChecked(false);
  EXPECT_EQ(Size(), "usual");
  EXPECT_EQ(form.Shown().Rounds, 0);
  EXPECT_EQ(form.lblRounds.Caption(), "");
  EXPECT_EQ(searches, 1);
}

TEST_F(SearchOpinion, ShowsWhatIsImpossibleByBoth) {
  byBoth->Impossible = {optionUpPoyas};
  Fill();
  form.chkOpinion.SetChecked(true);
  EXPECT_EQ(form.lblWorry[optionUpPoyas].Caption(), "Подбор невозможен");
  EXPECT_EQ(form.lblProfilName[optionUpPoyas].ForeColor(), colorRed);
  form.chkOpinion.SetChecked(false);
  EXPECT_EQ(form.lblWorry[optionUpPoyas].Caption(), "");
  EXPECT_EQ(form.lblProfilName[optionUpPoyas].ForeColor(), colorWindowText);
}

TEST_F(SearchOpinion, ClearsItsBoxWhereThereIsNoOpinion) {
  byBoth.reset();
  Fill();
  form.chkOpinion.SetChecked(true);
  EXPECT_FALSE(form.chkOpinion.Checked());
  EXPECT_EQ(Size(), "usual");
  EXPECT_EQ(searches, 1);
}

TEST_F(SearchOpinion, ClearsItsBoxWhereNobodyCanSearch) {
  form.Fill({.Proposal = Named("usual")}, pictures, 1);
  form.chkOpinion.SetChecked(true);
  EXPECT_FALSE(form.chkOpinion.Checked());
  EXPECT_EQ(Size(), "usual");
}

TEST_F(SearchOpinion, IsForgottenWithTheNextOffer) {
  Fill();
  form.chkOpinion.SetChecked(true);
  Fill();
  EXPECT_FALSE(form.chkOpinion.Checked());
  EXPECT_EQ(Size(), "usual");
}

}  // namespace
}  // namespace trelonit::test
