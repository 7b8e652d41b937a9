#include <gtest/gtest.h>

#include "tests/windows/Hands.h"

namespace trelonit::test {
namespace {

TEST(BoundLabel, ShowsTheCaption) {
  Label state;
  state.SetCaption("before");
  QLabel label;
  Bind(state, &label);
  EXPECT_EQ(label.text(), "before");
  state.SetCaption("после");
  EXPECT_EQ(FromQt(label.text()), "после");
}

TEST(BoundListBox, ShowsItsLinesInOrder) {
  ListBox state;
  QListWidget list;
  Bind(state, &list);
  state.SetList({" Верхний пояс :", " ", "x"});
  ASSERT_EQ(list.count(), 3);
  EXPECT_EQ(FromQt(list.item(0)->text()), " Верхний пояс :");
  EXPECT_EQ(FromQt(list.item(1)->text()), " ");
  state.SetList({"y"});
  ASSERT_EQ(list.count(), 1);
  EXPECT_EQ(FromQt(list.item(0)->text()), "y");
}

TEST(BoundListBox, SelectsBothWays) {
  ListBox state;
  QListWidget list;
  state.SetList({"a", "b", "c"});
  Bind(state, &list);
  EXPECT_TRUE(list.selectedItems().isEmpty());
  list.setCurrentRow(1);
  EXPECT_EQ(state.ListIndex(), 1);
  state.Select(2);
  EXPECT_EQ(list.currentRow(), 2);
  EXPECT_TRUE(list.item(2)->isSelected());
  state.SetList({"d"});
  EXPECT_TRUE(list.selectedItems().isEmpty());
}

TEST(BoundListBox, KeepsASelectionOfSeveralRows) {
  ListBox state;
  state.SetList({"a", "b", "c"});
  QListWidget list;
  list.setSelectionMode(QAbstractItemView::ExtendedSelection);
  Bind(state, &list);
  list.selectAll();
  EXPECT_EQ(list.selectedItems().size(), 3);
  EXPECT_EQ(state.ListIndex(), 0);
  list.item(0)->setSelected(false);
  EXPECT_EQ(list.selectedItems().size(), 2);
  EXPECT_EQ(state.ListIndex(), 1);
}

TEST(BoundGrid, ShowsTheFirstRowAsHead) {
  Grid state;
  QTableWidget table;
  Bind(state, &table);
  EXPECT_EQ(table.rowCount(), 0);
  state.SetRows({{"Проверка", "Коэффициент"}, {"a", "1"}, {"b", "2"}});
  ASSERT_EQ(table.rowCount(), 2);
  ASSERT_EQ(table.columnCount(), 2);
  EXPECT_EQ(FromQt(table.horizontalHeaderItem(1)->text()), "Коэффициент");
  EXPECT_EQ(table.item(0, 0)->text(), "a");
  EXPECT_EQ(table.item(1, 1)->text(), "2");
}

TEST(BoundGrid, FollowsShorterRows) {
  Grid state;
  QTableWidget table;
  Bind(state, &table);
  state.SetRows({{"h", "k"}, {"a", "1"}, {"b", "2"}});
  state.SetRows({{"h", "k"}, {"c", "3"}});
  ASSERT_EQ(table.rowCount(), 1);
  EXPECT_EQ(table.item(0, 0)->text(), "c");
  state.SetRows({});
  EXPECT_EQ(table.rowCount(), 0);
}

TEST(BoundGrid, CannotBeWrittenInto) {
  Grid state;
  state.SetRows({{"h", "k"}, {"a", "1"}});
  QTableWidget table;
  Bind(state, &table);
  EXPECT_FALSE(table.item(0, 0)->flags() & Qt::ItemIsEditable);
}

/// Three pages with a note of each change: the page that was left.
struct Pages {
  Pages() {
    for (int page = 0; page < 3; ++page) {
      Tabs.addTab(new QWidget, QString::number(page));
    }
    State.Click = [this](Integer left) { Left.push_back(left); };
    Bind(State, &Tabs);
    Tabs.show();
  }
  TabControl State;
  QTabWidget Tabs;
  std::vector<Integer> Left;
};

TEST(BoundTabControl, TakesTheChosenTab) {
  Pages pages;
  ClickTab(pages.Tabs, 2);
  EXPECT_EQ(pages.State.Tab(), 2);
  ClickTab(pages.Tabs, 1);
  EXPECT_EQ(pages.State.Tab(), 1);
  EXPECT_EQ(pages.Left, (std::vector<Integer>{0, 2}));
}

TEST(BoundTabControl, ShowsTheTabThatTheCodeSets) {
  Pages pages;
  pages.State.SetTab(1);
  EXPECT_EQ(pages.Tabs.currentIndex(), 1);
  EXPECT_EQ(pages.Left, std::vector<Integer>{0});
}

TEST(BoundTabControl, GoesBackWhereTheChangeIsRefused) {
  Pages pages;
  pages.State.Click = [&](Integer left) {
    pages.Left.push_back(left);
    if (pages.State.Tab() > left) {
      pages.State.SetTab(0);
    }
  };
  ClickTab(pages.Tabs, 2);
  EXPECT_EQ(pages.State.Tab(), 0);
  EXPECT_EQ(pages.Tabs.currentIndex(), 0);
  EXPECT_EQ(pages.Left, (std::vector<Integer>{0, 2}));
  EXPECT_TRUE(pages.Tabs.widget(0)->isVisible());
  EXPECT_FALSE(pages.Tabs.widget(2)->isVisible());
}

TEST(BoundTimer, RunsWhileItIsEnabledAndHasAnInterval) {
  Timer state;
  QTimer timer;
  Bind(state, &timer);
  EXPECT_FALSE(timer.isActive());
  state.SetInterval(200);
  EXPECT_TRUE(timer.isActive());
  EXPECT_EQ(timer.interval(), 200);
  state.SetEnabled(false);
  EXPECT_FALSE(timer.isActive());
  state.SetEnabled(true);
  EXPECT_TRUE(timer.isActive());
  state.SetInterval(0);
  EXPECT_FALSE(timer.isActive());
}

}  // namespace
}  // namespace trelonit::test
