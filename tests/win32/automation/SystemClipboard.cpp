#include "tests/win32/automation/SystemClipboard.h"

#include <cstring>

#include "platform/errors/RuntimeError.h"
#include "platform/win32/Utf16.h"
#include "platform/win32/WindowsHeader.h"

namespace trelonit::test {

namespace {

void RequireDone(bool done) {
  if (!done) {
    throw RuntimeError(ErrorNumber::DeviceIoError);
  }
}

/// The clipboard while it is ours, with a window that it can belong to.
class OpenedClipboard {
 public:
  OpenedClipboard()
      : owner_(CreateWindowExW(0, L"STATIC", L"", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr,
                               nullptr)) {
    const bool opened = owner_ != nullptr && OpenClipboard(owner_);
    if (!opened) {
      DestroyWindow(owner_);
      RequireDone(opened);
    }
  }
  ~OpenedClipboard() {
    CloseClipboard();
    DestroyWindow(owner_);
  }
  OpenedClipboard(const OpenedClipboard&) = delete;
  OpenedClipboard& operator=(const OpenedClipboard&) = delete;

  /// The bytes of a format, with those behind its end that the system has added; empty without it.
  std::string Bytes(UINT format) {
    const HANDLE held = GetClipboardData(format);
    const void* place = held == nullptr ? nullptr : GlobalLock(held);
    if (place == nullptr) {
      return {};
    }
    std::string bytes(static_cast<const char*>(place), GlobalSize(held));
    GlobalUnlock(held);
    return bytes;
  }
  void Put(UINT format, const void* bytes, std::size_t size) {
    const HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, size);
    RequireDone(memory != nullptr);
    std::memcpy(GlobalLock(memory), bytes, size);
    GlobalUnlock(memory);
    RequireDone(SetClipboardData(format, memory) != nullptr);
  }

 private:
  HWND owner_;
};

UINT RichFormat() {
  return RegisterClipboardFormatW(L"Rich Text Format");
}

void PutText(OpenedClipboard& clipboard, const std::string& text) {
  const std::wstring wide = ToWide(text);
  clipboard.Put(CF_UNICODETEXT, wide.c_str(), (wide.size() + 1) * sizeof(wchar_t));
}

}  // namespace

std::string SystemClipboard::Text() {
  const std::string bytes = OpenedClipboard().Bytes(CF_UNICODETEXT);
  std::wstring wide(bytes.size() / sizeof(wchar_t), L'\0');
  std::memcpy(wide.data(), bytes.data(), wide.size() * sizeof(wchar_t));
  return FromWide(wide.c_str());
}

void SystemClipboard::SetText(const std::string& text) {
  OpenedClipboard clipboard;
  RequireDone(EmptyClipboard());
  PutText(clipboard, text);
}

std::string SystemClipboard::RichText() {
  return OpenedClipboard().Bytes(RichFormat()).c_str();
}

void SystemClipboard::SetRichText(const std::string& rtf, const std::string& plain) {
  OpenedClipboard clipboard;
  RequireDone(EmptyClipboard());
  clipboard.Put(RichFormat(), rtf.c_str(), rtf.size() + 1);
  PutText(clipboard, plain);
}

}  // namespace trelonit::test
