// The selection by both opinions in the window of the selection.

#include "tests/windows/Pixels.h"
#include "tests/windows/dialogs/SearchScreen.h"

namespace trelonit::test {
namespace {

QCheckBox& Box(SearchScreen& screen) {
  return Find<QCheckBox>(*screen.Window, "chkOpinion");
}
std::string Rounds(SearchScreen& screen) {
  return FromQt(Find<QLabel>(*screen.Window, "lblRounds").text());
}

/// Another proposal, found in three rounds.
std::optional<SelectionProposal> Heavier() {
  SelectionProposal proposal;
  proposal.Sections = SectionArray(1, sectionCount);
  proposal.Sections[sectionUpPoyas].Profile.Name = "heavy";
  proposal.Rounds = 3;
  return proposal;
}

TEST(SearchByOpinion, IsOffAtFirst) {
  SearchScreen screen(Heavier);
  EXPECT_EQ(FromQt(Box(screen).text().remove(QLatin1Char('&'))), "и по СНиП без отступлений");
  EXPECT_FALSE(Box(screen).isChecked());
  EXPECT_EQ(Rounds(screen), "");
  EXPECT_EQ(screen.Sizes()[0], "up");
}

TEST(SearchByOpinion, ShowsItsSizesAndHowManyRoundsItTook) {
  SearchScreen screen(Heavier);
  Click(Box(screen));
  EXPECT_TRUE(screen.Form.chkOpinion.Checked());
  EXPECT_EQ(screen.Sizes()[0], "heavy");
  EXPECT_EQ(Rounds(screen), "Кругов подбора до неизменности: 3");
  Click(Box(screen));
  EXPECT_EQ(screen.Sizes()[0], "up");
  EXPECT_EQ(Rounds(screen), "");
}

TEST(SearchByOpinion, IsWhatApplyTakesThen) {
  SearchScreen screen(Heavier);
  Click(Box(screen));
  Click(screen.Apply());
  EXPECT_TRUE(screen.Form.SearchApplied);
  EXPECT_EQ(screen.Form.Shown().Rounds, 3);
}

TEST(SearchByOpinion, ClearsItsBoxWhereThereIsNoOpinion) {
  SearchScreen screen([]() -> std::optional<SelectionProposal> { return std::nullopt; });
  Click(Box(screen));
  EXPECT_FALSE(Box(screen).isChecked());
  EXPECT_EQ(screen.Sizes()[0], "up");
}

TEST(SearchByOpinion, IsOnTheKeysAndLeavesApplyTheKeyOfTheWindow) {
  SearchScreen screen(Heavier);
  PressMnemonic(Box(screen).text());
  EXPECT_TRUE(Soon([&] { return Box(screen).isChecked(); }));
  EXPECT_TRUE(screen.Apply().isDefault());
  Press(Qt::Key_Return);
  EXPECT_TRUE(screen.Form.SearchApplied);
}

TEST(SearchByOpinion, KeepsTheSizeOfTheWindow) {
  SearchScreen screen(Heavier);
  const QSize before = screen.Window->size();
  Click(Box(screen));
  QTest::qWait(1);
  EXPECT_EQ(screen.Window->size(), before);
  const auto& rounds = Find<QLabel>(*screen.Window, "lblRounds");
  EXPECT_GE(rounds.width(), rounds.sizeHint().width());
}

}  // namespace
}  // namespace trelonit::test
