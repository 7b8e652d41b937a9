#include "platform/console/ConsoleServices.h"

#include <array>
#include <cstdlib>
#include <ctime>
#include <filesystem>

#ifdef _WIN32
#include "platform/win32/WindowsHeader.h"
#else
#include <pwd.h>
#include <unistd.h>
#endif

#include "platform/errors/RuntimeError.h"

namespace trelonit {

namespace fs = std::filesystem;

MessageAnswer ConsoleMessages::Show(const Message& message) {
  shown_.push_back(message);
  if (!message.Title.empty()) {
    stream_ << message.Title << ": ";
  }
  stream_ << message.Text << std::endl;
  if (!IsQuestion(message)) {
    return MessageAnswer::Ok;
  }
  // Where a cancel is offered, it is the answer that changes nothing.
  return message.Style == MessageStyle::QuestionYesNoCancel ? MessageAnswer::Cancel : toQuestions_;
}

std::string MemorySettings::Get(const std::string& section, const std::string& key,
                                const std::string& fallback) {
  const auto found = values_.find({section, key});
  return found == values_.end() ? fallback : found->second;
}

void MemorySettings::Set(const std::string& section, const std::string& key,
                         const std::string& value) {
  values_[{section, key}] = value;
}

AutomationHandle NoAutomation::Create(const std::string&) {
  throw RuntimeError(ErrorNumber::CannotCreateObject);
}

void ConsoleShell::StartProgram(const std::string&) {
  throw RuntimeError(ErrorNumber::FileNotFound);
}

void ConsoleShell::OpenHelp(const std::string&) {
  throw RuntimeError(ErrorNumber::CannotCreateObject);
}

#ifndef _WIN32

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

#endif

ClockReading SystemClock::Now() {
  const std::time_t now = std::time(nullptr);
  std::tm local{};
#ifdef _WIN32
  localtime_s(&local, &now);
#else
  localtime_r(&now, &local);
#endif
  return {.Year = local.tm_year + 1900,
          .Month = local.tm_mon + 1,
          .Day = local.tm_mday,
          .Hour = local.tm_hour,
          .Minute = local.tm_min,
          .Second = local.tm_sec};
}

namespace {

std::string ToUtf8(const fs::path& path) {
  const std::u8string text = path.u8string();
  return {text.begin(), text.end()};
}

}  // namespace

fs::path ExecutableFolder() {
#ifdef _WIN32
  return ExecutablePath().parent_path();
#else
  std::error_code code;
  return fs::read_symlink("/proc/self/exe", code).parent_path();
#endif
}

namespace {

bool IsWritable(const fs::path& folder) {
#ifdef _WIN32
  // Rights of a folder are only known by trying.
  const fs::path probe = folder / "trelonit.probe";
  const HANDLE file = CreateFileW(probe.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                                  FILE_FLAG_DELETE_ON_CLOSE, nullptr);
  if (file == INVALID_HANDLE_VALUE) {
    return false;
  }
  CloseHandle(file);
  return true;
#else
  return ::access(folder.c_str(), W_OK | X_OK) == 0;
#endif
}

fs::path UserDataFolder() {
#ifdef _WIN32
  const wchar_t* base = _wgetenv(L"LOCALAPPDATA");
  return fs::path(base != nullptr ? base : L".") / "trelonit";
#else
  const char* data = std::getenv("XDG_DATA_HOME");
  if (data != nullptr && data[0] == '/') {
    return fs::path(data) / "trelonit";
  }
  const char* home = std::getenv("HOME");
  return fs::path(home != nullptr ? home : "/") / ".local/share/trelonit";
#endif
}

/// By the licence that an installation puts beside the programs; see packaging/CMakeLists.txt.
bool IsInstalled(const fs::path& programs) {
  std::error_code code;
  return fs::exists(programs.parent_path() / "share" / "doc" / "trelonit" / "copyright", code);
}

}  // namespace

std::string FindProgramFolder() {
  const fs::path own = ExecutableFolder();
  std::error_code code;
  const bool holdsCatalogue =
      fs::exists(own / "GOST profile.dat", code) && fs::exists(own / "Index.ind", code);
  if (!own.empty() && (holdsCatalogue || (!IsInstalled(own) && IsWritable(own)))) {
    return ToUtf8(own);
  }
  const fs::path user = UserDataFolder();
  // Where this fails, unpacking the catalogue tells the user.
  fs::create_directories(user, code);
  return ToUtf8(user);
}

}  // namespace trelonit
