#include <QStatusBar>
#include <gtest/gtest.h>

#include "tests/windows/main/Screen.h"
#include "tests/windows/results/ResultsScreen.h"

namespace trelonit::test {
namespace {

TEST(MainWindowPlace, IsKeptUntilTheNextStart) {
  Desk desk;
  frmMain& form = desk.MakeAndLoad();
  QSize left;
  {
    MainWindow window(form, desk.Outside.Settings);
    window.show();
    // Smaller than the screen of the tests, larger than the tabs need.
    window.resize(window.size() + QSize(-20, 30));
    left = window.size();
    EXPECT_EQ(desk.Outside.Settings.Get("Window", "Geometry", ""), "");
    window.close();
  }
  EXPECT_NE(desk.Outside.Settings.Get("Window", "Geometry", ""), "");
  MainWindow next(form, desk.Outside.Settings);
  next.show();
  EXPECT_EQ(next.size(), left);
}

TEST(MainWindowPlace, IsKeptTooWhereTheMenuEndsTheProgram) {
  Desk desk;
  frmMain& form = desk.MakeAndLoad();
  {
    MainWindow window(form, desk.Outside.Settings);
    window.show();
    window.findChild<QAction*>(QStringLiteral("Exit"))->trigger();
  }
  EXPECT_NE(desk.Outside.Settings.Get("Window", "Geometry", ""), "");
}

TEST(MainWindowPlace, ThatIsDamagedDoesNotMatter) {
  for (const char* stored : {"", "abc", "////", "AdnQywADAAA="}) {
    Desk desk;
    frmMain& form = desk.MakeAndLoad();
    desk.Outside.Settings.Set("Window", "Geometry", stored);
    MainWindow window(form, desk.Outside.Settings);
    window.show();
    EXPECT_TRUE(window.isVisible()) << stored;
    EXPECT_GT(window.width(), 500) << stored;
  }
}

TEST(ClosingTheMainWindow, EndsTheProgramWithoutAQuestion) {
  Screen screen;
  screen.TypeInto("txtLengthF", "77");
  const int writes = screen.Outside.Files.Writes;
  screen.Window.close();
  EXPECT_EQ(screen.Opened, std::vector<std::string>{"End"});
  EXPECT_EQ(screen.TakeMessages(), Messages());
  EXPECT_TRUE(screen.Outside.Dialogs.Requests.empty());
  EXPECT_EQ(screen.Outside.Files.Writes, writes);
}

TEST(ClosingTheMainWindow, ByTheMenuEndsTheProgramToo) {
  Screen screen;
  screen.MenuEntry("Exit").trigger();
  EXPECT_EQ(screen.Opened, std::vector<std::string>{"End"});
}

TEST(MainWindowCaption, RunsWithTheTimerOfTheForm) {
  Screen screen;
  EXPECT_EQ(screen.Main.tmrRuningString.Interval(), 200);
  const QString start = screen.Window.windowTitle();
  EXPECT_TRUE(QTest::qWaitFor([&] { return screen.Window.windowTitle() != start; }, 2000));
  EXPECT_EQ(FromQt(screen.Window.windowTitle()), screen.Main.Form.Caption());
  EXPECT_EQ(screen.Main.Form.Caption().rfind("Трелонит v 1.0.0 *** ", 0), 0U);
}

TEST(MainWindowCaption, StandsStillWhileTheTimerIsOff) {
  Screen screen;
  screen.Main.tmrRuningString.SetEnabled(false);
  const QString before = screen.Window.windowTitle();
  QTest::qWait(300);
  EXPECT_EQ(screen.Window.windowTitle(), before);
}

TEST(MainWindowStatusBar, ShowsTimeDateAndTheLocks) {
  Screen screen;
  std::vector<std::string> names;
  for (const QLabel* label : screen.Window.statusBar()->findChildren<QLabel*>()) {
    names.push_back(FromQt(label->accessibleName()));
    EXPECT_FALSE(label->text().isEmpty()) << names.back();
  }
  for (const char* name : {"Время", "Дата", "Num Lock", "Caps Lock", "Scroll Lock"}) {
    EXPECT_EQ(std::count(names.begin(), names.end(), name), 1) << name;
  }
  const auto& locks = FindAccessible<QLabel>(screen.Window, "Num Lock");
  EXPECT_EQ(locks.text(), "NUM");
  EXPECT_EQ(FindAccessible<QLabel>(screen.Window, "Caps Lock").text(), "CAPS");
  EXPECT_EQ(FindAccessible<QLabel>(screen.Window, "Scroll Lock").text(), "SCRL");
}

TEST(MainWindowSize, FitsASmallScreen) {
  Screen screen;
  for (int tab = 0; tab < 3; ++tab) {
    screen.GoTo(tab);
    EXPECT_LE(screen.Window.minimumSizeHint().width(), 1366) << tab;
    EXPECT_LE(screen.Window.minimumSizeHint().height(), 768) << tab;
  }
}

TEST(MainWindowOfAComma, ShowsItsNumbersWithIt) {
  Screen screen(CommaLocale());
  EXPECT_EQ(screen.Edit("txtUsloviyaRabot").text(), "0,9");
  EXPECT_EQ(screen.Hopt(), "Hopt = 2,00000");
  screen.TypeInto("txtLengthF", "24.5");
  screen.GoTo(1);
  EXPECT_EQ(screen.Main.Model.Accepted.LengthF, 24.5);
  EXPECT_EQ(screen.TakeMessages(), Messages());
}

TEST(TwoMainWindows, DoNotShareAnything) {
  Screen first;
  Screen second;
  first.TypeInto("txtLengthF", "30");
  first.Press("imgTreloType3");
  EXPECT_EQ(second.Edit("txtLengthF").text(), "20");
  EXPECT_TRUE(second.Button("imgTreloType1").isChecked());
}

}  // namespace
}  // namespace trelonit::test
