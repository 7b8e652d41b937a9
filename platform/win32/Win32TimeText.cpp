#include "platform/system/SystemTimeText.h"
#include "platform/win32/Utf16.h"
#include "platform/win32/WindowsHeader.h"

namespace trelonit {

// The system's own turning of a date into a text: its short date and its time, which goes at
// midnight.
std::optional<std::string> SystemTimeText(const ClockReading& reading) {
  SYSTEMTIME parts{};
  parts.wYear = static_cast<WORD>(reading.Year);
  parts.wMonth = static_cast<WORD>(reading.Month);
  parts.wDay = static_cast<WORD>(reading.Day);
  parts.wHour = static_cast<WORD>(reading.Hour);
  parts.wMinute = static_cast<WORD>(reading.Minute);
  parts.wSecond = static_cast<WORD>(reading.Second);
  DATE date = 0;
  BSTR text = nullptr;
  if (!SystemTimeToVariantTime(&parts, &date) ||
      FAILED(VarBstrFromDate(date, LOCALE_USER_DEFAULT, 0, &text))) {
    return std::nullopt;
  }
  std::string told = FromWide({text, SysStringLen(text)});
  SysFreeString(text);
  return told;
}

}  // namespace trelonit
