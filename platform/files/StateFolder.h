#pragma once

#include <filesystem>
#include <string>
#include <vector>

#include "platform/files/Claim.h"

namespace trelonit {

/// The folder in which the program keeps what it needs between its runs without being asked. A
/// folder that cannot be made holds nothing and claims nothing; no member raises.
class StateFolder {
 public:
  /// Made when it is first written to.
  explicit StateFolder(std::filesystem::path folder) : folder_(std::move(folder)) {}

  /// The whole path of a file in it, in UTF-8.
  std::string PathOf(const std::string& name) const;
  /// Names of the files with this ending, the newest first.
  std::vector<std::string> Names(const std::string& ending) const;
  /// Makes the folder; whether it is there.
  bool Make() const;
  void Remove(const std::string& name) const;
  /// Gives a file another name, over one that has it.
  void Rename(const std::string& name, const std::string& other) const;
  ClaimAttempt Claim(const std::string& name) const;

 private:
  std::filesystem::path folder_;
};

}  // namespace trelonit
