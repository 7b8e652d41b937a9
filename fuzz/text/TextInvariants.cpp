#include "fuzz/text/TextInvariants.h"

#include "editor/document/FileHandler.h"
#include "editor/document/MemoryRichTextBox.h"
#include "editor/document/TextUnits.h"
#include "editor/rtf/RtfReader.h"
#include "editor/rtf/RtfWriter.h"
#include "editor/undo/clsUndo.h"
#include "fuzz/support/ByteSource.h"
#include "fuzz/support/FuzzWorld.h"
#include "platform/text/Text.h"

namespace trelonit::fuzz {

namespace {

std::string ComplaintAboutBox(const MemoryRichTextBox& box) {
  const std::string text = box.Text();
  if (!IsUtf8(text)) {
    return "the box holds malformed text";
  }
  if (WithWholeLineEnds(text) != text || UnitCount(text) != box.TextLength()) {
    return "the box counts wrong";
  }
  if (box.SelStart() < 0 || box.SelLength() < 0 ||
      box.SelStart() + box.SelLength() > box.TextLength()) {
    return "the selection lies outside the text";
  }
  return {};
}

std::string ComplaintAboutWriting(const RichDocument& document) {
  return ReadRtf(WriteRtf(document)) == document ? "" : "the document does not survive its writing";
}

std::string ComplaintAboutStoring(const std::string& text, const MemoryRichTextBox& box) {
  if (!IsUtf8(text)) {
    return "what is read is malformed";
  }
  test::MemoryFiles files;
  for (const std::string& whole : {text, box.Text()}) {
    WritePlainText(files, "stored", whole);
    if (ReadPlainText(files, "stored") != whole) {
      return "a text does not survive its storing";
    }
  }
  return ComplaintAboutBox(box);
}

void SelectSomewhere(ByteSource& source, RichTextBox& box) {
  const Long start = source.Whole16();
  box.Select(box.TextLength() == 0 ? start : start % (box.TextLength() + 2), source.Byte());
}

/// A user's step, with a key or from a menu.
void Edit(ByteSource& source, clsUndo& undo, RichTextBox& box) {
  switch (source.Below(9)) {
    case 0:
      SelectSomewhere(source, box);
      break;
    case 1:
      undo.InsertText(source.Text());
      break;
    case 2:
      undo.Delete();
      break;
    case 3:
      undo.Cut();
      break;
    case 4:
      undo.Copy();
      break;
    case 5:
      undo.Paste();
      break;
    case 6:
      undo.Undo();
      break;
    case 7:
      undo.Redo();
      break;
    default: {
      const Long start = source.Whole16();
      const Long found = box.Find(source.Text(), start, source.Byte());
      if (found != RichTextBox::notFound) {
        box.Select(found, 1);
      }
    }
  }
}

std::string ComplaintAboutEditing(ByteSource& source, MemoryRichTextBox& box) {
  MemoryClipboard clipboard;
  clsUndo undo(clipboard);
  undo.SetRichBox(&box);
  undo.SetRichEditing(source.Flag());
  box.Change = [&undo] { undo.RichBox_Change(); };
  const std::string before = box.Text();
  constexpr int mostSteps = 40;
  for (int step = 0; step < mostSteps && !source.IsEmpty(); ++step) {
    Edit(source, undo, box);
    if (std::string complaint = ComplaintAboutBox(box); !complaint.empty()) {
      return complaint;
    }
  }
  if (std::string complaint = ComplaintAboutWriting(box.Document()); !complaint.empty()) {
    return complaint;
  }
  const std::string after = box.Text();
  Long steps = 0;
  for (; undo.canUndo(); ++steps) {
    undo.Undo();
  }
  if (box.Text() != before) {
    return "undoing all does not lead back";
  }
  for (; steps > 0; --steps) {
    undo.Redo();
  }
  return box.Text() == after ? "" : "redoing does not lead forth again";
}

}  // namespace

std::string ComplaintAboutText(std::string_view bytes) {
  return ComplaintUnless([&] {
    test::MemoryFiles files;
    files.Content["text"] = bytes;
    const std::string text = ReadPlainText(files, "text");
    MemoryRichTextBox box;
    box.SetText(text);
    std::string complaint = ComplaintAboutStoring(text, box);
    if (complaint.empty()) {
      StatisticsText(box, "text", {});
      ByteSource source(bytes);
      complaint = ComplaintAboutEditing(source, box);
    }
    return complaint;
  });
}

}  // namespace trelonit::fuzz
