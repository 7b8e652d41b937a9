#pragma once

#include <string>
#include <string_view>

#include "resources/generator/CsvTable.h"

namespace trelonit::packer {

constexpr std::string_view steelHead = "Grade;Range;RySheet;RyFason";
/// Captions of ranges hold decimal commas.
constexpr char steelSeparator = ';';

/// Packs the steel table as block 101: a line a grade, "grade#range$range...", a range
/// "caption*sheet*shaped", code page 1251, each line ended by CR LF, and three zero bytes at the
/// end. Rows of a grade stand together. Raises SourceFault for a text that is empty, too long for
/// its field (5, 15, 3 and 3 characters), not of code page 1251 or with a separator of the block in
/// it, and for a grade that comes back after another one.
std::string PackSteel(const CsvTable& table);

}  // namespace trelonit::packer
