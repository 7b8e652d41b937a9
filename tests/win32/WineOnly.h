#pragma once

#include "platform/win32/WindowsHeader.h"

namespace trelonit::test {

/// Whether this machine is wine's, which belongs to the test run alone. What changes a user's file
/// types must not run on a real one.
inline bool IsWine() {
  const HMODULE system = GetModuleHandleW(L"ntdll.dll");
  return system != nullptr && GetProcAddress(system, "wine_get_version") != nullptr;
}

}  // namespace trelonit::test
