#include "bench/ProcessCost.h"

#include <array>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <iostream>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

namespace trelonit::bench {

namespace {

using Clock = std::chrono::steady_clock;

double MillisecondsSince(Clock::time_point start) {
  return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

[[noreturn]] void Fail(const std::string& program) {
  throw std::runtime_error(program + " failed");
}

std::vector<char*> Pointers(const std::vector<std::string>& texts) {
  std::vector<char*> pointers;
  pointers.reserve(texts.size() + 1);
  for (const std::string& text : texts) {
    pointers.push_back(const_cast<char*>(text.c_str()));
  }
  pointers.push_back(nullptr);
  return pointers;
}

/// The inherited variables with these put in front, where they count.
std::vector<std::string> Variables(const Environment& environment) {
  std::vector<std::string> variables;
  for (const auto& [name, value] : environment) {
    variables.push_back(name);
    variables.back().append("=").append(value);
  }
  for (char** inherited = environ; *inherited != nullptr; ++inherited) {
    const std::string variable = *inherited;
    const std::string name = variable.substr(0, variable.find('='));
    bool replaced = false;
    for (const auto& [ownName, value] : environment) {
      replaced = replaced || ownName == name;
    }
    if (!replaced) {
      variables.push_back(variable);
    }
  }
  return variables;
}

/// What a started program does with its open files.
class FileActions {
 public:
  FileActions() { posix_spawn_file_actions_init(&actions_); }
  FileActions(const FileActions&) = delete;
  FileActions& operator=(const FileActions&) = delete;
  ~FileActions() { posix_spawn_file_actions_destroy(&actions_); }

  void Discard(int descriptor) {
    posix_spawn_file_actions_addopen(&actions_, descriptor, "/dev/null", O_WRONLY, 0);
  }
  void Redirect(int descriptor, int target) {
    posix_spawn_file_actions_adddup2(&actions_, target, descriptor);
  }
  const posix_spawn_file_actions_t* Get() const { return &actions_; }

 private:
  posix_spawn_file_actions_t actions_{};
};

pid_t Start(const std::vector<std::string>& arguments, const FileActions& files,
            const Environment& environment = {}) {
  const std::vector<std::string> variables = Variables(environment);
  pid_t child = 0;
  if (posix_spawnp(&child, arguments[0].c_str(), files.Get(), nullptr, Pointers(arguments).data(),
                   Pointers(variables).data()) != 0) {
    Fail(arguments[0]);
  }
  return child;
}

/// Waits for the end of the program, which has to be a good one.
rusage Finish(pid_t child, const std::string& program) {
  int status = 0;
  rusage usage{};
  if (wait4(child, &status, 0, &usage) != child || !WIFEXITED(status) || WEXITSTATUS(status) != 0) {
    Fail(program);
  }
  return usage;
}

/// A pipe whose writing end is for a started program.
class Pipe {
 public:
  Pipe() {
    if (pipe2(ends_.data(), O_CLOEXEC) != 0) {
      Fail("pipe");
    }
  }
  Pipe(const Pipe&) = delete;
  Pipe& operator=(const Pipe&) = delete;
  ~Pipe() {
    CloseWriting();
    close(ends_[0]);
  }

  int Writing() const { return ends_[1]; }
  void CloseWriting() {
    if (ends_[1] >= 0) {
      close(ends_[1]);
      ends_[1] = -1;
    }
  }
  /// The next line; false at the end.
  bool ReadLine(std::string& line) const {
    line.clear();
    for (char byte = 0; read(ends_[0], &byte, 1) == 1;) {
      if (byte == '\n') {
        return true;
      }
      line.push_back(byte);
    }
    return false;
  }

 private:
  std::array<int, 2> ends_{-1, -1};
};

}  // namespace

ProcessCost RunProcess(const std::vector<std::string>& arguments) {
  FileActions files;
  files.Discard(STDOUT_FILENO);
  // What it remarks on the truss would stand among the figures; a failure shows in its status.
  files.Discard(STDERR_FILENO);
  const Clock::time_point start = Clock::now();
  const rusage usage = Finish(Start(arguments, files), arguments[0]);
  return {.Milliseconds = MillisecondsSince(start),
          .Megabytes = static_cast<double>(usage.ru_maxrss) / 1024};
}

std::vector<Report> RunReportingProcess(const std::vector<std::string>& arguments,
                                        const Environment& environment) {
  Pipe output;
  FileActions files;
  files.Redirect(STDOUT_FILENO, output.Writing());
  const Clock::time_point start = Clock::now();
  const pid_t child = Start(arguments, files, environment);
  output.CloseWriting();
  std::vector<Report> reports;
  for (std::string line; output.ReadLine(line);) {
    reports.push_back({.Line = line, .Milliseconds = MillisecondsSince(start)});
  }
  Finish(child, arguments[0]);
  return reports;
}

BackgroundProcess::BackgroundProcess(const std::vector<std::string>& arguments) {
  Pipe report;
  FileActions files;
  files.Discard(STDERR_FILENO);
  files.Redirect(reportDescriptor, report.Writing());
  process_ = Start(arguments, files);
  report.CloseWriting();
  if (!report.ReadLine(firstLine_)) {
    Fail(arguments[0]);
  }
}

BackgroundProcess::~BackgroundProcess() {
  kill(process_, SIGTERM);
  waitpid(process_, nullptr, 0);
}

}  // namespace trelonit::bench
