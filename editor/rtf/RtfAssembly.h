#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "editor/document/RichDocument.h"

namespace trelonit {

/// What a paragraph has beside its text.
struct RtfParagraphFormat {
  ParagraphAlignment Alignment = ParagraphAlignment::Left;
  std::vector<std::int32_t> TabStops;  ///< twips, ascending, each once
};

/// Puts a document together, character by character. Neighbouring runs of one look become one; no
/// run is empty; no run holds a line end.
class RtfAssembly {
 public:
  /// The look of the characters that follow; at least one must. To be told at the start of every
  /// paragraph again.
  void BeginRun(CharFormat format);
  /// One UTF-16 unit that is no line end.
  void Append(char16_t unit);
  /// A carriage return or line feed of the text: ends the paragraph, both together only once.
  void AppendLineEnd(char16_t unit, const RtfParagraphFormat& paragraph);
  void EndParagraph(const RtfParagraphFormat& paragraph);
  bool ParagraphHasText() const { return !paragraph_.Runs.empty(); }
  /// The document. A text after the last paragraph's end is a paragraph of its own.
  RichDocument Finish(const RtfParagraphFormat& paragraph);

 private:
  std::vector<RichParagraph> paragraphs_;
  RichParagraph paragraph_;
  bool afterReturn_ = false;
};

}  // namespace trelonit
