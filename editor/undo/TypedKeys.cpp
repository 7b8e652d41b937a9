#include "editor/undo/TypedKeys.h"

#include "editor/document/TextUnits.h"
#include "platform/text/CodePage1251.h"
#include "platform/text/Text.h"

namespace trelonit {

namespace {

constexpr Integer keySpace = 32;
constexpr Integer keyPad0 = 96;
constexpr Integer keyPad9 = 105;
constexpr Integer keyPadDivide = 111;

bool Within(Integer keyCode, int first, int last) {
  return keyCode >= first && keyCode <= last;
}

}  // namespace

bool KeyTypesText(Integer keyCode) {
  return keyCode == keyReturn || keyCode == keySpace || Within(keyCode, '0', '9') ||
         Within(keyCode, 'A', 'Z') || Within(keyCode, keyPad0, keyPadDivide) ||
         // The keys of punctuation, whose codes are the same on every layout.
         Within(keyCode, 186, 192) || Within(keyCode, 219, 223) || keyCode == 226;
}

std::string TypedText(Integer keyCode, Integer shift) {
  if (keyCode == keyReturn) {
    return std::string(lineEnd);
  }
  if (Within(keyCode, keyPad0, keyPad9)) {
    return std::string(1, static_cast<char>('0' + keyCode - keyPad0));
  }
  const char16_t character = FromCodePage1251(static_cast<unsigned char>(keyCode));
  const char16_t cased = shift == 0 ? LowerCase(character) : UpperCase(character);
  return Utf8({&cased, 1});
}

}  // namespace trelonit
