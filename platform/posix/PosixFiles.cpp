#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include "platform/files/DiskAccess.h"
#include "platform/files/FileErrors.h"

namespace trelonit {

namespace fs = std::filesystem;

namespace {

RuntimeError FromErrno() {
  return FileError(std::error_code(errno, std::generic_category()));
}

/// Owns a descriptor until Close.
class Descriptor {
 public:
  explicit Descriptor(int number) : number_(number) {}
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  ~Descriptor() {
    if (number_ >= 0) {
      ::close(number_);
    }
  }
  int Number() const { return number_; }
  int Close() {
    const int number = number_;
    number_ = -1;
    return ::close(number);
  }

 private:
  int number_;
};

/// All bytes through this write, which is told how many are done already.
template <class Write>
void WriteAll(std::string_view bytes, Write&& write) {
  std::size_t done = 0;
  while (done < bytes.size()) {
    const ssize_t written = write(bytes.substr(done), done);
    if (written < 0) {
      if (errno == EINTR) {
        continue;
      }
      throw FromErrno();
    }
    done += static_cast<std::size_t>(written);
  }
}

void Flush(const Descriptor& file) {
  if (::fsync(file.Number()) != 0 && errno != EINVAL) {
    throw FromErrno();
  }
}

class DiskUpdate : public FileUpdate {
 public:
  explicit DiskUpdate(const fs::path& path) : file_(::open(path.c_str(), O_WRONLY | O_CLOEXEC)) {
    if (file_.Number() < 0) {
      throw errno == ENOENT ? MissingFileError(path) : FromErrno();
    }
  }
  void WriteAt(std::uint64_t place, std::string_view bytes) override {
    WriteAll(bytes, [this, place](std::string_view rest, std::size_t done) {
      return ::pwrite(file_.Number(), rest.data(), rest.size(), static_cast<off_t>(place + done));
    });
    Flush(file_);
  }

 private:
  Descriptor file_;
};

}  // namespace

void WriteNewFile(const fs::path& path, std::string_view bytes) {
  // 0666 less the user's mask, as any program's new file.
  Descriptor file(::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666));
  if (file.Number() < 0) {
    throw errno == ENOENT ? RuntimeError(ErrorNumber::PathNotFound) : FromErrno();
  }
  WriteAll(bytes, [&file](std::string_view rest, std::size_t) {
    return ::write(file.Number(), rest.data(), rest.size());
  });
  Flush(file);
  if (file.Close() != 0) {
    throw FromErrno();
  }
}

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
