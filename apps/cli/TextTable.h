#pragma once

#include <string>
#include <vector>

namespace trelonit::cli {

/// Rows of texts in columns; the first column to the left, the others to the right. Control
/// characters, which only a damaged file brings, are shown as question marks.
std::string TextTable(std::vector<std::vector<std::string>> rows);

}  // namespace trelonit::cli
