#include "tests/windows/Pixels.h"
#include "tests/windows/dialogs/SearchScreen.h"
#include "tests/workstation/main/Desk.h"
#include "windows/binding/Pictures.h"

namespace trelonit::test {
namespace {

const Texts groupNames{"Верхний пояс", "Нижний пояс", "Раскосы", "Стойки", "Опорные раскосы"};

TEST(SearchWindowTexts, HasItsTitleAndItsButton) {
  SearchScreen screen;
  EXPECT_EQ(FromQt(screen.Window->windowTitle()), "Результаты подбора профиля");
  EXPECT_EQ(FromQt(screen.Apply().text().remove(QLatin1Char('&'))), "Применить");
}

TEST(SearchWindowTexts, NamesTheGroupsWithTheirSizes) {
  SearchScreen screen;
  for (const std::string& name : groupNames) {
    EXPECT_TRUE(Has(LabelsIn(*screen.Window), name)) << name;
  }
  EXPECT_EQ(screen.Sizes(), (Texts{"up", "down", "diagonal", "vertical", "support"}));
}

TEST(SearchWindowTexts, PutsNameSizeAndWorryOfAGroupInOneLine) {
  SearchScreen screen;
  for (Long option = 1; option <= groupCount; ++option) {
    const int middle = screen.Size(option).geometry().center().y();
    EXPECT_NEAR(screen.Worry(option).geometry().center().y(), middle, 1);
    int named = 0;
    for (const auto* label : screen.Window->findChildren<QLabel*>()) {
      if (FromQt(label->text()) == groupNames[static_cast<std::size_t>(option - 1)]) {
        EXPECT_NEAR(label->geometry().center().y(), middle, 1) << option;
        ++named;
      }
    }
    EXPECT_EQ(named, 1);
  }
}

TEST(SearchWindowTexts, FollowTheForm) {
  SearchScreen screen;
  screen.Form.lblProfilName[4].SetCaption("Дт20");
  screen.Form.lblWorry[2].SetCaption("слово");
  screen.Form.Form.SetCaption(" . ");
  EXPECT_EQ(FromQt(screen.Size(4).text()), "Дт20");
  EXPECT_EQ(FromQt(screen.Worry(2).text()), "слово");
  EXPECT_EQ(FromQt(screen.Window->windowTitle()), " . ");
}

TEST(SearchWindowPictures, AreDrawnForEachGroupAndDiffer) {
  SearchScreen screen;
  const std::vector<PictureView*> pictures = screen.Pictures();
  ASSERT_EQ(pictures.size(), 5U);
  std::set<QByteArray> drawings;
  for (PictureView* picture : pictures) {
    EXPECT_GT(CountColors(*picture), 2U);
    const QImage image = picture->grab().toImage();
    drawings.insert({reinterpret_cast<const char*>(image.constBits()), image.sizeInBytes()});
  }
  EXPECT_EQ(drawings.size(), 5U);
}

TEST(SearchWindowPictures, AreReadAloudWithTheirGroup) {
  SearchScreen screen;
  Texts names;
  for (const PictureView* picture : screen.Pictures()) {
    names.push_back(FromQt(picture->accessibleName()));
  }
  ASSERT_EQ(names.size(), groupNames.size());
  for (std::size_t place = 0; place < names.size(); ++place) {
    EXPECT_TRUE(names[place].starts_with(groupNames[place])) << names[place];
  }
}

TEST(SearchWindowImpossible, IsRedWithItsWordsAndLeavesTheOthersAlone) {
  SearchScreen screen(1, {optionDwnPoyas, optionOpornRaskos});
  const QColor usual = screen.Window->palette().color(QPalette::WindowText);
  for (Long option = 1; option <= groupCount; ++option) {
    const bool impossible = option == optionDwnPoyas || option == optionOpornRaskos;
    EXPECT_EQ(screen.Ink(option), impossible ? WarningColor(screen.Window->palette()) : usual);
    EXPECT_EQ(FromQt(screen.Worry(option).text()), impossible ? "Подбор невозможен" : "");
  }
  EXPECT_EQ(screen.Sizes(), (Texts{"up", "down", "diagonal", "vertical", "support"}));
  EXPECT_GT(CountPixels(screen.Size(2), WarningColor(screen.Window->palette())), 0);
  EXPECT_EQ(CountPixels(screen.Size(1), WarningColor(screen.Window->palette())), 0);
}

TEST(SearchWindowImpossible, WordsAreNotCutOff) {
  SearchScreen screen(1, {optionUpPoyas});
  EXPECT_GE(screen.Worry(1).width(), screen.Worry(1).sizeHint().width());
}

TEST(SearchWindowImpossible, RedGoesWithTheNextProposal) {
  SearchScreen screen(1, {optionUpPoyas});
  screen.Proposal.Impossible = {optionRaskos};
  screen.Form.Fill({.Proposal = screen.Proposal}, screen.Layouts, 1);
  EXPECT_EQ(screen.Ink(1), screen.Window->palette().color(QPalette::WindowText));
  EXPECT_EQ(screen.Ink(3), WarningColor(screen.Window->palette()));
  EXPECT_EQ(FromQt(screen.Worry(1).text()), "");
}

TEST(SearchWindowScheme3, HidesTheVerticals) {
  SearchScreen screen(3, {optionStoyka});
  EXPECT_FALSE(screen.Size(4).isVisible());
  EXPECT_FALSE(screen.Worry(4).isVisible());
  EXPECT_FALSE(Has(LabelsIn(*screen.Window), "Стойки"));
  EXPECT_TRUE(Has(LabelsIn(*screen.Window), "Опорные раскосы"));
  const std::vector<PictureView*> pictures = screen.Pictures();
  ASSERT_EQ(pictures.size(), 5U);
  for (std::size_t place = 0; place < 5; ++place) {
    EXPECT_EQ(pictures[place]->isVisible(), place != 3) << place;
  }
}

TEST(SearchWindowScheme3, BringsTheVerticalsBackForAnotherScheme) {
  SearchScreen screen(3);
  screen.Form.Fill({.Proposal = screen.Proposal}, screen.Layouts, 1);
  EXPECT_TRUE(screen.Size(4).isVisible());
  EXPECT_TRUE(Has(LabelsIn(*screen.Window), "Стойки"));
}

TEST(SearchWindowApply, TakesTheProposal) {
  SearchScreen screen;
  Click(screen.Apply());
  EXPECT_TRUE(screen.Form.SearchApplied);
  EXPECT_FALSE(screen.IsOpen());
  EXPECT_EQ(screen.Window->result(), QDialog::Accepted);
}

TEST(SearchWindowApply, IsTheReturnKeyAndTheUnderlinedLetter) {
  SearchScreen byReturn;
  Press(Qt::Key_Return);
  EXPECT_TRUE(byReturn.Form.SearchApplied);
  EXPECT_FALSE(byReturn.IsOpen());

  SearchScreen byLetter;
  PressMnemonic(byLetter.Apply().text());
  EXPECT_TRUE(Soon([&] { return !byLetter.IsOpen(); }));
  EXPECT_TRUE(byLetter.Form.SearchApplied);
}

TEST(SearchWindowLeft, LeavesTheProposal) {
  const std::vector<std::function<void(SearchScreen&)>> ways{
      [](SearchScreen& screen) { Click(StandardButton(*screen.Window, QDialogButtonBox::Close)); },
      [](SearchScreen&) { Press(Qt::Key_Escape); },
      [](SearchScreen& screen) { screen.Window->close(); }};
  for (const auto& leave : ways) {
    SearchScreen screen;
    leave(screen);
    EXPECT_FALSE(screen.IsOpen());
    EXPECT_FALSE(screen.Form.SearchApplied);
  }
}

TEST(SearchWindowKeyboard, TabReachesEveryButtonOnce) {
  SearchScreen screen;
  ExpectTabReachesEveryInputOnce(*screen.Window);
}

TEST(SearchWindowKeyboard, EveryButtonHasANameToBeReadAloud) {
  SearchScreen screen;
  ExpectEveryInputHasAName(*screen.Window);
}

/// The program with a loaded truss whose slopes are of 45 degrees and in which the user answers the
/// proposal.
class Selecting {
 public:
  explicit Selecting(bool takes, Long scheme = 1)
      : Running({.ShowKoeffOfUse = [this](frmKoeffOfUse&) { ++Results; },
                 .ShowSearch = [this, takes](frmSearch& form) { Answer(form, takes); }}) {
    frmMain& form = Running.Root.Main();
    form.imgTreloType_Click(scheme);
    const bool lattice = scheme == 3;
    Choose(form.cmbPanelNum, lattice ? "2" : "4");
    form.txtLengthF.SetText(lattice ? "4" : "8");
    form.txtHight.SetText(lattice ? "1" : "2");
    form.txtLenOporn.SetText("2");
    form.tabMain.SetTab(2);
    form.tglUpPoyas.SetValue(true);
    AddForce(form, 2, "3");
    Before = Named();
    Running.Press("cmdCalcAndSelect");
  }
  /// The sizes that the main window names.
  Texts Named() {
    Texts texts;
    for (Long option = 1; option <= groupCount; ++option) {
      texts.push_back(Running.CaptionIn("lblProfilName" + std::to_string(option)));
    }
    return texts;
  }
  /// The sizes that the program proposed, in the order of the form.
  Texts Proposed() {
    Texts texts;
    for (Long option = 1; option <= groupCount; ++option) {
      texts.push_back(
          Running.Root.LastProposal()->Sections[PlaceOfOption(option)].Profile.Name.Trimmed());
    }
    return texts;
  }

