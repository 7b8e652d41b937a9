#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace trelonit {

/// A console program's surroundings in UTF-8: its arguments, and the console that it writes on,
/// which gets its own code page back at the end.
class Utf8Console {
 public:
  Utf8Console();
  ~Utf8Console();
  Utf8Console(const Utf8Console&) = delete;
  Utf8Console& operator=(const Utf8Console&) = delete;

  /// As main gets them, the program itself first.
  int ArgumentCount() const { return static_cast<int>(arguments_.size()); }
  /// With a null pointer behind the last one; they live as long as this.
  char** Arguments() { return places_.data(); }

 private:
  unsigned codePage_;
  std::vector<std::string> arguments_;
  std::vector<char*> places_;
};

/// Runs another program with this one's command line and waits for its end. The exit status;
/// nothing where it cannot be started.
std::optional<int> RunWithOwnCommandLine(const std::filesystem::path& program);

}  // namespace trelonit
