// Old and new sizes in the window of the selection.

#include "tests/windows/dialogs/SearchScreen.h"
#include "tests/workstation/main/Desk.h"
#include "windows/binding/Pictures.h"

namespace trelonit::test {
namespace {

/// The window over what a started form offers: one load, so that all groups have a coefficient.
class SearchComparison : public ::testing::Test {
 protected:
  SearchComparison() {
    desk.Main.tabMain.SetTab(2);
    AddForce(desk.Main, 3, "1.2");
    frmMain offering{desk.Outside.Bundle(), {.ShowSearch = [this](const SelectionOffer& made) {
                       offer.Proposal = made.Proposal;
                       offer.Before = made.Before;
                       offer.Locale = made.Locale;
                       return std::optional<SelectionProposal>();
                     }}};
    offering.Form_Load();
    offering.tabMain.SetTab(2);
    AddForce(offering, 3, "1.2");
    offering.cmdCalcAndSelect_Click();
    offer.Repeated = [this] {
      SelectionProposal repeated = offer.Proposal;
      repeated.Sections[sectionUpPoyas].Profile.Name = "repeated";
      repeated.Rounds = rounds;
      repeated.Circles = circles;
      return repeated;
    };
  }
  void Open() {
    form.Fill(offer, pictures, 1);
    window = std::make_unique<SearchWindow>(form, nullptr);
    ShowActive(*window);
  }
  QLabel& Labelled(const std::string& name) { return Find<QLabel>(*window, name); }
  std::string Text(const std::string& name) { return FromQt(Labelled(name).text()); }
  QCheckBox& Repeat() { return Find<QCheckBox>(*window, "chkRepeat"); }
  QCheckBox& Opinion() { return Find<QCheckBox>(*window, "chkOpinion"); }

  StartedDesk desk;
  SelectionOffer offer;
  int rounds = 4;
  bool circles = false;
  BoundedArray<Image> pictures{1, groupCount};
  frmSearch form;
  std::unique_ptr<SearchWindow> window;
};

TEST_F(SearchComparison, StandsBesideTheProposal) {
  Open();
  for (Long option = 1; option <= groupCount; ++option) {
    const std::string number = std::to_string(option);
    EXPECT_EQ(Text("lblSizeBefore" + number), "L25x16x3");
    EXPECT_NE(Text("lblProfilName" + number), "");
    EXPECT_GT(std::stod(Text("lblUseBefore" + number)), 0);
    EXPECT_GT(std::stod(Text("lblUse" + number)), 0);
    const int middle = Labelled("lblProfilName" + number).geometry().center().y();
    EXPECT_NEAR(Labelled("lblUse" + number).geometry().center().y(), middle, 1);
  }
  EXPECT_TRUE(Text("lblMass").starts_with("Масса фермы: ")) << Text("lblMass");
  EXPECT_NE(Text("lblMass").find(" т, станет "), std::string::npos);
}

TEST_F(SearchComparison, IsRedWhereACoefficientIsAboveOne) {
  Open();
  int red = 0;
  for (Long option = 1; option <= groupCount; ++option) {
    for (const char* name : {"lblUseBefore", "lblUse"}) {
      QLabel& label = Labelled(name + std::to_string(option));
      const bool over = std::stod(FromQt(label.text())) > 1;
      EXPECT_EQ(label.palette().color(QPalette::WindowText) == WarningColor(label.palette()), over);
      red += over ? 1 : 0;
    }
  }
  EXPECT_GT(red, 0);
}

TEST_F(SearchComparison, TellsTheChangeOfTheMassInPercent) {
  offer.Before->CheckData.Mass = 2;
  offer.Proposal.Settled = *offer.Before;
  offer.Proposal.Settled->CheckData.Mass = 1.5;
  Open();
  EXPECT_EQ(Text("lblMass"), "Масса фермы: 2.000 т, станет 1.500 т (-25.0 %)");
  offer.Proposal.Settled->CheckData.Mass = 2.25;
  Open();
  EXPECT_EQ(Text("lblMass"), "Масса фермы: 2.000 т, станет 2.250 т (+12.5 %)");
}

TEST_F(SearchComparison, IsAbsentWhereThereIsNothingToCompareWith) {
  offer.Before.reset();
  Open();
  EXPECT_EQ(Text("lblSizeBefore1"), "");
  EXPECT_EQ(Text("lblUse1"), "");
  EXPECT_EQ(Text("lblMass"), "");
}

TEST_F(SearchComparison, FollowsARepeatedSelection) {
  Open();
  const std::string before = Text("lblProfilName1");
  EXPECT_EQ(Text("lblRounds"), "");
  Click(Repeat());
  EXPECT_EQ(Text("lblProfilName1"), "repeated");
  EXPECT_EQ(Text("lblRounds"), "Кругов подбора до неизменности: 4");
  Click(Find<QPushButton>(*window, "cmdApply"));
  EXPECT_EQ(form.Shown().Rounds, 4);
  Open();
  EXPECT_FALSE(Repeat().isChecked());
  Click(Repeat());
  Click(Repeat());
  EXPECT_EQ(Text("lblProfilName1"), before);
  EXPECT_EQ(Text("lblRounds"), "");
}

TEST_F(SearchComparison, SaysWhereTheSizesTakeTurns) {
  circles = true;
  Open();
  Click(Repeat());
  EXPECT_EQ(Text("lblRounds"), "Размеры чередуются, взят лучший из кругов подбора: 4");
  EXPECT_GE(Labelled("lblRounds").width(), Labelled("lblRounds").sizeHint().width());
}

TEST_F(SearchComparison, LeavesTheRepeatingToTheSelectionByBoth) {
  offer.ByOpinion = [this] {
    SelectionProposal both = offer.Proposal;
    both.Sections[sectionUpPoyas].Profile.Name = "both";
    both.Rounds = 2;
    return std::optional(both);
  };
  Open();
  Click(Repeat());
  Click(Opinion());
  EXPECT_EQ(Text("lblProfilName1"), "both");
  EXPECT_FALSE(Repeat().isEnabled());
  Click(Opinion());
  EXPECT_TRUE(Repeat().isEnabled());
  EXPECT_EQ(Text("lblProfilName1"), "repeated");
}

TEST_F(SearchComparison, OffersNoRepeatingThatIsNotThere) {
  offer.Repeated = nullptr;
  Open();
  EXPECT_FALSE(Repeat().isEnabled());
}

}  // namespace
}  // namespace trelonit::test
