#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>
#include <set>

#include "editor/rtf/RtfReader.h"
#include "editor/rtf/RtfWriter.h"
#include "platform/text/Text.h"

namespace trelonit::test {
namespace {

using rc::gen::arbitrary;
using rc::gen::inRange;

char16_t AnyUnit() {
  // Cyrillic, the format's own characters and halves of pairs more often than chance brings them.
  const auto unit = *rc::gen::oneOf(inRange<unsigned>(0, 0x10000), inRange<unsigned>(0x20, 0x7F),
                                    inRange<unsigned>(0x400, 0x460),
                                    inRange<unsigned>(0xD7F0, 0xE010), inRange<unsigned>(0, 0x20),
                                    rc::gen::elementOf(std::vector<unsigned>{
                                        '\\', '{', '}', ';', '\'', '*', ' ', '?', '0', '\t'}));
  // A run holds no line end.
  return unit == u'\r' || unit == u'\n' ? u' ' : static_cast<char16_t>(unit);
}

std::u16string AnyText() {
  std::u16string text;
  const int length = *inRange(1, 12);
  for (int place = 0; place < length; ++place) {
    text += AnyUnit();
  }
  return text;
}

std::string AnyFontName() {
  const std::string fixed =
      *rc::gen::elementOf(std::vector<std::string>{"Lucida Console", "Arial", "Шрифт;", ""});
  if (*arbitrary<bool>()) {
    return fixed;
  }
  std::u32string name;
  const int length = *inRange(0, 30);
  for (int place = 0; place < length; ++place) {
    const auto character =
        *rc::gen::oneOf(inRange<std::uint32_t>(0, 0xD800), inRange<std::uint32_t>(0xE000, 0x110000),
                        inRange<std::uint32_t>(0x20, 0x7F));
    name += static_cast<char32_t>(character);
  }
  return Utf8(name);
}

CharFormat AnyFormat() {
  CharFormat format;
  format.FontName = AnyFontName();
  format.FontSize = *rc::gen::oneOf(inRange(1, 3277), inRange(16, 20)) / 2.0;
  format.Bold = *arbitrary<bool>();
  format.Italic = *arbitrary<bool>();
  format.Underline = *arbitrary<bool>();
  format.StrikeThru = *arbitrary<bool>();
  format.TextColor = *rc::gen::oneOf(inRange<Color>(0, 0x1000000), inRange<Color>(0, 3));
  return format;
}

RichParagraph AnyParagraph(const std::vector<CharFormat>& formats) {
  RichParagraph paragraph;
  const int runs = *inRange(0, 5);
  for (int run = 0; run < runs; ++run) {
    paragraph.Runs.push_back({AnyText(), *rc::gen::elementOf(formats)});
  }
  paragraph.Alignment = static_cast<ParagraphAlignment>(*inRange(0, 4));
  std::set<std::int32_t> stops;
  const int count = *inRange(0, 33);
  for (int stop = 0; stop < count; ++stop) {
    stops.insert(*rc::gen::oneOf(arbitrary<std::int32_t>(), inRange(0, 20000)));
  }
  paragraph.TabStops.assign(stops.begin(), stops.end());
  return paragraph;
}

RichDocument AnyDocument() {
  std::vector<CharFormat> formats;
  const int count = *inRange(1, 4);
  for (int format = 0; format < count; ++format) {
    formats.push_back(AnyFormat());
  }
  RichDocument document;
  document.Paragraphs.clear();
  const int paragraphs = *inRange(1, 6);
  for (int paragraph = 0; paragraph < paragraphs; ++paragraph) {
    document.Paragraphs.push_back(AnyParagraph(formats));
  }
  return document;
}

RichDocument WithAlikeNeighboursMerged(RichDocument document) {
  for (RichParagraph& paragraph : document.Paragraphs) {
    std::vector<TextRun> merged;
    for (TextRun& run : paragraph.Runs) {
      if (!merged.empty() && merged.back().Format == run.Format) {
        merged.back().Text += run.Text;
      } else {
        merged.push_back(std::move(run));
      }
    }
    paragraph.Runs = std::move(merged);
  }
  return document;
}

RC_GTEST_PROP(RtfRoundTrip, EveryDocumentReadsBackAsItWasWritten, ()) {
  const RichDocument document = AnyDocument();
  RC_ASSERT(ReadRtf(WriteRtf(document)) == WithAlikeNeighboursMerged(document));
}

RC_GTEST_PROP(RtfRoundTrip, WritingWhatWasReadChangesNothingMore, ()) {
  const std::string once = WriteRtf(ReadRtf(WriteRtf(AnyDocument())));
  RC_ASSERT(WriteRtf(ReadRtf(once)) == once);
}

}  // namespace
}  // namespace trelonit::test
