#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace trelonit {

/// The cells of one line; a line without any text has none.
using PastedLine = std::vector<std::string>;

/// The lines of a text that comes from a spreadsheet: cells between tabs, or between semicolons
/// where there are no tabs. Blanks round a cell and quotes round it are gone, and so are the lines
/// without text at the end.
std::vector<PastedLine> SplitPasted(const std::string& text);

/// How many lines that would give, without taking them apart.
std::size_t CountPasted(const std::string& text);

}  // namespace trelonit
