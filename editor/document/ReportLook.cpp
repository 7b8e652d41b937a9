#include "editor/document/ReportLook.h"

#include "editor/document/MemoryRichTextBox.h"
#include "editor/document/TextUnits.h"

namespace trelonit {

namespace {

constexpr Color headingColor = 0x64381F;  // dark blue
constexpr Color warningColor = 0x0000C0;  // dark red
constexpr double titleEnlargement = 5;    // points
constexpr double headingEnlargement = 2;

std::string TextOf(const LookPiece& piece) {
  std::string text;
  for (const LookSpan& span : piece.Spans) {
    text += span.Text;
  }
  return text;
}

}  // namespace

void ReportTypist::Append(const LookPiece& piece) {
  const std::string text = TextOf(piece);
  Long start = rtf_.TextLength();
  rtf_.SetSelStart(start);
  rtf_.SetSelFormat(font_);
  insert_(text);
  CharFormat look = font_;
  if (piece.Role == ReportRole::Heading) {
    look.Bold = true;
    look.FontSize += first_ ? titleEnlargement : headingEnlargement;
    look.TextColor = headingColor;
    Mark(start, UnitCount(text), look);
  } else {
    if (piece.Role == ReportRole::Warning) {
      look.TextColor = warningColor;
      Mark(start, UnitCount(text), look);
    }
    look.Bold = true;
    for (const LookSpan& span : piece.Spans) {
      const Long length = UnitCount(span.Text);
      if (span.Strong) {
        Mark(start, length, look);
      }
      start += length;
    }
  }
  first_ = false;
  rtf_.SetSelStart(rtf_.TextLength());
}

void ReportTypist::Mark(Long start, Long length, const CharFormat& look) {
  rtf_.Select(start, length);
  rtf_.SetSelFormat(look);
}

RichDocument ReportDocument(const std::vector<LookPiece>& pieces) {
  MemoryRichTextBox box;
  ReportTypist typist(box, [&box](const std::string& text) { box.SetSelText(text); }, {});
  for (const LookPiece& piece : pieces) {
    typist.Append(piece);
  }
  return box.Document();
}

}  // namespace trelonit
