#include "platform/system/Caller.h"
#include "platform/system/ProgramNames.h"
#include "platform/win32/Utf16.h"
#include "platform/win32/WindowsHeader.h"

namespace trelonit {

namespace {

/// A file or a pipe takes the bytes, in UTF-8.
bool WriteToGiven(HANDLE given, const std::string& text) {
  DWORD written = 0;
  return given != nullptr && given != INVALID_HANDLE_VALUE &&
         GetFileType(given) != FILE_TYPE_UNKNOWN &&
         WriteFile(given, text.data(), static_cast<DWORD>(text.size()), &written, nullptr);
}

/// A program with windows gets no console of its own, but may write on its caller's. The caller
/// has not waited for it, so the line begins anew.
bool WriteOnConsole(const std::wstring& text) {
  if (!AttachConsole(ATTACH_PARENT_PROCESS)) {
    return false;
  }
  const HANDLE console =
      CreateFileW(L"CONOUT$", GENERIC_WRITE, FILE_SHARE_WRITE, nullptr, OPEN_EXISTING, 0, nullptr);
  bool written = false;
  if (console != INVALID_HANDLE_VALUE) {
    const std::wstring line = L"\r\n" + text;
    DWORD count = 0;
    written =
        WriteConsoleW(console, line.c_str(), static_cast<DWORD>(line.size()), &count, nullptr) != 0;
    CloseHandle(console);
  }
  FreeConsole();
  return written;
}

void Speak(DWORD stream, UINT icon, const std::string& text) {
  if (WriteToGiven(GetStdHandle(stream), text)) {
    return;
  }
  const std::wstring wide = ToWide(text);
  if (!WriteOnConsole(wide)) {
    MessageBoxW(nullptr, wide.c_str(), ToWide(applicationTitle).c_str(), MB_OK | icon);
  }
}

}  // namespace

void TellCaller(const std::string& text) {
  Speak(STD_OUTPUT_HANDLE, MB_ICONINFORMATION, text);
}

void ComplainToCaller(const std::string& text) {
  Speak(STD_ERROR_HANDLE, MB_ICONERROR, text);
}

}  // namespace trelonit
