#pragma once

#include <string>
#include <string_view>

#include "resources/generator/CsvTable.h"

namespace trelonit::packer {

/// Codes in hexadecimal digits, widths and outlines in whole units. An outline is verbs and numbers
/// with blanks between: M and L with a point, Q with two, Z.
constexpr std::string_view lettersHead = "Code,Advance,Outline";

/// The source that carries a table of letters. Raises SourceFault for a line that is none, for
/// codes out of order and where the last one is not U+FFFD.
std::string LettersSource(const CsvTable& table);

}  // namespace trelonit::packer
