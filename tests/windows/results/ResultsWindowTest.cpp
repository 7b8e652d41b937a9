#include <QAction>
#include <QGroupBox>
#include <QHelpEvent>
#include <QToolTip>
#include <gtest/gtest.h>
#include <set>

#include "tests/windows/Pixels.h"
#include "tests/windows/results/FilledResults.h"
#include "tests/windows/results/ResultsScreen.h"
#include "windows/binding/Pictures.h"

namespace trelonit::test {
namespace {

/// A results form, filled, with its window.
class ResultsWindow : public ::testing::Test, public FilledResults {
 protected:
  ResultsWindow() { Open(); }
  QTableWidget& Table() { return Find<QTableWidget>(*Window, "MSFlexGKoefUse"); }
  QListWidget& List() { return Find<QListWidget>(*Window, "lstForces"); }
  static void Copy(QWidget& widget) {
    QApplication::clipboard()->clear();
    ASSERT_EQ(widget.actions().size(), 1);
    EXPECT_EQ(widget.actions().front()->shortcut(), QKeySequence(QKeySequence::Copy));
    widget.actions().front()->trigger();
  }
  static std::string Clipboard() { return FromQt(QApplication::clipboard()->text()); }
};

TEST_F(ResultsWindow, HasItsCaptions) {
  EXPECT_EQ(FromQt(Window->windowTitle()), "Коэффициенты использования и усилия в стержнях");
  std::vector<std::string> titles;
  for (const QGroupBox* box : Window->findChildren<QGroupBox*>()) {
    titles.push_back(FromQt(box->title()));
  }
  for (const char* title :
       {"Коэффициенты использования :", "Усилия в стержнях фермы и реакции опор :"}) {
    EXPECT_EQ(std::count(titles.begin(), titles.end(), title), 1) << title;
  }
  EXPECT_EQ(Find<QAbstractButton>(*Window, "cmdClose").text(), "Close");
}

TEST_F(ResultsWindow, ShowsTheListsOfTheForm) {
  const SeenResults seen = Look(*Window);
  EXPECT_EQ(seen.Heads, (std::vector<std::string>{"Проверка", "Коэффициент", "СНиП"}));
  EXPECT_EQ(seen.Rows, Lists.MSFlexGKoefUse);
  EXPECT_EQ(seen.Lines, Lists.lstForces);
  EXPECT_GT(seen.Rows.size(), 10U);
}

TEST_F(ResultsWindow, GivesEveryCheckTheLinesThatItNeeds) {
  const auto heights = [this] {
    std::vector<int> rows;
    for (int row = 0; row < Table().rowCount(); ++row) {
      rows.push_back(Table().rowHeight(row));
    }
    return rows;
  };
  std::set<int> seen;
  for (const int width : {300, 360, 420, 500, 640, 900, 1400}) {
    Table().setFixedWidth(width);
    QApplication::processEvents();
    const std::vector<int> shown = heights();
    Table().resizeRowsToContents();
    EXPECT_EQ(shown, heights()) << width;
    seen.insert(shown.begin(), shown.end());
  }
  // One line and several.
  EXPECT_GE(seen.size(), 3U);
}

TEST_F(ResultsWindow, HeadsAreBoldAndFailedChecksHaveTheWarningColour) {
  const QColor warningInk = WarningColor(Table().palette());
  int heads = 0;
  int failed = 0;
  int held = 0;
  for (int row = 0; row < Table().rowCount(); ++row) {
    const std::string value = FromQt(Table().item(row, 1)->text());
    const bool head = value == "***";
    const bool over = !head && std::stod(value) > 1;
    (head ? heads : over ? failed : held) += 1;
    for (int column = 0; column < 2; ++column) {
      const QTableWidgetItem& item = *Table().item(row, column);
      EXPECT_EQ(item.font().bold(), head || over) << row;
      EXPECT_EQ(item.foreground().color() == warningInk, over) << row;
    }
  }
  EXPECT_EQ(heads, 5);
  EXPECT_GT(failed, 0);
  EXPECT_GT(held, 0);
}

TEST_F(ResultsWindow, CopiesAllLinesWithoutASelection) {
  Copy(List());
  std::string expected;
  for (const std::string& line : Lists.lstForces) {
    expected += (expected.empty() ? "" : "\n") + line;
  }
  EXPECT_EQ(Clipboard(), expected);
}

TEST_F(ResultsWindow, CopiesTheChosenLinesInOrder) {
  List().item(4)->setSelected(true);
  List().item(2)->setSelected(true);
  Copy(List());
  EXPECT_EQ(Clipboard(), Lists.lstForces[2] + "\n" + Lists.lstForces[4]);
}

TEST_F(ResultsWindow, CopiesAllLinesThatAreSelectedByKey) {
  List().setFocus();
  QTest::keyClick(&List(), Qt::Key_A, Qt::ControlModifier);
  Copy(List());
  const std::string text = Clipboard();
  EXPECT_EQ(static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n')) + 1,
            Lists.lstForces.size());
}

TEST_F(ResultsWindow, CopiesTheChosenRows) {
  Table().selectRow(1);
  Copy(Table());
  EXPECT_EQ(Clipboard(), Lists.MSFlexGKoefUse[1][0] + "\t" + Lists.MSFlexGKoefUse[1][1] + "\t" +
                             Lists.Rows[1].Opinion);
}

TEST_F(ResultsWindow, CopiesAllRowsWithoutASelection) {
  Copy(Table());
  const std::string text = Clipboard();
  EXPECT_EQ(static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n')) + 1,
            Lists.MSFlexGKoefUse.size());
  EXPECT_EQ(text.substr(0, text.find('\n')), "*** Верхний пояс\t***\t");
}

TEST_F(ResultsWindow, CopiesByKeyInTheListThatHasTheFocus) {
  Window->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(Window.get()));
  List().setFocus();
  List().setCurrentRow(0);
  QApplication::clipboard()->clear();
  QTest::keyClick(&List(), Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(Clipboard(), Lists.lstForces[0]);
}

TEST_F(ResultsWindow, CloseUnloadsIt) {
  Click(Find<QAbstractButton>(*Window, "cmdClose"));
  EXPECT_FALSE(Window->isVisible());
}

TEST_F(ResultsWindow, EscapeAndEnterCloseIt) {
  QTest::keyClick(Window.get(), Qt::Key_Escape);
  EXPECT_FALSE(Window->isVisible());
  Window->show();
  QTest::keyClick(Window.get(), Qt::Key_Return);
  EXPECT_FALSE(Window->isVisible());
}

TEST_F(ResultsWindow, LeavesTheFormUsable) {
  Window.reset();
  EXPECT_FALSE(Form.Unload);
  EXPECT_NO_THROW(Form.cmdClose_Click());
  Form.Fill({});
  KoeffOfUseWindow again(Form, nullptr);
  EXPECT_EQ(Look(again).Lines, std::vector<std::string>());
}

TEST_F(ResultsWindow, PaintsTheTrussByTheSignsOfItsForces) {
  auto& view = Find<QWidget>(*Window, "TrussView");
  EXPECT_GT(CountPixels(view, TensionColor(view.palette())), 100);
  EXPECT_GT(CountPixels(view, CompressionColor(view.palette())), 100);
}

TEST_F(ResultsWindow, PaintsTheGroupsByTheirLimit) {
  auto& chart = Find<QWidget>(*Window, "UseChart");
  EXPECT_GT(CountPixels(chart, WarningColor(chart.palette())), 100);
  EXPECT_GT(CountColors(chart), 2U);
}

TEST_F(ResultsWindow, NamesTheBarUnderTheMouse) {
  auto& view = Find<QWidget>(*Window, "TrussView");
  view.resize(700, 250);
  QHelpEvent none(QEvent::ToolTip, {2, 2}, view.mapToGlobal(QPoint(2, 2)));
  EXPECT_TRUE(QApplication::sendEvent(&view, &none));
  EXPECT_EQ(FromQt(QToolTip::text()), "");
  // Along the middle of the picture the pointer comes across the lattice.
  std::vector<std::string> hints;
  for (int x = 0; x < view.width(); x += 4) {
    const QPoint point(x, view.height() / 2);
    QHelpEvent help(QEvent::ToolTip, point, view.mapToGlobal(point));
    QApplication::sendEvent(&view, &help);
    hints.push_back(FromQt(QToolTip::text()));
  }
  QToolTip::hideText();
  const auto has = [&](const std::string& start) {
    return std::any_of(hints.begin(), hints.end(),
                       [&](const std::string& hint) { return hint.rfind(start, 0) == 0; });
  };
  EXPECT_TRUE(has("Раскосы, стержень 1: "));
  EXPECT_TRUE(has("Стойки, стержень 5: "));
  EXPECT_TRUE(has("Опорные раскосы, стержень 2: "));
}

TEST(ResultsWithoutForces, AreTold) {
  frmKoeffOfUse form;
  form.Fill({});
  KoeffOfUseWindow window(form, nullptr);
  window.show();
  auto& view = Find<QWidget>(window, "TrussView");
  EXPECT_GT(CountColors(view), 1U) << "the text that there is nothing to show";
  EXPECT_EQ(CountPixels(view, TensionColor(view.palette())), 0);
}

}  // namespace
}  // namespace trelonit::test
