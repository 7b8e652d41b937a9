#include "editor/rtf/RtfFonts.h"

#include <utility>

#include "editor/rtf/RtfLimits.h"
#include "platform/text/Text.h"

namespace trelonit {

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
    fonts_[*read.Number] = {Utf8(read.PlainName.empty() ? read.Name : read.PlainName),
                            read.CodePage};
  }
}

const RtfFont* RtfFonts::Find(std::int32_t number) const {
  const auto found = fonts_.find(number);
  return found == fonts_.end() ? nullptr : &found->second;
}

}  // namespace trelonit
