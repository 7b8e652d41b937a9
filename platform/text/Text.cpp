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

void AppendUtf8(std::string& text, char32_t character) {
  utf8::unchecked::append(character, std::back_inserter(text));
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
