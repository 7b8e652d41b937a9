#pragma once

#include <string_view>

#include "editor/document/RichDocument.h"

namespace trelonit {

/// Reads rich text format: fonts, sizes, bold, italic, underline, strike-through, colours,
/// paragraphs, tabs, alignment; characters by code page and Unicode escapes. Groups that it does
/// not know are skipped. Works in time and memory that grow with the length alone, whatever the
/// bytes are: a damaged text gives what could be read. Raises 13 (Type mismatch) for bytes that do
/// not begin as rich text.
RichDocument ReadRtf(std::string_view bytes);

}  // namespace trelonit
