// The table of the bars in the results window.

#include <QBuffer>
#include <QHeaderView>
#include <QMenuBar>
#include <QPdfWriter>
#include <QPrintPreviewDialog>
#include <QPrinter>

#include "tests/windows/DialogHands.h"
#include "tests/windows/Modal.h"
#include "tests/windows/Pixels.h"
#include "tests/windows/results/FilledResults.h"
#include "windows/binding/Pictures.h"
#include "windows/results/BarTableView.h"
#include "windows/results/ResultViews.h"
#include "windows/results/TablePrint.h"
#include "windows/results/UseGrid.h"

namespace trelonit::test {
namespace {

constexpr int groupColumn = 0;
constexpr int barColumn = 1;
constexpr int forceColumnOfTest = 3;

class ResultsBars : public ::testing::Test, public FilledResults {
 protected:
  ResultsBars() {
    Open();
    Pages().setCurrentIndex(1);
  }
  QTabWidget& Pages() { return Find<QTabWidget>(*Window, "Pages"); }
  BarTableView& Table() { return dynamic_cast<BarTableView&>(Find<QWidget>(*Window, "BarTable")); }
  TrussView& Truss() { return dynamic_cast<TrussView&>(Find<QWidget>(*Window, "TrussView")); }
  QTableWidget& Grid() { return Find<QTableWidget>(*Window, "MSFlexGKoefUse"); }
  QAction& Entry(const std::string& name) {
    auto* action = Window->findChild<QAction*>(ToQt(name));
    if (action == nullptr) {
      throw std::logic_error("no entry " + name);
    }
    return *action;
  }
  std::string Cell(int row, int column) {
    return FromQt(Table().model()->index(row, column).data().toString());
  }
  void PressCell(int row, int column) {
    const QModelIndex index = Table().model()->index(row, column);
    Table().scrollTo(index);
    QTest::mouseClick(Table().viewport(), Qt::LeftButton, {}, Table().visualRect(index).center());
  }
  void PressHead(int column) {
    auto* heads = Table().horizontalHeader();
    QTest::mouseClick(heads->viewport(), Qt::LeftButton, {},
                      {heads->sectionViewportPosition(column) + 8, heads->height() / 2});
  }
  /// The row of a bar as the table is sorted now.
  int RowOf(const std::string& group, const std::string& number) {
    for (int row = 0; row < Table().model()->rowCount(); ++row) {
      if (Cell(row, groupColumn) == group && Cell(row, barColumn) == number) {
        return row;
      }
    }
    throw std::logic_error("no row of " + group + " " + number);
  }
};

TEST_F(ResultsBars, StandBehindTheExplanation) {
  ASSERT_EQ(Pages().count(), 2);
  EXPECT_EQ(FromQt(Pages().tabText(0)), "Как получен коэффициент");
  EXPECT_EQ(FromQt(Pages().tabText(1)), "Стержни");
  FilledResults other;
  EXPECT_EQ(Find<QTabWidget>(other.Open(), "Pages").currentIndex(), 0);
}

TEST_F(ResultsBars, AreThoseOfTheForm) {
  const BarTable& bars = Form.Bars;
  ASSERT_GT(bars.Bars.size(), 30U);
  ASSERT_EQ(static_cast<std::size_t>(Table().model()->rowCount()), bars.Bars.size());
  for (std::size_t row = 0; row < bars.Bars.size(); ++row) {
    for (std::size_t column = 0; column < bars.Table.Columns.size(); ++column) {
      EXPECT_EQ(Cell(static_cast<int>(row), static_cast<int>(column)),
                ShownCell(bars.Table.Rows[row][column], bars.Table.Columns[column], PointLocale()));
    }
  }
}

TEST_F(ResultsBars, MarkTheirBarInThePicture) {
  PressCell(RowOf("Раскосы", "3"), 2);
  EXPECT_EQ(Truss().Marked(), (MarkedBar{optionRaskos, 3}));
  PressCell(RowOf("Верхний пояс", "1"), 0);
  EXPECT_EQ(Truss().Marked(), (MarkedBar{optionUpPoyas, 1}));
}

TEST_F(ResultsBars, AreFoundByAPressOnTheirBarInThePicture) {
  Pages().setCurrentIndex(0);
  Truss().resize(700, 250);
  PressHead(forceColumnOfTest);
  // Along the middle of the picture the pointer comes across the lattice.
  std::set<int> rows;
  for (int x = 0; x < Truss().width(); x += 3) {
    QTest::mouseClick(&Truss(), Qt::LeftButton, {}, {x, Truss().height() / 2});
    const QModelIndexList chosen = Table().selectionModel()->selectedRows();
    if (chosen.isEmpty()) {
      continue;
    }
    EXPECT_EQ(Pages().currentIndex(), 1);
    ASSERT_EQ(chosen.size(), 1);
    const int row = chosen.front().row();
    rows.insert(row);
    ASSERT_TRUE(Truss().Marked());
    EXPECT_EQ(Cell(row, groupColumn), GroupName(Truss().Marked()->Group));
    EXPECT_EQ(Cell(row, barColumn), std::to_string(Truss().Marked()->Number));
    EXPECT_TRUE(Table().viewport()->rect().intersects(Table().visualRect(chosen.front())));
  }
  EXPECT_GT(rows.size(), 10U);
}

TEST_F(ResultsBars, LeaveOneChoiceInTheWindow) {
  Grid().selectRow(1);
  EXPECT_EQ(Pages().currentIndex(), 0);
  PressCell(RowOf("Стойки", "2"), 0);
  EXPECT_TRUE(Grid().selectedItems().isEmpty());
  EXPECT_EQ(Truss().Marked(), (MarkedBar{optionStoyka, 2}));
  Grid().selectRow(1);
  EXPECT_FALSE(Table().selectionModel()->hasSelection());
  ASSERT_TRUE(Truss().Marked());
  EXPECT_EQ(Truss().Marked()->Group, optionUpPoyas);
}

TEST_F(ResultsBars, StandInTheOrderOfTheForceListUntilTheUserSorts) {
  EXPECT_EQ(Cell(0, groupColumn), "Верхний пояс");
  EXPECT_EQ(Cell(0, barColumn), "1");
  EXPECT_EQ(Cell(1, barColumn), "2");
}

TEST_F(ResultsBars, AreSortedAsNumbersAndNotAsTexts) {
  for (const bool again : {false, true}) {
    PressHead(forceColumnOfTest);
    const bool rising = Table().horizontalHeader()->sortIndicatorOrder() == Qt::AscendingOrder;
    for (int row = 1; row < Table().model()->rowCount(); ++row) {
      const double above = std::stod(Cell(row - 1, forceColumnOfTest));
      const double below = std::stod(Cell(row, forceColumnOfTest));
      EXPECT_TRUE(rising ? above <= below : above >= below) << again << row;
    }
  }
  PressHead(barColumn);
  EXPECT_EQ(Cell(0, barColumn), "1");
  EXPECT_EQ(Cell(Table().model()->rowCount() - 1, barColumn), "11");
}

TEST_F(ResultsBars, AreCopiedAsTheyAreSortedWithTheirHeads) {
  QApplication::clipboard()->clear();
  Entry("mnuCopyTable").trigger();
  EXPECT_EQ(FromQt(QApplication::clipboard()->text()),
            TabSeparated(Form.Bars.Table, PointLocale()));
  PressHead(forceColumnOfTest);
  const int last = Table().model()->rowCount() - 1;
  Table().setCurrentIndex(Table().model()->index(last, 0));
  Table().actions().front()->trigger();
  const std::string text = FromQt(QApplication::clipboard()->text());
  EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 2);
  EXPECT_NE(text.find('\n' + Cell(last, groupColumn) + '\t' + Cell(last, barColumn) + '\t'),
            std::string::npos);
  EXPECT_TRUE(
      text.starts_with("Группа\tСтержень\tДлина, м\tУсилие, т\tСечение\tРасчет: прочность"));
}

TEST_F(ResultsBars, AreStoredAsTheyAreSorted) {
  ResultTable csv;
  ResultTable xlsx;
  Form.SetTableFiles([&](const ResultTable& table) { csv = table; },
                     [&](const ResultTable& table) { xlsx = table; });
  PressHead(forceColumnOfTest);
  Table().selectRow(0);
  Entry("mnuSaveCsv").trigger();
  Entry("mnuSaveXlsx").trigger();
  EXPECT_EQ(csv.Rows.size(), Form.Bars.Bars.size()) << "chosen or not";
  EXPECT_EQ(xlsx.Rows, csv.Rows);
  EXPECT_NE(csv.Rows, Form.Bars.Table.Rows);
  EXPECT_EQ(csv.Title, "Стержни фермы");
}

TEST_F(ResultsBars, AreStoredOnlyWhereTheProgramCan) {
  EXPECT_FALSE(Entry("mnuSaveCsv").isEnabled());
  Form.SetTableFiles([](const ResultTable&) {}, nullptr);
  EXPECT_TRUE(Entry("mnuSaveCsv").isEnabled());
  EXPECT_FALSE(Entry("mnuSaveXlsx").isEnabled());
  Form.mnuSaveXlsx_Click({});
}

TEST_F(ResultsBars, ShowWhatExceedsTheLimitInRedAndForcesByTheirSign) {
  const QColor red = WarningColor(Table().palette());
  int exceeded = 0;
  for (int row = 0; row < Table().model()->rowCount(); ++row) {
    for (int column = 5; column < Table().model()->columnCount(); ++column) {
      const QModelIndex index = Table().model()->index(row, column);
      const std::string text = Cell(row, column);
      const bool over = !text.empty() && std::stod(text) > 1;
      EXPECT_EQ(index.data(Qt::ForegroundRole).value<QColor>() == red, over) << row << column;
      exceeded += over ? 1 : 0;
    }
  }
  EXPECT_GT(exceeded, 0);
  const auto ink = [&](const char* group) {
    return Table().model()->index(RowOf(group, "2"), forceColumnOfTest).data(Qt::ForegroundRole);
  };
  EXPECT_EQ(ink("Верхний пояс").value<QColor>(), CompressionColor(Table().palette()));
  EXPECT_EQ(ink("Нижний пояс").value<QColor>(), TensionColor(Table().palette()));
}

/// The window as it opens: nobody has been on the page of the bars.
class ResultsBarsUnseen : public ::testing::Test, public FilledResults {
 protected:
  ResultsBarsUnseen() { Open(); }
  void Trigger(const char* entry) { Window->findChild<QAction*>(QLatin1String(entry))->trigger(); }
};

TEST_F(ResultsBarsUnseen, AreNotMadeBeforeTheyAreNeeded) {
  EXPECT_EQ(Window->findChild<QWidget*>(QStringLiteral("BarTable")), nullptr);
  Find<QTabWidget>(*Window, "Pages").setCurrentIndex(1);
  EXPECT_TRUE(Find<QWidget>(*Window, "BarTable").isVisible());
}

TEST_F(ResultsBarsUnseen, AreCopied) {
  QApplication::clipboard()->clear();
  Trigger("mnuCopyTable");
  EXPECT_EQ(FromQt(QApplication::clipboard()->text()),
            TabSeparated(Form.Bars.Table, PointLocale()));
  EXPECT_EQ(Find<QTabWidget>(*Window, "Pages").currentIndex(), 0);
}

TEST_F(ResultsBarsUnseen, AreStored) {
  ResultTable csv;
  ResultTable xlsx;
  Form.SetTableFiles([&](const ResultTable& table) { csv = table; },
                     [&](const ResultTable& table) { xlsx = table; });
  Trigger("mnuSaveCsv");
  Trigger("mnuSaveXlsx");
  EXPECT_EQ(csv.Rows, Form.Bars.Table.Rows);
  EXPECT_EQ(xlsx.Rows, Form.Bars.Table.Rows);
}

TEST_F(ResultsBarsUnseen, AreFoundByAPressOnTheirBarInThePicture) {
  auto& truss = dynamic_cast<TrussView&>(Find<QWidget>(*Window, "TrussView"));
  for (int x = 0; x < truss.width() && !truss.Marked(); ++x) {
    QTest::mouseClick(&truss, Qt::LeftButton, {}, {x, truss.height() / 2});
  }
  ASSERT_TRUE(truss.Marked());
  EXPECT_EQ(Find<QTabWidget>(*Window, "Pages").currentIndex(), 1);
  auto& table = Find<QTableView>(*Window, "BarTable");
  const QModelIndexList chosen = table.selectionModel()->selectedRows();
  ASSERT_EQ(chosen.size(), 1);
  EXPECT_EQ(FromQt(chosen.front().siblingAtColumn(groupColumn).data().toString()),
            GroupName(truss.Marked()->Group));
  EXPECT_TRUE(table.viewport()->rect().intersects(table.visualRect(chosen.front())));
}

TEST_F(ResultsBarsUnseen, ComeAfterTheExplanationByTab) {
  Trigger("mnuShowBars");
  auto& table = Find<QWidget>(*Window, "BarTable");
  EXPECT_EQ(Window->focusWidget(), &table);
  QTest::keyClick(&table, Qt::Key_Tab);
  EXPECT_EQ(Window->focusWidget(), &Find<QWidget>(*Window, "cmdClose"));
}

TEST_F(ResultsBars, OpenByTheirKey) {
  Pages().setCurrentIndex(0);
  EXPECT_EQ(Entry("mnuShowBars").shortcut(), QKeySequence(Qt::CTRL | Qt::Key_T));
  Entry("mnuShowBars").trigger();
  EXPECT_EQ(Pages().currentIndex(), 1);
  EXPECT_EQ(Window->focusWidget(), &Table());
}

TEST_F(ResultsBars, AreShownAsPagesBeforeTheyArePrinted) {
  bool landscape = false;
  OnceModal<QPrintPreviewDialog> preview([&](QPrintPreviewDialog& dialog) {
    landscape = dialog.printer()->pageLayout().orientation() == QPageLayout::Landscape;
    EXPECT_LE(dialog.width(), dialog.screen()->availableSize().width());
  });
  Entry("mnuPrintTable").trigger();
  EXPECT_TRUE(preview.Acted());
  EXPECT_TRUE(landscape);
}

TEST(TablePrint, TakesAsManyPagesAsTheRowsNeed) {
  const auto pages = [&](QPageSize::PageSizeId size, int rows) {
    ResultTable table{.Title = "Таблица", .Columns = {{"a"}, {"b"}}};
    for (int row = 0; row < rows; ++row) {
      table.Rows.push_back({std::string("text"), 1.0});
    }
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setPageSize(QPageSize(size));
    return PaintTable(table, PointLocale(), writer);
  };
  EXPECT_EQ(pages(QPageSize::A4, 5), 1);
  EXPECT_GT(pages(QPageSize::A4, 200), 2);
  EXPECT_GT(pages(QPageSize::A5, 200), pages(QPageSize::A4, 200));
}

}  // namespace
}  // namespace trelonit::test
