#include "platform/win32/Utf16.h"

#include "platform/text/Text.h"
#include "platform/values/Integers.h"
#include "platform/win32/WindowsHeader.h"

namespace trelonit {

namespace {

/// The system counts in 32 bits; raises 6 beyond that.
int CountOf(std::size_t size) {
  return RoundToLong(static_cast<double>(size));
}

}  // namespace

std::wstring ToWide(std::string_view text) {
  const int size = CountOf(text.size());
  std::wstring wide(
      static_cast<std::size_t>(MultiByteToWideChar(CP_UTF8, 0, text.data(), size, nullptr, 0)),
      L'\0');
  MultiByteToWideChar(CP_UTF8, 0, text.data(), size, wide.data(), CountOf(wide.size()));
  return wide;
}

std::string FromWide(std::wstring_view text) {
  return Utf8(std::u16string(text.begin(), text.end()));
}

}  // namespace trelonit
