#include "tests/windows/dialogs/ParamertyScreen.h"

namespace trelonit::test {
namespace {

const Texts untouched{"210000", "7.850", "150"};
const Texts threeRefusals{
    "Параметр не принят !!!: Гибкость должна быть числом положительным > 0",
    "Параметр не принят!!!: Плотность стали, которую Вы указали, вызывает серьезные сомнения !",
    "Параметр не принят!!!: Модуль Юнга, которую Вы указали, вызывает серьезные сомнения !"};

TEST(ParamertyWindowTexts, HasItsTitle) {
  ParamertyScreen screen;
  EXPECT_EQ(FromQt(screen.Window->windowTitle()), "Дополнительные параметры стали");
}

TEST(ParamertyWindowTexts, CaptionsEachBoxWithUnitAndHint) {
  ParamertyScreen screen;
  EXPECT_EQ(CaptionOf(*screen.Window, screen.Yung()), "Модуль Юнга для стали :");
  EXPECT_EQ(CaptionOf(*screen.Window, screen.Density()), "Плотность стали :");
  EXPECT_EQ(CaptionOf(*screen.Window, screen.Flex()), "Предельная гибкость сжатого элемента :");
  EXPECT_EQ(FromQt(screen.Yung().toolTip()), "Модуль Юнга для стали");
  EXPECT_EQ(FromQt(screen.Density().toolTip()),
            "Плотность стали для расчета массы металлопроката фермы");
  EXPECT_EQ(FromQt(screen.Flex().toolTip()), "Задавайте значение в виде целого числа");
  EXPECT_TRUE(Has(LabelsIn(*screen.Window), "МПа"));
  EXPECT_TRUE(Has(LabelsIn(*screen.Window), "т / м. куб."));
}

TEST(ParamertyWindowBoxes, StartWithTheTextsOfTheMainForm) {
  ParamertyScreen screen;
  EXPECT_EQ(FromQt(screen.Yung().text()), "210000");
  EXPECT_EQ(FromQt(screen.Density().text()), "7.850");
  EXPECT_EQ(FromQt(screen.Flex().text()), "150");
}

TEST(ParamertyWindowBoxes, TellTheFormWhatIsTyped) {
  ParamertyScreen screen;
  screen.TypeAll("200000", "7.8", "120");
  EXPECT_EQ(screen.Form.txtYung.Text(), "200000");
  EXPECT_EQ(screen.Form.txtDensity.Text(), "7.8");
  EXPECT_EQ(screen.Form.txtLimFlex.Text(), "120");
  EXPECT_EQ(screen.Stored(), untouched);
}

TEST(ParamertyWindowBoxes, FollowTheForm) {
  ParamertyScreen screen;
  screen.Form.txtYung.SetText("1");
  screen.Form.txtDensity.SetText("2");
  screen.Form.txtLimFlex.SetText("3");
  EXPECT_EQ(FromQt(screen.Yung().text() + screen.Density().text() + screen.Flex().text()), "123");
}

TEST(ParamertyWindowApply, StoresAndCloses) {
  ParamertyScreen screen;
  screen.TypeAll("200000", "7.8", "120");
  Click(screen.Apply());
  EXPECT_EQ(screen.Stored(), (Texts{"200000", "7.8", "120"}));
  EXPECT_EQ(screen.Told(), Texts{});
  EXPECT_FALSE(screen.Open());
  EXPECT_EQ(screen.Window->result(), QDialog::Accepted);
}

TEST(ParamertyWindowApply, IsTheReturnKeyOfABox) {
  ParamertyScreen screen;
  Type(screen.Flex(), "99");
  Press(Qt::Key_Return);
  EXPECT_EQ(screen.Stored(), (Texts{"210000", "7.85", "99"}));
  EXPECT_FALSE(screen.Open());
}

TEST(ParamertyWindowApply, IsReachedByItsUnderlinedLetter) {
  ParamertyScreen screen;
  PressMnemonic(screen.Apply().text());
  EXPECT_TRUE(Soon([&] { return !screen.Open(); }));
  EXPECT_EQ(screen.Stored(), (Texts{"210000", "7.85", "150"}));
}

TEST(ParamertyWindowApply, RefusesNonsenseWithABoxForEachInOrderAndCloses) {
  for (const std::string nonsense : {"", " ", "сталь", "-", "--5", "\u03A9", "\U0001F600", "0"}) {
    ParamertyScreen screen;
    screen.TypeAll("", "", "");
    for (QLineEdit* box : {&screen.Yung(), &screen.Density(), &screen.Flex()}) {
      Paste(*box, nonsense);
      ASSERT_EQ(FromQt(box->text()), nonsense);
    }
    Click(screen.Apply());
    EXPECT_EQ(screen.Told(), threeRefusals) << nonsense;
    EXPECT_EQ(screen.Stored(), untouched) << nonsense;
    EXPECT_FALSE(screen.Open());
  }
}

TEST(ParamertyWindowApply, IsOpenUntilItsLastBoxIsAnswered) {
  class Watcher : public RecordingMessages {
   public:
    MessageAnswer Show(const Message& message) override {
      Open += Window != nullptr && Window->isVisible() ? 1 : 0;
      return RecordingMessages::Show(message);
    }
    QWidget* Window = nullptr;
    int Open = 0;
  };
  ParamertyScreen screen;
  Watcher messages;
  const Services usual = screen.Outside.Bundle();
  frmParamerty form(
      {messages, usual.Dialogs, usual.Clipboard, usual.Settings, usual.Registry, usual.Automation,
       usual.Shell, usual.Clock, usual.Resources, usual.Files, usual.Locale, usual.ProgramFolder},
      screen.Steel);
  form.Form_Load();
  ParamertyWindow window(form, nullptr);
  messages.Window = &window;
  ShowActive(window);
  for (const char* name : {"txtYung", "txtDensity", "txtLimFlex"}) {
    Type(Find<QLineEdit>(window, name), "0");
  }
  Click(Find<QAbstractButton>(window, "cmdApply"));
  EXPECT_EQ(messages.Shown.size(), 3U);
  EXPECT_EQ(messages.Open, 3);
  EXPECT_FALSE(window.isVisible());
}

TEST(ParamertyWindowApply, StoresWhatIsDoubtfulAfterABox) {
  ParamertyScreen screen;
  screen.TypeAll("179999", "4", "400");
  Click(screen.Apply());
  const std::string title = "Параметр принят, но вызывает сомнения!!!: ";
  EXPECT_EQ(screen.Told(),
            (Texts{title + "Плотность стали, которую Вы указали, вызывает сомнения !",
                   title + "Модуль Юнга, которую Вы указали, вызывает сомнения !"}));
  EXPECT_EQ(screen.Stored(), (Texts{"179999", "4", "400"}));
}

TEST(ParamertyWindowApply, OneRefusalDoesNotStopTheOthers) {
  ParamertyScreen screen;
  screen.TypeAll("200000", "9.01", "401");
  Click(screen.Apply());
  EXPECT_EQ(screen.Told(),
            (Texts{"Параметр не принят !!!: Гибкость должна быть < 400",
                   "Параметр не принят!!!: Плотность стали, которую Вы указали, вызывает серьезные "
                   "сомнения !"}));
  EXPECT_EQ(screen.Stored(), (Texts{"200000", "7.850", "150"}));
}

TEST(ParamertyWindowApply, ASlendernessBeyondAllMeasureDoesNotStopTheOthers) {
  ParamertyScreen screen;
  screen.TypeAll("200000", "7.5", "1e300");
  Click(screen.Apply());
  EXPECT_EQ(screen.Stored(), (Texts{"200000", "7.5", "150"}));
  EXPECT_FALSE(screen.Open());
}

TEST(ParamertyWindowApply, LeavesTheModulusAloneAtTheBoundsWithoutAWord) {
  for (const std::string bound : {"100000", "180000", "300000"}) {
    ParamertyScreen screen;
    Type(screen.Yung(), bound);
    Click(screen.Apply());
    EXPECT_EQ(screen.Told(), Texts{});
    EXPECT_EQ(screen.Steel.ModulYung, "210000");
    EXPECT_FALSE(screen.Open());
  }
}

TEST(ParamertyWindowApply, ReadsAndWritesNumbersAsTheUserDoes) {
  ParamertyScreen screen(CommaLocale());
  screen.TypeAll("205000,5", "7,9", "120,6");
  Click(screen.Apply());
  EXPECT_EQ(screen.Stored(), (Texts{"205000,5", "7,9", "121"}));
}

TEST(ParamertyWindowLeft, ChangesNothing) {
  const std::vector<std::function<void(ParamertyScreen&)>> ways{
      [](ParamertyScreen& screen) {
        Click(StandardButton(*screen.Window, QDialogButtonBox::Cancel));
      },
      [](ParamertyScreen&) { Press(Qt::Key_Escape); },
      [](ParamertyScreen& screen) { screen.Window->close(); }};
  for (const auto& leave : ways) {
    ParamertyScreen screen;
    screen.TypeAll("200000", "0", "120");
    leave(screen);
    EXPECT_FALSE(screen.Open());
    EXPECT_EQ(screen.Stored(), untouched);
    EXPECT_EQ(screen.Told(), Texts{});
  }
}

TEST(ParamertyWindowKeyboard, TabReachesEveryInputOnceFromTopToBottom) {
  ParamertyScreen screen;
  screen.Yung().setFocus();
  const std::vector<QWidget*> walk = WalkByTab();
  ASSERT_GE(walk.size(), 4U);
  EXPECT_EQ(walk[1], &screen.Density());
  EXPECT_EQ(walk[2], &screen.Flex());
  ExpectTabReachesEveryInputOnce(*screen.Window);
}

TEST(ParamertyWindowKeyboard, BeginsInTheFirstBox) {
  ParamertyScreen screen;
  EXPECT_EQ(QApplication::focusWidget(), &screen.Yung());
}

TEST(ParamertyWindowKeyboard, EveryInputHasANameToBeReadAloud) {
  ParamertyScreen screen;
  ExpectEveryInputHasAName(*screen.Window);
}

TEST(ParamertyWindowOfTheProgram, EditsTheHiddenValuesOfTheMainForm) {
  int opened = 0;
  ProgramWith program({.ShowParamerty = [&](frmParamerty& form) {
    ParamertyWindow window(form, nullptr);
    ShowActive(window);
    auto& flex = Find<QLineEdit>(window, "txtLimFlex");
    EXPECT_EQ(FromQt(flex.text()), opened == 0 ? "150" : "90");
    Type(flex, "90");
    Click(Find<QAbstractButton>(window, "cmdApply"));
    ++opened;
  }});
  program.Trigger("optio");
  program.Trigger("optio");
  EXPECT_EQ(opened, 2);
  EXPECT_EQ(program.Root.Main().Steel.LimitFlex, "90");
  EXPECT_EQ(program.Root.Main().Steel.DensitSteel, "7.85");
}

}  // namespace
}  // namespace trelonit::test
