#include "platform/posix/PosixReplacement.h"

#include <cstdlib>
#include <fcntl.h>
#include <optional>
#include <string>
#include <sys/file.h>
#include <sys/stat.h>

#include "platform/files/DiskAccess.h"
#include "platform/files/FileErrors.h"
#include "platform/files/InPlace.h"
#include "platform/files/UnfinishedNames.h"
#include "platform/posix/ContentCopy.h"
#include "platform/posix/Descriptor.h"
#include "platform/posix/FileAttributes.h"
#include "platform/posix/Leftovers.h"
#include "platform/posix/UnfinishedFile.h"

namespace trelonit {

namespace fs = std::filesystem;

namespace {

using FileStatus = struct stat;

constexpr mode_t permissionBits = 07777;
/// As any program's new file, less the user's mask.
constexpr mode_t newFile = 0666;
/// Until it has the rights of the file that it is to replace.
constexpr mode_t ownFile = 0600;

/// The new file beside the old one, until it takes its place; otherwise it goes with this object.
class FileBeside {
 public:
  FileBeside(const fs::path& target, mode_t mode, WhileWritten way)
      : name_(NameForUnfinished(target, ::getpid())),
        unfinished_(name_),
        hasName_(way == WhileWritten::Named),
        file_(hasName_ ? ::open(name_.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode)
                       : OpenNameless(target, mode)) {
    hasName_ = hasName_ && file_.IsOpen();
    if (file_.IsOpen()) {
      // Seen by whoever cleans up, also from another machine, which knows nothing of our processes.
      ::flock(file_.Number(), LOCK_EX | LOCK_NB);
    }
  }
  FileBeside(const FileBeside&) = delete;
  FileBeside& operator=(const FileBeside&) = delete;
  ~FileBeside() {
    if (hasName_) {
      ::unlink(name_.c_str());
    }
  }
  const Descriptor& File() const { return file_; }

  /// False where a nameless file cannot get its name; then errno is set, as by all of these.
  bool GetName() {
    if (!hasName_) {
      hasName_ = ::linkat(AT_FDCWD, PathOf(file_).c_str(), AT_FDCWD, name_.c_str(),
                          AT_SYMLINK_FOLLOW) == 0;
    }
    return hasName_;
  }
  bool TakePlaceOf(const fs::path& target) {
    const bool taken = ::rename(name_.c_str(), target.c_str()) == 0;
    hasName_ = hasName_ && !taken;
    return taken;
  }

 private:
  static std::string PathOf(const Descriptor& file) {
    return "/proc/self/fd/" + std::to_string(file.Number());
  }
  static int OpenNameless([[maybe_unused]] const fs::path& target, [[maybe_unused]] mode_t mode) {
#ifdef O_TMPFILE
    return ::open(target.parent_path().c_str(), O_WRONLY | O_TMPFILE | O_CLOEXEC, mode);
#else
    errno = EOPNOTSUPP;
    return -1;
#endif
  }

