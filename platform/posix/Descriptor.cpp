#include "platform/posix/Descriptor.h"

#include "platform/files/FileErrors.h"

namespace trelonit {

RuntimeError FromErrno() {
  return FileError(std::error_code(errno, std::generic_category()));
}

void WriteAt(const Descriptor& file, std::size_t place, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t written =
        ::pwrite(file.Number(), bytes.data(), bytes.size(), static_cast<off_t>(place));
    if (written < 0) {
      if (errno == EINTR) {
        continue;
      }
      throw FromErrno();
    }
    bytes.remove_prefix(static_cast<std::size_t>(written));
    place += static_cast<std::size_t>(written);
  }
}

void Flush(const Descriptor& file) {
  if (::fsync(file.Number()) != 0 && errno != EINVAL) {
    throw FromErrno();
  }
}

}  // namespace trelonit
