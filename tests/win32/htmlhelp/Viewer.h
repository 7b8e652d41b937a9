#pragma once

#include <string>

#include "platform/win32/WindowsHeader.h"

namespace trelonit::test {

/// How the viewer of compiled help was called last.
struct HelpCall {
  int Count = 0;
  HWND Owner = nullptr;
  std::string File;
  UINT Command = 0;
  DWORD_PTR Data = 0;
};

/// What the viewer in the system's place has beside the system's function.
using LastHelpCallFunction = const HelpCall* (*)();
using AnswerHelpCallsFunction = void (*)(HWND window);

}  // namespace trelonit::test
