#include <locale>
#include <stdexcept>

#include "platform/text/NumberText.h"
#include "platform/text/Text.h"

namespace trelonit {

NumberLocale SystemNumberLocale() {
  NumberLocale result;
  try {
    const std::locale system("");
    const auto& form = std::use_facet<std::numpunct<wchar_t>>(system);
    result.DecimalSeparator = Utf8(std::u32string(1, static_cast<char32_t>(form.decimal_point())));
    const std::string grouping = form.grouping();
    if (!grouping.empty() && grouping[0] > 0 && form.thousands_sep() != L'\0') {
      result.GroupSeparator = Utf8(std::u32string(1, static_cast<char32_t>(form.thousands_sep())));
      result.GroupSize = static_cast<unsigned char>(grouping[0]);
    }
  } catch (const std::runtime_error&) {
    // The environment names a locale that is not installed: the neutral form serves.
  }
  return result;
}

}  // namespace trelonit
