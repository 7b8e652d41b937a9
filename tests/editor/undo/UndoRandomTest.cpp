#include <algorithm>
#include <rapidcheck/gtest.h>

#include "tests/editor/undo/UndoDesk.h"
#include "tests/support/ProcessorTime.h"

namespace trelonit::test {
namespace {

/// A text with letters, line ends and pairs, in which parts look different.
void FillAtRandom(MemoryRichTextBox& box, bool formatted) {
  std::string text;
  for (int count = *rc::gen::inRange(0, 20); count > 0; --count) {
    text += *rc::gen::element<std::string>("a", "ж", " ", "\r\n", "\U0001F600", "\t");
  }
  box.SetText(text);
  for (int count = formatted ? *rc::gen::inRange(0, 4) : 0; count > 0; --count) {
    CharFormat format;
    format.Bold = *rc::gen::arbitrary<bool>();
    format.TextColor = *rc::gen::element<Color>(Color{colorBlack}, Color{colorRed});
    box.Select(*rc::gen::inRange(0, 20), *rc::gen::inRange(1, 10));
    // With nothing selected it would be the format of the next key, which is no part of the text.
    if (box.SelLength() > 0) {
      box.SetSelFormat(format);
    }
  }
}

void EditAtRandom(UndoDesk& desk) {
  if (*rc::gen::inRange(0, 2) == 0) {
    desk.box.Select(*rc::gen::inRange(0, desk.box.TextLength() + 1), *rc::gen::inRange(0, 6));
  }
  switch (*rc::gen::inRange(0, 9)) {
    case 0:
      desk.Press(keyDelete);
      break;
    case 1:
      desk.Press(keyBack);
      break;
    case 2:
      desk.undo.Cut();
      break;
    case 3:
      desk.undo.Copy();
      desk.undo.Paste();
      break;
    case 4:
      desk.Press(keyTab);
      break;
    case 5:
      desk.Press(keyReturn);
      break;
    case 6:
      desk.undo.InsertText(*rc::gen::element<std::string>("", "x", "раз\r\nдва", "\n\n"));
      break;
    default:
      desk.Press(*rc::gen::inRange<Integer>('A', 'Z' + 1), *rc::gen::inRange<Integer>(0, 2));
      break;
  }
}

/// Edits, undoes everything and redoes everything; after every step the document is the one that
/// was there before.
void WalkBackAndForth(UndoDesk& desk) {
  std::vector<RichDocument> seen{desk.box.Document()};
  for (int count = *rc::gen::inRange(1, 30); count > 0; --count) {
    EditAtRandom(desk);
    const auto recorded = static_cast<std::size_t>(desk.undo.UndoCount());
    RC_ASSERT(recorded + 1 == seen.size() || recorded == seen.size());
    if (recorded == seen.size()) {
      seen.push_back(desk.box.Document());
    }
    RC_ASSERT(desk.box.Document() == seen.back());
  }
  for (std::size_t step = seen.size(); step-- > 1;) {
    desk.undo.Undo();
    RC_ASSERT(desk.box.Document() == seen[step - 1]);
  }
  RC_ASSERT(!desk.undo.canUndo());
  for (std::size_t step = 1; step < seen.size(); ++step) {
    desk.undo.Redo();
    RC_ASSERT(desk.box.Document() == seen[step]);
  }
  RC_ASSERT(!desk.undo.canRedo());
  while (desk.undo.canUndo()) {
    desk.undo.Undo();
  }
  RC_ASSERT(desk.box.Document() == seen.front());
}

RC_GTEST_PROP(UndoAtRandom, GivesBackEveryPlainDocument, ()) {
  UndoDesk desk;
  FillAtRandom(desk.box, false);
  WalkBackAndForth(desk);
}

RC_GTEST_PROP(UndoAtRandom, GivesBackEveryRichDocument, ()) {
  UndoDesk desk;
  desk.undo.SetRichEditing(true);
  FillAtRandom(desk.box, true);
  WalkBackAndForth(desk);
}

/// Types that many keys, every fiftieth a line end, and undoes them.
void TypeAndUndo(int keys) {
  UndoDesk desk;
  for (int key = 0; key < keys; ++key) {
    desk.Press(key % 50 == 49 ? keyReturn : static_cast<Integer>('A' + key % 26));
  }
  EXPECT_EQ(desk.undo.UndoCount(), keys);
  while (desk.undo.canUndo()) {
    desk.undo.Undo();
  }
  EXPECT_EQ(desk.box.Text(), "");
}

TEST(UndoOfMuchTyping, TakesTimeInProportionToTheKeys) {
  // The best of some runs by turns, so that a busy machine slows down both alike.
  double few = 1e9;
  double many = 1e9;
  for (int run = 0; run < 5; ++run) {
    few = std::min(few, SecondsOf([] { TypeAndUndo(5000); }));
    many = std::min(many, SecondsOf([] { TypeAndUndo(40000); }));
  }
  // Eight times as many; room for a busy machine, none for a square law.
  EXPECT_LE(many, 24 * few);
}

TEST(UndoOfMuchTyping, NeverForgetsTheFirstKey) {
  UndoDesk desk;
  for (int key = 0; key < 20000; ++key) {
    desk.Press('A');
  }
  EXPECT_EQ(desk.undo.UndoCount(), 20000);
  EXPECT_EQ(desk.box.TextLength(), 20000);
}

}  // namespace
}  // namespace trelonit::test
