#include <algorithm>
#include <array>
#include <fcntl.h>
#include <istream>
#include <streambuf>
#include <string>
#include <sys/stat.h>

#include "platform/files/DiskAccess.h"
#include "platform/files/FileErrors.h"
#include "platform/posix/Descriptor.h"

namespace trelonit {

namespace fs = std::filesystem;

namespace {

RuntimeError NoFile(const std::string& reason) {
  const RuntimeError error(ErrorNumber::PathFileAccess);
  return {error.Number(), error.Description() + ": " + reason};
}

ssize_t ReadOnce(const Descriptor& file, char* bytes, std::size_t size) {
  for (;;) {
    const ssize_t count = ::read(file.Number(), bytes, size);
    if (count >= 0 || errno != EINTR) {
      return count;
    }
  }
}

/// Standard input may be a terminal or another device: whoever started the program chose it.
bool IsStandardInput(const struct stat& status) {
  struct stat input {};
  return ::fstat(STDIN_FILENO, &input) == 0 && input.st_rdev == status.st_rdev &&
         S_ISCHR(input.st_mode);
}

class DiskBuffer : public std::streambuf {
 public:
  explicit DiskBuffer(const fs::path& path)
      // Opened at once, also where a pipe has no writer.
      : file_(::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC)) {
    if (!file_.IsOpen()) {
      throw errno == ENOENT ? MissingFileError(path) : FromErrno();
    }
    struct stat status {};
    if (::fstat(file_.Number(), &status) != 0) {
      throw FromErrno();
    }
    if (S_ISFIFO(status.st_mode)) {
      RequireWriter();
    } else if (!S_ISREG(status.st_mode) && !(S_ISCHR(status.st_mode) && IsStandardInput(status))) {
      throw NoFile("это не файл, а устройство");
    }
    ::fcntl(file_.Number(), F_SETFL, O_RDONLY);
  }

 protected:
  /// What is raised here becomes the bad state of a stream.
  int_type underflow() override {
    const ssize_t count = ReadOnce(file_, bytes_.data(), bytes_.size());
    if (count < 0) {
      throw RuntimeError(ErrorNumber::DeviceIoError);
    }
    return Hold(count) ? traits_type::to_int_type(*gptr()) : traits_type::eof();
  }

 private:
  /// An open pipe is at its end as long as nobody writes into it: waiting might take for ever.
  void RequireWriter() {
    const ssize_t count = ReadOnce(file_, bytes_.data(), bytes_.size());
    if (Hold(count)) {
      return;
    }
    if (count == 0) {
      throw NoFile("в этот канал никто не пишет");
    }
    if (errno != EAGAIN) {
      throw FromErrno();
    }
  }
  /// Whether there is something.
  bool Hold(ssize_t count) {
    setg(bytes_.data(), bytes_.data(), bytes_.data() + std::max<ssize_t>(count, 0));
    return gptr() != egptr();
  }

  static constexpr std::size_t mostAtOnce = std::size_t{64} * 1024;

  Descriptor file_;
  std::array<char, mostAtOnce> bytes_{};
};

class DiskStream : public std::istream {
 public:
  explicit DiskStream(const fs::path& path) : std::istream(nullptr), buffer_(path) {
    rdbuf(&buffer_);
  }

 private:
  DiskBuffer buffer_;
};

}  // namespace

std::unique_ptr<std::istream> OpenDiskFile(const fs::path& path) {
  return std::make_unique<DiskStream>(path);
}

}  // namespace trelonit
