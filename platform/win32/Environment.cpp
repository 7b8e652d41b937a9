#include "platform/win32/Environment.h"

#include "platform/win32/WindowsHeader.h"

namespace trelonit {

std::optional<std::wstring> EnvironmentVariable(const wchar_t* name) {
  std::wstring value;
  for (;;) {
    // Both a missing variable and an empty one are told as 0.
    SetLastError(ERROR_SUCCESS);
    const DWORD length =
        GetEnvironmentVariableW(name, value.data(), static_cast<DWORD>(value.size()));
    if (length == 0 && GetLastError() == ERROR_ENVVAR_NOT_FOUND) {
      return std::nullopt;
    }
    // With too little room the call tells the size with the 0 at its end, otherwise without it;
    // another thread may make the value longer in between.
    const bool hasIt = length < value.size() || length == 0;
    value.resize(length);
    if (hasIt) {
      return value;
    }
  }
}

}  // namespace trelonit
