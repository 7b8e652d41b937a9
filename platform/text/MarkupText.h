#pragma once

#include <string>
#include <string_view>

namespace trelonit {

/// Appends the text as it stands between the tags of HTML and XML. Of the control characters only
/// tabs stay: such a page has no others.
void AppendMarkup(std::string& page, std::string_view text);

}  // namespace trelonit
