#ifndef _WIN32

#include "tests/cli/Subprocess.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <fcntl.h>
#include <grp.h>
#include <poll.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <system_error>
#include <thread>
#include <unistd.h>

namespace trelonit::test {

namespace {

constexpr int cannotStart = 126;

[[noreturn]] void ThrowErrno(const char* what) {
  throw std::system_error(errno, std::generic_category(), what);
}

/// Both ends of a pipe, neither of which another program inherits.
std::array<int, 2> MakePipe() {
  std::array<int, 2> ends{};
  if (::pipe2(ends.data(), O_CLOEXEC) != 0) {
    ThrowErrno("pipe");
  }
  return ends;
}

/// The descriptor that becomes standard input.
int OpenInput(const Launch& launch) {
  if (!launch.PipedInput) {
    const int in = ::open(launch.InputFrom.c_str(), O_RDONLY | O_CLOEXEC);
    if (in < 0) {
      ThrowErrno(launch.InputFrom.c_str());
    }
    return in;
  }
  const std::array<int, 2> ends = MakePipe();
  const std::string& input = *launch.PipedInput;
  if (::write(ends[1], input.data(), input.size()) != static_cast<ssize_t>(input.size())) {
    ThrowErrno("input");
  }
  ::close(ends[1]);
  return ends[0];
}

std::vector<std::string> MergedEnvironment(const std::map<std::string, std::string>& additions) {
  std::vector<std::string> merged;
  for (char** entry = environ; *entry != nullptr; ++entry) {
    const std::string text = *entry;
    if (additions.count(text.substr(0, text.find('='))) == 0) {
      merged.push_back(text);
    }
  }
  for (const auto& [name, value] : additions) {
    merged.push_back(name + '=' + value);
  }
  return merged;
}

/// The form that exec wants; the texts must outlive it.
std::vector<char*> Pointers(std::vector<std::string>& texts) {
  std::vector<char*> pointers;
  for (std::string& text : texts) {
    pointers.push_back(text.data());
  }
  pointers.push_back(nullptr);
  return pointers;
}

[[noreturn]] void Refuse(const char* step) {
  const char* reason = std::strerror(errno);
  for (const char* text : {step, ": ", reason, "\n"}) {
    if (::write(STDERR_FILENO, text, std::strlen(text)) < 0) {
      break;
    }
  }
  ::_exit(cannotStart);
}

void DropRights() {
  constexpr unsigned nobody = 65534;
  if (::geteuid() == 0 &&
      (::setgroups(0, nullptr) != 0 || ::setgid(nobody) != 0 || ::setuid(nobody) != 0)) {
    Refuse("rights cannot be dropped");
  }
}

/// All that happens in the child between its birth and the program: system calls only.
[[noreturn]] void BecomeProgram(const Launch& launch, int in, int out, int err,
                                const std::vector<char*>& arguments,
                                const std::vector<char*>& environment) {
  ::dup2(err, STDERR_FILENO);
  if (::dup2(in, STDIN_FILENO) < 0 || ::dup2(out, STDOUT_FILENO) < 0) {
    Refuse("standard streams");
  }
  if (::chdir(launch.Folder.c_str()) != 0) {
    Refuse("working folder");
  }
  if (launch.LargestFile) {
    const rlimit limit{*launch.LargestFile, *launch.LargestFile};
    if (::setrlimit(RLIMIT_FSIZE, &limit) != 0) {
      Refuse("limit");
    }
  }
  if (launch.PlainUser) {
    DropRights();
  }
  ::execve(arguments.front(), arguments.data(), environment.data());
  Refuse(arguments.front());
}

/// Takes what stands in the pipe; false at its end.
bool Drain(int end, std::string& text) {
  std::array<char, 65536> part{};
  const ssize_t count = ::read(end, part.data(), part.size());
  if (count > 0) {
    text.append(part.data(), static_cast<std::size_t>(count));
    return true;
  }
  return count < 0 && errno == EINTR;
}

void CloseIfOpen(int& descriptor) {
  if (descriptor >= 0) {
    ::close(descriptor);
    descriptor = -1;
  }
}

}  // namespace

Subprocess::Subprocess(const Launch& launch)
    : deadline_(Clock::now() + launch.TimeLimit * countingSlowness) {
  std::vector<std::string> argumentTexts = launch.Arguments;
  std::vector<std::string> environmentTexts = MergedEnvironment(launch.Environment);
  const std::vector<char*> arguments = Pointers(argumentTexts);
  const std::vector<char*> environment = Pointers(environmentTexts);

  const std::array<int, 2> err = MakePipe();
  err_ = err[0];
  int out = -1;
  if (launch.OutputTo.empty()) {
    const std::array<int, 2> ends = MakePipe();
    out_ = ends[0];
    out = ends[1];
  } else {
    out = ::open(launch.OutputTo.c_str(), O_WRONLY | O_CLOEXEC);
    if (out < 0) {
      ThrowErrno(launch.OutputTo.c_str());
    }
  }
  const int in = OpenInput(launch);
  child_ = ::fork();
  if (child_ == 0) {
    BecomeProgram(launch, in, out, err[1], arguments, environment);
  }
  ::close(in);
  ::close(out);
  ::close(err[1]);
  if (child_ < 0) {
    ThrowErrno("fork");
  }
}

Subprocess::~Subprocess() {
  if (child_ > 0) {
    ::kill(child_, SIGKILL);
    ::waitpid(child_, nullptr, 0);
  }
  CloseIfOpen(out_);
  CloseIfOpen(err_);
}

Outcome Subprocess::Wait() {
  Outcome outcome;
  ReadAll(outcome);
  Reap(outcome);
  return outcome;
}

void Subprocess::ReadAll(Outcome& outcome) {
  while (out_ >= 0 || err_ >= 0) {
    const auto left =
        std::chrono::duration_cast<std::chrono::milliseconds>(deadline_ - Clock::now()).count();
    std::array<pollfd, 2> ends{{{out_, POLLIN, 0}, {err_, POLLIN, 0}}};
    const int ready = left > 0 ? ::poll(ends.data(), ends.size(), static_cast<int>(left)) : 0;
    if (ready < 0 && errno == EINTR) {
      continue;
    }
    if (ready <= 0) {
      return;
    }
    if (ends[0].revents != 0 && !Drain(out_, outcome.Out)) {
      CloseIfOpen(out_);
    }
    if (ends[1].revents != 0 && !Drain(err_, outcome.Err)) {
      CloseIfOpen(err_);
    }
  }
}

void Subprocess::Reap(Outcome& outcome) {
  int status = 0;
  rusage usage{};
  while (::wait4(child_, &status, WNOHANG, &usage) == 0) {
    if (Clock::now() >= deadline_) {
      outcome.TimedOut = true;
      ::kill(child_, SIGKILL);
      ::wait4(child_, &status, 0, &usage);
      break;
    }
    // A program that has closed its streams is as good as ended.
    std::this_thread::sleep_for(std::chrono::milliseconds(1));
  }
  child_ = -1;
  outcome.Status = WIFEXITED(status) ? WEXITSTATUS(status) : 128 + WTERMSIG(status);
  outcome.PeakMemory = static_cast<std::uint64_t>(usage.ru_maxrss) * 1024;
}

}  // namespace trelonit::test

#endif
