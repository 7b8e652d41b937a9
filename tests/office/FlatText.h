#pragma once

#include <string>

#include "editor/document/RichDocument.h"

namespace trelonit::test {

/// In an OpenDocument text the East Asian and the complex scripts have looks of their own.
enum class OtherScriptLook { EastAsian, Complex };

/// Characters that are neither Latin, Greek, Cyrillic nor general signs, halves of surrogate pairs
/// among them.
bool IsOfOtherScript(char16_t unit);

/// Text and formats of a flat OpenDocument text, as LibreOffice writes it: styles with their
/// parents, spans, blanks, tabs, tab stops. The characters of other scripts are given the look of
/// this one of them.
RichDocument ReadFlatText(const std::string& xml, OtherScriptLook other);

}  // namespace trelonit::test
