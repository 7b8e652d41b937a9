#include "fuzz/rtf/RtfInvariants.h"

#include <algorithm>
#include <functional>

#include "editor/document/RichDocument.h"
#include "editor/rtf/RtfLimits.h"
#include "editor/rtf/RtfReader.h"
#include "editor/rtf/RtfWriter.h"
#include "platform/errors/RuntimeError.h"

namespace trelonit::fuzz {

namespace {

std::string ComplaintAbout(const RichParagraph& paragraph) {
  const auto notAscending = std::greater_equal<>();
  const auto& stops = paragraph.TabStops;
  if (std::adjacent_find(stops.begin(), stops.end(), notAscending) != stops.end()) {
    return "tab stops are not ascending";
  }
  if (stops.size() > rtfMostTabStops) {
    return "too many tab stops";
  }
  for (std::size_t place = 0; place < paragraph.Runs.size(); ++place) {
    const TextRun& run = paragraph.Runs[place];
    if (run.Text.empty()) {
      return "a run is empty";
    }
    if (run.Text.find_first_of(u"\r\n") != std::u16string::npos) {
      return "a run holds a line end";
    }
    if (place != 0 && paragraph.Runs[place - 1].Format == run.Format) {
      return "neighbouring runs look alike";
    }
    if (run.Format.FontSize < 0.5 || run.Format.FontSize > rtfLargestSize / 2.0) {
      return "a font size is out of range";
    }
  }
  return {};
}

}  // namespace

std::string ComplaintAboutReading(std::string_view bytes) {
  RichDocument document;
  try {
    document = ReadRtf(bytes);
  } catch (const RuntimeError& error) {
    return error.Number() == static_cast<int>(ErrorNumber::TypeMismatch) ? "" : error.Description();
  }
  if (document.Paragraphs.empty()) {
    return "there is no paragraph";
  }
  for (const RichParagraph& paragraph : document.Paragraphs) {
    if (std::string complaint = ComplaintAbout(paragraph); !complaint.empty()) {
      return complaint;
    }
  }
  return ReadRtf(WriteRtf(document)) == document ? "" : "the document does not survive its writing";
}

}  // namespace trelonit::fuzz
