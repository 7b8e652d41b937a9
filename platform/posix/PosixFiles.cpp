#include <algorithm>
#include <fcntl.h>
#include <sys/stat.h>

#include "platform/files/DiskAccess.h"
#include "platform/files/FileErrors.h"
#include "platform/files/InPlace.h"
#include "platform/posix/ContentCopy.h"
#include "platform/posix/Descriptor.h"
#include "platform/posix/UnfinishedFile.h"

namespace trelonit {

namespace fs = std::filesystem;

namespace {

class DiskUpdate : public FileUpdate {
 public:
  // A pipe without a reader would be waited for.
  explicit DiskUpdate(const fs::path& path)
      : file_(::open(path.c_str(), O_RDWR | O_NONBLOCK | O_CLOEXEC)) {
    if (!file_.IsOpen()) {
      throw errno == ENOENT ? MissingFileError(path)
      : errno == ENXIO      ? RuntimeError(ErrorNumber::PathFileAccess)
                            : FromErrno();
    }
    struct stat status {};
    if (::fstat(file_.Number(), &status) != 0 || !S_ISREG(status.st_mode)) {
      throw RuntimeError(ErrorNumber::PathFileAccess);
    }
  }
  void WriteAt(std::uint64_t place, std::string_view bytes) override {
    const std::string old = ReadAll(file_);
    ContentCopy copy(old);
    const HeldInterruption untilItIsWhole;
    const auto begin = static_cast<std::size_t>(place);
    const auto write = [&](std::string_view content) {
      trelonit::WriteAt(file_, begin, content);
      // What a failed write has added behind the old end goes when the old bytes come back.
      const auto size = std::max(old.size(), content.empty() ? 0 : begin + content.size());
      if (::ftruncate(file_.Number(), static_cast<off_t>(size)) != 0) {
        throw FromErrno();
      }
      Flush(file_);
    };
    const std::string before = old.substr(std::min(begin, old.size()), bytes.size());
    WriteInPlace(write, before, bytes, [&copy] { return copy.Keep(); });
  }

 private:
  Descriptor file_;
};

}  // namespace

std::unique_ptr<FileUpdate> OpenDiskUpdate(const fs::path& path) {
  return std::make_unique<DiskUpdate>(path);
}

void RequireWritable(const fs::path& target) {
  if (::access(target.c_str(), W_OK) != 0 && errno != ENOENT) {
    throw FromErrno();
  }
}

bool IsWritableFolder(const fs::path& folder) {
  return ::access(folder.c_str(), W_OK | X_OK) == 0;
}

}  // namespace trelonit
