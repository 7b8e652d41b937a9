#include "tests/windows/dialogs/SteelScreen.h"

namespace trelonit::test {
namespace {

const std::string untouchedSteel = "Сталь С245 - лист от 2 до 20 мм|240|1|0.9";

TEST(SteelWindowApply, WritesToTheMainFormAndCloses) {
  SteelScreen screen;
  screen.PickSteel("С345", "Св. 10 до 20");
  screen.ClickRow(2);
  Click(screen.Importance(3));
  EXPECT_EQ(screen.Main.All(), untouchedSteel);
  Click(screen.Apply());
  EXPECT_EQ(screen.Main.All(), "Сталь С345 Св. 10 до 20|315|0.95|0.95");
  EXPECT_FALSE(screen.Open());
  EXPECT_EQ(screen.Window.result(), QDialog::Accepted);
}

TEST(SteelWindowApply, WritesItsOwnStartWhenNothingWasTouched) {
  SteelScreen screen;
  screen.Main.txtUsloviyaRabot.SetText("0.8");
  Press(Qt::Key_Return);
  EXPECT_EQ(screen.Main.All(), "Сталь С235 От 2 до 20|230|1|0.9");
  EXPECT_FALSE(screen.Open());
}

TEST(SteelWindowApply, IsReachedByItsUnderlinedLetter) {
  SteelScreen screen;
  PressMnemonic(screen.Apply().text());
  EXPECT_TRUE(Soon([&] { return !screen.Open(); }));
  EXPECT_EQ(screen.Main.txtRy.Text(), "230");
}

TEST(SteelWindowApply, WritesNumbersAsTheUserWritesThem) {
  SteelScreen screen(CommaLocale());
  screen.ClickRow(6);
  Click(screen.Importance(1));
  Click(screen.Apply());
  EXPECT_EQ(screen.Main.txtUsloviyaRabot.Text(), "1,05");
  EXPECT_EQ(screen.Main.txtNadegnost.Text(), "1,15");
}

TEST(SteelWindowApply, TakesTheOtherResistanceInsteadOfADash) {
  SteelScreen sheet;
  sheet.PickSteel("С245", "Св. 20 до 30");
  EXPECT_EQ(LooksChosen(sheet), "sheet");
  Click(sheet.Apply());
  EXPECT_EQ(sheet.Main.txtRy.Text(), "230");

  SteelScreen shaped;
  shaped.PickSteel("С235", "Св. 40 до 100");
  ClickBox(shaped.Shaped());
  Click(shaped.Apply());
  EXPECT_EQ(shaped.Main.txtRy.Text(), "210");
}

/// Ways to leave the window without taking anything.
using Leave = void (*)(SteelScreen&);
class SteelWindowLeft : public ::testing::TestWithParam<Leave> {};

TEST_P(SteelWindowLeft, ChangesNothing) {
  SteelScreen screen;
  screen.PickSteel("С345", "Св. 10 до 20");
  ClickBox(screen.Shaped());
  screen.ClickRow(6);
  Click(screen.Importance(4));
  GetParam()(screen);
  EXPECT_FALSE(screen.Open());
  EXPECT_EQ(screen.Main.All(), untouchedSteel);
}

INSTANTIATE_TEST_SUITE_P(Ways, SteelWindowLeft,
                         ::testing::Values<Leave>(
                             [](SteelScreen& screen) {
                               Click(StandardButton(screen.Window, QDialogButtonBox::Cancel));
                             },
                             [](SteelScreen&) { Press(Qt::Key_Escape); },
                             [](SteelScreen& screen) { screen.Window.close(); }),
                         [](const auto& test) {
                           return (Texts{"Cancel", "Escape", "Cross"})[test.index];
                         });

TEST(SteelWindowAgain, RemembersNothing) {
  SteelDesk desk;
  {
    SteelWindow window(desk.Form, nullptr);
    ShowActive(window);
    Pick(Find<QComboBox>(window, "cmbSteelName"), "С345");
    ClickBox(Find<QLineEdit>(window, "txtRyfason"));
    Click(Find<QAbstractButton>(window, "optOtvetstven1"));
    auto& table = Find<QTableWidget>(window, "MSFGridYc");
    QTest::mouseClick(table.viewport(), Qt::LeftButton, {},
                      table.visualItemRect(table.item(1, 2)).center());
    ASSERT_EQ(desk.Form.Yc, 0.8);
    Press(Qt::Key_Escape);
  }
  desk.Form.Form_Load();
  SteelWindow window(desk.Form, nullptr);
  ShowActive(window);
  EXPECT_EQ(FromQt(Find<QComboBox>(window, "cmbSteelName").currentText()), "С235");
  EXPECT_TRUE(Find<QAbstractButton>(window, "optOtvetstven2").isChecked());
  EXPECT_FALSE(Find<QAbstractButton>(window, "optOtvetstven1").isChecked());
  EXPECT_EQ(Find<QLineEdit>(window, "txtRysheet").backgroundRole(), QPalette::Base);
  EXPECT_TRUE(Find<QTableWidget>(window, "MSFGridYc").selectedItems().isEmpty());
  Click(Find<QAbstractButton>(window, "cmdApply"));
  EXPECT_EQ(desk.Main.All(), "Сталь С235 От 2 до 20|230|1|0.9");
}

TEST(SteelWindowWithoutItsTable, OpensWithEmptyListsAndAFullGrid) {
  SteelScreen screen({}, true);
  ASSERT_EQ(screen.World.Messages.Shown.size(), 1U);
  EXPECT_EQ(screen.World.Messages.Shown[0].Text, "Ошибка считывания из ресурсов ");
  EXPECT_EQ(screen.Grades().count(), 0);
  EXPECT_EQ(screen.Ranges().count(), 0);
  EXPECT_EQ(screen.Conditions().rowCount(), 7);
  screen.ClickRow(1);
  EXPECT_EQ(screen.Form.Yc, 0.8);
}

TEST(SteelWindowKeyboard, TabReachesEveryInputOnce) {
  SteelScreen screen;
  ExpectTabReachesEveryInputOnce(screen.Window);
}

TEST(SteelWindowKeyboard, TabGoesFromTheSteelOverTheClassesToTheConditions) {
  SteelScreen screen;
  Texts names;
  for (const QWidget* widget : WalkByTab()) {
    names.push_back(FromQt(widget->objectName()));
  }
  names.resize(10);
  EXPECT_EQ(names,
            (Texts{"cmbSteelName", "cmbSheetThick", "txtRysheet", "txtRyfason", "optOtvetstven1",
                   "optOtvetstven2", "optOtvetstven3", "optOtvetstven4", "MSFGridYc", "cmdApply"}));
}

TEST(SteelWindowKeyboard, EveryInputHasANameToBeReadAloud) {
  SteelScreen screen;
  ExpectEveryInputHasAName(screen.Window);
}

TEST(SteelWindowKeyboard, UnderlinedLettersLeadToTheInputs) {
  SteelScreen screen;
  for (const auto* label : screen.Window.findChildren<QLabel*>()) {
    if (label->buddy() != nullptr) {
      screen.Apply().setFocus();
      PressMnemonic(label->text());
      EXPECT_EQ(QApplication::focusWidget(), label->buddy()) << FromQt(label->text());
    }
  }
}

TEST(SteelWindowOfTheProgram, WritesToTheBoxesOfTheMainWindow) {
  int opened = 0;
  ProgramWith program({.ShowSteel = [&](frmSteel& form) {
    SteelWindow window(form, nullptr);
    ShowActive(window);
    Pick(Find<QComboBox>(window, "cmbSteelName"), "С440");
    Click(Find<QAbstractButton>(window, "optOtvetstven3"));
    Click(Find<QAbstractButton>(window, "cmdApply"));
    ++opened;
  }});
  program.Root.Main().txtProgib.SetText("12");
  program.GoTo(2);
  program.Press("cmdSteelGet");
  EXPECT_EQ(opened, 1);
  EXPECT_EQ(program.TextIn("txtRy"), "430");
  EXPECT_EQ(program.TextIn("txtNadegnost"), "0.95");
  EXPECT_EQ(program.TextIn("txtUsloviyaRabot"), "0.9");
  EXPECT_EQ(program.CaptionIn("lblStillName"), "Сталь С440 От 4 до 30");
  EXPECT_EQ(program.TextIn("txtProgib"), "");
}

}  // namespace
}  // namespace trelonit::test
