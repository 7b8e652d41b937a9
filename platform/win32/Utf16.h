#pragma once

#include <string>
#include <string_view>

namespace trelonit {

// Text of the system's calls, which is UTF-16. Characters 0 stay where they are; what is malformed
// becomes U+FFFD.

std::wstring ToWide(std::string_view text);
std::string FromWide(std::wstring_view text);

}  // namespace trelonit
