#include <cerrno>
#include <cstring>
#include <filesystem>

#ifdef _WIN32
#include <process.h>
#else
#include <unistd.h>
#endif

#include "apps/cli/Paper.h"

namespace trelonit::cli {

namespace {

#ifdef _WIN32
constexpr const char* program = "trelonit-paper.exe";
#else
constexpr const char* program = "trelonit-paper";
#endif

Status RunBeside(char** argv) {
  const std::filesystem::path path = ExecutableFolder() / program;
#ifdef _WIN32
  const intptr_t status = _spawnv(_P_WAIT, path.string().c_str(), argv);
  if (status >= 0) {
    return static_cast<Status>(status);
  }
#else
  ::execv(path.c_str(), argv);  // comes back only where it fails
#endif
  std::cerr << "trelonit-cli: для этого вида файла нужна программа " << program
            << " в той же папке: " << std::strerror(errno) << '\n';
  return Status::Failed;
}

}  // namespace

Paper MakePaper(int /*argc*/, char** argv) {
  return {.HandOver = [argv] { return RunBeside(argv); }};
}

}  // namespace trelonit::cli
