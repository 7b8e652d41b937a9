#include <fcntl.h>
#include <sys/stat.h>

#include "platform/files/DiskAccess.h"
#include "platform/files/FileErrors.h"
#include "platform/posix/Descriptor.h"

namespace trelonit {

namespace fs = std::filesystem;

namespace {

class DiskUpdate : public FileUpdate {
 public:
  // A pipe without a reader would be waited for.
  explicit DiskUpdate(const fs::path& path)
      : file_(::open(path.c_str(), O_WRONLY | O_NONBLOCK | O_CLOEXEC)) {
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
    trelonit::WriteAt(file_, static_cast<std::size_t>(place), bytes);
    Flush(file_);
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
