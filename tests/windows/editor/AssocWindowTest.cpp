// The window that ties files to the pad.

#include "tests/windows/editor/AssocScreen.h"

namespace trelonit::test {
namespace {

class AssocWindowOnScreen : public ::testing::Test, protected AssocScreen {
 protected:
  bool MayApply() { return Button("cmdApply").isEnabled(); }
};

TEST_F(AssocWindowOnScreen, ShowsTheStateOfTheMachine) {
  Machine.State = {.Owner = TextOwner::Pad, .SendTo = true};
  Open();
  EXPECT_EQ(FromQt(Window->windowTitle()), "Связь с файлами");
  EXPECT_EQ(GroupTitles(*Window), Texts{"Текстовые файлы (.txt, .log) открывает"});
  for (const auto& [name, caption, checked] :
       {std::tuple{"Option1", "&Эта программа", true},
        {"Option2", "Программа &системы", false},
        {"ChSendto", "&Ярлык в меню «Отправить»", true},
        {"ChSC", "Показывать &исходный текст страниц браузера", false}}) {
    EXPECT_EQ(FromQt(Button(name).text()), caption);
    EXPECT_EQ(Button(name).isChecked(), checked) << name;
    EXPECT_TRUE(Button(name).isEnabled()) << name;
  }
  EXPECT_FALSE(Reason("lblNoSendto").isVisible());
  EXPECT_FALSE(Reason("lblNoSC").isVisible());
  EXPECT_FALSE(MayApply());

  Machine.State = {.Owner = TextOwner::System, .SourceViewer = true};
  Open();
  EXPECT_FALSE(Button("Option1").isChecked());
  EXPECT_TRUE(Button("Option2").isChecked());
  EXPECT_FALSE(Button("ChSendto").isChecked());
  EXPECT_TRUE(Button("ChSC").isChecked());
}

TEST_F(AssocWindowOnScreen, SetsNeitherOptionForAnotherOwner) {
  Machine.State = {.Owner = TextOwner::Other};
  Open();
  EXPECT_FALSE(Button("Option1").isChecked());
  EXPECT_FALSE(Button("Option2").isChecked());
  EXPECT_FALSE(MayApply());
}

TEST_F(AssocWindowOnScreen, SaysWhyABoxIsDisabled) {
  Machine.NoSendTo = "Здесь нет такого меню.";
  Machine.NoSourceViewer = "Здесь выбрать нельзя.";
  Open();
  for (const auto& [box, reason, text] : {std::tuple{"ChSendto", "lblNoSendto", Machine.NoSendTo},
                                          {"ChSC", "lblNoSC", Machine.NoSourceViewer}}) {
    EXPECT_FALSE(Button(box).isEnabled()) << box;
    EXPECT_TRUE(Reason(reason).isVisible()) << reason;
    EXPECT_EQ(FromQt(Reason(reason).text()), text);
    EXPECT_EQ(FromQt(Button(box).accessibleDescription()), text);
    // Below the box, the whole text in sight.
    EXPECT_GT(Reason(reason).y(), Button(box).y());
    EXPECT_GE(Reason(reason).height(), Reason(reason).heightForWidth(Reason(reason).width()));
  }
}

TEST_F(AssocWindowOnScreen, OffersToApplyOnlyWhileTheChoiceDiffers) {
  Open();
  Click(Button("Option1"));
  EXPECT_TRUE(Button("Option1").isChecked());
  EXPECT_FALSE(Button("Option2").isChecked());
  EXPECT_TRUE(MayApply());
  Click(Button("Option1"));
  EXPECT_TRUE(Button("Option1").isChecked());
  Click(Button("Option2"));
  EXPECT_FALSE(Button("Option1").isChecked());
  EXPECT_FALSE(MayApply());
  for (const char* box : {"ChSendto", "ChSC"}) {
    Click(Button(box));
    EXPECT_TRUE(MayApply()) << box;
    Click(Button(box));
    EXPECT_FALSE(MayApply()) << box;
  }
  EXPECT_EQ(Machine.Applied, 0);
}

TEST_F(AssocWindowOnScreen, AppliesTheChoiceAndStaysOpen) {
  Open();
  Click(Button("Option1"));
  Click(Button("ChSC"));
  Click(Button("cmdApply"));
  EXPECT_EQ(Machine.State, (AssociationChoice{.Owner = TextOwner::Pad, .SourceViewer = true}));
  EXPECT_EQ(Machine.Applied, 1);
  EXPECT_FALSE(MayApply());
  EXPECT_TRUE(Window->isVisible());
  Click(Button("Option2"));
  Click(Button("cmdApply"));
  EXPECT_EQ(Machine.State, (AssociationChoice{.Owner = TextOwner::System, .SourceViewer = true}));
  EXPECT_TRUE(Messages.Shown.empty());
}

TEST_F(AssocWindowOnScreen, AppliesByEnter) {
  Open();
  Click(Button("Option1"));
  Press(Qt::Key_Return);
  EXPECT_TRUE(Soon([this] { return Machine.Applied == 1; }));
  EXPECT_TRUE(Window->isVisible());
}

TEST_F(AssocWindowOnScreen, TellsAFailureAndLetsTheUserTryAgain) {
  Open();
  Click(Button("Option1"));
  Machine.Failure = ErrorNumber::PermissionDenied;
  Click(Button("cmdApply"));
  EXPECT_EQ(Messages.Shown, std::vector{ErrorMessage("cmdApply_Click", 70, "Permission denied")});
  EXPECT_TRUE(Window->isVisible());
  EXPECT_TRUE(Button("Option1").isChecked());
  EXPECT_TRUE(MayApply());
  Machine.Failure.reset();
  Click(Button("cmdApply"));
  EXPECT_EQ(Machine.State.Owner, TextOwner::Pad);
  EXPECT_FALSE(MayApply());
}

TEST_F(AssocWindowOnScreen, ChangesNothingOnEscapeCancelAndClosing) {
  const std::vector<std::function<void()>> ways{[] { Press(Qt::Key_Escape); },
                                                [this] { Click(Button("cmdCancel")); },
                                                [this] { Window->close(); }};
  for (const auto& leave : ways) {
    Open();
    Click(Button("Option1"));
    leave();
    EXPECT_FALSE(Window->isVisible());
  }
  EXPECT_EQ(Machine.Applied, 0);
}

TEST_F(AssocWindowOnScreen, IsWorkedByKeysAlone) {
  Open();
  EXPECT_EQ(QApplication::focusWidget(), &Button("Option2"));
  for (const char* name : {"Option1", "ChSendto", "ChSC"}) {
    PressMnemonic(Button(name).text());
    EXPECT_TRUE(Soon([&] { return Button(name).isChecked(); })) << name;
  }
  PressMnemonic(Button("cmdApply").text());
  EXPECT_TRUE(Soon([this] { return Machine.Applied == 1; }));
  EXPECT_EQ(Machine.State,
            (AssociationChoice{.Owner = TextOwner::Pad, .SendTo = true, .SourceViewer = true}));
  PressMnemonic(Button("cmdCancel").text());
  EXPECT_TRUE(Soon([this] { return !Window->isVisible(); }));
}

TEST_F(AssocWindowOnScreen, LeadsTabFromTopToBottom) {
  Open();
  Click(Button("Option1"));
  std::vector<std::string> names;
  for (const QWidget* widget : WalkByTab()) {
    names.push_back(FromQt(widget->objectName()));
  }
  // The two options are one stop; an arrow goes on to the other one.
  EXPECT_EQ(names, (Texts{"Option1", "ChSendto", "ChSC", "cmdApply", "cmdCancel"}));
  ExpectEveryInputHasAName(*Window);
  Button("Option1").setFocus();
  Press(Qt::Key_Down);
  EXPECT_TRUE(Button("Option2").hasFocus());
  EXPECT_TRUE(Button("Option2").isChecked());
}

}  // namespace
}  // namespace trelonit::test
