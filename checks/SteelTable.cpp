#include "checks/SteelTable.h"

#include <cstddef>
#include <string>

#include "platform/text/CodePage1251.h"

namespace trelonit {

namespace {

/// The parts between the separators; an empty text has none.
std::vector<std::string_view> Split(std::string_view text, char separator) {
  std::vector<std::string_view> parts;
  while (!text.empty()) {
    const std::size_t end = text.find(separator);
    parts.push_back(text.substr(0, end));
    if (end == std::string_view::npos) {
      break;
    }
    text.remove_prefix(end + 1);
    if (text.empty()) {
      parts.push_back(text);
    }
  }
  return parts;
}

/// Lines with what stands before their line feed, a carriage return included. The byte at this
/// position always ends a line as well: there the table ends and its zero bytes begin, each of
/// which closes an empty line of its own.
std::vector<std::string> CutLines(std::string_view bytes) {
  constexpr std::size_t endOfText = 672;
  std::vector<std::string> lines;
  std::string line;
  for (std::size_t place = 0; place < bytes.size(); ++place) {
    if (bytes[place] == '\n' || place >= endOfText) {
      lines.push_back(std::move(line));
      line.clear();
    } else {
      line.push_back(bytes[place]);
    }
  }
  return lines;
}

void TakeRange(ThickRange& range, std::string_view text) {
  const std::vector<std::string_view> fields = Split(text, '*');
  const auto take = [&](auto& field, std::size_t place) {
    if (place < fields.size()) {
      field = std::string_view(DecodeCodePage1251(fields[place]));
    }
  };
  take(range.Caption, 0);
  take(range.RySheet, 1);
  take(range.RyFason, 2);
}

}  // namespace

std::vector<SteelRec> ParseSteelTable(std::string_view bytes) {
  std::vector<SteelRec> steels;
  SteelRec steel;
  for (const std::string& line : CutLines(bytes)) {
    const std::vector<std::string_view> parts = Split(line, '#');
    if (!parts.empty()) {
      steel.Name = std::string_view(DecodeCodePage1251(parts[0]));
    }
    if (parts.size() > 1) {
      const std::vector<std::string_view> ranges = Split(parts[1], '$');
      steel.Ranges.assign(ranges.size(), {});
      for (std::size_t place = 0; place < ranges.size(); ++place) {
        TakeRange(steel.Ranges[place], ranges[place]);
      }
    }
    steels.push_back(steel);
  }
  return steels;
}

}  // namespace trelonit
