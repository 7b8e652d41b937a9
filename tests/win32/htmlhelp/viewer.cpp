// Stands in the place of the system's viewer of compiled help, hhctrl.ocx: keeps how it was called.

#include "tests/win32/htmlhelp/Viewer.h"

namespace {

trelonit::test::HelpCall last;
HWND answer = nullptr;

}  // namespace

extern "C" __declspec(dllexport) HWND WINAPI
    HtmlHelpA(HWND owner, LPCSTR file, UINT command, DWORD_PTR data) {
  last = {last.Count + 1, owner, file, command, data};
  return answer;
}

extern "C" __declspec(dllexport) const trelonit::test::HelpCall* LastHelpCall() {
  return &last;
}

extern "C" __declspec(dllexport) void AnswerHelpCalls(HWND window) {
  answer = window;
}
