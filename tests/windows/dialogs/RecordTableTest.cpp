// The table of all records, the search and the check beside the record of the catalogue's manager.

#include <QShortcut>

#include "tests/windows/dialogs/ManagerScreen.h"
#include "windows/binding/Pictures.h"
#include "windows/dialogs/RecordTable.h"

namespace trelonit::test {
namespace {

class RecordTableOfManager : public ::testing::Test {
 protected:
  RecordTable& Table() {
    return dynamic_cast<RecordTable&>(Find<QWidget>(screen.Window, "Records"));
  }
  std::string Cell(int row, int column) {
    return FromQt(Table().model()->index(row, column).data().toString());
  }
  std::string Head(int column) {
    return FromQt(Table().model()->headerData(column, Qt::Horizontal).toString());
  }
  void PressRow(int row) {
    const QModelIndex index = Table().model()->index(row, 0);
    Table().scrollTo(index);
    QTest::mouseClick(Table().viewport(), Qt::LeftButton, {}, Table().visualRect(index).center());
  }
  int ChosenRow() {
    const QModelIndexList rows = Table().selectionModel()->selectedRows();
    return rows.size() == 1 ? rows.front().row() : -1;
  }
  void TypeAndEnter(const std::string& box, const std::string& text) {
    auto& edit = Find<QLineEdit>(screen.Window, box);
    Type(edit, text);
    QTest::keyClick(&edit, Qt::Key_Return);
  }

