#pragma once

#include <string>
#include <string_view>

namespace trelonit {

/// The character of one byte. Byte 0x98, which the code page leaves open, is U+0098, so that
/// every byte reads back as itself.
char16_t FromCodePage1251(unsigned char byte);

/// The byte of one character; "?" for a character outside the code page.
unsigned char ToCodePage1251(char32_t character);

/// Bytes of code page 1251 to UTF-8.
std::string DecodeCodePage1251(std::string_view bytes);

/// UTF-8 to code page 1251, one byte a character. What has no place in the code page, malformed
/// UTF-8 included, becomes "?".
std::string EncodeCodePage1251(std::string_view text);

/// Keeps only characters whose code in the code page lies in 33 to 59, 65 to 90, 97 to 122 or 192
/// to 255.
std::string StripToPrintable(std::string_view text);

}  // namespace trelonit
