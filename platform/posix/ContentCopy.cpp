#include "platform/posix/ContentCopy.h"

#include <array>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>

#include "platform/files/DiskAccess.h"
#include "platform/system/ProgramFolder.h"

namespace trelonit {

namespace fs = std::filesystem;

namespace {

/// Where a copy outlives the machine's next start, otherwise where there is always room.
fs::path FolderForCopies() {
  fs::path own = UserDataFolder();
  if (IsWritableFolder(own)) {
    return own;
  }
  std::error_code code;
  const fs::path folder = fs::temp_directory_path(code);
  return code ? fs::path("/tmp") : folder;
}

}  // namespace

std::string ReadAll(const Descriptor& file) {
  std::string content;
  std::array<char, 65536> part{};
  for (;;) {
    const ssize_t count =
        ::pread(file.Number(), part.data(), part.size(), static_cast<off_t>(content.size()));
    if (count < 0 && errno == EINTR) {
      continue;
    }
    if (count < 0) {
      throw FromErrno();
    }
    if (count == 0) {
      return content;
    }
    content.append(part.data(), static_cast<std::size_t>(count));
  }
}

ContentCopy::ContentCopy(std::string_view content)
    : name_((FolderForCopies() / "trelonit-copy-XXXXXX").native()),
      file_(::mkostemp(name_.data(), O_CLOEXEC)) {
  if (!file_.IsOpen()) {
    throw FromErrno();
  }
  try {
    WriteAt(file_, 0, content);
    Flush(file_);
  } catch (...) {
    ::unlink(name_.c_str());
    throw;
  }
}

ContentCopy::~ContentCopy() {
  if (!kept_) {
    ::unlink(name_.c_str());
  }
}

std::string ContentCopy::Keep() {
  kept_ = true;
  return name_;
}

}  // namespace trelonit
