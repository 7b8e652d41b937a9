#pragma once

#include <string>

#include "editor/document/RichDocument.h"

namespace trelonit {

/// The document in rich text format, 7-bit: Cyrillic as escapes of code page 1251, what it lacks as
/// Unicode escapes. On A4 paper, in Russian.
std::string WriteRtf(const RichDocument& document);

}  // namespace trelonit
