#pragma once

#include <chrono>
#include <cstdint>
#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <sys/types.h>
#include <vector>

#include "tests/support/Instrumented.h"

namespace trelonit::test {

/// A program to start directly, without a shell.
struct Launch {
  std::vector<std::string> Arguments;  ///< the program's path first
  std::filesystem::path Folder;        ///< working folder
  /// Set on top of the test's own environment.
  std::map<std::string, std::string> Environment;
  /// A file or device for standard output, which is captured otherwise.
  std::string OutputTo;
  /// A file, device or pipe for standard input, which is empty otherwise.
  std::string InputFrom = "/dev/null";
  /// What comes through a pipe instead; no more than a pipe holds.
  std::optional<std::string> PipedInput;
  /// Without the rights of root, where the test has them.
  bool PlainUser = false;
  /// Bytes that a file may grow to: beyond them a write fails as on a full disk.
  std::optional<std::uint64_t> LargestFile;
  /// The program is killed after this time, which lasts longer where it counts its lines.
  std::chrono::seconds TimeLimit{60};
};

/// What came of a program.
struct Outcome {
  int Status = -1;  ///< exit status; 128 + the signal's number where a signal ended it
  bool TimedOut = false;
  std::string Out;
  std::string Err;
  std::uint64_t PeakMemory = 0;  ///< bytes resident at most
};

/// The bytes that a started program may hold at most. Under the sanitizers there are shadow memory
/// and quarantine, and what this program holds counts for one that it starts.
constexpr std::uint64_t MemoryLimit(unsigned megabytes) {
  return std::uint64_t{sanitized ? 800 : megabytes} << 20U;
}

/// A started program. It is killed when nobody has waited for it.
class Subprocess {
 public:
  /// Raises std::system_error where no process can be made. A program that cannot be started ends
  /// with status 126 and says why on standard error.
  explicit Subprocess(const Launch& launch);
  Subprocess(const Subprocess&) = delete;
  Subprocess& operator=(const Subprocess&) = delete;
  ~Subprocess();

  /// Reads what the program writes until it ends or its time is over.
  Outcome Wait();

 private:
  using Clock = std::chrono::steady_clock;

  void ReadAll(Outcome& outcome);
  void Reap(Outcome& outcome);

  pid_t child_ = -1;
  int out_ = -1;
  int err_ = -1;
  Clock::time_point deadline_;
};

inline Outcome RunProgram(const Launch& launch) {
  return Subprocess(launch).Wait();
}

}  // namespace trelonit::test
