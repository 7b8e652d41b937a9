#include <functional>
#include <gtest/gtest.h>
#include <string>
#include <utility>
#include <vector>

#include "platform/errors/RuntimeError.h"
#include "platform/forms/Controls.h"

namespace trelonit::test {

int ErrorOf(const std::function<void()>& body);

namespace {

/// Counts the calls of an event or of Bound.
struct Counter {
  int Count = 0;
  std::function<void()> Handler() {
    return [this] { ++Count; };
  }
};

TEST(Control, StartsEnabledAndVisible) {
  const Label label;
  EXPECT_TRUE(label.Enabled());
  EXPECT_TRUE(label.Visible());
}

TEST(Control, CallsBoundOnEveryChangeAndOnlyThen) {
  Label label;
  Counter bound;
  label.Bound = bound.Handler();
  label.SetEnabled(false);
  EXPECT_EQ(bound.Count, 1);
  EXPECT_FALSE(label.Enabled());
  label.SetVisible(false);
  EXPECT_EQ(bound.Count, 2);
  EXPECT_FALSE(label.Visible());
  label.SetCaption("Пролёт");
  EXPECT_EQ(bound.Count, 3);
  EXPECT_EQ(label.Caption(), "Пролёт");
  label.SetForeColor(colorRed);
  EXPECT_EQ(bound.Count, 4);
  EXPECT_EQ(label.ForeColor(), colorRed);

  label.SetEnabled(false);
  label.SetVisible(false);
  label.SetCaption("Пролёт");
  label.SetForeColor(colorRed);
  EXPECT_EQ(bound.Count, 4);
}

TEST(Control, ShowsItsNewStateToBound) {
  Label label;
  std::string seen;
  label.Bound = [&] { seen = label.Caption(); };
  label.SetCaption("new");
  EXPECT_EQ(seen, "new");
}

TEST(Label, StartsEmptyInTheColourOfTheDesktop) {
  const Label label;
  EXPECT_EQ(label.Caption(), "");
  EXPECT_EQ(label.ForeColor(), colorWindowText);
}

TEST(TextBox, RaisesChangeForAnotherText) {
  TextBox box;
  Counter changes;
  Counter bound;
  box.Change = changes.Handler();
  box.Bound = bound.Handler();
  box.SetText("12");
  EXPECT_EQ(box.Text(), "12");
  EXPECT_EQ(changes.Count, 1);
  EXPECT_EQ(bound.Count, 1);
  box.SetText("12");
  EXPECT_EQ(changes.Count, 1);
  EXPECT_EQ(bound.Count, 1);
  box.SetText("");
  EXPECT_EQ(changes.Count, 2);
}

TEST(TextBox, RaisesNoChangeForItsColour) {
  TextBox box;
  Counter changes;
  Counter bound;
  box.Change = changes.Handler();
  box.Bound = bound.Handler();
  EXPECT_EQ(box.BackColor(), colorWindowBackground);
  box.SetBackColor(colorDisabledGrey);
  EXPECT_EQ(box.BackColor(), colorDisabledGrey);
  EXPECT_EQ(changes.Count, 0);
  EXPECT_EQ(bound.Count, 1);
}

TEST(TextBox, TakesTextWithoutAnyHandler) {
  TextBox box;
  box.SetText("x");
  EXPECT_EQ(box.Text(), "x");
}

class ComboBoxTest : public testing::Test {
 protected:
  ComboBoxTest() {
    box.AddItem("one");
    box.AddItem("two");
    box.AddItem("two");
    box.Click = clicks.Handler();
    box.Bound = bound.Handler();
  }
  ComboBox box;
  Counter clicks;
  Counter bound;
};

TEST_F(ComboBoxTest, StartsWithoutASelection) {
  EXPECT_EQ(box.List(), (std::vector<std::string>{"one", "two", "two"}));
  EXPECT_EQ(box.ListIndex(), ComboBox::noSelection);
  EXPECT_EQ(box.ListIndex(), -1);
  EXPECT_EQ(box.Text(), "");
}

TEST_F(ComboBoxTest, RaisesClickForAnotherSelection) {
  box.Select(1);
  EXPECT_EQ(box.ListIndex(), 1);
  EXPECT_EQ(box.Text(), "two");
  EXPECT_EQ(clicks.Count, 1);
  EXPECT_EQ(bound.Count, 1);
  box.Select(2);
  EXPECT_EQ(box.ListIndex(), 2);
  EXPECT_EQ(clicks.Count, 2);
}

TEST_F(ComboBoxTest, RaisesNoClickForThePresentSelection) {
  box.Select(1);
  box.Select(1);
  EXPECT_EQ(clicks.Count, 1);
}

TEST_F(ComboBoxTest, ShowsTheNewSelectionToItsClick) {
  Long seen = -5;
  std::string text;
  box.Click = [&] {
    seen = box.ListIndex();
    text = box.Text();
  };
  box.Select(0);
  EXPECT_EQ(seen, 0);
  EXPECT_EQ(text, "one");
}

TEST_F(ComboBoxTest, RaisesSubscriptOutOfRangeBesideItsList) {
  box.Select(1);
  for (const Long index : {-1, 3, 100, -100}) {
    EXPECT_EQ(ErrorOf([&] { box.Select(index); }), 9) << index;
  }
  EXPECT_EQ(box.ListIndex(), 1);
  EXPECT_EQ(box.Text(), "two");
  EXPECT_EQ(clicks.Count, 1);
}

TEST_F(ComboBoxTest, SelectsTheFirstEntryWithTheText) {
  box.SetText("two");
  EXPECT_EQ(box.ListIndex(), 1);
  EXPECT_EQ(box.Text(), "two");
  EXPECT_EQ(clicks.Count, 1);
}

TEST_F(ComboBoxTest, KeepsThePresentEntryWhenItHasTheText) {
  box.Select(2);
  box.SetText("two");
  EXPECT_EQ(box.ListIndex(), 2);
  EXPECT_EQ(clicks.Count, 1);
}

TEST_F(ComboBoxTest, SelectsNothingForAnUnknownText) {
  box.Select(1);
  const int before = bound.Count;
  box.SetText("three");
  EXPECT_EQ(box.ListIndex(), ComboBox::noSelection);
  EXPECT_EQ(box.Text(), "three");
  EXPECT_EQ(clicks.Count, 1);
  EXPECT_EQ(bound.Count, before + 1);
}

TEST_F(ComboBoxTest, TakesTheCaseOfATextIntoAccount) {
  box.SetText("One");
  EXPECT_EQ(box.ListIndex(), ComboBox::noSelection);
  EXPECT_EQ(clicks.Count, 0);
}

TEST_F(ComboBoxTest, RaisesClickWhenASelectionComesBackAfterAnUnknownText) {
  box.Select(1);
  box.SetText("three");
  box.Select(1);
  EXPECT_EQ(clicks.Count, 2);
  EXPECT_EQ(box.Text(), "two");
}

TEST_F(ComboBoxTest, RaisesNothingWhenCleared) {
  box.Select(1);
  const int before = bound.Count;
  box.Clear();
  EXPECT_TRUE(box.List().empty());
  EXPECT_EQ(box.ListIndex(), ComboBox::noSelection);
  EXPECT_EQ(box.Text(), "");
  EXPECT_EQ(clicks.Count, 1);
  EXPECT_EQ(bound.Count, before + 1);
}

TEST_F(ComboBoxTest, RaisesClickForTheSameIndexOfANewList) {
  box.Select(0);
  box.Clear();
  box.AddItem("other");
  box.Select(0);
  EXPECT_EQ(clicks.Count, 2);
  EXPECT_EQ(box.Text(), "other");
}

TEST_F(ComboBoxTest, KeepsItsSelectionWhenAnItemIsAdded) {
  box.Select(1);
  const int before = bound.Count;
  box.AddItem("four");
  EXPECT_EQ(box.ListIndex(), 1);
  EXPECT_EQ(box.List().size(), 4U);
  EXPECT_EQ(clicks.Count, 1);
  EXPECT_EQ(bound.Count, before + 1);
}

TEST_F(ComboBoxTest, RaisesNoClickForItsColour) {
  box.SetBackColor(colorDisabledGrey);
  EXPECT_EQ(box.BackColor(), colorDisabledGrey);
  EXPECT_EQ(clicks.Count, 0);
  EXPECT_EQ(bound.Count, 1);
}

TEST(ListBox, ShowsItsLines) {
  ListBox box;
  Counter bound;
  box.Bound = bound.Handler();
  box.SetList({"a", "b"});
  EXPECT_EQ(box.List(), (std::vector<std::string>{"a", "b"}));
  EXPECT_EQ(bound.Count, 1);
  box.SetList({"a", "b"});
  EXPECT_EQ(bound.Count, 1);
}

TEST(ListBox, SelectsALineOrNone) {
  ListBox box;
  EXPECT_EQ(box.ListIndex(), ListBox::noSelection);
  box.SetList({"a", "b"});
  Counter bound;
  box.Bound = bound.Handler();
  box.Select(1);
  EXPECT_EQ(box.ListIndex(), 1);
  EXPECT_EQ(bound.Count, 1);
  box.Select(1);
  EXPECT_EQ(bound.Count, 1);
  box.Select(ListBox::noSelection);
  EXPECT_EQ(box.ListIndex(), ListBox::noSelection);
}

TEST(ListBox, RefusesALineThatIsNotThere) {
  ListBox box;
  box.SetList({"a", "b"});
  EXPECT_THROW(box.Select(2), RuntimeError);
  EXPECT_THROW(box.Select(-2), RuntimeError);
}

TEST(ListBox, SelectsNothingInANewList) {
  ListBox box;
  box.SetList({"a", "b"});
  box.Select(0);
  box.SetList({"a", "b"});
  EXPECT_EQ(box.ListIndex(), ListBox::noSelection);
  box.Select(0);
  box.SetList({"c"});
  EXPECT_EQ(box.ListIndex(), ListBox::noSelection);
}

TEST(MenuEntry, TellsItsCaptionAndItsMark) {
  MenuEntry entry;
  Counter bound;
  entry.Bound = bound.Handler();
  entry.SetCaption("Wordwrap");
  entry.SetChecked(true);
  entry.SetChecked(true);
  EXPECT_EQ(entry.Caption(), "Wordwrap");
  EXPECT_TRUE(entry.Checked());
  EXPECT_EQ(bound.Count, 2);
}

TEST(Grid, ShowsItsRows) {
  Grid grid;
  Counter bound;
  grid.Bound = bound.Handler();
  grid.SetRows({{"head", "head"}, {"a", "b"}});
  EXPECT_EQ(grid.Rows(), (std::vector<Grid::Row>{{"head", "head"}, {"a", "b"}}));
  EXPECT_EQ(bound.Count, 1);
}

TEST(CheckBox, RaisesClickForAnotherValue) {
  CheckBox box;
  Counter clicks;
  Counter bound;
  box.Click = clicks.Handler();
  box.Bound = bound.Handler();
  EXPECT_FALSE(box.Checked());
  box.SetChecked(false);
  EXPECT_EQ(clicks.Count, 0);
  box.SetChecked(true);
  EXPECT_TRUE(box.Checked());
  EXPECT_EQ(clicks.Count, 1);
  box.SetChecked(true);
  EXPECT_EQ(clicks.Count, 1);
  box.SetChecked(false);
  EXPECT_EQ(clicks.Count, 2);
  EXPECT_EQ(bound.Count, 2);
}

TEST(OptionButton, RaisesClickOnlyWhenItBecomesSet) {
  OptionButton option;
  Counter clicks;
  Counter bound;
  option.Click = clicks.Handler();
  option.Bound = bound.Handler();
  option.SetValue(true);
  EXPECT_TRUE(option.Value());
  EXPECT_EQ(clicks.Count, 1);
  option.SetValue(true);
  EXPECT_EQ(clicks.Count, 1);
  option.SetValue(false);
  EXPECT_FALSE(option.Value());
  EXPECT_EQ(clicks.Count, 1);
  EXPECT_EQ(bound.Count, 2);
}

class OptionGroupTest : public testing::Test {
 protected:
  OptionGroupTest() {
    for (Long number = 1; number <= 3; ++number) {
      group[number].Click = [this, number] {
        clicked.push_back(number);
        selectedAtClick.push_back(group.Selected());
      };
    }
  }
  OptionGroup group{3};
  std::vector<Long> clicked;
  std::vector<Integer> selectedAtClick;
};

TEST_F(OptionGroupTest, StartsWithNoneSet) {
  EXPECT_EQ(group.Selected(), 0);
}

TEST_F(OptionGroupTest, SetsOneAndClearsTheOthers) {
  group.Select(2);
  EXPECT_EQ(group.Selected(), 2);
  group.Select(3);
  EXPECT_EQ(group.Selected(), 3);
  EXPECT_FALSE(group[2].Value());
  EXPECT_TRUE(group[3].Value());
  EXPECT_EQ(clicked, (std::vector<Long>{2, 3}));
}

TEST_F(OptionGroupTest, HasTheOthersClearedWhenClickIsRaised) {
  group.Select(1);
  group.Select(3);
  EXPECT_EQ(selectedAtClick, (std::vector<Integer>{1, 3}));
}

TEST_F(OptionGroupTest, RaisesNoClickForTheOptionThatIsSet) {
  group.Select(2);
  group.Select(2);
  EXPECT_EQ(clicked, (std::vector<Long>{2}));
}

TEST_F(OptionGroupTest, ClearsAllWithoutAClick) {
  group.Select(2);
  group.ClearAll();
  EXPECT_EQ(group.Selected(), 0);
  EXPECT_EQ(clicked, (std::vector<Long>{2}));
}

TEST_F(OptionGroupTest, RaisesSubscriptOutOfRangeForANumberWithoutAnOption) {
  group.Select(1);
  for (const Long number : {0, 4, -1}) {
    EXPECT_EQ(ErrorOf([&] { group.Select(number); }), 9) << number;
    EXPECT_EQ(ErrorOf([&] { group[number].SetValue(true); }), 9) << number;
  }
  EXPECT_EQ(group.Selected(), 1);
}

TEST_F(OptionGroupTest, VisitsEveryOption) {
  int count = 0;
  for (OptionButton& option : group) {
    option.SetEnabled(false);
    ++count;
  }
  EXPECT_EQ(count, 3);
  EXPECT_FALSE(group[1].Enabled());
  EXPECT_FALSE(group[3].Enabled());
}

TEST(Image, ShowsAPictureAndItsMark) {
  Image image;
  Counter bound;
  image.Bound = bound.Handler();
  EXPECT_EQ(image.Shown(), Picture());
  const Picture picture{Picture::Source::Bitmap, 201};
  image.Show(picture);
  EXPECT_EQ(image.Shown(), picture);
  EXPECT_EQ(bound.Count, 1);
  image.Show(picture);
  EXPECT_EQ(bound.Count, 1);
  image.Show({Picture::Source::Icon, 201});
  EXPECT_EQ(bound.Count, 2);
  image.SetMarked(true);
  EXPECT_TRUE(image.Marked());
  EXPECT_EQ(bound.Count, 3);
}

TEST(Line, HasAColour) {
  Line line;
  Counter bound;
  line.Bound = bound.Handler();
  EXPECT_EQ(line.BorderColor(), colorBlack);
  line.SetBorderColor(colorRed);
  EXPECT_EQ(line.BorderColor(), colorRed);
  EXPECT_EQ(bound.Count, 1);
}

TEST(Timer, HasAnInterval) {
  Timer timer;
  Counter bound;
  timer.Bound = bound.Handler();
  EXPECT_EQ(timer.Interval(), 0);
  timer.SetInterval(500);
  EXPECT_EQ(timer.Interval(), 500);
  EXPECT_EQ(bound.Count, 1);
}

TEST(TabControl, RaisesClickWithTheTabLeft) {
  TabControl tabs;
  std::vector<std::pair<Integer, Integer>> clicks;
  Counter bound;
  tabs.Bound = bound.Handler();
  tabs.Click = [&](Integer previous) { clicks.emplace_back(previous, tabs.Tab()); };
  EXPECT_EQ(tabs.Tab(), 0);
  tabs.SetTab(2);
  tabs.SetTab(2);
  tabs.SetTab(1);
  EXPECT_EQ(clicks, (std::vector<std::pair<Integer, Integer>>{{0, 2}, {2, 1}}));
  EXPECT_EQ(bound.Count, 2);
}

TEST(TabControl, ChangesTabsWithoutAHandler) {
  TabControl tabs;
  tabs.SetTab(1);
  EXPECT_EQ(tabs.Tab(), 1);
}

}  // namespace

}  // namespace trelonit::test
