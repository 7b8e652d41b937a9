#include "platform/posix/Leftovers.h"

#include <charconv>
#include <csignal>
#include <fcntl.h>
#include <optional>
#include <random>
#include <string>
#include <string_view>
#include <sys/file.h>
#include <sys/stat.h>

#include "platform/posix/Descriptor.h"

namespace trelonit {

namespace fs = std::filesystem;

namespace {

constexpr std::string_view unfinishedPrefix = ".trelonit-new-";

/// The process that a name tells; nothing for a name that is none of ours.
std::optional<pid_t> ProcessOf(std::string_view name) {
  if (!name.starts_with(unfinishedPrefix)) {
    return std::nullopt;
  }
  name.remove_prefix(unfinishedPrefix.size());
  pid_t process = 0;
  const auto [end, error] = std::from_chars(name.data(), name.data() + name.size(), process);
  const bool more = error == std::errc() && end != name.data() + name.size() && *end == '-';
  return more && process > 0 ? std::optional(process) : std::nullopt;
}

bool IsGone(pid_t process) {
  return ::kill(process, 0) != 0 && errno == ESRCH;
}

/// A process of another machine, or of another container, is not among ours: its lock tells that it
/// lives.
bool IsAbandoned(const fs::path& path) {
  const Descriptor file(::open(path.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
  struct stat status {};
  return file.IsOpen() && ::fstat(file.Number(), &status) == 0 && S_ISREG(status.st_mode) &&
         ::flock(file.Number(), LOCK_EX | LOCK_NB) == 0;
}

}  // namespace

fs::path NameForUnfinished(const fs::path& target) {
  std::random_device random;
  return target.parent_path() / (std::string(unfinishedPrefix) + std::to_string(::getpid()) + '-' +
                                 std::to_string(random()) + '-' + std::to_string(random()));
}

void RemoveLeftovers(const fs::path& folder) {
  std::error_code code;
  for (fs::directory_iterator entry(folder, code), end; !code && entry != end;
       entry.increment(code)) {
    const fs::path& path = entry->path();
    const std::optional<pid_t> process = ProcessOf(path.filename().native());
    if (process && IsGone(*process) && IsAbandoned(path)) {
      ::unlink(path.c_str());
    }
  }
}

}  // namespace trelonit
