#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace trelonit {

// Text is UTF-8 in std::string everywhere in the logic. Where a rule counts or cuts characters,
// it works on the characters themselves.

/// The characters of a UTF-8 text; malformed bytes become U+FFFD.
std::u32string Characters(std::string_view text);

/// Whether the bytes are well-formed UTF-8.
bool IsUtf8(std::string_view bytes);

/// Back to UTF-8.
std::string Utf8(std::u32string_view characters);

void AppendUtf8(std::string& text, char32_t character);

/// The text without blanks at its right end.
std::string_view TrimRight(std::string_view text);

/// The text without blanks and tabs at both ends.
std::string_view Trim(std::string_view text);

}  // namespace trelonit
