#include "bench/ProcessCost.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>

#include <chrono>
#include <cstdlib>
#include <iostream>

extern char** environ;

namespace trelonit::bench {

ProcessCost RunProcess(const std::vector<std::string>& arguments) {
  std::vector<char*> argv;
  for (const std::string& argument : arguments) {
    argv.push_back(const_cast<char*>(argument.c_str()));
  }
  argv.push_back(nullptr);
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_addopen(&actions, 1, "/dev/null", O_WRONLY, 0);

  const auto start = std::chrono::steady_clock::now();
  pid_t child = 0;
  int status = 0;
  rusage usage{};
  const bool ran =
      posix_spawn(&child, argv[0], &actions, nullptr, argv.data(), environ) == 0 &&
      wait4(child, &status, 0, &usage) == child && WIFEXITED(status) && WEXITSTATUS(status) == 0;
  const auto end = std::chrono::steady_clock::now();
  posix_spawn_file_actions_destroy(&actions);
  if (!ran) {
    std::cerr << arguments[0] << " failed\n";
    std::exit(1);
  }
  return {.Milliseconds = std::chrono::duration<double, std::milli>(end - start).count(),
          .Megabytes = static_cast<double>(usage.ru_maxrss) / 1024};
}

}  // namespace trelonit::bench
