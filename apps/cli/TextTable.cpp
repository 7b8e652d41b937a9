#include "apps/cli/TextTable.h"

#include <algorithm>

#include "platform/text/Text.h"

namespace trelonit::cli {

namespace {

bool IsControl(char character) {
  constexpr char firstPrintable = 0x20;
  constexpr char erasure = 0x7F;
  return (character >= 0 && character < firstPrintable) || character == erasure;
}

}  // namespace

std::string TextTable(std::vector<std::vector<std::string>> rows) {
  std::vector<std::size_t> widths;
  for (auto& row : rows) {
    widths.resize(std::max(widths.size(), row.size()));
    for (std::size_t column = 0; column < row.size(); ++column) {
      std::replace_if(row[column].begin(), row[column].end(), IsControl, '?');
      widths[column] = std::max(widths[column], Characters(row[column]).size());
    }
  }
  std::string text;
  for (const auto& row : rows) {
    for (std::size_t column = 0; column < row.size(); ++column) {
      const std::string blanks(widths[column] - Characters(row[column]).size(), ' ');
      text += column == 0 ? row[column] + blanks : "  " + blanks + row[column];
    }
    text += '\n';
  }
  return text;
}

}  // namespace trelonit::cli
