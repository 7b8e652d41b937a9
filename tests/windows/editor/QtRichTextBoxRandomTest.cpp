#include <rapidcheck/gtest.h>

#include "editor/document/MemoryRichTextBox.h"
#include "editor/rtf/RtfWriter.h"
#include "tests/windows/dialogs/ShownSelection.h"
#include "windows/editor/QtRichTextBox.h"

namespace trelonit::test {
namespace {

CharFormat RandomFormat() {
  CharFormat format;
  format.FontName = *rc::gen::element<std::string>("Lucida Console", "Arial");
  format.FontSize = *rc::gen::element(9.0, 12.5);
  format.Bold = *rc::gen::arbitrary<bool>();
  format.TextColor = *rc::gen::element<Color>(Color{colorBlack}, Color{colorRed}, Color{0x804020});
  return format;
}

std::string RandomText() {
  std::string text;
  for (int count = *rc::gen::inRange(0, 8); count > 0; --count) {
    text += *rc::gen::element<std::string>("a", "Ж", " ", "\r\n", "\n", "\U0001F600", "\t", "xyz");
  }
  return text;
}

RichDocument RandomDocument() {
  RichDocument document;
  document.Paragraphs.resize(*rc::gen::inRange<std::size_t>(1, 5));
  for (RichParagraph& paragraph : document.Paragraphs) {
    paragraph.Alignment =
        *rc::gen::element(ParagraphAlignment::Left, ParagraphAlignment::Centre,
                          ParagraphAlignment::Right, ParagraphAlignment::Justified);
    if (*rc::gen::arbitrary<bool>()) {
      paragraph.TabStops = {720, 1441};
    }
    for (int count = *rc::gen::inRange(0, 3); count > 0; --count) {
      paragraph.Runs.push_back({u"кя \U0001F600", RandomFormat()});
    }
  }
  return document;
}

/// One and the same operation on both boxes.
void OperateAtRandom(RichTextBox& one, RichTextBox& other) {
  const auto both = [&](const auto& operate) {
    operate(one);
    operate(other);
  };
  switch (*rc::gen::inRange(0, 10)) {
    case 0:
    case 1:
    case 2: {
      const int start = *rc::gen::inRange(-1, one.TextLength() + 2);
      const int length = *rc::gen::inRange(-1, 12);
      both([&](RichTextBox& box) { box.Select(start, length); });
      break;
    }
    case 3: {
      const CharFormat format = RandomFormat();
      both([&](RichTextBox& box) { box.SetSelFormat(format); });
      break;
    }
    case 4: {
      const std::string rtf = WriteRtf(RandomDocument());
      both([&](RichTextBox& box) { box.SetSelRTF(rtf); });
      break;
    }
    case 5: {
      const std::string piece = one.SelRTF();
      both([&](RichTextBox& box) {
        box.SetSelText("");
        box.SetSelStart(box.TextLength() / 2);
        box.SetSelRTF(piece);
      });
      break;
    }
    case 6: {
      const std::string rtf = WriteRtf(RandomDocument());
      both([&](RichTextBox& box) { box.SetTextRTF(rtf); });
      break;
    }
    default: {
      const std::string text = RandomText();
      both([&](RichTextBox& box) { box.SetSelText(text); });
      break;
    }
  }
}

void CompareBoxes(const MemoryRichTextBox& memory, const QtRichTextBox& box) {
  RC_ASSERT(box.Text() == memory.Text());
  RC_ASSERT(box.SelStart() == memory.SelStart());
  RC_ASSERT(box.SelLength() == memory.SelLength());
  RC_ASSERT(box.SelRTF() == memory.SelRTF());
  RC_ASSERT(box.TextRTF() == memory.TextRTF());
  RC_ASSERT(box.SelFormat() == memory.SelFormat());
}

void CompareWidget(const QtRichTextBox& box) {
  RC_ASSERT(ReadDocument(*box.Widget()->document()) == box.Document());
  RC_ASSERT(ShownSelection(*box.Widget()) == (TextSpan{box.SelStart(), box.SelLength()}));
}

RC_GTEST_PROP(QtRichTextBoxAtRandom, DoesAndShowsWhatTheBoxInMemoryDoes, ()) {
  MemoryRichTextBox memory;
  QtRichTextBox box;
  int memoryChanges = 0;
  int changes = 0;
  memory.Change = [&] { ++memoryChanges; };
  box.Change = [&] { ++changes; };
  int locks = 0;
  for (int step = *rc::gen::inRange(1, 30); step > 0; --step) {
    OperateAtRandom(memory, box);
    CompareBoxes(memory, box);
    RC_ASSERT(changes == memoryChanges);
    switch (*rc::gen::inRange(0, 8)) {
      case 0:
        box.LockUpdates();
        ++locks;
        break;
      case 1:
        for (; locks > 0; --locks) {
          box.UnlockUpdates();
        }
        break;
      case 2:
        RC_ASSERT(box.LineCount() == memory.LineCount());
        break;
      default:
        break;
    }
    if (locks == 0) {
      CompareWidget(box);
    }
  }
  for (; locks > 0; --locks) {
    box.UnlockUpdates();
  }
  CompareWidget(box);
}

}  // namespace
}  // namespace trelonit::test
