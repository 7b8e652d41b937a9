#pragma once

#include <cstdint>
#include <optional>

namespace trelonit {

/// The character of one byte in a code page of single bytes: 437, 850, 866, 1250 to 1257. Any other
/// page reads as 1252. A byte that its page leaves open is the character of the same number.
char16_t FromCodePage(std::int32_t codePage, unsigned char byte);

/// The code page that a font's character set stands for; nothing for the set "default" (1), which
/// leaves the choice to the document.
std::optional<std::int32_t> CodePageOfCharset(std::int32_t charset);

}  // namespace trelonit
