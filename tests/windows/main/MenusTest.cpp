#include <gtest/gtest.h>

#include "tests/windows/main/Screen.h"

namespace trelonit::test {
namespace {

class WindowMenus : public ::testing::Test, public Screen {};

TEST_F(WindowMenus, HaveTheUsualKeys) {
  EXPECT_EQ(MenuEntry("SaveParam").shortcut(), QKeySequence(QKeySequence::Save));
  EXPECT_EQ(MenuEntry("Restore").shortcut(), QKeySequence(QKeySequence::Open));
  EXPECT_EQ(MenuEntry("Exit").shortcut(), QKeySequence("Alt+F4"));
  EXPECT_EQ(MenuEntry("mnuCalc").shortcut(), QKeySequence("F9"));
  EXPECT_EQ(MenuEntry("mnuSearch").shortcut(), QKeySequence("Ctrl+F9"));
  EXPECT_EQ(MenuEntry("mnuOtchet").shortcut(), QKeySequence("Shift+F9"));
  EXPECT_EQ(MenuEntry("UserHelp").shortcut(), QKeySequence(QKeySequence::HelpContents));
}

TEST_F(WindowMenus, OpenTheirWindows) {
  for (const char* name : {"mnuSearch", "mnuOtchet", "mnuProfile", "optio", "About", "Exit"}) {
    EXPECT_TRUE(MenuEntry(name).isEnabled()) << name;
    MenuEntry(name).trigger();
  }
  EXPECT_EQ(Opened, (std::vector<std::string>{"Search", "Otchet", "DataManager", "Paramerty",
                                              "About", "End"}));
}

TEST_F(WindowMenus, TheCatalogueManagerHidesTheWindowMeanwhile) {
  bool seen = true;
  Main.Form.SetVisible(true);
  ASSERT_TRUE(Window.isVisible());
  const auto bound = Main.Form.Bound;
  Main.Form.Bound = [&] {
    bound();
    seen = seen && Window.isVisible();
  };
  MenuEntry("mnuProfile").trigger();
  EXPECT_FALSE(seen);
  EXPECT_TRUE(Window.isVisible());
}

TEST_F(WindowMenus, CalculationTakesTheWayThroughTheGeometry) {
  TypeInto("txtLengthF", "24");
  MenuEntry("mnuCalc").trigger();
  EXPECT_EQ(Results.size(), 1U);
  EXPECT_EQ(Main.Model.Accepted.LengthF, 24);
  EXPECT_EQ(Tabs().currentIndex(), 2);
}

TEST_F(WindowMenus, CalculationWithAWrongGeometryIsRefused) {
  TypeInto("txtLengthF", "-5");
  MenuEntry("mnuCalc").trigger();
  EXPECT_EQ(TakeMessages(), Messages{Stop(wrongGeometry)});
  EXPECT_TRUE(Results.empty());
  EXPECT_EQ(Tabs().currentIndex(), 0);
}

TEST_F(WindowMenus, SaveAndRestoreTheInputs) {
  Outside.Dialogs.Names = {"/a.tsav", "/a.tsav"};
  TypeInto("txtLengthF", "33");
  MenuEntry("SaveParam").trigger();
  TypeInto("txtLengthF", "44");
  MenuEntry("Restore").trigger();
  EXPECT_EQ(Edit("txtLengthF").text(), "33");
  EXPECT_EQ(TakeMessages(), Messages());
  ASSERT_EQ(Outside.Dialogs.Requests.size(), 2U);
  EXPECT_EQ(Outside.Dialogs.Requests[0].Title, "Укажите имя нового файла сохранения параметров");
  EXPECT_EQ(Outside.Dialogs.Requests[0].Filter, "trelo save files (*.tsav)|*.tsav");
}

TEST_F(WindowMenus, ACancelledDialogIsTold) {
  MenuEntry("SaveParam").trigger();
  MenuEntry("Restore").trigger();
  const Messages told = TakeMessages();
  ASSERT_EQ(told.size(), 2U);
  EXPECT_EQ(told[0].Text, "Сохранение отменено !");
  EXPECT_EQ(told[1].Text, "Указаный файл не найден ! Восстановление отменено !");
}

TEST_F(WindowMenus, AnExistingFileIsAskedAbout) {
  Outside.Files.Content["/a.tsav"] = "old";
  Outside.Dialogs.Names = {"/a.tsav"};
  Outside.Messages.Answers = {MessageAnswer::Yes};
  MenuEntry("SaveParam").trigger();
  const Message question{"Переписать файл ?", "Такой файл уже существует! Заменить?",
                         MessageStyle::QuestionYesNo};
  EXPECT_EQ(TakeMessages(), Messages{question});
  EXPECT_NE(Outside.Files.Content["/a.tsav"], "old");
}

TEST_F(WindowMenus, HelpOpensOrTellsThatItIsMissing) {
  MenuEntry("UserHelp").trigger();
  const Message missing{"FindHelpFile",
                        "\n Файл справки : /program/Trelo calculation.chm не найден !\n",
                        MessageStyle::Critical};
  EXPECT_EQ(TakeMessages(), Messages{missing});
  Outside.Files.Content["/program/Trelo calculation.chm"] = "";
  MenuEntry("UserHelp").trigger();
  EXPECT_EQ(Outside.Shell.HelpOpened.size(), 1U);
}

TEST(WindowMenusWithoutWindows, AreDisabled) {
  Desk desk;
  frmMain form(desk.Outside.Bundle(), {});
  form.Form_Load();
  const MainWindow window(form, desk.Outside.Settings);
  for (const char* name : {"mnuSearch", "mnuOtchet", "mnuProfile", "optio", "About"}) {
    EXPECT_FALSE(window.findChild<QAction*>(name)->isEnabled()) << name;
  }
  for (const char* name : {"SaveParam", "Restore", "Exit", "mnuCalc", "UserHelp"}) {
    EXPECT_TRUE(window.findChild<QAction*>(name)->isEnabled()) << name;
  }
}

}  // namespace
}  // namespace trelonit::test
