#include "workstation/document/RecentFiles.h"

#include <algorithm>

namespace trelonit {

namespace {

constexpr const char* recentSection = "RecentFiles";

}  // namespace

std::vector<std::string> RecentFiles::Names() const {
  std::vector<std::string> names;
  for (std::size_t number = 1; number <= most; ++number) {
    std::string name = settings_.Get(recentSection, std::to_string(number), "");
    if (name.empty()) {
      break;
    }
    names.push_back(std::move(name));
  }
  return names;
}

void RecentFiles::Add(const std::string& name) {
  std::vector<std::string> names = Names();
  std::erase(names, name);
  names.insert(names.begin(), name);
  names.resize(std::min(names.size(), most));
  Store(names);
}

void RecentFiles::Remove(const std::string& name) {
  std::vector<std::string> names = Names();
  std::erase(names, name);
  Store(names);
}

void RecentFiles::Store(const std::vector<std::string>& names) {
  for (std::size_t number = 1; number <= most; ++number) {
    settings_.Set(recentSection, std::to_string(number),
                  number <= names.size() ? names[number - 1] : "");
  }
}

}  // namespace trelonit
