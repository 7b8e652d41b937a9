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
  box.SetFirstVisibleLine(7);
  EXPECT_EQ(box.FirstVisibleLine(), 7);
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
