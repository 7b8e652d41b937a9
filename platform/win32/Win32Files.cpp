#include <algorithm>
#include <cerrno>
#include <fstream>
#include <string>

#include "platform/files/DiskAccess.h"
#include "platform/files/FileErrors.h"
#include "platform/win32/FileHandle.h"
#include "platform/win32/Win32Replacement.h"

namespace trelonit {

namespace fs = std::filesystem;

namespace {

class DiskUpdate : public FileUpdate {
 public:
  explicit DiskUpdate(const fs::path& path)
      : file_(path, GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE,
              OPEN_EXISTING) {
    if (!file_.IsOpen()) {
      throw LastFileIsMissing() ? MissingFileError(path) : FromLastFileError();
    }
  }
  void WriteAt(std::uint64_t place, std::string_view bytes) override {
    const std::string old = file_.ReadAll();
    const auto begin = static_cast<std::size_t>(place);
    const auto write = [&](std::string_view content) {
      file_.WriteAt(place, content);
      // What a failed write has added behind the old end goes when the old bytes come back.
      file_.EndAt(std::max(old.size(), content.empty() ? 0 : begin + content.size()));
      file_.Flush();
    };
    WriteWithCopyKept(old, begin < old.size() ? old.substr(begin, bytes.size()) : std::string(),
                      bytes, write);
  }

 private:
  FileHandle file_;
};

}  // namespace

std::unique_ptr<std::istream> OpenDiskFile(const fs::path& path) {
  errno = 0;
  auto stream = std::make_unique<std::ifstream>(path, std::ios::binary);
  if (!*stream) {
    throw errno != 0 ? FileError(std::error_code(errno, std::generic_category()))
                     : RuntimeError(ErrorNumber::PathFileAccess);
  }
  return stream;
}

std::unique_ptr<FileUpdate> OpenDiskUpdate(const fs::path& path) {
  return std::make_unique<DiskUpdate>(path);
}

void RequireWritable(const fs::path& target) {
  const DWORD attributes = GetFileAttributesW(target.c_str());
  if (attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_READONLY) != 0) {
    throw RuntimeError(ErrorNumber::PermissionDenied);
  }
}

bool IsWritableFolder(const fs::path& folder) {
  // Rights of a folder are only known by trying.
  const fs::path probe = folder / "trelonit.probe";
  const HANDLE file = CreateFileW(probe.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS,
                                  FILE_FLAG_DELETE_ON_CLOSE, nullptr);
  if (file == INVALID_HANDLE_VALUE) {
    return false;
  }
  CloseHandle(file);
  return true;
}

}  // namespace trelonit
