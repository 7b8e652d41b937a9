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

INSTANTIATE_TEST_SUITE_P(AllTabs, Keyboard, ::testing::Values(0, 1, 2));

TEST(KeyboardOfThePictures, SpaceChoosesThePictureWithTheFocus) {
  Screen screen;
  QTest::keyClick(&screen.Button("imgTreloType4"), Qt::Key_Space);
  EXPECT_EQ(screen.Main.Model.Inputs.TreloType, 4);
}

}  // namespace
}  // namespace trelonit::test
