#include <algorithm>

#include "platform/text/NumberText.h"
#include "platform/win32/Utf16.h"
#include "platform/win32/WindowsHeader.h"

namespace trelonit {

namespace {

/// What the user has chosen; empty where the system does not tell.
std::string Chosen(LCTYPE what) {
  // The separators and the groups have at most ten characters with the 0.
  constexpr int longest = 16;
  std::wstring text(longest, L'\0');
  const int length = GetLocaleInfoEx(LOCALE_NAME_USER_DEFAULT, what, text.data(), longest);
  text.resize(static_cast<std::size_t>(std::max(length - 1, 0)));
  return FromWide(text);
}

}  // namespace

NumberLocale SystemNumberLocale() {
  NumberLocale result;
  if (const std::string decimal = Chosen(LOCALE_SDECIMAL); !decimal.empty()) {
    result.DecimalSeparator = decimal;
  }
  // As "3;0", the size of the first group before the decimals first.
  const std::string groups = Chosen(LOCALE_SGROUPING);
  if (!groups.empty() && groups[0] >= '1' && groups[0] <= '9') {
    result.GroupSeparator = Chosen(LOCALE_STHOUSAND);
    result.GroupSize = groups[0] - '0';
  }
  return result;
}

}  // namespace trelonit
