#include <array>
#include <cstdlib>
#include <pwd.h>
#include <unistd.h>

#include "platform/system/LocalTime.h"
#include "platform/system/ProgramFolder.h"
#include "platform/system/SystemShell.h"

namespace trelonit {

namespace fs = std::filesystem;

namespace {

/// Never one below the working folder, which is another one every time.
fs::path HomeFolder() {
  const char* home = std::getenv("HOME");
  if (home != nullptr && home[0] == '/') {
    return home;
  }
  const passwd* entry = ::getpwuid(::getuid());
  return entry != nullptr && entry->pw_dir[0] == '/' ? entry->pw_dir : "/";
}

}  // namespace

std::string SystemShell::ComputerName() {
  std::array<char, 256> name{};
  if (::gethostname(name.data(), name.size() - 1) != 0) {
    throw RuntimeError(ErrorNumber::DeviceIoError);
  }
  return name.data();
}

std::string SystemShell::UserName() {
  const passwd* entry = ::getpwuid(::getuid());
  return entry != nullptr ? entry->pw_name : "";
}

// The places are those of Windows: there are none.

std::string SystemShell::ProgramPath() {
  return ShellService::ProgramPath();
}

std::string SystemShell::SystemFolder() {
  return ShellService::SystemFolder();
}

std::string SystemShell::SendToFolder() {
  return ShellService::SendToFolder();
}

void SystemShell::RemoveShortcut(const std::string& path) {
  ShellService::RemoveShortcut(path);
}

fs::path ExecutablePath() {
  std::error_code code;
  return fs::read_symlink("/proc/self/exe", code);
}

fs::path UserDataFolder() {
  const char* data = std::getenv("XDG_DATA_HOME");
  if (data != nullptr && data[0] == '/') {
    return fs::path(data) / "trelonit";
  }
  return HomeFolder() / ".local/share/trelonit";
}

fs::path UserStateFolder() {
  const char* state = std::getenv("XDG_STATE_HOME");
  if (state != nullptr && state[0] == '/') {
    return fs::path(state) / "trelonit";
  }
  return HomeFolder() / ".local/state/trelonit";
}

std::tm LocalTime(std::time_t time) {
  std::tm local{};
  localtime_r(&time, &local);
  return local;
}

}  // namespace trelonit
