#include <cerrno>
#include <cstring>
#include <filesystem>

#ifndef _WIN32
#include <unistd.h>
#endif

#include "apps/cli/Paper.h"
#ifdef _WIN32
#include "platform/win32/Win32Console.h"
#endif

namespace trelonit::cli {

namespace {

#ifdef _WIN32
constexpr const char* program = "trelonit-paper.exe";
#else
constexpr const char* program = "trelonit-paper";
#endif

Status RunBeside([[maybe_unused]] char** argv) {
  const std::filesystem::path path = ExecutableFolder() / program;
#ifdef _WIN32
  if (const std::optional<int> status = RunWithOwnCommandLine(path)) {
    return static_cast<Status>(*status);
  }
#else
  ::execv(path.c_str(), argv);  // comes back only where it fails
#endif
  std::cerr << "trelonit-cli: для этого вида файла нужна программа " << program << " в той же папке"
#ifndef _WIN32
            << ": " << std::strerror(errno)
#endif
            << '\n';
  return Status::Failed;
}

}  // namespace

Paper MakePaper(int /*argc*/, char** argv) {
  return {.HandOver = [argv] { return RunBeside(argv); }};
}

}  // namespace trelonit::cli