  fs::path name_;
  UnfinishedFile unfinished_;
  bool hasName_;
  Descriptor file_;
};

/// Before the first byte is in it. False where group or access list cannot be kept: the rights
/// would be those of others then. Another owner is none the worse for a file that he may read and
/// write by its group or as anybody, as he let this user do.
bool GiveRightsOf(const fs::path& target, const FileStatus& before, const Descriptor& file) {
  FileStatus now{};
  if (::fstat(file.Number(), &now) != 0 ||
      (now.st_gid != before.st_gid &&
       ::fchown(file.Number(), static_cast<uid_t>(-1), before.st_gid) != 0)) {
    return false;
  }
  // A file system without owners or permissions refuses these; the content matters more.
  if (now.st_uid != before.st_uid) {
    static_cast<void>(::fchown(file.Number(), before.st_uid, static_cast<gid_t>(-1)));
  }
  static_cast<void>(::fchmod(file.Number(), before.st_mode & permissionBits));
  return GiveAttributesOf(target, file);
}

/// Writes the new file and puts it in the place of the old one. 0, or the system's error where that
/// is not to be had; raises where the bytes cannot be written.
int PutBeside(const fs::path& target, const std::optional<FileStatus>& before,
              std::string_view bytes, WhileWritten way) {
  FileBeside beside(target, before ? ownFile : newFile, way);
  if (!beside.File().IsOpen()) {
    return errno;
  }
  if (before && !GiveRightsOf(target, *before, beside.File())) {
    return EPERM;
  }
  WriteAt(beside.File(), 0, bytes);
  Flush(beside.File());
  return beside.GetName() && beside.TakePlaceOf(target) ? 0 : errno;
}

/// Whether the old file might take the bytes all the same.
bool StandsInTheWay(int error) {
  return error == EACCES || error == EPERM || error == EROFS || error == EBUSY || error == EXDEV;
}

void WriteWhereItStands(const fs::path& target, std::string_view bytes) {
  const Descriptor file(::open(target.c_str(), O_RDWR | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
  if (!file.IsOpen()) {
    throw FromErrno();
  }
  const std::string old = ReadAll(file);
  ContentCopy copy(old);
  const HeldInterruption untilItIsWhole;
  const auto write = [&file](std::string_view content) {
    WriteAt(file, 0, content);
    if (::ftruncate(file.Number(), static_cast<off_t>(content.size())) != 0) {
      throw FromErrno();
    }
    Flush(file);
  };
  WriteInPlace(write, old, bytes, [&copy] { return copy.Keep(); });
}

/// Nothing for a file that is not there yet.
std::optional<FileStatus> StatusOf(const fs::path& path) {
  FileStatus status{};
  if (::stat(path.c_str(), &status) == 0) {
    return status;
  }
  if (errno != ENOENT) {
    // Otherwise its rights and its other names would be lost.
    throw FromErrno();
  }
  return std::nullopt;
}

/// In full, for the handler of a signal may run when the working folder is another one, and with
/// its folder cleared of what others have left.
fs::path PlaceToWrite(const fs::path& target) {
  std::error_code code;
  fs::path whole = fs::absolute(target, code);
  RemoveLeftovers(whole.parent_path());
  return whole;
}

class GrowingReplacement : public GrowingFile {
 public:
  explicit GrowingReplacement(const fs::path& target)
      : target_(PlaceToWrite(target)),
        before_(StatusOf(target_)),
        beside_(target_, before_ ? ownFile : newFile, WhileWritten::Named) {
    if (!beside_.File().IsOpen()) {
      throw errno == ENOENT ? RuntimeError(ErrorNumber::PathNotFound) : FromErrno();
    }
    if (before_ && !GiveRightsOf(target_, *before_, beside_.File())) {
      throw RuntimeError(ErrorNumber::PermissionDenied);
    }
  }
  void Append(std::string_view bytes) override {
    WriteAt(beside_.File(), length_, bytes);
    length_ += bytes.size();
  }
  void Finish() override {
    Flush(beside_.File());
    if (!beside_.TakePlaceOf(target_)) {
      throw FromErrno();
    }
  }

 private:
  fs::path target_;
  std::optional<FileStatus> before_;
  FileBeside beside_;
  std::size_t length_ = 0;
};

}  // namespace

void ReplaceOnDisk(const fs::path& target, std::string_view bytes, WhileWritten first) {
  const fs::path whole = PlaceToWrite(target);
  const std::optional<FileStatus> before = StatusOf(whole);
  if (before && before->st_nlink > 1) {
    WriteWhereItStands(whole, bytes);
    return;
  }
  int error = PutBeside(whole, before, bytes, first);
  // Nobody says which of the reasons are those that a name from the start has not.
  if (first == WhileWritten::Nameless && error != 0) {
    error = PutBeside(whole, before, bytes, WhileWritten::Named);
  }
  if (before && StandsInTheWay(error)) {
    WriteWhereItStands(whole, bytes);
  } else if (error == ENOENT) {
    throw RuntimeError(ErrorNumber::PathNotFound);
  } else if (error != 0) {
    throw FileError(std::error_code(error, std::generic_category()));
  }
}

void ReplaceOnDisk(const fs::path& target, std::string_view bytes) {
  ReplaceOnDisk(target, bytes, WhileWritten::Nameless);
}

std::unique_ptr<GrowingFile> BeginOnDisk(const fs::path& target) {
  return std::make_unique<GrowingReplacement>(target);
}

}  // namespace trelonit
