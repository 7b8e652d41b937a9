// What every key does in the document window's text.

#include "tests/windows/editor/OtchetScreen.h"

namespace trelonit::test {
namespace {

class OtchetWindowKeys : public ::testing::Test, protected OtchetScreen {
 protected:
  OtchetWindowKeys() { Start(); }

  static constexpr Qt::KeyboardModifier control = Qt::ControlModifier;
  static constexpr Qt::KeyboardModifier shift = Qt::ShiftModifier;

  /// A text with the given selection and nothing to undo.
  void Hold(const std::string& text, Long start, Long length = 0) {
    Box->SetText(text);
    Form->Undo.Reset();
    Box->Select(start, length);
  }
  std::string Shown() { return FromQt(Edit().toPlainText()); }
};

TEST_F(OtchetWindowKeys, TypeLatinLettersOneStepEach) {
  QTest::keyClicks(&Edit(), QStringLiteral("abcdefghij"));
  EXPECT_EQ(Shown(), "abcdefghij");
  EXPECT_TRUE(Form->Changed());
  for (int step = 9; step >= 0; --step) {
    Key(Qt::Key_Z, control);
    EXPECT_EQ(Shown(), std::string("abcdefghij").substr(0, static_cast<std::size_t>(step)));
  }
  EXPECT_FALSE(Entry("mnuEdit0").isEnabled());
  for (int step = 0; step < 10; ++step) {
    Key(Qt::Key_R, control);
  }
  EXPECT_EQ(Shown(), "abcdefghij");
  EXPECT_FALSE(Entry("mnuEdit1").isEnabled());
}

TEST_F(OtchetWindowKeys, TypeCapitalsDigitsAndSigns) {
  KeyOf(Qt::Key_A, "A", shift);
  KeyOf(Qt::Key_1, "1");
  KeyOf(Qt::Key_Percent, "%", shift);
  KeyOf(Qt::Key_7, "7", Qt::KeypadModifier);
  KeyOf(Qt::Key_Space, " ");
  EXPECT_EQ(Shown(), "A1%7 ");
  EXPECT_EQ(Form->Undo.UndoCount(), 5);
}

TEST_F(OtchetWindowKeys, RedoCyrillicLettersAsTheyWereTyped) {
  KeyOf(0x0424, "ф");
  KeyOf(0x042B, "Ы", shift);
  EXPECT_EQ(Box->Text(), "фЫ");
  Key(Qt::Key_Z, control);
  EXPECT_EQ(Box->Text(), "ф");
  Key(Qt::Key_Z, control);
  EXPECT_EQ(Box->Text(), "");
  Key(Qt::Key_R, control);
  Key(Qt::Key_R, control);
  EXPECT_EQ(Box->Text(), "фЫ");
  EXPECT_EQ(Form->Undo.UndoCount(), 2);
}

TEST_F(OtchetWindowKeys, TypeOverTheSelection) {
  Hold("one two", 4, 3);
  Key(Qt::Key_X);
  EXPECT_EQ(Shown(), "one x");
  Key(Qt::Key_Z, control);
  EXPECT_EQ(Shown(), "one two");
}

TEST_F(OtchetWindowKeys, UndoNothingWhereNothingWasDone) {
  Hold("one", 1, 1);
  Key(Qt::Key_Z, control);
  Key(Qt::Key_R, control);
  EXPECT_EQ(Shown(), "one");
  EXPECT_EQ(Selection(), (TextSpan{1, 1}));
}

TEST_F(OtchetWindowKeys, EndTheRedoHistoryByAnEdit) {
  Key(Qt::Key_A);
  Key(Qt::Key_Z, control);
  EXPECT_TRUE(Entry("mnuEdit1").isEnabled());
  Key(Qt::Key_B);
  EXPECT_FALSE(Entry("mnuEdit1").isEnabled());
  Key(Qt::Key_R, control);
  EXPECT_EQ(Shown(), "b");
}

TEST_F(OtchetWindowKeys, DeleteWholeLineEndsAndSelections) {
  Hold("ab\r\ncd", 2);
  Key(Qt::Key_Delete);
  EXPECT_EQ(Shown(), "abcd");
  EXPECT_EQ(Form->Undo.UndoCount(), 1);
  Key(Qt::Key_Delete);
  EXPECT_EQ(Shown(), "abd");
  Box->Select(0, 2);
  Key(Qt::Key_Delete);
  EXPECT_EQ(Shown(), "d");
  for (int step = 0; step < 3; ++step) {
    Key(Qt::Key_Z, control);
  }
  EXPECT_EQ(Box->Text(), "ab\r\ncd");
}

TEST_F(OtchetWindowKeys, TakeBackWholeLineEndsAndSelections) {
  Hold("ab\r\ncd", 4);
  Key(Qt::Key_Backspace);
  EXPECT_EQ(Shown(), "abcd");
  EXPECT_EQ(Selection(), (TextSpan{2, 0}));
  Key(Qt::Key_Backspace);
  EXPECT_EQ(Shown(), "acd");
  Box->Select(1, 2);
  Key(Qt::Key_Backspace);
  EXPECT_EQ(Shown(), "a");
  for (int step = 0; step < 3; ++step) {
    Key(Qt::Key_Z, control);
  }
  EXPECT_EQ(Box->Text(), "ab\r\ncd");
}

TEST_F(OtchetWindowKeys, CutCopyAndPaste) {
  Hold("one two", 0, 4);
  Key(Qt::Key_X, control);
  EXPECT_EQ(Shown(), "two");
  EXPECT_EQ(Outside.Clipboard.Text(), "one ");
  Key(Qt::Key_End);
  Key(Qt::Key_V, control);
  EXPECT_EQ(Shown(), "twoone ");
  Box->Select(0, 2);
  Key(Qt::Key_C, control);
  EXPECT_EQ(Outside.Clipboard.Text(), "tw");
  Box->Select(3, 4);
  Key(Qt::Key_Insert, control | shift);
  EXPECT_EQ(Shown(), "twotw");
  EXPECT_EQ(Form->Undo.UndoCount(), 3);
  for (int step = 0; step < 3; ++step) {
    Key(Qt::Key_Z, control);
  }
  EXPECT_EQ(Shown(), "one two");
}

TEST_F(OtchetWindowKeys, PutInATab) {
  Hold("ab\r\ncd", 5);
  Key(Qt::Key_Tab);
  EXPECT_EQ(Box->Text(), "ab\r\nc\td");
  EXPECT_TRUE(Edit().hasFocus());
  Key(Qt::Key_Z, control);
  EXPECT_EQ(Box->Text(), "ab\r\ncd");
  EXPECT_EQ(Selection(), (TextSpan{5, 0}));
  Key(Qt::Key_R, control);
  EXPECT_EQ(Box->Text(), "ab\r\nc\td");
}

TEST_F(OtchetWindowKeys, BeginALineByReturn) {
  Hold("abcd", 2);
  Key(Qt::Key_Return);
  EXPECT_EQ(Box->Text(), "ab\r\ncd");
  EXPECT_EQ(Shown(), "ab\ncd");
  EXPECT_EQ(Panel(2), "Строка 2, столбец 1");
  Key(Qt::Key_Z, control);
  EXPECT_EQ(Box->Text(), "abcd");
}

TEST_F(OtchetWindowKeys, SelectAllAboveAndBelow) {
  Hold("ab\r\ncd", 1);
  Key(Qt::Key_A, control);
  EXPECT_EQ(Selection(), (TextSpan{0, 6}));
  EXPECT_EQ(ShownSelection(), "ab\ncd");
  Box->SetSelStart(4);
  Box->SetSelLength(0);
  Key(Qt::Key_T, control);
  EXPECT_EQ(Selection(), (TextSpan{0, 4}));
  EXPECT_EQ(ShownSelection(), "ab\n");
  Box->Select(4, 0);
  Key(Qt::Key_B, control);
  EXPECT_EQ(Selection(), (TextSpan{4, 2}));
  EXPECT_EQ(ShownSelection(), "cd");
  EXPECT_TRUE(Entry("mnuEdit3").isEnabled());
  EXPECT_EQ(Form->Undo.UndoCount(), 0);
}

TEST_F(OtchetWindowKeys, DoNothingByOtherCombinationsWithControl) {
  Hold("ab\r\ncd", 0, 2);
  const std::string others = "DEGHIJKLMNQUWY0123456789";
  for (const char key : others) {
    Key(static_cast<Qt::Key>(key), control);
    Key(static_cast<Qt::Key>(key), control | shift);
  }
  for (const Qt::Key key : {Qt::Key_Backspace, Qt::Key_Return, Qt::Key_Space}) {
    Key(key, control);
  }
  EXPECT_EQ(Box->Text(), "ab\r\ncd");
  EXPECT_EQ(Shown(), "ab\ncd");
  EXPECT_EQ(Selection(), (TextSpan{0, 2}));
  EXPECT_EQ(Form->Undo.UndoCount(), 0);
  EXPECT_EQ(FromQt(Window->windowTitle()), "Vestra");
  EXPECT_EQ(Said(), Texts());
}

TEST_F(OtchetWindowKeys, ReachTheCommandsOfTheWindow) {
  Hold("abc", 0);
  Key(Qt::Key_S, control);
  EXPECT_EQ(Dialogs.Saved.size(), 1U);
  Key(Qt::Key_P, control);
  EXPECT_EQ(Dialogs.Printed.size(), 1U);
  Answer(MessageAnswer::No);
  Key(Qt::Key_O, control);
  EXPECT_EQ(Dialogs.Opened.size(), 1U);
  Key(Qt::Key_F, control);
  EXPECT_NE(Window->findChild<QComboBox*>(QStringLiteral("cboFind")), nullptr);
  EXPECT_EQ(Shown(), "abc");
}

TEST_F(OtchetWindowKeys, ReachTheMenusWithAlt) {
  Hold("abc", 0);
  for (const QAction* action : Window->menuBar()->actions()) {
    Edit().setFocus();
    PressMnemonic(action->text());
    EXPECT_TRUE(action->menu()->isVisible()) << FromQt(action->text());
    while (QWidget* popup = QApplication::activePopupWidget()) {
      popup->close();
    }
  }
  EXPECT_EQ(Shown(), "abc");
  EXPECT_EQ(Form->Undo.UndoCount(), 0);
}

TEST_F(OtchetWindowKeys, MoveTheCaretAndSelectWithShift) {
  Hold("one two", 0);
  Key(Qt::Key_Right);
  Key(Qt::Key_Right, shift);
  Key(Qt::Key_Right, shift);
  EXPECT_EQ(Selection(), (TextSpan{1, 2}));
  EXPECT_TRUE(Entry("mnuEdit4").isEnabled());
  Key(Qt::Key_C, control);
  EXPECT_EQ(Outside.Clipboard.Text(), "ne");
  Key(Qt::Key_Home);
  EXPECT_FALSE(Entry("mnuEdit4").isEnabled());
  EXPECT_EQ(Form->Undo.UndoCount(), 0);
}

}  // namespace
}  // namespace trelonit::test
