#include <string>

#include "platform/files/Paths.h"
#include "platform/win32/WindowsHeader.h"

namespace trelonit {

namespace {

/// Empty where the file is not there.
std::wstring LongNameOfFile(const std::wstring& name) {
  // Without a buffer the call tells the size with the 0 at its end, with one it leaves that out.
  std::wstring whole(GetLongPathNameW(name.c_str(), nullptr, 0), L'\0');
  if (!whole.empty()) {
    whole.resize(GetLongPathNameW(name.c_str(), whole.data(), static_cast<DWORD>(whole.size())));
  }
  return whole;
}

}  // namespace

std::filesystem::path LongName(const std::filesystem::path& path) {
  if (std::wstring whole = LongNameOfFile(path.native()); !whole.empty()) {
    return whole;
  }
  // A file that is still to be made has no other name yet, its folder may have one.
  const std::filesystem::path folder = path.parent_path();
  return folder.empty() || folder == path ? path : LongName(folder) / path.filename();
}

}  // namespace trelonit
