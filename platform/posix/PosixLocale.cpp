#include "platform/posix/PosixLocale.h"

#include <stdexcept>

#include "platform/text/Text.h"

namespace trelonit {

NumberLocale NumberLocaleOf(const std::locale& locale) {
  NumberLocale result;
  const auto& form = std::use_facet<std::numpunct<wchar_t>>(locale);
  result.DecimalSeparator = Utf8(std::u32string(1, static_cast<char32_t>(form.decimal_point())));
  const std::string grouping = form.grouping();
  if (!grouping.empty() && grouping[0] > 0 && form.thousands_sep() != L'\0') {
    result.GroupSeparator = Utf8(std::u32string(1, static_cast<char32_t>(form.thousands_sep())));
    result.GroupSize = static_cast<unsigned char>(grouping[0]);
  }
  return result;
}

NumberLocale SystemNumberLocale() {
  try {
    return NumberLocaleOf(std::locale(""));
  } catch (const std::runtime_error&) {
    // The environment names a locale that is not installed: the neutral form serves.
    return {};
  }
}

}  // namespace trelonit
