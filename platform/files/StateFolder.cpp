#include "platform/files/StateFolder.h"

#include <algorithm>
#include <system_error>
#include <utility>

#include "platform/files/Paths.h"

namespace trelonit {

namespace fs = std::filesystem;

std::string StateFolder::PathOf(const std::string& name) const {
  return Utf8OfPath(folder_ / PathOfUtf8(name));
}

std::vector<std::string> StateFolder::Names(const std::string& ending) const {
  std::error_code code;
  std::vector<std::pair<fs::file_time_type, std::string>> found;
  for (fs::directory_iterator entry(folder_, code), end; !code && entry != end;
       entry.increment(code)) {
    std::error_code unknown;
    if (Utf8OfPath(entry->path().extension()) == ending) {
      found.emplace_back(entry->last_write_time(unknown), Utf8OfPath(entry->path().filename()));
    }
  }
  std::sort(found.rbegin(), found.rend());
  std::vector<std::string> names;
  names.reserve(found.size());
  for (auto& [time, name] : found) {
    names.push_back(std::move(name));
  }
  return names;
}

bool StateFolder::Make() const {
  std::error_code code;
  fs::create_directories(folder_, code);
  return fs::is_directory(folder_, code);
}

void StateFolder::Remove(const std::string& name) const {
  std::error_code code;
  fs::remove(folder_ / PathOfUtf8(name), code);
}

void StateFolder::Rename(const std::string& name, const std::string& other) const {
  std::error_code code;
  fs::rename(folder_ / PathOfUtf8(name), folder_ / PathOfUtf8(other), code);
}

ClaimAttempt StateFolder::Claim(const std::string& name) const {
  return Make() ? TryClaim(folder_ / PathOfUtf8(name)) : ClaimAttempt();
}

}  // namespace trelonit
