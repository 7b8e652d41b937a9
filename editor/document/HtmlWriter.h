#pragma once

#include <string>

#include "editor/document/RichDocument.h"

namespace trelonit {

/// The document as an HTML page in UTF-8: a paragraph each, the looks as classes. Blanks and tabs
/// stay as they are. Tab stops are left out: HTML has none.
std::string WriteHtml(const RichDocument& document, const std::string& title);

}  // namespace trelonit
