#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

#include "tests/win32/automation/Orders.h"

namespace trelonit::test {

/// A drawing program or a word processor of the tests' own, known to this machine under the real
/// one's name, in a process of its own that COM starts. With this it goes, and all that it has
/// started. Only for a machine of the test.
class ServerProgram {
 public:
  explicit ServerProgram(const std::string& programIdentifier, Orders orders = {});
  ~ServerProgram();
  ServerProgram(const ServerProgram&) = delete;
  ServerProgram& operator=(const ServerProgram&) = delete;

  /// Starts it as its user would.
  void Start();
  /// The uses of members, in order.
  std::vector<std::string> Calls() const;
  /// How many calls it has turned away.
  std::size_t TurnedAway() const;
  /// How often it was started.
  std::size_t Starts() const { return Processes().size(); }
  /// Whether all of its processes are gone; waits for them, but not for ever.
  bool IsGone() const;

 private:
  std::vector<std::string> Lines() const;
  std::vector<std::uint32_t> Processes() const;

  std::string programKey_;
  std::string classKey_;
  std::filesystem::path folder_;
  std::string command_;
};

}  // namespace trelonit::test
