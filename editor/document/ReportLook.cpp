#include "editor/document/ReportLook.h"

#include <algorithm>
#include <initializer_list>
#include <string_view>

#include "editor/document/TextUnits.h"

namespace trelonit {

namespace {

constexpr Color headingColor = 0x64381F;  // dark blue
constexpr Color warningColor = 0x0000C0;  // dark red
constexpr double titleEnlargement = 5;    // points
constexpr double headingEnlargement = 2;

constexpr std::string_view dash = " - ";

bool BeginsNumber(char character) {
  return character == '-' || (character >= '0' && character <= '9');
}

/// Where the value begins behind its caption; npos where the line is none of that kind.
std::size_t ValueStart(std::string_view line) {
  std::size_t start = std::string_view::npos;
  for (const std::string_view mark : {std::string_view(" : "), std::string_view(" = "), dash}) {
    const std::size_t at = line.rfind(mark);
    if (at != std::string_view::npos) {
      const std::size_t behind = at + mark.size();
      // A dash may also stand between words.
      if (mark == dash && (behind == line.size() || !BeginsNumber(line[behind]))) {
        continue;
      }
      start = start == std::string_view::npos ? behind : std::max(start, behind);
    }
  }
  return start;
}

}  // namespace

void ReportTypist::Append(const std::string& text, ReportRole role) {
  const Long start = rtf_.TextLength();
  rtf_.SetSelStart(start);
  rtf_.SetSelFormat(font_);
  undo_.InsertText(text);
  if (role == ReportRole::Heading) {
    CharFormat look = font_;
    look.Bold = true;
    look.FontSize += first_ ? titleEnlargement : headingEnlargement;
    look.TextColor = headingColor;
    Mark(start, UnitCount(text), look);
  } else {
    MarkLines(start, text, role == ReportRole::Warning);
  }
  first_ = false;
  rtf_.SetSelStart(rtf_.TextLength());
}

void ReportTypist::MarkLines(Long start, std::string_view text, bool warning) {
  CharFormat look = font_;
  if (warning) {
    look.TextColor = warningColor;
    Mark(start, UnitCount(text), look);
  }
  look.Bold = true;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find(lineEnd), text.size());
    const std::string_view line = text.substr(0, end);
    if (const std::size_t value = ValueStart(line); value == line.size()) {
      Mark(start, UnitCount(line), look);  // the title of what follows
    } else if (value != std::string_view::npos) {
      Mark(start + UnitCount(line.substr(0, value)), UnitCount(line.substr(value)), look);
    }
    const std::size_t next = std::min(end + lineEnd.size(), text.size());
    start += UnitCount(text.substr(0, next));
    text.remove_prefix(next);
  }
}

void ReportTypist::Mark(Long start, Long length, const CharFormat& look) {
  rtf_.Select(start, length);
  rtf_.SetSelFormat(look);
}

}  // namespace trelonit
