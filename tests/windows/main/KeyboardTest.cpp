#include <gtest/gtest.h>
#include <set>

#include "tests/windows/DialogHands.h"
#include "tests/windows/main/Screen.h"

namespace trelonit::test {
namespace {

class Keyboard : public ::testing::TestWithParam<int>, public Screen {
 protected:
  Keyboard() {
    // So that the boxes which are off at the start take part.
    Main.chkProgib.SetChecked(true);
    Main.imgDistForce_Click();
    Main.optElementSection.Select(1);
    Main.imgProfileSecSelect_Click(2);
    GoTo(GetParam());
    Window.activateWindow();
  }
  QWidget& Page() { return *Tabs().currentWidget(); }

  /// What can have the focus on the tab in sight.
  std::set<QWidget*> Focusable() {
    std::set<QWidget*> widgets;
    for (QWidget* widget : Page().findChildren<QWidget*>()) {
      if (widget->isVisible() && widget->isEnabled() && (widget->focusPolicy() & Qt::TabFocus) &&
          widget->focusProxy() == nullptr &&
          qobject_cast<QComboBox*>(widget->parent()) == nullptr) {
        widgets.insert(widget);
      }
    }
    return widgets;
  }
};

TEST_P(Keyboard, EveryInputIsReachedByTabOnce) {
  ASSERT_TRUE(QTest::qWaitForWindowActive(&Window));
  const std::set<QWidget*> expected = Focusable();
  EXPECT_GT(expected.size(), 5U);
  Tabs().tabBar()->setFocus();
  std::vector<QWidget*> reached;
  for (int step = 0; step < 200; ++step) {
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    QWidget* focus = QApplication::focusWidget();
    ASSERT_NE(focus, nullptr);
    if (focus == Tabs().tabBar()) {
      break;
    }
    if (auto* combo = qobject_cast<QComboBox*>(focus->parentWidget())) {
      focus = combo;
    }
    reached.push_back(focus);
  }
  EXPECT_EQ(reached.size(), std::set<QWidget*>(reached.begin(), reached.end()).size());
  for (const QWidget* widget : expected) {
    EXPECT_EQ(std::count(reached.begin(), reached.end(), widget), 1) << NameOf(*widget);
  }
}

TEST_P(Keyboard, TabGoesDownEachGroupOfInputs) {
  // Within one box the order is from top to bottom, and in a row from left to right.
  ASSERT_TRUE(QTest::qWaitForWindowActive(&Window));
  Tabs().tabBar()->setFocus();
  const QWidget* before = nullptr;
  for (int step = 0; step < 200; ++step) {
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    const QWidget* focus = QApplication::focusWidget();
    if (focus == Tabs().tabBar()) {
      break;
    }
    if (before != nullptr && before->parentWidget() == focus->parentWidget()) {
      const QPoint from = before->geometry().center();
      const QPoint to = focus->geometry().center();
      EXPECT_TRUE(to.y() > from.y() || to.x() > from.x())
          << NameOf(*before) << " to " << NameOf(*focus);
    }
    before = focus;
  }
}

TEST_P(Keyboard, EveryInputHasANameToBeReadAloud) {
  for (const QWidget* widget : Focusable()) {
    const auto* button = qobject_cast<const QAbstractButton*>(widget);
    EXPECT_FALSE(widget->accessibleName().isEmpty() &&
                 (button == nullptr || button->text().isEmpty()))
        << NameOf(*widget);
  }
}

TEST_P(Keyboard, EveryTileAndOptionOfAGroupHasANameToBeReadAloud) {
  // Arrows lead to those that are no stop of Tab.
  for (const auto* button : Page().findChildren<QAbstractButton*>()) {
    if (button->isVisible() && button->focusPolicy() != Qt::NoFocus) {
      EXPECT_FALSE(button->accessibleName().isEmpty() && button->text().isEmpty())
          << NameOf(*button);
    }
  }
}

INSTANTIATE_TEST_SUITE_P(AllTabs, Keyboard, ::testing::Values(0, 1, 2));

TEST(KeyboardOfGroups, EachGroupOfTilesOrOptionsIsOneStop) {
  Screen screen;
  screen.Main.chkProgib.SetChecked(true);
  const auto stops = [&](const std::string& name, int from, int to) {
    int count = 0;
    for (int number = from; number <= to; ++number) {
      count += (screen.Button(name + std::to_string(number)).focusPolicy() & Qt::TabFocus) ? 1 : 0;
    }
    return count;
  };
  EXPECT_EQ(stops("imgTreloType", 1, 10), 1);
  EXPECT_EQ(stops("imgProfileSecSelect", 1, 11), 1);
  EXPECT_EQ(stops("optElementSection", 1, 5), 1);
  const auto isStop = [&](const std::string& name) {
    return static_cast<bool>(screen.Button(name).focusPolicy() & Qt::TabFocus);
  };
  EXPECT_NE(isStop("optBP"), isStop("optNP"));
  EXPECT_NE(isStop("imgPForce"), isStop("imgDistForce"));
  EXPECT_NE(isStop("tglUpPoyas"), isStop("tglDwnPoyas"));
  for (const char* chord : {"Верхний пояс", "Нижний пояс"}) {
    int count = 0;
    for (const char* caption :
         {"Только крайние", "Крайние и посредине пролета", "Через один", "Все узлы"}) {
      const auto& option = FindAccessible<QAbstractButton>(
          screen.Window, std::string(chord) + " закреплен: " + caption);
      count += (option.focusPolicy() & Qt::TabFocus) ? 1 : 0;
    }
    EXPECT_EQ(count, 1) << chord;
  }
}

TEST(KeyboardOfGroups, ArrowsChooseABracingAndOnlyLeadToAScheme) {
  Screen screen;
  screen.Window.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&screen.Window));
  auto& bracing = FindAccessible<QAbstractButton>(
      screen.Window, "Верхний пояс закреплен: Крайние и посредине пролета");
  bracing.setFocus();
  Press(Qt::Key_Down);
  EXPECT_EQ(screen.Main.Model.Inputs.UpPoyasBrace, 3);
  screen.Button("imgTreloType1").setFocus();
  Press(Qt::Key_Right);
  EXPECT_TRUE(screen.Button("imgTreloType2").hasFocus());
  EXPECT_EQ(screen.Main.Model.Inputs.TreloType, 1);
  Press(Qt::Key_Space);
  EXPECT_EQ(screen.Main.Model.Inputs.TreloType, 2);
}

TEST(KeyboardOfThePictures, ShowWhereTheFocusIs) {
  Screen screen;
  screen.Window.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&screen.Window));
  QAbstractButton& tile = screen.Button("imgTreloType2");
  const auto inkOnTheRing = [&] {
    const QImage image = tile.grab().toImage();
    int ink = 0;
    for (int x = 10; x < image.width() - 10; ++x) {
      // The ring is two pixels wide, beside the frame.
      const int light = qGray(image.pixel(x, 4));
      ink += std::abs(light - qGray(image.pixel(x, 8))) > 100 ? 1 : 0;
    }
    return ink;
  };
  screen.Edit("txtHight").setFocus();
  const int without = inkOnTheRing();
  tile.setFocus();
  EXPECT_GT(inkOnTheRing(), without + tile.width() / 4);
}

TEST(KeyboardOfThePictures, SpaceChoosesThePictureWithTheFocus) {
  Screen screen;
  QTest::keyClick(&screen.Button("imgTreloType4"), Qt::Key_Space);
  EXPECT_EQ(screen.Main.Model.Inputs.TreloType, 4);
}

}  // namespace
}  // namespace trelonit::test
