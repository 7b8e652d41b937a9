#pragma once

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <memory>
#include <set>
#include <string>

#include "platform/files/Files.h"

namespace trelonit::test {

std::shared_ptr<const std::filesystem::path> TemporaryFolder();

/// A new folder on the disk with files in it; it goes with the test.
class FileFolder : public testing::Test {
 protected:
  const std::filesystem::path& Folder() const { return *folder_; }
  std::string In(const std::string& name) const { return (*folder_ / name).string(); }
  void Put(const std::string& name, const std::string& content, unsigned permissions = 0644) {
    std::ofstream(In(name), std::ios::binary) << content;
    std::filesystem::permissions(In(name), std::filesystem::perms(permissions));
  }
  std::string Content(const std::string& name) const {
    std::ifstream stream(In(name), std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
  }
  /// The names in a folder below it, or in itself.
  std::set<std::string> Names(const std::string& below = {}) const {
    std::set<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(In(below))) {
      names.insert(entry.path().filename().string());
    }
    return names;
  }
  DiskFiles files;

 private:
  std::shared_ptr<const std::filesystem::path> folder_ = TemporaryFolder();
};

}  // namespace trelonit::test
