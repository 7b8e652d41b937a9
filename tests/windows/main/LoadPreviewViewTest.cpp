#include <gtest/gtest.h>

#include "tests/windows/Pixels.h"
#include "tests/windows/main/Screen.h"
#include "windows/binding/Pictures.h"

namespace trelonit::test {
namespace {

class LoadPreviewPicture : public ::testing::Test, public Screen {
 protected:
  LoadPreviewPicture() { GoTo(2); }

  QWidget& View() { return Find<QWidget>(Window, "Picture1"); }
  /// Where a share of the chord stands: 0 its left end, 1 its right one.
  int ChordX(double share) {
    const double side = 36;
    return static_cast<int>(side + share * (View().width() - 2 * side));
  }
  void PressAt(double share) {
    QTest::mouseClick(&View(), Qt::LeftButton, {}, {ChordX(share), View().height() / 2});
  }
  int RedPixels() { return CountPixels(View(), WarningColor(View().palette())); }
  int LoadPixels() { return CountPixels(View(), LoadColor(View().palette())); }
};

TEST_F(LoadPreviewPicture, APressChoosesTheNearestJoint) {
  PressAt(0.69);
  EXPECT_EQ(Combo("cmbKnotNum").currentText(), "7");
  PressAt(0.02);
  EXPECT_EQ(Combo("cmbKnotNum").currentText(), "0");
  PressAt(1.02);
  EXPECT_EQ(Combo("cmbKnotNum").currentText(), "10");
}

TEST_F(LoadPreviewPicture, APressChoosesThePanelWithTheDistributedTool) {
  Press("imgDistForce");
  PressAt(0.69);
  EXPECT_EQ(Combo("cmbKnotNum").currentText(), "6");
  PressAt(0.99);
  EXPECT_EQ(Combo("cmbKnotNum").currentText(), "9");
}

TEST_F(LoadPreviewPicture, APressChoosesOnTheShorterLowerChord) {
  GoTo(0);
  Press("imgTreloType4");
  GoTo(2);
  Press("tglDwnPoyas");
  // Ten panels above, five joints with four panels between them below.
  PressAt(0.52);
  EXPECT_EQ(Combo("cmbKnotNum").currentText(), "2");
  PressAt(1);
  EXPECT_EQ(Combo("cmbKnotNum").currentText(), "4");
}

TEST_F(LoadPreviewPicture, ForcesGoToThePressedJoint) {
  PressAt(0.3);
  TypeInto("txtForceVal", "2");
  Press("cmdAddForce");
  EXPECT_EQ(Main.Model.Inputs.Loads.UpPForce[3], 2);
}

TEST_F(LoadPreviewPicture, ShowsTheChosenPieceRed) {
  Press("imgDistForce");
  const int one = RedPixels();
  EXPECT_GT(one, 0);
  Press("chkAllPanels");
  EXPECT_GT(RedPixels(), 8 * one);
}

TEST_F(LoadPreviewPicture, ShowsAndHidesTheLoads) {
  EXPECT_EQ(LoadPixels(), 0);
  PickIn("cmbKnotNum", "5");
  TypeInto("txtForceVal", "2");
  Press("cmdAddForce");
  EXPECT_GT(LoadPixels(), 0);
  Press("tglDwnPoyas");
  EXPECT_EQ(LoadPixels(), 0);
  Press("tglUpPoyas");
  EXPECT_GT(LoadPixels(), 0);
  Press("cmdClearLoads");
  EXPECT_EQ(LoadPixels(), 0);
}

TEST_F(LoadPreviewPicture, ShowsPanelLoads) {
  Press("imgDistForce");
  Press("chkAllPanels");
  TypeInto("txtForceVal", "12345.6789");
  Press("cmdAddForce");
  EXPECT_GT(LoadPixels(), 0);
}

TEST_F(LoadPreviewPicture, StaysUsableAfterItsWindow) {
  Desk desk;
  frmMain& form = desk.MakeAndLoad();
  {
    MainWindow window(form, desk.Outside.Settings);
    window.CompleteTabs();
    EXPECT_TRUE(form.PreviewChanged);
  }
  EXPECT_FALSE(form.PreviewChanged);
  form.tabMain.SetTab(2);
  AddForce(form, 1, "5");
  EXPECT_EQ(form.Model.Inputs.Loads.UpPForce[1], 5);
}

}  // namespace
}  // namespace trelonit::test
