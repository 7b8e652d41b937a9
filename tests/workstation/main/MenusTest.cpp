#include <gtest/gtest.h>

#include "tests/workstation/main/Desk.h"

namespace trelonit::test {
namespace {

/// The entry with this name in any of the menus.
frmMain::MenuItem Item(frmMain& form, const std::string& name) {
  for (const frmMain::MenuItem& menu : form.Menus()) {
    for (const frmMain::MenuItem& item : menu.Items) {
      if (item.Name == name) {
        return item;
      }
    }
  }
  throw std::logic_error("no menu entry " + name);
}

/// The menus as lines: a menu's own, then its entries indented.
std::vector<std::string> Outline(frmMain& form) {
  std::vector<std::string> lines;
  for (const frmMain::MenuItem& menu : form.Menus()) {
    lines.push_back(menu.Name + " \"" + menu.Caption + "\"");
    for (const frmMain::MenuItem& item : menu.Items) {
      lines.push_back("  " + item.Name + " \"" + item.Caption + "\"");
    }
  }
  return lines;
}

TEST(Menus, StandInTheirOrder) {
  StartedDesk desk;
  const std::vector<std::string> expected{"File \"&Файл\"",
                                          "  SaveParam \"Сохранить\"",
                                          "  Restore \"Восстановить\"",
                                          "  Exit \"Выход Alt+F4\"",
                                          "mnuCalcmain \"Расчет\"",
                                          "  mnuCalc \"Вычислить\"",
                                          "  mnuSearch \"Подобрать ...\"",
                                          "  mnuOtchet \"Отчет расчета ...\"",
                                          "DataBase \"База данных\"",
                                          "  mnuProfile \"Профильный прокат...\"",
                                          "Options \"&Параметры\"",
                                          "  optio \"Па&раметры стали\"",
                                          "Help \"&Помощь\"",
                                          "  About \"&О программе...\"",
                                          "  UserHelp \"Справка\""};
  EXPECT_EQ(Outline(desk.Main), expected);
}

TEST(Menus, AreAllEnabledWhereEveryWindowIsThere) {
  StartedDesk desk;
  for (const frmMain::MenuItem& menu : desk.Main.Menus()) {
    EXPECT_TRUE(menu.Enabled) << menu.Name;
    for (const frmMain::MenuItem& item : menu.Items) {
      EXPECT_TRUE(item.Enabled) << item.Name;
      EXPECT_TRUE(item.Click) << item.Name;
    }
  }
}

TEST(Menus, DisableWhatHasNoWindow) {
  Desk desk;
  frmMain form(desk.Outside.Bundle(), {});
  form.Form_Load();
  std::vector<std::string> disabled;
  for (const frmMain::MenuItem& menu : form.Menus()) {
    for (const frmMain::MenuItem& item : menu.Items) {
      EXPECT_EQ(item.Enabled, static_cast<bool>(item.Click)) << item.Name;
      if (!item.Enabled) {
        disabled.push_back(item.Name);
      }
    }
  }
  const std::vector<std::string> expected{"mnuSearch", "mnuOtchet", "mnuProfile", "optio", "About"};
  EXPECT_EQ(disabled, expected);
}

TEST(Menus, OpenTheirWindows) {
  StartedDesk desk;
  for (const char* name : {"mnuSearch", "mnuOtchet", "mnuProfile", "optio", "About", "Exit"}) {
    Item(desk.Main, name).Click();
  }
  const std::vector<std::string> expected{"Search",    "Otchet", "DataManager",
                                          "Paramerty", "About",  "End"};
  EXPECT_EQ(desk.Opened, expected);
}

TEST(Menus, CalculateLikeTheButton) {
  StartedDesk desk;
  desk.Main.tabMain.SetTab(2);
  Item(desk.Main, "mnuCalc").Click();
  EXPECT_EQ(desk.Results.size(), 1U);
}

TEST(Menus, SaveAndRestoreTheProject) {
  StartedDesk desk;
  desk.Outside.Dialogs.Names = {"/a.tsav", "/a.tsav"};
  desk.Main.txtLengthF.SetText("33");
  Item(desk.Main, "SaveParam").Click();
  desk.Main.txtLengthF.SetText("44");
  Item(desk.Main, "Restore").Click();
  EXPECT_EQ(desk.Main.txtLengthF.Text(), "33");
}

TEST(CatalogueManagerCommand, HidesTheFormWhileTheManagerIsOpen) {
  StartedDesk desk;
  desk.Main.mnuProfile_Click();
  EXPECT_EQ(desk.Opened, std::vector<std::string>{"DataManager"});
  EXPECT_FALSE(desk.VisibleMeanwhile);
  EXPECT_TRUE(desk.Main.Form.Visible());
}

TEST(SteelParametersCommand, LeavesTheFormInSight) {
  StartedDesk desk;
  desk.Main.optio_Click();
  EXPECT_EQ(desk.Opened, std::vector<std::string>{"Paramerty"});
  EXPECT_TRUE(desk.VisibleMeanwhile);
}

TEST(SteelSelectionCommand, DropsTheShownDeflection) {
  StartedDesk desk;
  desk.Main.txtProgib.SetText("0.01234");
  desk.Main.Form.SetVisible(false);
  desk.Main.cmdSteelGet_Click();
  EXPECT_EQ(desk.Opened, std::vector<std::string>{"Steel"});
  EXPECT_EQ(desk.Main.txtProgib.Text(), "");
  EXPECT_TRUE(desk.Main.Form.Visible());
}

TEST(SteelSelectionCommand, DoesNotStopTheProgramWithoutItsWindow) {
  Desk desk;
  frmMain form(desk.Outside.Bundle(), {});
  form.Form_Load();
  EXPECT_NO_THROW(form.cmdSteelGet_Click());
}

TEST(Exit, EndsAtOnceWithoutSavingOrAsking) {
  StartedDesk desk;
  desk.Main.txtLengthF.SetText("77");
  const int writes = desk.Outside.Files.Writes;
  desk.Main.Exit_Click();
  EXPECT_EQ(desk.Opened, std::vector<std::string>{"End"});
  EXPECT_EQ(desk.TakeMessages(), Messages());
  EXPECT_TRUE(desk.Outside.Dialogs.Requests.empty());
  EXPECT_EQ(desk.Outside.Files.Writes, writes);
}

TEST(Help, OpensTheFileBesideTheProgram) {
  StartedDesk desk;
  desk.Outside.Files.Content["/program/Trelo calculation.chm"] = "";
  desk.Main.UserHelp_Click();
  EXPECT_EQ(desk.Outside.Shell.HelpOpened,
            std::vector<std::string>{"/program/Trelo calculation.chm"});
  EXPECT_EQ(desk.TakeMessages(), Messages());
}

TEST(Help, OnlyTellsThatTheFileIsMissing) {
  StartedDesk desk;
  desk.Main.UserHelp_Click();
  EXPECT_TRUE(desk.Outside.Shell.HelpOpened.empty());
  const Message missing{"FindHelpFile",
                        "\n Файл справки : /program/Trelo calculation.chm не найден !\n",
                        MessageStyle::Critical};
  EXPECT_EQ(desk.TakeMessages(), Messages{missing});
}

/// A desktop whose help viewer does not start.
class NoViewer : public RecordingShell {
 public:
  void OpenHelp(const std::string& /*path*/) override {
    throw RuntimeError(ErrorNumber::CannotCreateObject);
  }
};

TEST(Help, TellsThatTheViewerFails) {
  Desk desk;
  NoViewer shell;
  const Services whole = desk.Outside.Bundle();
  const Services services{whole.Messages,  whole.Dialogs,    whole.Clipboard, whole.Settings,
                          whole.Registry,  whole.Automation, shell,           whole.Clock,
                          whole.Resources, whole.Files,      whole.Locale,    whole.ProgramFolder};
  frmMain form(services, {});
  form.Form_Load();
  desk.Outside.Files.Content["/program/Trelo calculation.chm"] = "";
  form.UserHelp_Click();
  EXPECT_EQ(desk.TakeMessages(),
            (Messages{Tail("Help comand", 429, "ActiveX component can't create object")}));
}

TEST(VariantsEntry, IsThereForAProgramThatHasTheWindow) {
  Desk desk;
  int opened = 0;
  frmMain form(desk.Outside.Bundle(), {.ShowVariants = [&opened] { ++opened; }});
  form.Form_Load();
  const frmMain::MenuItem entry = form.FindMenuItem("mnuVariants");
  EXPECT_EQ(entry.Caption, "Варианты ...");
  entry.Click();
  EXPECT_EQ(opened, 1);
  EXPECT_EQ(form.tabMain.Tab(), 2);
  // Not from a geometry that makes no truss.
  form.tabMain.SetTab(0);
  form.txtHight.SetText("0");
  entry.Click();
  EXPECT_EQ(opened, 1);
}

TEST(VariantsEntry, IsMissingWithoutTheWindow) {
  StartedDesk desk;
  const frmMain::MenuItem entry = desk.Main.FindMenuItem("mnuVariants");
  EXPECT_EQ(entry.Caption, "");
  EXPECT_FALSE(entry.Enabled);
}

}  // namespace
}  // namespace trelonit::test
