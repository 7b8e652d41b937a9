#include <QPushButton>
#include <gtest/gtest.h>

#include "tests/windows/main/Screen.h"

namespace trelonit::test {
namespace {

class WindowHistory : public ::testing::Test, public Screen {
 protected:
  WindowHistory() {
    Window.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&Window));
  }
  /// Lets the window look for a step, as it does when an event has been served.
  static void Settle() { QTest::qWait(1); }
  static void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::ControlModifier) {
    QTest::keyClick(QApplication::focusWidget(), key, modifiers);
    Settle();
  }
  void TypeAndSettle(const std::string& name, const std::string& text) {
    TypeInto(name, text);
    Settle();
  }
};

TEST_F(WindowHistory, HasItsMenuBehindTheFirst) {
  const QList<QAction*> menus = Window.menuBar()->actions();
  EXPECT_EQ(FromQt(menus[0]->text()), "&Файл");
  EXPECT_EQ(FromQt(menus[1]->text()), "&Правка");
  EXPECT_EQ(FromQt(menus[2]->text()), "Расчет");
  EXPECT_EQ(FromQt(MenuEntry("mnuUndo").text()), "Отменить");
  EXPECT_FALSE(MenuEntry("mnuUndo").isEnabled());
  EXPECT_FALSE(MenuEntry("mnuRedo").isEnabled());
}

TEST_F(WindowHistory, TypingAndUndoGoBackToTheTextBeforeIt) {
  TypeAndSettle("txtLengthF", "30");
  Key(Qt::Key_Z);
  EXPECT_EQ(FromQt(Edit("txtLengthF").text()), "20");
  Key(Qt::Key_Y);
  EXPECT_EQ(FromQt(Edit("txtLengthF").text()), "30");
}

TEST_F(WindowHistory, UndoGoesOnBehindTheBoxThatHasTheFocus) {
  TypeAndSettle("txtHight", "3");
  TypeAndSettle("txtLengthF", "30");
  Key(Qt::Key_Z);
  Key(Qt::Key_Z);
  EXPECT_EQ(FromQt(Edit("txtLengthF").text()), "20");
  EXPECT_EQ(FromQt(Edit("txtHight").text()), "1.5");
  EXPECT_FALSE(MenuEntry("mnuUndo").isEnabled());
}

TEST_F(WindowHistory, TwoVisitsOfABoxAreTwoSteps) {
  TypeAndSettle("txtLengthF", "30");
  Edit("txtHight").setFocus();
  Settle();
  TypeAndSettle("txtLengthF", "40");
  Key(Qt::Key_Z);
  EXPECT_EQ(FromQt(Edit("txtLengthF").text()), "30");
}

TEST_F(WindowHistory, AValueThatIsStillBeingTypedIsTakenBackByItsBox) {
  GoTo(2);
  PickIn("cmbKnotNum", "3");
  TypeInto("txtForceVal", "2");
  Press("cmdAddForce");
  Settle();
  TypeAndSettle("txtForceVal", "77");
  QTest::keyClick(&Edit("txtForceVal"), Qt::Key_Z, Qt::ControlModifier);
  EXPECT_NE(FromQt(Edit("txtForceVal").text()), "77");
  EXPECT_EQ(Main.Model.Inputs.Loads.UpPForce[3], 2);
}

TEST_F(WindowHistory, AValueThatHasBecomeALoadIsTakenBackAsThatLoad) {
  GoTo(2);
  TypeInto("txtForceVal", "2");
  Key(Qt::Key_Return, Qt::NoModifier);
  ASSERT_EQ(Main.Model.Inputs.Loads.UpPForce[0], 2);
  Edit("txtForceVal").setFocus();
  Key(Qt::Key_Z);
  EXPECT_EQ(Main.Model.Inputs.Loads.UpPForce[0], 0);
  EXPECT_EQ(FromQt(Edit("txtForceVal").text()), "2");
}

TEST_F(WindowHistory, PicturesAndListsAreSteps) {
  Press("imgTreloType4");
  Settle();
  PickIn("cmbPanelNum", "16");
  Settle();
  EXPECT_EQ(FromQt(MenuEntry("mnuUndo").text()), "Отменить: число панелей");
  MenuEntry("mnuUndo").trigger();
  EXPECT_EQ(FromQt(Combo("cmbPanelNum").currentText()), "10");
  MenuEntry("mnuUndo").trigger();
  EXPECT_EQ(Main.Model.Inputs.TreloType, 1);
  EXPECT_TRUE(Button("imgTreloType1").isChecked());
}

TEST_F(WindowHistory, ATypedGapIsAStepOnceItIsFinished) {
  GoTo(1);
  Press("imgProfileSecSelect2");
  Settle();
  Combo("cmbGdist").setFocus();
  Combo("cmbGdist").lineEdit()->selectAll();
  QTest::keyClicks(Combo("cmbGdist").lineEdit(), "17");
  Key(Qt::Key_Tab, Qt::NoModifier);
  ASSERT_EQ(Main.Model.Inputs.ElementSection[1].Gdist, 17);
  Key(Qt::Key_Z);
  EXPECT_EQ(Main.Model.Inputs.ElementSection[1].Gdist, 4);
  EXPECT_EQ(FromQt(Combo("cmbGdist").currentText()), "4");
}

TEST_F(WindowHistory, LostLoadsAreToldWithTheirUndo) {
  GoTo(2);
  PickIn("cmbKnotNum", "10");
  TypeInto("txtForceVal", "2");
  Press("cmdAddForce");
  Settle();
  GoTo(0);
  auto& banner = Find<QWidget>(Window, "lblLoadsLost");
  EXPECT_FALSE(banner.isVisible());
  PickIn("cmbPanelNum", "8");
  Settle();
  ASSERT_TRUE(banner.isVisible());
  EXPECT_EQ(FromQt(banner.accessibleDescription()), "Потеряно нагрузок: 1.");
  Press("cmdUndoLoss");
  EXPECT_FALSE(banner.isVisible());
  EXPECT_EQ(Main.Model.Inputs.Loads.UpPForce[10], 2);
  EXPECT_EQ(FromQt(Combo("cmbPanelNum").currentText()), "10");
}

TEST_F(WindowHistory, ACommandWithAWindowIsOneStepThatIsNotedBehindIt) {
  GoTo(2);
  TypeInto("txtForceVal", "20");
  Press("cmdAddForce");
  Settle();
  TakesProposals = true;
  Press("cmdCalcAndSelect");
  Settle();
  EXPECT_NE(Main.Model.Inputs.ElementSection[1].SizeIdx, 1);
  MenuEntry("mnuUndo").trigger();
  EXPECT_EQ(Main.Model.Inputs.ElementSection[1].SizeIdx, 1);
  EXPECT_EQ(FromQt(MenuEntry("mnuUndo").text()), "Отменить: нагрузки");
}

}  // namespace
}  // namespace trelonit::test
