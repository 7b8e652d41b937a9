#include "platform/win32/Win32Console.h"

#include <cstdio>
#include <io.h>

#include "platform/system/Process.h"
#include "platform/system/ProgramFolder.h"
#include "platform/win32/CommandLine.h"
#include "platform/win32/WindowsHeader.h"

namespace trelonit {

Utf8Console::Utf8Console() : codePage_(GetConsoleOutputCP()), arguments_(OwnArguments()) {
  for (std::string& argument : arguments_) {
    places_.push_back(argument.data());
  }
  places_.push_back(nullptr);
  SetConsoleOutputCP(CP_UTF8);
}

Utf8Console::~Utf8Console() {
  SetConsoleOutputCP(codePage_);
}

std::optional<int> RunWithOwnCommandLine(const std::filesystem::path& program) {
  // The call may write into the text that it is given.
  std::wstring line = GetCommandLineW();
  STARTUPINFOW start{};
  start.cb = sizeof start;
  PROCESS_INFORMATION process{};
  if (!CreateProcessW(program.c_str(), line.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr,
                      &start, &process)) {
    return std::nullopt;
  }
  WaitForSingleObject(process.hProcess, INFINITE);
  DWORD status = 1;
  GetExitCodeProcess(process.hProcess, &status);
  CloseHandle(process.hThread);
  CloseHandle(process.hProcess);
  return static_cast<int>(status);
}

int RunConsoleProgram(int /*argc*/, char** /*argv*/, const std::function<int(int, char**)>& work) {
  // The given arguments are in the code page of the system, which not every name fits into.
  Utf8Console console;
  return work(console.ArgumentCount(), console.Arguments());
}

bool IsOutputTerminal() {
  return _isatty(_fileno(stdout)) != 0;
}

bool IsErrorTerminal() {
  return _isatty(_fileno(stderr)) != 0;
}

std::string ProgramFileName(std::string name) {
  return name + ".exe";
}

HandedOver HandOverTo(const std::string& fileName, char** /*argv*/) {
  return {.Status = RunWithOwnCommandLine(ExecutableFolder() / fileName)};
}

}  // namespace trelonit
