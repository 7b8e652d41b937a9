#pragma once

#include <string>
#include <sys/types.h>
#include <utility>
#include <vector>

namespace trelonit::bench {

/// What one run of a program cost.
struct ProcessCost {
  double Milliseconds = 0;
  double Megabytes = 0;  ///< peak resident memory
};

/// A line that a program wrote, and when it came.
struct Report {
  std::string Line;
  double Milliseconds = 0;  ///< since the start of the program
};

using Environment = std::vector<std::pair<std::string, std::string>>;

/// Runs the program with its output thrown away. Throws std::runtime_error when it fails.
ProcessCost RunProcess(const std::vector<std::string>& arguments);

/// Runs the program with these variables beside the inherited ones and keeps what it writes.
/// Throws std::runtime_error when it fails.
std::vector<Report> RunReportingProcess(const std::vector<std::string>& arguments,
                                        const Environment& environment);

/// A program that runs beside the measurement and is ended with this object.
class BackgroundProcess {
 public:
  /// The program tells on the descriptor with number reportDescriptor that it is ready, by a line.
  /// Throws std::runtime_error when it does not.
  explicit BackgroundProcess(const std::vector<std::string>& arguments);
  BackgroundProcess(const BackgroundProcess&) = delete;
  BackgroundProcess& operator=(const BackgroundProcess&) = delete;
  ~BackgroundProcess();

  static constexpr int reportDescriptor = 3;
  const std::string& FirstLine() const { return firstLine_; }

 private:
  pid_t process_ = 0;
  std::string firstLine_;
};

}  // namespace trelonit::bench
