#include <map>

#include "tests/editor/undo/UndoDesk.h"

namespace trelonit::test {
namespace {

TEST_F(Undo, KnowsTheKeysByTheirCodes) {
  Hold("ab");
  box.SetSelStart(1);
  EXPECT_EQ(Press(9, 0, "\t"), 9);
  EXPECT_EQ(box.Text(), "a\tb");
  EXPECT_EQ(Newest().NewText, "a\tb");
  EXPECT_EQ(Press(8), 0);
  EXPECT_EQ(box.Text(), "ab");
  EXPECT_EQ(Press(46), 0);
  EXPECT_EQ(box.Text(), "a");
  clipboard.SetText("c");
  EXPECT_EQ(Press(45, 1), 0);
  EXPECT_EQ(box.Text(), "ac");
  EXPECT_EQ(Press(13, 0, "\r\n"), 13);
  EXPECT_EQ(Newest().NewText, "\r\n");
  EXPECT_EQ(undo.UndoCount(), 5);
}

TEST_F(Undo, KnowsTheKeysThatTypeText) {
  // Return and the blank, digits, letters, the number pad, and what a keyboard has beside them.
  const auto types = [](int code) {
    return code == 13 || code == 32 || (code >= 48 && code <= 57) || (code >= 65 && code <= 90) ||
           (code >= 96 && code <= 111) || (code >= 186 && code <= 192) ||
           (code >= 219 && code <= 223) || code == 226;
  };
  for (int code = 0; code < 256; ++code) {
    EXPECT_EQ(KeyTypesText(static_cast<Integer>(code)), types(code)) << code;
  }
}

TEST_F(Undo, GuessesTheTextFromTheKeyCode) {
  const std::map<Integer, std::string> unshifted{
      {13, "\r\n"}, {32, " "},  {48, "0"},  {57, "9"},  {65, "a"},  {90, "z"}, {96, "0"},
      {105, "9"},   {106, "j"}, {107, "k"}, {111, "o"}, {187, "»"}, {192, "а"}};
  for (const auto& [key, text] : unshifted) {
    Hold("");
    EXPECT_EQ(Press(key), key);
    EXPECT_EQ(Newest().NewText, text) << key;
    EXPECT_EQ(Newest().OldLength, key == 13 ? 2 : 1) << key;
  }
  const std::map<Integer, std::string> shifted{{13, "\r\n"}, {65, "A"}, {101, "5"}, {192, "А"}};
  for (const auto& [key, text] : shifted) {
    Press(key, 1);
    EXPECT_EQ(Newest().NewText, text) << key;
  }
}

TEST_F(Undo, UndoesARussianLetterExactlyAndRedoesItFromItsKey) {
  Hold("ж");
  box.Select(0, 1);
  Press('A', 0, "ф");
  EXPECT_EQ(box.Text(), "ф");
  undo.Undo();
  EXPECT_EQ(box.Text(), "ж");
  undo.Redo();
  EXPECT_EQ(box.Text(), "a");
}

// What the box tells of a key ------------------------------------------------------------------

TEST_F(Undo, RedoesWhatTheBoxToldOfTheKey) {
  for (const bool rich : {false, true}) {
    undo.SetRichEditing(rich);
    for (const std::string text : {"ф", "\U0001F600", "{\\rtf1 x}"}) {
      Hold("ab");
      box.SetSelStart(1);
      Press('A', 0, text);
      undo.RichBox_Typed(text);
      EXPECT_EQ(Newest().OldLength, box.TextLength() - 2);
      undo.Undo();
      EXPECT_EQ(box.Text(), "ab");
      undo.Redo();
      EXPECT_EQ(box.Text(), "a" + text + "b");
    }
  }
}

TEST_F(Undo, IsToldOfAKeyOnce) {
  Press('A', 0, "ф");
  undo.RichBox_Typed("ф");
  undo.RichBox_Typed("x");
  EXPECT_EQ(Newest().NewText, "ф");
}

TEST_F(Undo, TakesWhatTheBoxTellsForNothingButTheTypedKey) {
  const auto untouched = [this](const char* what) {
    const std::vector<clsUndoElement> before = undo.UndoElements();
    undo.RichBox_Typed("x");
    EXPECT_EQ(undo.UndoElements(), before) << what;
  };
  untouched("no key");
  undo.Reset();
  untouched("a reset");
  Type("ab");
  Press(37);
  untouched("an arrow");
  Type("c");
  undo.InsertText("d");
  untouched("an inserted text");
  Type("e");
  undo.Undo();
  untouched("an undo");
  undo.Redo();
  untouched("a redo");
  Press(keyTab);
  untouched("a tab");
  Press(keyBack);
  untouched("a backspace");
}

}  // namespace
}  // namespace trelonit::test
