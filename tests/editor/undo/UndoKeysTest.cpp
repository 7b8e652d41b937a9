#include "tests/editor/undo/UndoDesk.h"

namespace trelonit::test {
namespace {

using Codes = std::vector<Integer>;

// The keys, one by one ------------------------------------------------------------------------

TEST_F(Undo, TakesCtrlZAndCtrlR) {
  Type("a");
  EXPECT_EQ(Press('Z', 2), 0);
  EXPECT_EQ(box.Text(), "");
  EXPECT_EQ(Press('R', 2), 0);
  EXPECT_EQ(box.Text(), "a");
}

TEST_F(Undo, DeletesTheSelectionAsOneElement) {
  Hold("один два");
  box.Select(1, 3);
  const std::string taken = box.SelRTF();
  EXPECT_EQ(Press(keyDelete), 0);
  EXPECT_EQ(box.Text(), "о два");
  EXPECT_EQ(Newest(), (clsUndoElement{1, 0, 3, taken, "", -1, -1, true}));
}

TEST_F(Undo, DeletesOneCharacterBehindTheCaret) {
  Hold("abc");
  box.SetSelStart(1);
  EXPECT_EQ(Press(keyDelete), 0);
  EXPECT_EQ(box.Text(), "ac");
  EXPECT_EQ(Selection(), (TextSpan{1, 0}));
  EXPECT_EQ(Newest().Start, 1);
  EXPECT_EQ(Newest().NewLength, 1);
  EXPECT_EQ(Newest().OldLength, 0);
  EXPECT_EQ(Newest().NewText, "");
  EXPECT_TRUE(Newest().Removal);
}

TEST_F(Undo, DeletesWithEveryShiftState) {
  for (Integer shift = 0; shift < 8; ++shift) {
    Hold("abc");
    EXPECT_EQ(Press(keyDelete, shift), 0) << shift;
    EXPECT_EQ(box.Text(), "bc") << shift;
    EXPECT_EQ(undo.UndoCount(), 1) << shift;
  }
}

TEST_F(Undo, DeletesBothCharactersOfALineEndInOneStepAndBack) {
  Hold("ab\r\ncd");
  box.SetSelStart(2);
  Press(keyDelete);
  EXPECT_EQ(box.Text(), "abcd");
  EXPECT_EQ(undo.UndoCount(), 1);
  undo.Undo();
  EXPECT_EQ(box.Text(), "ab\r\ncd");
  undo.Redo();
  EXPECT_EQ(box.Text(), "abcd");
}

TEST_F(Undo, DeletesALastCharacterThatHasNoneBehindIt) {
  Hold("ab");
  box.SetSelStart(1);
  Press(keyDelete);
  EXPECT_EQ(box.Text(), "a");
  undo.Undo();
  EXPECT_EQ(box.Text(), "ab");
}

TEST_F(Undo, RecordsNoDeleteAtTheEndOfTheText) {
  Hold("ab");
  box.SetSelStart(2);
  EXPECT_EQ(Press(keyDelete), 0);
  EXPECT_EQ(box.Text(), "ab");
  EXPECT_EQ(undo.UndoCount(), 0);
}

TEST_F(Undo, CutsTheSelectionToTheClipboardAsPlainText) {
  Hold("один два");
  box.Select(0, 5);
  EXPECT_EQ(Press('X', 2), 0);
  EXPECT_EQ(clipboard.Text(), "один ");
  EXPECT_EQ(clipboard.RichText(), "");
  EXPECT_EQ(box.Text(), "два");
  EXPECT_EQ(Newest().NewLength, 5);
  EXPECT_TRUE(Newest().Removal);
}

TEST_F(Undo, CutsTheSelectionToTheClipboardAsRichText) {
  Hold("один два");
  undo.SetRichEditing(true);
  box.Select(0, 5);
  const std::string taken = box.SelRTF();
  Press('X', 2);
  EXPECT_EQ(clipboard.Text(), "один ");
  EXPECT_EQ(clipboard.RichText(), taken);
  EXPECT_EQ(Newest().OldText, taken);
}

TEST_F(Undo, CutsTheNextCharacterAndClearsTheClipboardWithNothingSelected) {
  Hold("abc");
  clipboard.SetText("before");
  Press('X', 2);
  EXPECT_EQ(clipboard.Text(), "");
  EXPECT_EQ(box.Text(), "bc");
  EXPECT_EQ(Newest().NewLength, 1);
}

TEST_F(Undo, PastesPlainTextOverTheSelection) {
  Hold("abcd");
  clipboard.SetText("раз\nдва");
  box.Select(1, 2);
  const std::string taken = box.SelRTF();
  EXPECT_EQ(Press('V', 2), 0);
  EXPECT_EQ(box.Text(), "aраз\r\nдваd");
  EXPECT_EQ(Newest(), (clsUndoElement{1, 8, 2, taken, "раз\r\nдва", -1, -1, false}));
  undo.Undo();
  EXPECT_EQ(box.Text(), "abcd");
  undo.Redo();
  EXPECT_EQ(box.Text(), "aраз\r\nдваd");
}

TEST_F(Undo, PastesAtTheCaretWithoutTakingAnythingOut) {
  Hold("abcd");
  clipboard.SetText("xy");
  box.SetSelStart(2);
  Press('V', 2);
  undo.Undo();
  EXPECT_EQ(box.Text(), "abcd");
  undo.Redo();
  EXPECT_EQ(box.Text(), "abxycd");
  EXPECT_EQ(Newest().OldText, "");
}

TEST_F(Undo, PastesRichTextWithItsLooks) {
  Hold("ab");
  undo.SetRichEditing(true);
  CharFormat bold;
  bold.Bold = true;
  box.Select(0, 1);
  box.SetSelFormat(bold);
  Press('C', 2);
  box.SetSelStart(2);
  Press('V', 2);
  EXPECT_EQ(box.Text(), "aba");
  EXPECT_EQ(Newest().OldLength, 1);
  EXPECT_EQ(Newest().NewText, clipboard.RichText());
  undo.Undo();
  EXPECT_EQ(box.Text(), "ab");
  undo.Redo();
  box.Select(2, 1);
  EXPECT_TRUE(box.SelFormat().Bold);
}

TEST_F(Undo, PastesPlainTextWhereTheClipboardHoldsNoRichText) {
  undo.SetRichEditing(true);
  clipboard.SetText("plain");
  Press('V', 2);
  EXPECT_EQ(box.Text(), "plain");
  EXPECT_EQ(Newest().NewText, "plain");
}

TEST_F(Undo, PastesNothingFromAnEmptyClipboard) {
  Hold("abc");
  box.Select(0, 2);
  EXPECT_EQ(Press('V', 2), 0);
  EXPECT_EQ(box.Text(), "abc");
  EXPECT_EQ(Selection(), (TextSpan{0, 2}));
  EXPECT_EQ(undo.UndoCount(), 0);
}

TEST_F(Undo, RecordsNoPasteThatChangesNothing) {
  undo.SetRichEditing(true);
  clipboard.SetRichText("{\\rtf1}", "");
  EXPECT_EQ(Press('V', 2), 0);
  EXPECT_EQ(undo.UndoCount(), 0);
  // Over a character the same takes it out.
  Hold("a");
  box.Select(0, 1);
  Press('V', 2);
  EXPECT_EQ(box.Text(), "");
  EXPECT_EQ(undo.UndoCount(), 1);
}

TEST_F(Undo, PastesWithInsertAndShiftToo) {
  clipboard.SetText("x");
  EXPECT_EQ(Press(keyInsert, 3), 0);
  EXPECT_EQ(Press(keyInsert, 1), 0);
  EXPECT_EQ(box.Text(), "xx");
  EXPECT_EQ(undo.UndoCount(), 2);
}

TEST_F(Undo, RecordsATabAsAnEditOfItsLine) {
  Hold("first\r\nabcd\r\nlast");
  box.SetSelStart(9);
  EXPECT_EQ(Press(keyTab), keyTab);
  EXPECT_EQ(box.Text(), "first\r\nab\tcd\r\nlast");
  EXPECT_EQ(Newest().Start, 7);
  EXPECT_EQ(Newest().NewLength, 4);
  EXPECT_EQ(Newest().OldLength, 5);
  EXPECT_EQ(Newest().NewText, "ab\tcd");
  EXPECT_EQ(Newest().CaretBefore, 9);
  EXPECT_EQ(Newest().CaretAfter, 10);
  EXPECT_FALSE(Newest().Removal);
  EXPECT_FALSE(undo.ChangePending());
  undo.Undo();
  EXPECT_EQ(box.Text(), "first\r\nabcd\r\nlast");
  EXPECT_EQ(Selection(), (TextSpan{9, 0}));
  undo.Redo();
  EXPECT_EQ(box.Text(), "first\r\nab\tcd\r\nlast");
  EXPECT_EQ(Selection(), (TextSpan{10, 0}));
}

TEST_F(Undo, WaitsForTheChangeThatCompletesATab) {
  Hold("ab");
  box.SetSelStart(1);
  Press(keyTab, 0, "");
  EXPECT_TRUE(undo.ChangePending());
  EXPECT_EQ(Selection(), (TextSpan{1, 0}));
  EXPECT_EQ(stateChanges, 1);
  box.SetSelText("\t");
  EXPECT_FALSE(undo.ChangePending());
  EXPECT_EQ(stateChanges, 2);
  EXPECT_EQ(Selection(), (TextSpan{2, 0}));
}

TEST_F(Undo, LeavesTheTextWholeWhenTheBoxDidNotTakeATab) {
  Hold("ab");
  box.SetSelStart(2);
  Press(keyTab, 0, "");
  Type("c");
  EXPECT_EQ(Newest().NewText, "c");
  undo.Undo();
  undo.Undo();
  EXPECT_EQ(box.Text(), "ab");
}

TEST_F(Undo, PutsTheCaretOneFurtherWhereTheChangeEmptiedTheLine) {
  Hold("ab\r\ncd\r\nef");
  box.SetSelStart(4);
  Press(keyTab, 0, "");
  box.Select(4, 2);
  box.SetSelText("");
  EXPECT_FALSE(undo.ChangePending());
  EXPECT_EQ(Newest().NewText, "");
  EXPECT_EQ(Newest().OldLength, 0);
  EXPECT_EQ(Newest().CaretAfter, 5);
}

TEST_F(Undo, TabsInAnEmptyBoxAndOverSeveralLines) {
  Press(keyTab);
  undo.Undo();
  EXPECT_EQ(box.Text(), "");
  Hold("ab\r\ncd\r\nef");
  box.Select(1, 4);
  Press(keyTab);
  EXPECT_EQ(box.Text(), "a\td\r\nef");
  undo.Undo();
  EXPECT_EQ(box.Text(), "ab\r\ncd\r\nef");
  undo.Redo();
  EXPECT_EQ(box.Text(), "a\td\r\nef");
}

TEST_F(Undo, CopiesWithoutRecording) {
  Hold("abc");
  box.Select(1, 2);
  EXPECT_EQ(Press('C', 2), 0);
  EXPECT_EQ(clipboard.Text(), "bc");
  EXPECT_EQ(box.Text(), "abc");
  EXPECT_EQ(Selection(), (TextSpan{1, 2}));
  EXPECT_EQ(undo.UndoCount(), 0);
}

TEST_F(Undo, SelectsAllAboveAndBelow) {
  Hold("ab\r\ncd");
  box.SetSelStart(4);
  box.SetFirstVisibleLine(1);
  std::vector<bool> hourglass;
  box.Bound = [&] { hourglass.push_back(box.Hourglass()); };
  EXPECT_EQ(Press('T', 2), 0);
  EXPECT_EQ(Selection(), (TextSpan{0, 4}));
  box.SetSelStart(4);
  EXPECT_EQ(Press('B', 2), 0);
  EXPECT_EQ(Selection(), (TextSpan{4, 2}));
  EXPECT_EQ(hourglass, (std::vector<bool>{true, false, true, false}));
  EXPECT_EQ(Press('A', 2), 0);
  EXPECT_EQ(Selection(), (TextSpan{0, 6}));
  EXPECT_EQ(box.FirstVisibleLine(), 1);
  EXPECT_EQ(undo.UndoCount(), 0);
}

TEST_F(Undo, RecordsATypedLetterAndLeavesTheKeyToTheBox) {
  Hold("xyz");
  box.Select(1, 2);
  const std::string taken = box.SelRTF();
  EXPECT_EQ(Press('A'), 'A');
  EXPECT_EQ(box.Text(), "xa");
  EXPECT_EQ(Newest(), (clsUndoElement{1, 1, 2, taken, "a", -1, -1, false}));
  EXPECT_EQ(Press('B', 1), 'B');
  EXPECT_EQ(box.Text(), "xaB");
  EXPECT_EQ(Newest(), (clsUndoElement{2, 1, 0, "", "B", -1, -1, false}));
}

TEST_F(Undo, TakesOutNoMoreThanTheCharacterInFrontOnBackspace) {
  Hold("abcd\r\nef");
  box.SetSelStart(3);
  Press(keyBack);
  EXPECT_EQ(box.Text(), "abd\r\nef");
  box.SetSelStart(5);
  Press(keyBack);
  EXPECT_EQ(box.Text(), "abdef");
  EXPECT_EQ(Selection(), (TextSpan{3, 0}));
}

TEST_F(Undo, TakesOutTheCharacterInFrontOnBackspace) {
  Hold("ab\r\n\U0001F600");
  box.SetSelStart(6);
  EXPECT_EQ(Press(keyBack), 0);
  EXPECT_EQ(box.Text(), "ab\r\n");
  EXPECT_EQ(Press(keyBack), 0);
  EXPECT_EQ(box.Text(), "ab");
  box.Select(0, 2);
  Press(keyBack);
  EXPECT_EQ(box.Text(), "");
  Press(keyBack);
  EXPECT_EQ(undo.UndoCount(), 3);
  undo.Undo();
  undo.Undo();
  undo.Undo();
  EXPECT_EQ(box.Text(), "ab\r\n\U0001F600");
  EXPECT_EQ(Selection(), (TextSpan{6, 0}));
}

TEST_F(Undo, LeavesKeysThatChangeNoTextToTheBoxUnrecorded) {
  for (const Integer key :
       Codes{16, 17, 18, 20, 27, 33, 34, 35, 36, 37, 38, 39, 40, 91, 112, 123, 144}) {
    EXPECT_EQ(Press(key), key);
    EXPECT_EQ(Press(key, 1), key);
  }
  EXPECT_EQ(Press(keyTab, 1), keyTab);
  EXPECT_EQ(Press(keyInsert), keyInsert);
  EXPECT_EQ(undo.UndoCount(), 0);
  EXPECT_EQ(stateChanges, 0);
}

TEST_F(Undo, TakesEveryOtherKeyWithCtrlAway) {
  Hold("abc");
  for (const Integer shift : Codes{2, 3, 5, 6, 7}) {
    for (const Integer key : Codes{'N', 'I', 'J', 13, 9, 32, 37, 67, 8}) {
      if (shift == 2 && key == 'C') {
        continue;
      }
      EXPECT_EQ(Press(key, shift), 0) << key << " " << shift;
    }
  }
  EXPECT_EQ(box.Text(), "abc");
  EXPECT_EQ(undo.UndoCount(), 0);
  EXPECT_EQ(clipboard.Text(), "");
}

TEST_F(Undo, LeavesKeysWithAltToTheBox) {
  EXPECT_EQ(Press('F', 4), 'F');
  EXPECT_EQ(Press(115, 4), 115);
  EXPECT_EQ(undo.UndoCount(), 0);
}

TEST_F(Undo, LocksTheUpdatesDuringAKeyAndNoLonger) {
  Hold("abc");
  for (const Integer key : Codes{'Z', 'R', 'X', 'V', 'C', 'A', 'T', 'B', 'N'}) {
    box.Deepest = 0;
    Press(key, 2);
    EXPECT_GE(box.Deepest, 1) << key;
    EXPECT_EQ(box.Locks, 0) << key;
  }
  box.Deepest = 0;
  Press('A', 0, "");
  EXPECT_EQ(box.Deepest, 1);
  EXPECT_EQ(box.Locks, 0);
}

TEST_F(Undo, RedoesWhatTheKeyboardPutIn) {
  // The key of a Latin f types а on a Russian layout.
  Integer key = 'F';
  undo.RichBox_KeyDown(key, 0);
  undo.RichBox_Typed("а");
  box.SetSelText("а");
  EXPECT_EQ(Newest().NewText, "а");
  undo.Undo();
  EXPECT_EQ(box.Text(), "");
  undo.Redo();
  EXPECT_EQ(box.Text(), "а");
}

TEST_F(Undo, TakesTheTextOfAKeyOnceAndOnlyWhereOneWasTyped) {
  undo.RichBox_Typed("before any key");
  EXPECT_EQ(undo.UndoCount(), 0);
  Integer key = 'F';
  undo.RichBox_KeyDown(key, 0);
  undo.RichBox_Typed("а");
  undo.RichBox_Typed("б");
  EXPECT_EQ(Newest().NewText, "а");
}

}  // namespace
}  // namespace trelonit::test
