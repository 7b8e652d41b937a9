#include <QGridLayout>
#include <QRadioButton>

#include "tests/windows/DialogHands.h"
#include "windows/binding/OneTabStop.h"

namespace trelonit::test {
namespace {

/// Two rows of three buttons between two boxes.
class TabStops : public ::testing::Test {
 protected:
  explicit TabStops(OneTabStop::Arrows arrows = OneTabStop::Arrows::Lead) {
    auto* grid = new QGridLayout(&Window);
    grid->addWidget(&Before, 0, 0, 1, 3);
    for (int number = 0; number < 6; ++number) {
      auto* button = new QRadioButton(QString::number(number));
      button->setAutoExclusive(false);
      grid->addWidget(button, 1 + number / 3, number % 3);
      Buttons.push_back(button);
    }
    grid->addWidget(&After, 3, 0, 1, 3);
    Buttons[1]->setChecked(true);
    new OneTabStop(&Window, Buttons, arrows);
    ShowActive(Window);
    Before.setFocus();
  }
  /// The number of the button with the focus; -1 for none of them.
  int Focus() const {
    const auto found = std::find(Buttons.begin(), Buttons.end(), QApplication::focusWidget());
    return found == Buttons.end() ? -1 : static_cast<int>(found - Buttons.begin());
  }
  void ExpectWay(const std::vector<std::pair<Qt::Key, int>>& way) {
    for (const auto& [key, number] : way) {
      const int from = Focus();
      Press(key);
      EXPECT_EQ(Focus(), number) << "from " << from;
    }
  }

  QWidget Window;
  QLineEdit Before;
  QLineEdit After;
  std::vector<QAbstractButton*> Buttons;
};

class TabStopsThatChoose : public TabStops {
 protected:
  TabStopsThatChoose() : TabStops(OneTabStop::Arrows::Choose) {}
};

TEST_F(TabStops, AreOneForAllButtons) {
  Press(Qt::Key_Tab);
  EXPECT_EQ(Focus(), 1) << "the chosen one";
  Press(Qt::Key_Tab);
  EXPECT_EQ(QApplication::focusWidget(), &After);
  QTest::keyClick(&After, Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_EQ(Focus(), 1);
  QTest::keyClick(Buttons[1], Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_EQ(QApplication::focusWidget(), &Before);
}

TEST_F(TabStops, LetArrowsGoByPlace) {
  Press(Qt::Key_Tab);
  ExpectWay({{Qt::Key_Down, 4},
             {Qt::Key_Left, 3},
             {Qt::Key_Up, 0},
             {Qt::Key_Up, 0},
             {Qt::Key_Left, 0},
             {Qt::Key_End, 5},
             {Qt::Key_Right, 5},
             {Qt::Key_Down, 5},
             {Qt::Key_Home, 0},
             {Qt::Key_Right, 1},
             {Qt::Key_Right, 2},
             // On to the next row.
             {Qt::Key_Right, 3},
             {Qt::Key_Left, 2}});
  // None of it has chosen anything.
  EXPECT_TRUE(Buttons[1]->isChecked());
  EXPECT_FALSE(Buttons[2]->isChecked());
  Press(Qt::Key_Space);
  EXPECT_TRUE(Buttons[2]->isChecked());
}

TEST_F(TabStops, ComeBackToWhereTheFocusWas) {
  Buttons[4]->setFocus();
  After.setFocus();
  QTest::keyClick(&After, Qt::Key_Backtab, Qt::ShiftModifier);
  EXPECT_EQ(Focus(), 4);
}

TEST_F(TabStops, FollowWhatIsChosenElsewhere) {
  Buttons[5]->setChecked(true);
  Press(Qt::Key_Tab);
  EXPECT_EQ(Focus(), 5);
}

TEST_F(TabStops, LeaveOutWhatCannotBeReached) {
  Buttons[1]->hide();
  Buttons[2]->setEnabled(false);
  Press(Qt::Key_Tab);
  EXPECT_EQ(Focus(), 0);
  ExpectWay({{Qt::Key_Right, 3}, {Qt::Key_Home, 0}});
  Buttons[1]->show();
  ExpectWay({{Qt::Key_Right, 1}});
}

TEST_F(TabStopsThatChoose, TakeTheOptionThatAnArrowLeadsTo) {
  Press(Qt::Key_Tab);
  Press(Qt::Key_Down);
  EXPECT_EQ(Focus(), 4);
  EXPECT_TRUE(Buttons[4]->isChecked());
}

}  // namespace
}  // namespace trelonit::test
