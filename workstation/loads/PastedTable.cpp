#include "workstation/loads/PastedTable.h"

#include <string_view>

#include "platform/text/Text.h"

namespace trelonit {

namespace {

std::string CellOf(std::string_view text) {
  std::string_view cell = Trim(text);
  if (cell.size() >= 2 && cell.front() == '"' && cell.back() == '"') {
    cell = Trim(cell.substr(1, cell.size() - 2));
  }
  return std::string(cell);
}

PastedLine CellsOf(std::string_view line) {
  if (Trim(line).empty()) {
    return {};
  }
  const char separator = line.find('\t') != std::string_view::npos ? '\t' : ';';
  PastedLine cells;
  while (true) {
    const std::size_t end = line.find(separator);
    cells.push_back(CellOf(line.substr(0, end)));
    if (end == std::string_view::npos) {
      return cells;
    }
    line.remove_prefix(end + 1);
  }
}

/// Hands on each line up to the last one that has text.
template <class Work>
void ForEachLine(std::string_view text, Work&& work) {
  const std::size_t last = text.find_last_not_of(" \t\r\n");
  std::string_view rest = text.substr(0, last == std::string_view::npos ? 0 : last + 1);
  while (!rest.empty()) {
    const std::size_t end = rest.find_first_of("\r\n");
    work(rest.substr(0, end));
    if (end == std::string_view::npos) {
      return;
    }
    rest.remove_prefix(end + (rest.substr(end, 2) == "\r\n" ? 2 : 1));
  }
}

}  // namespace

std::vector<PastedLine> SplitPasted(const std::string& text) {
  std::vector<PastedLine> lines;
  ForEachLine(text, [&](std::string_view line) { lines.push_back(CellsOf(line)); });
  return lines;
}

std::size_t CountPasted(const std::string& text) {
  std::size_t count = 0;
  ForEachLine(text, [&](std::string_view) { ++count; });
  return count;
}

}  // namespace trelonit