  Texts Before;
  Texts Shown;
  int Results = 0;
  bool VerticalsShown = false;
  ProgramWith Running;

 private:
  void Answer(frmSearch& form, bool takes) {
    SearchWindow window(form, Running.Window.get());
    ShowActive(window);
    for (Long option = 1; option <= groupCount; ++option) {
      const auto& size = Find<QLabel>(window, "lblProfilName" + std::to_string(option));
      Shown.push_back(FromQt(size.text()));
      if (option == optionStoyka) {
        VerticalsShown = size.isVisible();
      }
    }
    if (takes) {
      Click(Find<QAbstractButton>(window, "cmdApply"));
    } else {
      Press(Qt::Key_Escape);
    }
  }
};

TEST(SearchWindowOfTheProgram, BringsTheProposalToTheMainWindow) {
  Selecting user(true);
  EXPECT_EQ(user.Running.Outside.Messages.Shown, std::vector<Message>());
  ASSERT_TRUE(user.Running.Root.LastProposal().has_value());
  EXPECT_EQ(user.Shown, user.Proposed());
  EXPECT_EQ(user.Named(), user.Proposed());
  EXPECT_NE(user.Named(), user.Before);
  EXPECT_TRUE(user.VerticalsShown);
  EXPECT_EQ(user.Results, 1);
}

TEST(SearchWindowOfTheProgram, LeavesTheMainWindowAsItWasWithoutApply) {
  Selecting user(false);
  ASSERT_TRUE(user.Running.Root.LastProposal().has_value());
  EXPECT_NE(user.Proposed(), user.Before);
  EXPECT_EQ(user.Named(), user.Before);
  // The results of the old sections come all the same.
  EXPECT_EQ(user.Results, 1);
}

TEST(SearchWindowOfTheProgram, ShowsNoVerticalsWhereTheSchemeHasNone) {
  Selecting user(true, 3);
  ASSERT_EQ(user.Shown.size(), 5U);
  EXPECT_FALSE(user.VerticalsShown);
}

}  // namespace
}  // namespace trelonit::test
