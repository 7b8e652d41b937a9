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

/// The same from UTF-16; half a surrogate pair becomes U+FFFD.
std::string Utf8(std::u16string_view units);

bool IsHighSurrogate(char16_t unit);
bool IsLowSurrogate(char16_t unit);

void AppendUtf8(std::string& text, char32_t character);

// Latin letters and their case, whatever the user's locale is; nothing else changes.

bool IsLatinLetter(char byte);
char LowerLatin(char byte);
constexpr char UpperLatin(char byte) {
  return byte >= 'a' && byte <= 'z' ? static_cast<char>(byte - 'a' + 'A') : byte;
}
std::string LowerLatin(std::string text);

/// The text without blanks at its right end.
std::string_view TrimRight(std::string_view text);

/// The text without blanks and tabs at both ends.
std::string_view Trim(std::string_view text);

}  // namespace trelonit
