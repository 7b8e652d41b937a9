#include "editor/rtf/RtfAssembly.h"

#include <utility>

namespace trelonit {

void RtfAssembly::BeginRun(CharFormat format) {
  std::vector<TextRun>& runs = paragraph_.Runs;
  if (runs.empty() || !(runs.back().Format == format)) {
    runs.push_back({{}, std::move(format)});
  }
}

void RtfAssembly::Append(char16_t unit) {
  afterReturn_ = false;
  paragraph_.Runs.back().Text.push_back(unit);
}

void RtfAssembly::AppendLineEnd(char16_t unit, const RtfParagraphFormat& paragraph) {
  const bool second = std::exchange(afterReturn_, false) && unit == u'\n';
  if (!second) {
    EndParagraph(paragraph);
    afterReturn_ = unit == u'\r';
  }
}

void RtfAssembly::EndParagraph(const RtfParagraphFormat& paragraph) {
  paragraph_.Alignment = paragraph.Alignment;
  paragraph_.TabStops = paragraph.TabStops;
  paragraphs_.push_back(std::exchange(paragraph_, {}));
  afterReturn_ = false;
}

RichDocument RtfAssembly::Finish(const RtfParagraphFormat& paragraph) {
  if (ParagraphHasText() || paragraphs_.empty()) {
    EndParagraph(paragraph);
  }
  return {std::exchange(paragraphs_, {})};
}

}  // namespace trelonit
