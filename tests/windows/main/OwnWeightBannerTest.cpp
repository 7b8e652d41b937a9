// What the main window says of own weight that a project has in its loads already.

#include "tests/windows/DialogHands.h"
#include "tests/windows/main/Screen.h"
#include "windows/help/HelpKey.h"

namespace trelonit::test {
namespace {

/// A main window with a project that was saved after a calculation with own weight.
class Banner : public ::testing::Test, public Screen {
 protected:
  Banner() {
    AddWeight();
    Window.activateWindow();
  }
  void AddWeight() {
    Main.chkOwnWeight.SetChecked(true);
    // A project of an older version keeps the weight in its loads.
    for (BoundedArray<double>* panels :
         {&Main.Model.Inputs.Loads.UpDistForce, &Main.Model.Inputs.Loads.DwnDistForce}) {
      for (double& load : *panels) {
        load = weight;
      }
    }
    Outside.Dialogs.Names = {"/weight", "/weight"};
    Outside.Messages.Answers = {MessageAnswer::Yes};
    Main.SaveParam_Click();
    Main.Restore_Click();
    TakeMessages();
  }
  QWidget& Line() { return Find<QWidget>(Window, "lblOwnWeightTwice"); }
  double Load() { return Main.Model.Inputs.Loads.UpDistForce[1]; }

  // Tonnes per metre of both chords, about what the sections of the start weigh.
  static constexpr double weight = 0.002;
};

TEST_F(Banner, IsThereOnEveryTab) {
  ASSERT_TRUE(Main.lblOwnWeightTwice.Visible());
  for (int tab = 0; tab < 3; ++tab) {
    GoTo(tab);
    EXPECT_TRUE(Line().isVisible()) << tab;
    const auto& text = *Line().findChild<QLabel*>();
    EXPECT_EQ(FromQt(text.text()), Main.lblOwnWeightTwice.Caption());
    EXPECT_FALSE(text.text().isEmpty());
    EXPECT_LT(Line().geometry().bottom(), Tabs().geometry().top() + 1);
  }
}

TEST_F(Banner, TakesTheWeightOutOfTheLoads) {
  EXPECT_EQ(Load(), weight);
  Press("cmdTakeOwnWeightOut");
  EXPECT_EQ(Load(), 0);
  EXPECT_FALSE(Line().isVisible());
  EXPECT_EQ(TakeMessages(), Messages());
}

TEST_F(Banner, LeavesTheLoadsAsTheyAre) {
  Press("cmdKeepOwnWeight");
  EXPECT_EQ(Load(), weight);
  EXPECT_FALSE(Line().isVisible());
}

TEST_F(Banner, GoesAndComesWithTheOwnWeight) {
  GoTo(2);
  Press("chkOwnWeight");
  EXPECT_FALSE(Line().isVisible());
  Press("chkOwnWeight");
  EXPECT_TRUE(Line().isVisible());
}

TEST_F(Banner, IsWorkedByTheKeys) {
  ASSERT_TRUE(QTest::qWaitForWindowActive(&Window));
  Tabs().tabBar()->setFocus();
  const std::vector<QWidget*> reached = WalkByTab();
  for (const char* name : {"cmdTakeOwnWeightOut", "cmdKeepOwnWeight"}) {
    EXPECT_EQ(std::count(reached.begin(), reached.end(), &Button(name)), 1) << name;
  }
  Button("cmdTakeOwnWeightOut").setFocus();
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Space);
  EXPECT_EQ(Load(), 0);
}

TEST_F(Banner, HasUnderlinedLettersOfItsOwn) {
  ASSERT_TRUE(QTest::qWaitForWindowActive(&Window));
  for (int tab = 0; tab < 3; ++tab) {
    GoTo(tab);
    if (!Line().isVisible()) {
      AddWeight();
    }
    Tabs().tabBar()->setFocus();
    PressMnemonic(Button("cmdKeepOwnWeight").text());
    EXPECT_TRUE(Soon([&] { return !Line().isVisible(); })) << tab;
    AddWeight();
    GoTo(tab);
    Tabs().tabBar()->setFocus();
    PressMnemonic(Button("cmdTakeOwnWeightOut").text());
    EXPECT_TRUE(Soon([&] { return !Line().isVisible(); })) << tab;
    EXPECT_EQ(Load(), 0) << tab;
  }
}

TEST_F(Banner, HasItsPageOfTheGuideOnF1) {
  Texts asked;
  const HelpKey key([&](const QString& place) { asked.push_back(FromQt(place)); });
  QTest::keyClick(&Button("cmdKeepOwnWeight"), Qt::Key_F1);
  EXPECT_EQ(asked, Texts{"finding-own-weight-twice"});
}

TEST_F(Banner, IsReadAloud) {
  EXPECT_FALSE(Line().accessibleName().isEmpty());
  EXPECT_EQ(FromQt(Line().accessibleDescription()), Main.lblOwnWeightTwice.Caption());
  for (const char* name : {"cmdTakeOwnWeightOut", "cmdKeepOwnWeight"}) {
    EXPECT_FALSE(Button(name).accessibleDescription().isEmpty()) << name;
  }
}

TEST_F(Banner, LetsTheWindowFitASmallScreen) {
  Window.resize(1280, 720);
  for (int tab = 0; tab < 3; ++tab) {
    GoTo(tab);
    EXPECT_LE(Window.minimumSizeHint().width(), 1280) << tab;
    EXPECT_LE(Window.minimumSizeHint().height(), 720) << tab;
    EXPECT_EQ(Window.size(), QSize(1280, 720)) << tab;
  }
}

TEST(BannerOfAnotherProject, IsNotThere) {
  Screen screen;
  EXPECT_FALSE(Find<QWidget>(screen.Window, "lblOwnWeightTwice").isVisible());
  EXPECT_EQ(screen.Tabs().mapTo(&screen.Window, QPoint()).y(),
            screen.Window.menuBar()->geometry().bottom() + 1);
}

}  // namespace
}  // namespace trelonit::test
