#include <gtest/gtest.h>

#include "tests/windows/Hands.h"

namespace trelonit::test {
namespace {

TEST(BoundTextBox, TakesEveryKeyAtOnce) {
  TextBox state;
  std::vector<std::string> changes;
  state.Change = [&] { changes.push_back(state.Text()); };
  QLineEdit edit;
  Bind(state, &edit);
  QTest::keyClicks(&edit, "1.5");
  EXPECT_EQ(changes, (std::vector<std::string>{"1", "1.", "1.5"}));
}

TEST(BoundTextBox, ShowsWhatTheCodeSets) {
  TextBox state;
  state.SetText("before");
  QLineEdit edit;
  Bind(state, &edit);
  EXPECT_EQ(edit.text(), "before");
  int changes = 0;
  state.Change = [&] { ++changes; };
  state.SetText("после");
  EXPECT_EQ(FromQt(edit.text()), "после");
  EXPECT_EQ(changes, 1);
}

TEST(BoundTextBox, LeavesTheCursorWhileTyping) {
  TextBox state;
  state.SetText("125");
  QLineEdit edit;
  Bind(state, &edit);
  edit.setCursorPosition(1);
  QTest::keyClicks(&edit, "34");
  EXPECT_EQ(state.Text(), "13425");
  EXPECT_EQ(edit.cursorPosition(), 3);
}

TEST(BoundTextBox, ShowsAGreyBoxInTheColourOfTheWindow) {
  TextBox state;
  QLineEdit edit;
  Bind(state, &edit);
  EXPECT_EQ(edit.backgroundRole(), QPalette::Base);
  state.SetBackColor(colorDisabledGrey);
  EXPECT_EQ(edit.backgroundRole(), QPalette::Window);
  state.SetBackColor(colorWindowBackground);
  EXPECT_EQ(edit.backgroundRole(), QPalette::Base);
}

TEST(BoundTextBox, TakesNoKeyWhileDisabled) {
  TextBox state;
  QLineEdit edit;
  Bind(state, &edit);
  state.SetEnabled(false);
  QTest::keyClicks(&edit, "7");
  EXPECT_EQ(state.Text(), "");
  state.SetEnabled(true);
  QTest::keyClicks(&edit, "7");
  EXPECT_EQ(state.Text(), "7");
}

/// A list of three with a note of each choice.
struct Choices {
  Choices() {
    for (const char* entry : {"a", "b", "c"}) {
      State.AddItem(entry);
    }
    State.Select(0);
    State.Click = [this] { Clicks.push_back(State.Text()); };
    Bind(State, &Box);
  }
  ComboBox State;
  QComboBox Box;
  std::vector<std::string> Clicks;
};

TEST(BoundComboBox, TakesTheChoice) {
  Choices choices;
  Pick(choices.Box, "c");
  EXPECT_EQ(choices.State.ListIndex(), 2);
  EXPECT_EQ(choices.Clicks, std::vector<std::string>{"c"});
}

TEST(BoundComboBox, TakesTheArrowKeys) {
  Choices choices;
  QTest::keyClick(&choices.Box, Qt::Key_Down);
  QTest::keyClick(&choices.Box, Qt::Key_Down);
  QTest::keyClick(&choices.Box, Qt::Key_Up);
  EXPECT_EQ(choices.Clicks, (std::vector<std::string>{"b", "c", "b"}));
}

TEST(BoundComboBox, RaisesNothingForThePresentChoice) {
  Choices choices;
  Pick(choices.Box, "a");
  EXPECT_TRUE(choices.Clicks.empty());
}

TEST(BoundComboBox, ShowsWhatTheCodeSelectsAndRaisesItOnce) {
  Choices choices;
  choices.State.Select(1);
  EXPECT_EQ(choices.Box.currentIndex(), 1);
  EXPECT_EQ(choices.Clicks, std::vector<std::string>{"b"});
}

TEST(BoundComboBox, FollowsAListThatIsClearedAndFilledAnew) {
  Choices choices;
  choices.State.Clear();
  EXPECT_EQ(choices.Box.count(), 0);
  EXPECT_EQ(choices.Box.currentText(), "");
  for (const char* entry : {"x", "y", "z", "w"}) {
    choices.State.AddItem(entry);
  }
  choices.State.Select(3);
  EXPECT_EQ(Entries(choices.Box), (std::vector<std::string>{"x", "y", "z", "w"}));
  EXPECT_EQ(choices.Box.currentText(), "w");
}

TEST(BoundComboBox, ShowsATextThatIsNoEntry) {
  Choices choices;
  choices.State.SetText("other");
  EXPECT_EQ(choices.Box.currentIndex(), -1);
  EXPECT_EQ(choices.Box.placeholderText(), "other");
  choices.State.Select(1);
  EXPECT_EQ(choices.Box.currentText(), "b");
}

TEST(BoundComboBox, KeepsTheStateWhereAHandlerRefusesTheChoice) {
  Choices choices;
  choices.State.Click = [&] {
    if (choices.State.ListIndex() == 2) {
      choices.State.Select(0);
    }
  };
  Pick(choices.Box, "c");
  EXPECT_EQ(choices.Box.currentIndex(), 0);
}

TEST(BoundComboBox, DiffersBetweenEqualEntries) {
  Choices choices;
  choices.State.AddItem("a");
  PickEntry(choices.Box, 3);
  EXPECT_EQ(choices.State.ListIndex(), 3);
  EXPECT_EQ(choices.Box.currentIndex(), 3);
  EXPECT_EQ(choices.Clicks, std::vector<std::string>{"a"});
}

TEST(BoundComboBox, IsGreyAndDisabledAsTheStateSays) {
  Choices choices;
  choices.State.SetEnabled(false);
  choices.State.SetBackColor(colorDisabledGrey);
  EXPECT_FALSE(choices.Box.isEnabled());
  EXPECT_EQ(choices.Box.backgroundRole(), QPalette::Window);
}

/// The same with a box that can be written into.
struct EditableChoices {
  EditableChoices() {
    for (const char* entry : {"4", "10", "30"}) {
      State.AddItem(entry);
    }
    State.Select(0);
    State.Click = [this] { Clicks.push_back(State.Text()); };
    Box.setEditable(true);
    Box.setInsertPolicy(QComboBox::NoInsert);
    Bind(State, &Box);
  }
  ComboBox State;
  QComboBox Box;
  std::vector<std::string> Clicks;
};

TEST(BoundEditableComboBox, TakesATypedTextWhenItIsFinished) {
  EditableChoices choices;
  Type(*choices.Box.lineEdit(), "7.5");
  EXPECT_TRUE(choices.Clicks.empty());
  QTest::keyClick(choices.Box.lineEdit(), Qt::Key_Return);
  EXPECT_EQ(choices.State.Text(), "7.5");
  EXPECT_EQ(choices.State.ListIndex(), ComboBox::noSelection);
  EXPECT_EQ(choices.Clicks, std::vector<std::string>{"7.5"});
  EXPECT_EQ(Entries(choices.Box), (std::vector<std::string>{"4", "10", "30"}));
}

TEST(BoundEditableComboBox, SelectsTheEntryThatIsTyped) {
  EditableChoices choices;
  Type(*choices.Box.lineEdit(), "30");
  QTest::keyClick(choices.Box.lineEdit(), Qt::Key_Return);
  EXPECT_EQ(choices.State.ListIndex(), 2);
  EXPECT_EQ(choices.Clicks, std::vector<std::string>{"30"});
}

TEST(BoundEditableComboBox, TakesATextThatAnEntryBeginsWith) {
  // What is typed counts, not what the list would make of it.
  EditableChoices choices;
  choices.Box.show();
  choices.Box.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&choices.Box));
  choices.Box.lineEdit()->setFocus();
  Type(*choices.Box.lineEdit(), "3");
  EXPECT_EQ(choices.Box.currentText(), "3");
  QTest::keyClick(choices.Box.lineEdit(), Qt::Key_Return);
  EXPECT_EQ(choices.State.Text(), "3");
  EXPECT_EQ(choices.Clicks, std::vector<std::string>{"3"});
}

TEST(BoundEditableComboBox, RaisesNothingForATextThatHasNotChanged) {
  EditableChoices choices;
  Type(*choices.Box.lineEdit(), "5");
  QTest::keyClick(choices.Box.lineEdit(), Qt::Key_Return);
  QTest::keyClick(choices.Box.lineEdit(), Qt::Key_Return);
  EXPECT_EQ(choices.Clicks, std::vector<std::string>{"5"});
}

TEST(BoundEditableComboBox, ShowsATextThatIsNoEntry) {
  EditableChoices choices;
  choices.State.SetText("12.5");
  EXPECT_EQ(choices.Box.currentText(), "12.5");
  choices.State.SetText("10");
  EXPECT_EQ(choices.Box.currentText(), "10");
  EXPECT_EQ(choices.Box.currentIndex(), 1);
}

}  // namespace
}  // namespace trelonit::test
