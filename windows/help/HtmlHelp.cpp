#include "windows/help/HtmlHelp.h"

#include <QApplication>
#include <QWidget>
#include <cstdint>
#include <windows.h>

#include "platform/errors/RuntimeError.h"
#include "windows/binding/Binding.h"

namespace trelonit {

namespace {

// The viewer's library is the system's; taken at run time it needs no header of a kit.
using HtmlHelpAFunction = HWND(WINAPI*)(HWND owner, LPCSTR file, UINT command, DWORD_PTR data);

HtmlHelpAFunction FindHtmlHelpA() {
  // It stays loaded: the viewer's window is its own.
  const HMODULE library = LoadLibraryW(L"hhctrl.ocx");
  return library == nullptr ? nullptr
                            : reinterpret_cast<HtmlHelpAFunction>(
                                  reinterpret_cast<void*>(GetProcAddress(library, "HtmlHelpA")));
}

}  // namespace

bool ShowHtmlHelp(const std::string& path) {
  constexpr UINT displayTopic = 0;
  const HtmlHelpAFunction htmlHelp = FindHtmlHelpA();
  const QWidget* window = QApplication::activeWindow();
  const HWND owner = window == nullptr ? nullptr : reinterpret_cast<HWND>(window->winId());
  // The call takes the system's own code page.
  const QByteArray file = ToQt(path).toLocal8Bit();
  if (htmlHelp == nullptr || htmlHelp(owner, file.constData(), displayTopic, 0) == nullptr) {
    throw RuntimeError(ErrorNumber::FileNotFound);
  }
  return true;
}

}  // namespace trelonit
