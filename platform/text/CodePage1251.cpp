#include "platform/text/CodePage1251.h"

#include <algorithm>
#include <array>

#include "platform/text/Text.h"

namespace trelonit {

namespace {

consteval std::array<char16_t, 128> MakeUpperHalf() {
  std::array<char16_t, 128> table{
      0x0402, 0x0403, 0x201A, 0x0453, 0x201E, 0x2026, 0x2020, 0x2021,  // 80
      0x20AC, 0x2030, 0x0409, 0x2039, 0x040A, 0x040C, 0x040B, 0x040F,  // 88
      0x0452, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,  // 90
      0x0098, 0x2122, 0x0459, 0x203A, 0x045A, 0x045C, 0x045B, 0x045F,  // 98
      0x00A0, 0x040E, 0x045E, 0x0408, 0x00A4, 0x0490, 0x00A6, 0x00A7,  // A0
      0x0401, 0x00A9, 0x0404, 0x00AB, 0x00AC, 0x00AD, 0x00AE, 0x0407,  // A8
      0x00B0, 0x00B1, 0x0406, 0x0456, 0x0491, 0x00B5, 0x00B6, 0x00B7,  // B0
      0x0451, 0x2116, 0x0454, 0x00BB, 0x0458, 0x0405, 0x0455, 0x0457,  // B8
  };
  // From C0 on the alphabet stands in one run.
  for (std::size_t place = 0x40; place < table.size(); ++place) {
    table[place] = static_cast<char16_t>(0x0410 + (place - 0x40));
  }
  return table;
}

constexpr std::array<char16_t, 128> upperHalf = MakeUpperHalf();
constexpr auto alphabet = upperHalf.begin() + 0x40;

}  // namespace

char16_t FromCodePage1251(unsigned char byte) {
  return byte < 0x80 ? byte : upperHalf[byte - 0x80U];
}

unsigned char ToCodePage1251(char32_t character) {
  if (character < 0x80) {
    return static_cast<unsigned char>(character);
  }
  if (character >= 0x0410 && character <= 0x044F) {
    return static_cast<unsigned char>(character - 0x0410 + 0xC0);
  }
  const auto found = std::find(upperHalf.begin(), alphabet, character);
  const auto place = static_cast<unsigned>(found - upperHalf.begin());
  return found == alphabet ? '?' : static_cast<unsigned char>(0x80U | place);
}

std::string DecodeCodePage1251(std::string_view bytes) {
  std::string text;
  text.reserve(bytes.size() * 2);
  for (const char byte : bytes) {
    AppendUtf8(text, FromCodePage1251(static_cast<unsigned char>(byte)));
  }
  return text;
}

std::string EncodeCodePage1251(std::string_view text) {
  std::string bytes;
  bytes.reserve(text.size());
  for (const char32_t character : Characters(text)) {
    bytes.push_back(static_cast<char>(ToCodePage1251(character)));
  }
  return bytes;
}

std::string StripToPrintable(std::string_view text) {
  std::string kept;
  for (const char32_t character : Characters(text)) {
    const unsigned char code = ToCodePage1251(character);
    if ((code >= 33 && code <= 59) || (code >= 65 && code <= 90) || (code >= 97 && code <= 122) ||
        code >= 192) {
      AppendUtf8(kept, character);
    }
  }
  return kept;
}

}  // namespace trelonit
