#include "tests/win32/ServerProgram.h"

#include <algorithm>
#include <fstream>

#include "platform/files/Paths.h"
#include "platform/system/ProgramFolder.h"
#include "platform/win32/Utf16.h"
#include "platform/win32/Win32Registry.h"
#include "platform/win32/WindowsHeader.h"
#include "tests/win32/automation/ServerLog.h"

namespace trelonit::test {

namespace {

constexpr DWORD patience = 60000;  // milliseconds

/// Whether the process has ended, after at most this time.
bool Ends(std::uint32_t process, DWORD milliseconds) {
  const HANDLE handle = OpenProcess(SYNCHRONIZE, FALSE, process);
  if (handle == nullptr) {
    return true;
  }
  const bool ended = WaitForSingleObject(handle, milliseconds) == WAIT_OBJECT_0;
  CloseHandle(handle);
  return ended;
}

void End(std::uint32_t process) {
  const HANDLE handle = OpenProcess(PROCESS_TERMINATE | SYNCHRONIZE, FALSE, process);
  if (handle != nullptr) {
    TerminateProcess(handle, 1);
    WaitForSingleObject(handle, patience);
    CloseHandle(handle);
  }
}

/// A class of its own for each: wine's list of what can be made keeps a process that was ended.
std::string NewClass() {
  GUID identifier{};
  CoCreateGuid(&identifier);
  std::wstring text(64, L'\0');
  StringFromGUID2(identifier, text.data(), static_cast<int>(text.size()));
  return FromWide(text.c_str());
}

}  // namespace

ServerProgram::ServerProgram(const std::string& programIdentifier, Orders orders)
    : programKey_(programIdentifier) {
  orders.Program = programIdentifier;
  orders.Class = NewClass();
  classKey_ = "CLSID\\" + orders.Class;
  folder_ = std::filesystem::temp_directory_path() / orders.Class;
  std::filesystem::create_directory(folder_);
  WriteOrders(folder_ / ordersName, orders);
  command_ = '"' + Utf8OfPath(ExecutableFolder() / "automation_server.exe") + "\" \"" +
             Utf8OfPath(folder_) + '"';
  Win32Registry registry;
  registry.SetValue(RegistryRoot::ClassesRoot, programKey_ + "\\CLSID", "", orders.Class);
  registry.SetValue(RegistryRoot::ClassesRoot, classKey_ + "\\LocalServer32", "", command_);
}

ServerProgram::~ServerProgram() {
  for (const std::uint32_t process : Processes()) {
    End(process);
  }
  Win32Registry registry;
  registry.DeleteKey(RegistryRoot::ClassesRoot, programKey_);
  registry.DeleteKey(RegistryRoot::ClassesRoot, classKey_);
  std::error_code ignored;
  std::filesystem::remove_all(folder_, ignored);
}

void ServerProgram::Start() {
  std::wstring line = ToWide(command_);
  STARTUPINFOW start{};
  start.cb = sizeof start;
  PROCESS_INFORMATION process{};
  if (CreateProcessW(nullptr, line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start,
                     &process)) {
    for (DWORD waited = 0; Processes().empty() && waited < patience; waited += 10) {
      Sleep(10);
    }
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
  }
}

std::vector<std::string> ServerProgram::Calls() const {
  std::vector<std::string> calls = Lines();
  std::erase_if(calls, [](const std::string& line) {
    return line == turnedAway || line.starts_with(processLine);
  });
  return calls;
}

std::size_t ServerProgram::TurnedAway() const {
  const std::vector<std::string> lines = Lines();
  return static_cast<std::size_t>(std::count(lines.begin(), lines.end(), turnedAway));
}

bool ServerProgram::IsGone() const {
  const std::vector<std::uint32_t> processes = Processes();
  return std::all_of(processes.begin(), processes.end(),
                     [](std::uint32_t process) { return Ends(process, patience); });
}

std::vector<std::string> ServerProgram::Lines() const {
  std::vector<std::string> lines;
  std::ifstream stream(folder_ / logName);
  for (std::string line; std::getline(stream, line);) {
    lines.push_back(line);
  }
  return lines;
}

std::vector<std::uint32_t> ServerProgram::Processes() const {
  std::vector<std::uint32_t> processes;
  const std::string start = processLine;
  for (const std::string& line : Lines()) {
    if (line.starts_with(start)) {
      processes.push_back(static_cast<std::uint32_t>(std::stoul(line.substr(start.size()))));
    }
  }
  return processes;
}

}  // namespace trelonit::test
