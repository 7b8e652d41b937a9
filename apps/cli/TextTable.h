#pragma once

#include <algorithm>
#include <string>
#include <vector>

#include "platform/Text.h"

namespace trelonit::cli {

/// Rows of texts in columns; the first column to the left, the others to the right.
inline std::string TextTable(const std::vector<std::vector<std::string>>& rows) {
  std::vector<std::size_t> widths;
  for (const auto& row : rows) {
    widths.resize(std::max(widths.size(), row.size()));
    for (std::size_t column = 0; column < row.size(); ++column) {
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
