#include "platform/posix/Leftovers.h"

#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>

#include "platform/files/UnfinishedNames.h"
#include "platform/posix/Descriptor.h"

namespace trelonit {

namespace fs = std::filesystem;

namespace {

bool IsGone(pid_t process) {
  return ::kill(process, 0) != 0 && errno == ESRCH;
}

/// A process of another machine, or of another container, is not among ours: its lock tells that it
/// lives.
bool IsLetGo(const fs::path& path) {
  const Descriptor file(::open(path.c_str(), O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
  struct stat status {};
  return file.IsOpen() && ::fstat(file.Number(), &status) == 0 && S_ISREG(status.st_mode) &&
         ::flock(file.Number(), LOCK_EX | LOCK_NB) == 0;
}

}  // namespace

void RemoveLeftovers(const fs::path& folder) {
  RemoveUnfinished(
      folder, [](int process, const fs::path& file) { return IsGone(process) && IsLetGo(file); });
}

}  // namespace trelonit
