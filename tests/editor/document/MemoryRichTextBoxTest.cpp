#include <rapidcheck/gtest.h>

#include "editor/document/MemoryRichTextBox.h"
#include "editor/document/TextUnits.h"
#include "platform/text/Text.h"
#include "tests/editor/document/RichTextBoxContract.h"

namespace trelonit::test {
namespace {

struct MemoryBoxMaker {
  std::unique_ptr<RichTextBox> Make() { return std::make_unique<MemoryRichTextBox>(); }
};

INSTANTIATE_TYPED_TEST_SUITE_P(Memory, RichTextBoxContract, MemoryBoxMaker);

RichDocument CentredInTheMiddle() {
  RichDocument document;
  document.Paragraphs.resize(3);
  document.Paragraphs[0].Runs = {{u"left", {}}};
  document.Paragraphs[1].Runs = {{u"centre", {}}};
  document.Paragraphs[1].Alignment = ParagraphAlignment::Centre;
  document.Paragraphs[1].TabStops = {720, 1440};
  document.Paragraphs[2].Runs = {{u"again", {}}};
  return document;
}

TEST(MemoryRichTextBox, JoinsAParagraphToTheOneInFrontAndGivesItBackItsAlignment) {
  MemoryRichTextBox box;
  box.SetDocument(CentredInTheMiddle());
  box.Select(3, 5);
  const std::string taken = box.SelRTF();
  box.SetSelText("");
  ASSERT_EQ(box.Document().Paragraphs.size(), 2u);
  EXPECT_EQ(box.Document().Paragraphs[0].Alignment, ParagraphAlignment::Left);
  EXPECT_EQ(box.Text(), "lefntre\r\nagain");
  box.SetSelRTF(taken);
  EXPECT_EQ(box.Document(), CentredInTheMiddle());
}

TEST(MemoryRichTextBox, KeepsNoEmptyRunsAndNoEqualNeighbours) {
  MemoryRichTextBox box;
  RichDocument document;
  document.Paragraphs[0].Runs = {{u"", {}}, {u"a", {}}, {u"", {}}, {u"b", {}}};
  box.SetDocument(document);
  ASSERT_EQ(box.Document().Paragraphs[0].Runs.size(), 1u);
  CharFormat italic;
  italic.Italic = true;
  box.Select(0, 1);
  box.SetSelFormat(italic);
  EXPECT_EQ(box.Document().Paragraphs[0].Runs.size(), 2u);
  box.Select(0, 2);
  box.SetSelFormat(italic);
  EXPECT_EQ(box.Document().Paragraphs[0].Runs.size(), 1u);
}

TEST(MemoryRichTextBox, RemembersTheFirstVisibleLine) {
  MemoryRichTextBox box;
  EXPECT_EQ(box.FirstVisibleLine(), 0);
  box.SetFirstVisibleLine(7);
  EXPECT_EQ(box.FirstVisibleLine(), 7);
}

CharFormat BoldFormat() {
  CharFormat format;
  format.Bold = true;
  return format;
}

TEST(MemoryRichTextBox, ForgetsAChosenFormatWhereSomethingIsSelected) {
  MemoryRichTextBox box;
  box.SetText("abcd");
  box.SetSelStart(1);
  box.SetSelFormat(BoldFormat());
  box.SetSelLength(0);
  EXPECT_TRUE(box.SelFormat().Bold);
  box.SetSelLength(1);
  EXPECT_FALSE(box.SelFormat().Bold);
  box.SetSelText("x");
  box.Select(1, 1);
  EXPECT_FALSE(box.SelFormat().Bold);
}

TEST(MemoryRichTextBox, TypesInAnEmptyLineAsTheLineInFrontEnds) {
  MemoryRichTextBox box;
  box.SetText("ab\r\ncd\r\n\r\n");
  box.Select(5, 1);
  box.SetSelFormat(BoldFormat());
  // "a" stands first, "c" begins the second line, whose "d" is bold.
  for (const auto& [caret, bold] :
       {std::pair{0, false}, {2, false}, {4, false}, {6, true}, {8, true}}) {
    box.SetSelStart(caret);
    EXPECT_EQ(box.SelFormat().Bold, bold) << caret;
  }
  // Another empty line in front tells no look: the box's own counts.
  box.SetSelStart(10);
  EXPECT_FALSE(box.SelFormat().Bold);
  // The first line is one in front, too.
  box.SetText("ab\r\n");
  box.Select(1, 1);
  box.SetSelFormat(BoldFormat());
  box.SetSelStart(4);
  EXPECT_TRUE(box.SelFormat().Bold);
}

TEST(MemoryRichTextBox, FindsAWholeWordRightBehindAPlaceWhereItIsNone) {
  MemoryRichTextBox box;
  box.SetText("a-- b");
  EXPECT_EQ(box.Find("-", 0, 0), 1);
  EXPECT_EQ(box.Find("-", 0, findWholeWord), 2);
}

TEST(MemoryRichTextBox, FindsNothingFromItsEndOn) {
  MemoryRichTextBox box;
  box.SetText("ab\r\nab");
  EXPECT_EQ(box.Find("b", 5, 0), 5);
  for (const Long start : {6, 7, 2147483647}) {
    EXPECT_EQ(box.Find("b", start, 0), RichTextBox::notFound) << start;
    EXPECT_EQ(box.Find("b\r\na", start, 0), RichTextBox::notFound) << start;
  }
}

/// A text of letters of both cases, blanks and line ends.
std::string PieceOfText() {
  const auto pieces = *rc::gen::container<std::vector<std::string>>(
      rc::gen::element<std::string>("a", "B", "ж", "Ж", " ", "\r\n", "\U0001F600", "\t"));
  std::string text;
  for (const std::string& piece : pieces) {
    text += piece;
  }
  return text;
}

RC_GTEST_PROP(MemoryRichTextBox, EditsAndFindsAsAPlainStringDoes, ()) {
  MemoryRichTextBox box;
  std::u16string model;
  const int steps = *rc::gen::inRange(1, 25);
  for (int step = 0; step < steps; ++step) {
    box.Select(*rc::gen::inRange(-2, static_cast<int>(model.size()) + 3),
               *rc::gen::inRange(-1, 12));
    const auto start = static_cast<std::size_t>(box.SelStart());
    const auto length = static_cast<std::size_t>(box.SelLength());
    RC_ASSERT(start + length <= model.size());
    RC_ASSERT(box.SelText() == Utf8(model.substr(start, length)));
    if (*rc::gen::inRange(0, 4) == 0) {
      CharFormat format;
      format.Bold = *rc::gen::arbitrary<bool>();
      box.SetSelFormat(format);
    } else {
      const std::string piece = PieceOfText();
      box.SetSelText(piece);
      model.replace(start, length, Units(piece));
    }
    RC_ASSERT(Units(box.Text()) == model);
    RC_ASSERT(static_cast<std::size_t>(box.TextLength()) == model.size());
    const std::string wanted = *rc::gen::element<std::string>("a", "Ж", "\r\n", "B ", "a\r\nж");
    const int from = *rc::gen::inRange(0, static_cast<int>(model.size()) + 1);
    const std::size_t hit = model.find(Units(wanted), static_cast<std::size_t>(from));
    RC_ASSERT(box.Find(wanted, from, findMatchCase) ==
              (hit == std::u16string::npos ? -1 : static_cast<Long>(hit)));
  }
}

}  // namespace
}  // namespace trelonit::test
