#include "platform/files/UnfinishedNames.h"

#include <charconv>
#include <random>
#include <string>
#include <system_error>

namespace trelonit {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view unfinishedPrefix = ".trelonit-new-";

}  // namespace

fs::path NameForUnfinished(const fs::path& target, int process) {
  std::random_device random;
  return target.parent_path() / (std::string(unfinishedPrefix) + std::to_string(process) + '-' +
                                 std::to_string(random()) + '-' + std::to_string(random()));
}

std::optional<int> ProcessOfUnfinished(std::string_view name) {
  if (!name.starts_with(unfinishedPrefix)) {
    return std::nullopt;
  }
  name.remove_prefix(unfinishedPrefix.size());
  int process = 0;
  // Without a number that fits it stays 0.
  const char* const last = name.data() + name.size();
  const char* const end = std::from_chars(name.data(), last, process).ptr;
  return process > 0 && end != last && *end == '-' ? std::optional(process) : std::nullopt;
}

void RemoveUnfinished(const fs::path& folder,
                      const std::function<bool(int process, const fs::path& file)>& isAbandoned) {
  std::error_code code;
  for (fs::directory_iterator entry(folder, code), end; !code && entry != end;
       entry.increment(code)) {
    const fs::path& path = entry->path();
    const std::u8string name = path.filename().u8string();
    const std::optional<int> process =
        ProcessOfUnfinished({reinterpret_cast<const char*>(name.data()), name.size()});
    if (process && isAbandoned(*process, path)) {
      std::error_code ignored;
      fs::remove(path, ignored);
    }
  }
}

}  // namespace trelonit
