#include <memory>
#include <shlobj.h>

#include "platform/system/LocalTime.h"
#include "platform/system/ProgramFolder.h"
#include "platform/system/SystemShell.h"
#include "platform/win32/Environment.h"
#include "platform/win32/SystemError.h"
#include "platform/win32/Utf16.h"

namespace trelonit {

namespace {

/// The longest path that the system knows, with the 0 at its end.
constexpr DWORD longestPath = 32768;

RuntimeError LastError() {
  return FromSystemError(GetLastError());
}

struct TaskMemory {
  void operator()(void* memory) const { CoTaskMemFree(memory); }
};

}  // namespace

std::filesystem::path ExecutablePath() {
  std::wstring path(longestPath, L'\0');
  const DWORD length = GetModuleFileNameW(nullptr, path.data(), longestPath);
  path.resize(length);
  return path;
}

std::filesystem::path UserDataFolder() {
  return std::filesystem::path(EnvironmentVariable(L"LOCALAPPDATA").value_or(L".")) / "trelonit";
}

std::filesystem::path UserStateFolder() {
  return UserDataFolder() / "state";
}

std::tm LocalTime(std::time_t time) {
  std::tm local{};
  localtime_s(&local, &time);
  return local;
}

std::string SystemShell::ComputerName() {
  std::wstring name(MAX_COMPUTERNAME_LENGTH + 1, L'\0');
  DWORD length = MAX_COMPUTERNAME_LENGTH + 1;
  if (!GetComputerNameW(name.data(), &length)) {
    throw LastError();
  }
  name.resize(length);
  return FromWide(name);
}

std::string SystemShell::UserName() {
  constexpr DWORD longestName = 257;
  std::wstring name(longestName, L'\0');
  DWORD length = longestName;
  if (!GetUserNameW(name.data(), &length)) {
    throw LastError();
  }
  return FromWide(name.c_str());
}

std::string SystemShell::ProgramPath() {
  const std::filesystem::path path = ExecutablePath();
  if (path.empty()) {
    throw LastError();
  }
  constexpr std::wstring_view ending = L".exe";
  std::wstring name = path.native();
  const std::wstring extension = path.extension().native();
  if (CompareStringOrdinal(extension.c_str(), -1, ending.data(), -1, TRUE) == CSTR_EQUAL) {
    name.resize(name.size() - ending.size());
  }
  return FromWide(name);
}

std::string SystemShell::SystemFolder() {
  std::wstring folder(longestPath, L'\0');
  const UINT length = GetSystemDirectoryW(folder.data(), longestPath);
  if (length == 0) {
    throw LastError();
  }
  folder.resize(length);
  return FromWide(folder);
}

std::string SystemShell::SendToFolder() {
  wchar_t* folder = nullptr;
  const HRESULT result = SHGetKnownFolderPath(FOLDERID_SendTo, 0, nullptr, &folder);
  // The memory is the caller's even where the call fails.
  const std::unique_ptr<wchar_t, TaskMemory> owned(folder);
  if (FAILED(result)) {
    throw RuntimeError(ErrorNumber::PropertyNotSupported);
  }
  return FromWide(folder);
}

void SystemShell::RemoveShortcut(const std::string& path) {
  if (!DeleteFileW(ToWide(path).c_str())) {
    throw LastError();
  }
}

}  // namespace trelonit
