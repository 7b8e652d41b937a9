#include "platform/text/Text.h"

#include <iterator>
#include <utf8.h>

namespace trelonit {

std::u32string Characters(std::string_view text) {
  const std::string valid = utf8::replace_invalid(text, U'\uFFFD');
  std::u32string characters;
  characters.reserve(valid.size());
  utf8::unchecked::utf8to32(valid.begin(), valid.end(), std::back_inserter(characters));
  return characters;
}

bool IsUtf8(std::string_view bytes) {
  return utf8::is_valid(bytes.begin(), bytes.end());
}

std::string Utf8(std::u32string_view characters) {
  std::string text;
  text.reserve(characters.size() * 2);
  for (const char32_t character : characters) {
    AppendUtf8(text, character);
  }
  return text;
}

bool IsHighSurrogate(char16_t unit) {
  return unit >= 0xD800 && unit <= 0xDBFF;
}

bool IsLowSurrogate(char16_t unit) {
  return unit >= 0xDC00 && unit <= 0xDFFF;
}

std::string Utf8(std::u16string_view units) {
  std::string text;
  text.reserve(units.size() * 2);
  for (std::size_t place = 0; place < units.size(); ++place) {
    const char16_t unit = units[place];
    if (IsHighSurrogate(unit) && place + 1 < units.size() && IsLowSurrogate(units[place + 1])) {
      ++place;
      AppendUtf8(text, 0x10000 + ((static_cast<char32_t>(unit) - 0xD800) << 10) +
                           (static_cast<char32_t>(units[place]) - 0xDC00));
    } else {
      AppendUtf8(text, IsHighSurrogate(unit) || IsLowSurrogate(unit) ? U'\uFFFD' : unit);
    }
  }
  return text;
}

void AppendUtf8(std::string& text, char32_t character) {
  if (character < 0x80) {
    text.push_back(static_cast<char>(character));
  } else {
    utf8::unchecked::append(character, std::back_inserter(text));
  }
}

bool IsLatinLetter(char byte) {
  const char lower = LowerLatin(byte);
  return lower >= 'a' && lower <= 'z';
}

char LowerLatin(char byte) {
  return byte >= 'A' && byte <= 'Z' ? static_cast<char>(byte - 'A' + 'a') : byte;
}

std::string LowerLatin(std::string text) {
  for (char& byte : text) {
    byte = LowerLatin(byte);
  }
  return text;
}

std::string_view TrimRight(std::string_view text) {
  const std::size_t last = text.find_last_not_of(' ');
  return last == std::string_view::npos ? std::string_view() : text.substr(0, last + 1);
}

std::string_view Trim(std::string_view text) {
  const std::size_t first = text.find_first_not_of(" \t");
  if (first == std::string_view::npos) {
    return {};
  }
  return text.substr(first, text.find_last_not_of(" \t") - first + 1);
}

}  // namespace trelonit
