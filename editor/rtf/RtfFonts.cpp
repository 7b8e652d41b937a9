#include "editor/rtf/RtfFonts.h"

#include <utility>

#include "editor/rtf/RtfLimits.h"
#include "platform/text/Text.h"

namespace trelonit {

namespace {

bool IsHighSurrogate(char16_t unit) {
  return unit >= 0xD800 && unit <= 0xDBFF;
}

bool IsLowSurrogate(char16_t unit) {
  return unit >= 0xDC00 && unit <= 0xDFFF;
}

/// Half a pair becomes U+FFFD.
std::string Utf8OfUnits(std::u16string_view units) {
  std::string text;
  for (std::size_t place = 0; place < units.size(); ++place) {
    const char16_t unit = units[place];
    if (IsHighSurrogate(unit) && place + 1 < units.size() && IsLowSurrogate(units[place + 1])) {
      const auto high = static_cast<char32_t>(unit - 0xD800);
      const auto low = static_cast<char32_t>(units[++place] - 0xDC00);
      AppendUtf8(text, 0x10000 + (high << 10) + low);
    } else {
      AppendUtf8(text, IsHighSurrogate(unit) || IsLowSurrogate(unit) ? U'\uFFFD' : unit);
    }
  }
  return text;
}

}  // namespace

void RtfFonts::Begin(std::int32_t number) {
  Complete();
  reading_.Number = number;
}

void RtfFonts::AppendToName(char16_t unit, bool plain) {
  std::u16string& name = plain ? reading_.PlainName : reading_.Name;
  if (name.size() < rtfLongestFontName) {
    name.push_back(unit);
  }
}

void RtfFonts::Complete() {
  const Reading read = std::exchange(reading_, {});
  if (read.Number) {
    fonts_[*read.Number] = {Utf8OfUnits(read.PlainName.empty() ? read.Name : read.PlainName),
                            read.CodePage};
  }
}

const RtfFont* RtfFonts::Find(std::int32_t number) const {
  const auto found = fonts_.find(number);
  return found == fonts_.end() ? nullptr : &found->second;
}

}  // namespace trelonit
