#include <cerrno>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

#include "platform/files/Claim.h"

namespace trelonit {

namespace {

class FileClaim : public Claim {
 public:
  FileClaim(std::filesystem::path file, int descriptor)
      : file_(std::move(file)), descriptor_(descriptor) {}
  FileClaim(const FileClaim&) = delete;
  FileClaim& operator=(const FileClaim&) = delete;
  ~FileClaim() override {
    // While it is still held: nobody else's file goes by that.
    ::unlink(file_.c_str());
    ::close(descriptor_);
  }

 private:
  std::filesystem::path file_;
  int descriptor_;
};

/// Whether the name still means the open file: its last holder may have taken it away meanwhile.
bool IsStillNamed(const std::filesystem::path& file, int descriptor) {
  struct stat named {};
  struct stat open {};
  return ::stat(file.c_str(), &named) == 0 && ::fstat(descriptor, &open) == 0 &&
         named.st_ino == open.st_ino && named.st_dev == open.st_dev;
}

}  // namespace

ClaimAttempt TryClaim(const std::filesystem::path& file) {
  constexpr int mostTries = 100;
  constexpr mode_t ofTheUser = 0600;
  for (int attempt = 0; attempt < mostTries; ++attempt) {
    const int descriptor = ::open(file.c_str(), O_RDWR | O_CREAT | O_CLOEXEC, ofTheUser);
    if (descriptor < 0) {
      return {};
    }
    if (::flock(descriptor, LOCK_EX | LOCK_NB) != 0) {
      const bool byAnother = errno == EWOULDBLOCK;
      ::close(descriptor);
      return {.Held = nullptr, .ByAnother = byAnother};
    }
    if (IsStillNamed(file, descriptor)) {
      return {.Held = std::make_unique<FileClaim>(file, descriptor)};
    }
    ::close(descriptor);
  }
  return {};
}

}  // namespace trelonit