  ManagerScreen screen{250};
};

TEST_F(RecordTableOfManager, HasEveryRecordWithItsNumbers) {
  ASSERT_EQ(Table().model()->rowCount(), 250);
  ASSERT_EQ(Table().model()->columnCount(), 16);
  EXPECT_EQ(Table().model()->headerData(249, Qt::Vertical).toInt(), 250);
  Texts heads;
  for (int column = 0; column < 16; ++column) {
    heads.push_back(Head(column));
  }
  EXPECT_EQ(heads, (Texts{"Name", "H", "B", "s", "t", "r1", "r2", "A", "Jy", "Jz", "Wy", "Wz", "y0",
                          "z0", "P", "Type"}));
  const Texts boxes = NumberedBoxes(17);
  EXPECT_EQ(Cell(16, 0), "L17");
  EXPECT_EQ(Cell(16, 15), "Уголок 17");
  for (int column = 1; column < 15; ++column) {
    EXPECT_EQ(Cell(16, column), boxes[static_cast<std::size_t>(column) + 1]) << column;
  }
}

TEST_F(RecordTableOfManager, ShowsTheRecordOfTheRowThatIsPressed) {
  PressRow(41);
  EXPECT_EQ(screen.Counts(), "42/250");
  EXPECT_EQ(screen.Seen(), NumberedBoxes(42));
  EXPECT_EQ(screen.Told(), Texts{});
}

TEST_F(RecordTableOfManager, FollowsTheRecordThatIsShown) {
  EXPECT_EQ(ChosenRow(), 0);
  screen.Click("cmdForv100");
  EXPECT_EQ(ChosenRow(), 100);
  EXPECT_TRUE(
      Table().viewport()->rect().intersects(Table().visualRect(Table().model()->index(100, 0))));
  screen.Click("cmdLastpoz");
  EXPECT_EQ(ChosenRow(), 249);
}

TEST_F(RecordTableOfManager, IsWalkedThroughByKeys) {
  Table().setFocus();
  QTest::keyClick(&Table(), Qt::Key_Down);
  QTest::keyClick(&Table(), Qt::Key_Down);
  EXPECT_EQ(screen.Counts(), "3/250");
  EXPECT_EQ(screen.Seen(), NumberedBoxes(3));
}

TEST_F(RecordTableOfManager, ShowsWhatWasWrittenAndKeepsItsRow) {
  PressRow(4);
  Type(screen.Box(1), "new");
  screen.Click("cmdEditCurrent");
  EXPECT_EQ(Cell(4, 0), "new");
  EXPECT_EQ(ChosenRow(), 4);
  EXPECT_EQ(screen.Counts(), "5/250");
}

TEST_F(RecordTableOfManager, ShowsAnotherFile) {
  screen.Data() = NumberedFile(7);
  screen.Desk.World.Dialogs.Names = {screen.Path};
  PressRow(200);
  screen.Click("cmdLoadDB");
  EXPECT_EQ(Table().model()->rowCount(), 7);
  EXPECT_EQ(ChosenRow(), 0);
  EXPECT_EQ(screen.Counts(), "1/7");
}

TEST_F(RecordTableOfManager, OfTheProgramsOwnCatalogueIsAtAButton) {
  screen.Click("cmdOwnCatalogue");
  EXPECT_EQ(screen.Counts(), "1/2698");
  EXPECT_EQ(Cell(0, 0), "L25x16x3");
  EXPECT_EQ(Cell(2697, 0), "Тр230x100x8");
  auto& health = Find<QLabel>(screen.Window, "lblHealth");
  EXPECT_EQ(FromQt(health.text()), "Геометрия: A, Jy и Jz сходятся с размерами.");
  Type(screen.Box(9), "2");
  EXPECT_TRUE(FromQt(health.text()).starts_with("Геометрия: A = 2 см²")) << FromQt(health.text());
  EXPECT_EQ(health.palette().color(QPalette::WindowText), WarningColor(health.palette()));
}

TEST_F(RecordTableOfManager, IsSearchedByEnterAndByKeys) {
  TypeAndEnter("txtFind", "24");
  EXPECT_EQ(screen.Counts(), "24/250");
  EXPECT_EQ(ChosenRow(), 23);
  screen.Box(1).setFocus();
  Press(Qt::Key_F3);
  EXPECT_EQ(screen.Counts(), "124/250");
  TypeAndEnter("txtFind", "none");
  EXPECT_EQ(screen.Label("lblFound"), "Такого обозначения нет");
  Press(Qt::Key_G, Qt::ControlModifier);
  EXPECT_EQ(QApplication::focusWidget(), &Find<QLineEdit>(screen.Window, "txtGoTo"));
  TypeAndEnter("txtGoTo", "77");
  EXPECT_EQ(screen.Counts(), "77/250");
  Press(Qt::Key_F, Qt::ControlModifier);
  EXPECT_EQ(QApplication::focusWidget(), &Find<QLineEdit>(screen.Window, "txtFind"));
  EXPECT_TRUE(screen.Window.isVisible()) << "Enter closes nothing";
}

TEST(RecordTableAtTheStart, IsEmpty) {
  ManagerScreen screen;
  EXPECT_EQ(Find<QTableView>(screen.Window, "Records").model()->rowCount(), 0);
  EXPECT_EQ(screen.Label("lblHealth"), "");
}

TEST(RecordTableAtTheStart, CopiesNothing) {
  ManagerScreen screen;
  QApplication::clipboard()->setText(QStringLiteral("held before"));
  QTest::keyClick(&Find<QWidget>(screen.Window, "Records"), Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QApplication::clipboard()->text(), "held before");
}

TEST(RecordTableOfOddNumbers, LeavesACellOfNoNumberEmpty) {
  ProfileRec record = NumberedRecord(1);
  record.A = std::numeric_limits<double>::quiet_NaN();
  ManagerScreen screen;
  screen.Data() = BytesOf(record);
  screen.Desk.World.Dialogs.Names = {screen.Path};
  screen.Click("cmdLoadDB");
  const auto* model = Find<QTableView>(screen.Window, "Records").model();
  EXPECT_EQ(FromQt(model->index(0, 7).data().toString()), "");
  EXPECT_EQ(FromQt(model->index(0, 2).data().toString()), "1");
}

}  // namespace
}  // namespace trelonit::test
