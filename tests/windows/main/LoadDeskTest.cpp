#include <QClipboard>
#include <QTableView>
#include <gtest/gtest.h>

#include "tests/windows/main/Screen.h"
#include "windows/main/LoadPictureView.h"

namespace trelonit::test {
namespace {

class LoadTableOnScreen : public ::testing::Test, public Screen {
 protected:
  LoadTableOnScreen() {
    GoTo(2);
    Window.activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&Window));
  }
  /// As it is once the window has come to rest.
  QTableView& Table() {
    QTest::qWait(1);
    return Find<QTableView>(Window, "LoadTable");
  }
  std::string Cell(int row, int column) {
    return FromQt(Table().model()->index(row, column).data().toString());
  }
  void GoToRow(int row) { Table().setCurrentIndex(Table().model()->index(row, 3)); }
  void Key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QTest::keyClick(&Table(), key, modifiers);
    QTest::qWait(1);
  }
  void SelectRows(int first, int last) {
    const QRect place = Table().visualRect(Table().model()->index(first, 3));
    QTest::mouseClick(Table().viewport(), Qt::LeftButton, {}, place.center());
    for (int row = first; row < last; ++row) {
      QTest::keyClick(&Table(), Qt::Key_Down, Qt::ShiftModifier);
    }
  }
};

TEST_F(LoadTableOnScreen, HasAllPlacesOfTheTruss) {
  // Scheme 1 with 10 panels: 11 joints and 10 panels on each chord.
  EXPECT_EQ(Table().model()->rowCount(), 42);
  EXPECT_EQ(Cell(0, 0), "верхний");
  EXPECT_EQ(Cell(41, 1), "панель");
  EXPECT_EQ(Cell(41, 2), "9");
}

TEST_F(LoadTableOnScreen, AValueIsTypedAndReturnGoesOn) {
  GoToRow(2);
  Table().setFocus();
  QTest::keyClick(&Table(), Qt::Key_4);
  QWidget* box = QApplication::focusWidget();
  ASSERT_NE(qobject_cast<QLineEdit*>(box), nullptr);
  QTest::keyClicks(box, ",5");
  QTest::keyClick(box, Qt::Key_Return);
  QTest::qWait(1);
  EXPECT_EQ(Main.Model.Inputs.Loads.UpPForce[2], 4.5);
  EXPECT_EQ(Cell(2, 3), "4.5");
  EXPECT_EQ(Table().currentIndex().row(), 3);
}

TEST_F(LoadTableOnScreen, IsPastedDeletedAndFilledDown) {
  QApplication::clipboard()->setText(QStringLiteral("1\n2\n3"));
  GoToRow(4);
  Table().setFocus();
  Key(Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(Main.Model.Inputs.Loads.UpPForce[6], 3);
  SelectRows(4, 6);
  Key(Qt::Key_D, Qt::ControlModifier);
  EXPECT_EQ(Main.Model.Inputs.Loads.UpPForce[6], 1);
  SelectRows(5, 6);
  Key(Qt::Key_Delete);
  EXPECT_EQ(Main.Model.Inputs.Loads.UpPForce[4], 1);
  EXPECT_EQ(Main.Model.Inputs.Loads.UpPForce[5], 0);
  EXPECT_EQ(Main.Model.Inputs.Loads.UpPForce[6], 0);
  // Each of them is a step.
  Key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Main.Model.Inputs.Loads.UpPForce[6], 1);
  Key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Main.Model.Inputs.Loads.UpPForce[6], 3);
  Key(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Main.Model.Inputs.Loads.UpPForce[6], 0);
}

TEST_F(LoadTableOnScreen, TellsWhatItCannotPasteInOneLine) {
  auto& line = Find<QWidget>(Window, "lblLoadError");
  EXPECT_FALSE(line.isVisible());
  QApplication::clipboard()->setText(QStringLiteral("привет"));
  Table().setFocus();
  Key(Qt::Key_V, Qt::ControlModifier);
  EXPECT_TRUE(line.isVisible());
  EXPECT_EQ(TakeMessages(), Messages());
}

TEST_F(LoadTableOnScreen, CopiesItsSelectedRows) {
  SelectRows(0, 1);
  Table().setFocus();
  Key(Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(FromQt(QApplication::clipboard()->text()), "верхний\tузел\t0\t\nверхний\tузел\t1\t\n");
}

TEST_F(LoadTableOnScreen, FollowsTheLoadToolAndLeadsIt) {
  GoToRow(15);
  // The upper chord's panel 4.
  EXPECT_TRUE(Main.imgDistForce.Marked());
  EXPECT_EQ(Main.cmbKnotNum.Text(), "4");
  Press("imgPForce");
  PickIn("cmbKnotNum", "7");
  EXPECT_EQ(Table().currentIndex().row(), 7);
  Press("tglDwnPoyas");
  EXPECT_EQ(Table().currentIndex().row(), 21);
  TypeInto("txtForceVal", "3");
  Press("cmdAddForce");
  EXPECT_EQ(Cell(21, 3), "3");
}

TEST_F(LoadTableOnScreen, APressInThePictureChoosesJointOrPanel) {
  auto& picture = Find<LoadPictureView>(Window, "LoadPicture");
  ASSERT_GT(picture.height(), 100);
  // The lower left corner of the truss is nearer than everything else.
  QTest::mouseClick(&picture, Qt::LeftButton, {}, {2, picture.height() - 2});
  EXPECT_TRUE(Main.tglDwnPoyas.Value());
  EXPECT_EQ(Main.cmbKnotNum.Text(), "0");
  EXPECT_TRUE(Main.imgPForce.Marked());
  EXPECT_EQ(Table().currentIndex().row(), 21);
}

TEST_F(LoadTableOnScreen, OwnWeightIsARowThatCannotBeEdited) {
  Press("chkOwnWeight");
  Press("cmdCalculate");
  ASSERT_EQ(Table().model()->rowCount(), 43);
  EXPECT_EQ(Cell(0, 1), "собств. вес");
  EXPECT_FALSE(Table().model()->flags(Table().model()->index(0, 3)) & Qt::ItemIsEditable);
  EXPECT_TRUE(Table().model()->flags(Table().model()->index(1, 3)) & Qt::ItemIsEditable);
  EXPECT_EQ(Cell(12, 3), "");
}

}  // namespace
}  // namespace trelonit::test
