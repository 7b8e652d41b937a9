#pragma once

#include <string>
#include <vector>

#include "platform/system/Services.h"

namespace trelonit {

/// The projects that were opened or saved last, the last one first, kept between runs.
class RecentFiles {
 public:
  static constexpr std::size_t most = 8;

  explicit RecentFiles(SettingsService& settings) : settings_(settings) {}

  std::vector<std::string> Names() const;
  void Add(const std::string& name);
  void Remove(const std::string& name);

 private:
  void Store(const std::vector<std::string>& names);

  SettingsService& settings_;
};

}  // namespace trelonit
