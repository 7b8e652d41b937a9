#include "platform/text/TerminalText.h"

#include "platform/text/Text.h"

namespace trelonit {

namespace {

constexpr char32_t firstPrintable = 0x20;
constexpr char32_t erasure = 0x7F;
constexpr char32_t firstOfEightBits = 0x80;
constexpr char32_t lastOfEightBits = 0x9F;
constexpr char32_t symbolOfNull = 0x2400;
constexpr char32_t symbolOfErasure = 0x2421;

}  // namespace

std::string TerminalText(std::string_view text) {
  constexpr std::string_view digits = "0123456789ABCDEF";
  std::string shown;
  shown.reserve(text.size());
  for (const char32_t character : Characters(text)) {
    const bool shapesTheText = character == '\n' || character == '\t';
    if (character < firstPrintable && !shapesTheText) {
      AppendUtf8(shown, symbolOfNull + character);
    } else if (character == erasure) {
      AppendUtf8(shown, symbolOfErasure);
    } else if (character >= firstOfEightBits && character <= lastOfEightBits) {
      shown += "\\x";
      shown += digits[character >> 4U];
      shown += digits[character & 0xFU];
    } else {
      AppendUtf8(shown, character);
    }
  }
  return shown;
}

}  // namespace trelonit
