#include <cerrno>
#include <csignal>
#include <cstring>
#include <unistd.h>

#include "platform/posix/UnfinishedFile.h"
#include "platform/system/Process.h"
#include "platform/system/ProgramFolder.h"

namespace trelonit {

int RunConsoleProgram(int argc, char** argv, const std::function<int(int, char**)>& work) {
  std::signal(SIGXFSZ, SIG_IGN);
  TakeUnfinishedFileAlongWhenInterrupted();
  return work(argc, argv);
}

bool IsOutputTerminal() {
  return ::isatty(STDOUT_FILENO) == 1;
}

bool IsErrorTerminal() {
  return ::isatty(STDERR_FILENO) == 1;
}

std::string ProgramFileName(std::string name) {
  return name;
}

HandedOver HandOverTo(const std::string& fileName, char** argv) {
  const std::filesystem::path path = ExecutableFolder() / fileName;
  ::execv(path.c_str(), argv);  // comes back only where it fails
  return {.Status = std::nullopt, .Reason = std::strerror(errno)};
}

}  // namespace trelonit
