#include "platform/errors/RuntimeError.h"
#include "tests/editor/undo/UndoDesk.h"

namespace trelonit::test {
namespace {

TEST_F(Undo, HasNothingToUndoAtFirst) {
  EXPECT_TRUE(undo.Enabled());
  EXPECT_FALSE(undo.canUndo());
  EXPECT_FALSE(undo.canRedo());
  EXPECT_FALSE(undo.RichEditing());
  EXPECT_EQ(undo.UndoCount(), 0);
  EXPECT_EQ(undo.RedoCount(), 0);
  EXPECT_EQ(undo.Current().Start, 0);
  EXPECT_EQ(undo.Current().OldLength, 0);
  EXPECT_EQ(undo.Current().NewLength, 0);
}

TEST_F(Undo, LeavesTextAndSelectionAloneWithNothingToUndo) {
  Hold("abc");
  box.Select(1, 1);
  Press('Z', 2);
  Press('R', 2);
  EXPECT_EQ(box.Text(), "abc");
  EXPECT_EQ(Selection(), (TextSpan{1, 1}));
  EXPECT_EQ(stateChanges, 0);
}

TEST_F(Undo, NeedsTenStepsForTenLetters) {
  const std::string letters = "abcdefghij";
  Type(letters);
  EXPECT_EQ(undo.UndoCount(), 10);
  for (std::size_t left = 10; left > 0; --left) {
    EXPECT_EQ(box.Text(), letters.substr(0, left));
    EXPECT_TRUE(undo.canUndo());
    undo.Undo();
  }
  EXPECT_EQ(box.Text(), "");
  EXPECT_FALSE(undo.canUndo());
  EXPECT_EQ(undo.RedoCount(), 10);
}

TEST_F(Undo, ForgetsTheRedoHistoryOnAnyRecordedKey) {
  clipboard.SetText("c");
  for (const auto& [key, shift] : std::vector<std::pair<Integer, Integer>>{{'A', 0},
                                                                           {keyDelete, 0},
                                                                           {keyBack, 0},
                                                                           {keyTab, 0},
                                                                           {keyReturn, 0},
                                                                           {'V', 2},
                                                                           {'X', 2}}) {
    Hold("xy");
    box.SetSelStart(1);
    Type("ab");
    undo.Undo();
    ASSERT_TRUE(undo.canRedo());
    Press(key, shift);
    EXPECT_EQ(undo.RedoCount(), 0) << key;
    EXPECT_EQ(undo.UndoCount(), 2) << key;
  }
}

TEST_F(Undo, KeepsTheRedoHistoryOnOtherKeys) {
  Type("a");
  undo.Undo();
  Press(37);
  Press('C', 2);
  Press('A', 2);
  Press('N', 2);
  EXPECT_EQ(undo.RedoCount(), 1);
}

TEST_F(Undo, DoesTheSameByCommandAsByKey) {
  Hold("abcd");
  box.Select(0, 1);
  undo.Cut();
  EXPECT_EQ(box.Text(), "bcd");
  EXPECT_EQ(clipboard.Text(), "a");
  undo.Paste();
  EXPECT_EQ(box.Text(), "abcd");
  undo.Delete();
  EXPECT_EQ(box.Text(), "acd");
  box.Select(1, 2);
  undo.Copy();
  EXPECT_EQ(clipboard.Text(), "cd");
  EXPECT_EQ(undo.UndoCount(), 3);
}

TEST_F(Undo, KeepsTheClipboardWhenNothingIsCopied) {
  clipboard.SetText("kept");
  undo.Copy();
  EXPECT_EQ(clipboard.Text(), "kept");
}

TEST_F(Undo, InsertsATextAsOneStep) {
  Hold("abcd");
  box.Select(1, 2);
  undo.InsertText("раз\nдва");
  EXPECT_EQ(box.Text(), "aраз\r\nдваd");
  EXPECT_EQ(Selection(), (TextSpan{9, 0}));
  EXPECT_EQ(undo.UndoCount(), 1);
  EXPECT_EQ(Newest().NewText, "раз\r\nдва");
  EXPECT_EQ(stateChanges, 1);
  undo.Undo();
  EXPECT_EQ(box.Text(), "abcd");
  undo.Redo();
  EXPECT_EQ(box.Text(), "aраз\r\nдваd");
}

TEST_F(Undo, RedoesAnInsertedTextAsTextThoughItBeginsLikeRichText) {
  undo.SetRichEditing(true);
  Hold("ab");
  box.Select(1, 0);
  undo.InsertText("{\\rtf1 x}");
  EXPECT_EQ(box.Text(), "a{\\rtf1 x}b");
  undo.Undo();
  EXPECT_EQ(box.Text(), "ab");
  undo.Redo();
  EXPECT_EQ(box.Text(), "a{\\rtf1 x}b");
}

TEST_F(Undo, InsertsAnEmptyTextByTakingTheSelectionOut) {
  Hold("abcd");
  undo.InsertText("");
  EXPECT_EQ(undo.UndoCount(), 0);
  box.Select(1, 2);
  undo.InsertText("");
  EXPECT_EQ(box.Text(), "ad");
  undo.Undo();
  EXPECT_EQ(box.Text(), "abcd");
}

TEST_F(Undo, TellsEveryChangeOfItsState) {
  Type("a");
  EXPECT_EQ(stateChanges, 1);
  undo.Undo();
  EXPECT_EQ(stateChanges, 2);
  undo.Redo();
  EXPECT_EQ(stateChanges, 3);
  undo.UpdateStateChange();
  EXPECT_EQ(stateChanges, 4);
  undo.Reset();
  EXPECT_EQ(stateChanges, 5);
}

TEST_F(Undo, RecordsNothingWhileItUndoes) {
  Type("ab");
  std::vector<bool> recording;
  box.Change = [&] {
    recording.push_back(undo.Enabled());
    EXPECT_FALSE(undo.canUndo());
    EXPECT_FALSE(undo.canRedo());
  };
  undo.Undo();
  undo.Redo();
  EXPECT_EQ(recording, (std::vector<bool>{false, false}));
  EXPECT_TRUE(undo.Enabled());
  EXPECT_TRUE(undo.canUndo());
}

TEST_F(Undo, RecordsAgainAfterAFailedUndo) {
  Type("a");
  box.Change = [] { throw RuntimeError(ErrorNumber::OutOfMemory); };
  EXPECT_THROW(undo.Undo(), RuntimeError);
  EXPECT_TRUE(undo.Enabled());
  EXPECT_EQ(box.Locks, 0);
}

TEST_F(Undo, PassesOverOneChangeWhenTold) {
  Hold("ab");
  Press(keyTab, 0, "");
  undo.IgnoreChange();
  box.SetSelText("x");
  EXPECT_TRUE(undo.ChangePending());
  EXPECT_EQ(Newest().NewText, "ab");
  box.SetSelText("\t");
  EXPECT_FALSE(undo.ChangePending());
  EXPECT_EQ(Newest().NewText, "x\tab");
}

TEST_F(Undo, GivesBackTheLooksOfWhatItTookOut) {
  Hold("abcd\r\nef");
  CharFormat red;
  red.TextColor = colorRed;
  red.FontSize = 14;
  box.Select(2, 5);
  box.SetSelFormat(red);
  const RichDocument before = box.Document();
  box.Select(1, 6);
  Press('A');
  EXPECT_EQ(box.Text(), "aaf");
  undo.Undo();
  EXPECT_EQ(box.Document(), before);
}

TEST_F(Undo, ForgetsEverythingOnReset) {
  Type("ab");
  undo.Undo();
  undo.Reset();
  EXPECT_FALSE(undo.canUndo());
  EXPECT_FALSE(undo.canRedo());
  undo.Undo();
  EXPECT_EQ(box.Text(), "a");
}

TEST(UndoWithoutABox, Raises91) {
  MemoryClipboard clipboard;
  clsUndo undo(clipboard);
  EXPECT_EQ(undo.RichBox(), nullptr);
  try {
    undo.InsertText("a");
    FAIL();
  } catch (const RuntimeError& error) {
    EXPECT_EQ(error.Number(), 91);
  }
  undo.Undo();
  undo.Reset();
  EXPECT_EQ(undo.UndoCount(), 0);
}

TEST(UndoWithAPlainClipboard, CopiesAndPastesPlainTextWhateverIsEdited) {
  MemoryRichTextBox box;
  MemoryClipboard clipboard;
  clsUndo undo(clipboard);
  undo.SetRichBox(&box);
  undo.SetRichEditing(true);
  box.SetText("ab");
  undo.SelectAll();
  undo.Copy();
  EXPECT_EQ(clipboard.Text(), "ab");
  undo.Paste();
  undo.Paste();
  EXPECT_EQ(box.Text(), "abab");
}

}  // namespace
}  // namespace trelonit::test
