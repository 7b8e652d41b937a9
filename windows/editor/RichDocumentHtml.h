#pragma once

#include <string>

#include "editor/document/RichDocument.h"

namespace trelonit {

/// The text of an HTML page with what of its looks the editor can hold; as the clipboard brings it.
/// Loads nothing that the page refers to. Any text is a page of some kind: never fails.
RichDocument FromHtml(const std::string& html);

}  // namespace trelonit
