#include <QRadioButton>
#include <QToolButton>
#include <gtest/gtest.h>
#include <memory>

#include "tests/windows/Hands.h"
#include "windows/binding/PictureWidgets.h"

namespace trelonit::test {
namespace {

TEST(BoundCheckBox, GoesBothWays) {
  CheckBox state;
  int clicks = 0;
  state.Click = [&] { ++clicks; };
  QCheckBox box;
  Bind(state, &box);
  Click(box);
  EXPECT_TRUE(state.Checked());
  Click(box);
  EXPECT_FALSE(state.Checked());
  QTest::keyClick(&box, Qt::Key_Space);
  EXPECT_TRUE(state.Checked());
  EXPECT_EQ(clicks, 3);
  state.SetChecked(false);
  EXPECT_FALSE(box.isChecked());
  EXPECT_EQ(clicks, 4);
}

TEST(BoundCheckBox, ShowsTheStateThatAHandlerTakesBack) {
  CheckBox state;
  state.Click = [&] { state.SetChecked(false); };
  QCheckBox box;
  Bind(state, &box);
  Click(box);
  EXPECT_FALSE(state.Checked());
  EXPECT_FALSE(box.isChecked());
}

/// Three options in one window with a note of each click.
struct Options {
  Options() {
    for (Long number = 1; number <= 3; ++number) {
      Group[number].Click = [this, number] { Clicks.push_back(number); };
      Buttons[number] = new QRadioButton("option", &Window);
      Bind(Group, number, Buttons[number]);
    }
  }
  std::vector<bool> Shown() const {
    std::vector<bool> shown;
    for (const QRadioButton* button : Buttons) {
      shown.push_back(button->isChecked());
    }
    return shown;
  }
  OptionGroup Group{3};
  QWidget Window;
  BoundedArray<QRadioButton*> Buttons{1, 3};
  std::vector<Long> Clicks;
};

TEST(BoundOptionGroup, SetsOneAndClearsTheOthers) {
  Options options;
  Click(*options.Buttons[2]);
  EXPECT_EQ(options.Group.Selected(), 2);
  Click(*options.Buttons[3]);
  EXPECT_EQ(options.Group.Selected(), 3);
  EXPECT_EQ(options.Clicks, (std::vector<Long>{2, 3}));
  EXPECT_EQ(options.Shown(), (std::vector<bool>{false, false, true}));
}

TEST(BoundOptionGroup, ShowsWhatTheCodeSelects) {
  Options options;
  options.Group.Select(1);
  EXPECT_EQ(options.Shown(), (std::vector<bool>{true, false, false}));
  options.Group.ClearAll();
  EXPECT_EQ(options.Shown(), (std::vector<bool>{false, false, false}));
}

TEST(BoundOptionGroup, LeavesASetOptionSetWhenItIsPressedAgain) {
  Options options;
  Click(*options.Buttons[1]);
  Click(*options.Buttons[1]);
  EXPECT_EQ(options.Shown(), (std::vector<bool>{true, false, false}));
  EXPECT_EQ(options.Clicks, std::vector<Long>{1});
}

TEST(BoundOptionGroup, ShowsTwoSetOptionsWhereTheCodeLeavesThemSo) {
  // Restoring a project may leave the option that was set before as it is.
  Options options;
  options.Group[1].SetValue(true);
  options.Group[3].SetValue(true);
  EXPECT_EQ(options.Shown(), (std::vector<bool>{true, false, true}));
}

TEST(BoundToggle, StaysPressedWhenItIsPressedAgain) {
  OptionButton state;
  int clicks = 0;
  state.Click = [&] { ++clicks; };
  QToolButton toggle;
  Bind(state, &toggle);
  Click(toggle);
  Click(toggle);
  EXPECT_TRUE(state.Value());
  EXPECT_TRUE(toggle.isChecked());
  EXPECT_EQ(clicks, 1);
  state.SetValue(false);
  EXPECT_FALSE(toggle.isChecked());
}

TEST(BoundPictureButton, ShowsTheMarkThatItsHandlerGives) {
  Image state;
  bool taken = true;
  PictureButton button({40, 40});
  Bind(state, &button, [&] { state.SetMarked(taken); });
  Click(button);
  EXPECT_TRUE(button.isChecked());
  Click(button);
  EXPECT_TRUE(button.isChecked()) << "a press does not turn the mark";
  taken = false;
  Click(button);
  EXPECT_FALSE(button.isChecked());
  state.SetMarked(true);
  EXPECT_TRUE(button.isChecked());
}

TEST(BoundWidget, IsDisabledAndHiddenWithItsState) {
  CheckBox state;
  QWidget window;
  auto* box = new QCheckBox("box", &window);
  Bind(state, box);
  window.show();
  EXPECT_TRUE(box->isVisible());
  state.SetEnabled(false);
  EXPECT_FALSE(box->isEnabled());
  Click(*box);
  EXPECT_FALSE(state.Checked());
  state.SetVisible(false);
  EXPECT_FALSE(box->isVisible());
  state.SetVisible(true);
  state.SetEnabled(true);
  EXPECT_TRUE(box->isVisible());
  Click(*box);
  EXPECT_TRUE(state.Checked());
}

TEST(BoundWidget, HiddenFromTheStartStaysHiddenWithItsWindow) {
  Label state;
  state.SetVisible(false);
  QWidget window;
  auto* label = new QLabel(&window);
  Bind(state, label);
  window.show();
  EXPECT_FALSE(label->isVisible());
  state.SetVisible(true);
  EXPECT_TRUE(label->isVisible());
}

TEST(BoundWidget, DoesNotBecomeAWindowByBeingBound) {
  Label state;
  QLabel label;
  Bind(state, &label);
  state.SetVisible(false);
  state.SetVisible(true);
  EXPECT_FALSE(label.isVisible());
}

TEST(BoundWidget, LeavesAUsableStateWhenItGoes) {
  TextBox text;
  ComboBox combo;
  CheckBox check;
  OptionButton option;
  Label label;
  ListBox list;
  Grid grid;
  TabControl tabs;
  Timer timer;
  {
    QLineEdit edit;
    QComboBox box;
    QCheckBox checkBox;
    QRadioButton radio;
    QLabel line;
    QListWidget lines;
    QTableWidget table;
    QTabWidget pages;
    QTimer ticks;
    Bind(text, &edit);
    Bind(combo, &box);
    Bind(check, &checkBox);
    Bind(option, &radio);
    Bind(label, &line);
    Bind(list, &lines);
    Bind(grid, &table);
    Bind(tabs, &pages);
    Bind(timer, &ticks);
  }
  const std::vector<const ControlState*> states{&text, &combo, &check, &option, &label,
                                                &list, &grid,  &tabs,  &timer};
  for (std::size_t place = 0; place < states.size(); ++place) {
    EXPECT_FALSE(states[place]->Bound) << place;
  }
  text.SetText("a");
  combo.AddItem("b");
  combo.Select(0);
  check.SetChecked(true);
  option.SetValue(true);
  label.SetCaption("c");
  list.SetList({"d"});
  grid.SetRows({{"e", "f"}});
  tabs.SetTab(1);
  timer.SetInterval(5);
  EXPECT_EQ(text.Text() + combo.Text() + label.Caption(), "abc");
}

TEST(BoundWidget, CanBeFollowedByANewOne) {
  TextBox state;
  auto first = std::make_unique<QLineEdit>();
  Bind(state, first.get());
  first.reset();
  QLineEdit second;
  Bind(state, &second);
  state.SetText("again");
  EXPECT_EQ(second.text(), "again");
}

}  // namespace
}  // namespace trelonit::test
