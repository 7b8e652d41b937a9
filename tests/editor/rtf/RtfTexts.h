#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "editor/document/RichDocument.h"
#include "editor/rtf/RtfReader.h"

namespace trelonit::test {

/// What stands between the signature and the last brace.
inline RichDocument ReadBody(std::string_view body) {
  return ReadRtf("{\\rtf1 " + std::string(body) + "}");
}

inline std::u16string TextOf(const RichParagraph& paragraph) {
  std::u16string text;
  for (const TextRun& run : paragraph.Runs) {
    text += run.Text;
  }
  return text;
}

/// The paragraphs with a line feed between two.
inline std::u16string TextOf(const RichDocument& document) {
  std::u16string text = TextOf(document.Paragraphs.at(0));
  for (std::size_t place = 1; place < document.Paragraphs.size(); ++place) {
    text += u'\n' + TextOf(document.Paragraphs[place]);
  }
  return text;
}

inline std::u16string BodyText(std::string_view body) {
  return TextOf(ReadBody(body));
}

/// The looks of the one run of the body.
inline CharFormat BodyFormat(std::string_view body) {
  return ReadBody(body).Paragraphs.at(0).Runs.at(0).Format;
}

/// How a text without any word for it looks.
inline CharFormat PlainFormat() {
  CharFormat format;
  format.FontSize = 12;
  return format;
}

}  // namespace trelonit::test
