#include <algorithm>
#include <cerrno>
#include <fstream>
#include <random>
#include <string>

#include "platform/files/DiskAccess.h"
#include "platform/files/FileErrors.h"
#include "platform/win32/WindowsHeader.h"

namespace trelonit {

namespace fs = std::filesystem;

namespace {

RuntimeError FromLastError() {
  const DWORD error = GetLastError();
  // Another program holds the file, which the standard library takes for a busy device.
  if (error == ERROR_SHARING_VIOLATION || error == ERROR_LOCK_VIOLATION) {
    return RuntimeError(ErrorNumber::PermissionDenied);
  }
  return FileError(std::error_code(static_cast<int>(error), std::system_category()));
}

bool IsMissing() {
  const DWORD error = GetLastError();
  return error == ERROR_FILE_NOT_FOUND || error == ERROR_PATH_NOT_FOUND;
}

/// Owns an open file.
class FileHandle {
 public:
  FileHandle(const fs::path& path, DWORD sharing, DWORD disposition)
      : handle_(CreateFileW(path.c_str(), GENERIC_WRITE, sharing, nullptr, disposition,
                            FILE_ATTRIBUTE_NORMAL, nullptr)) {}
  FileHandle(const FileHandle&) = delete;
  FileHandle& operator=(const FileHandle&) = delete;
  ~FileHandle() {
    if (IsOpen()) {
      CloseHandle(handle_);
    }
  }
  bool IsOpen() const { return handle_ != INVALID_HANDLE_VALUE; }

  void MoveTo(std::uint64_t place) {
    LARGE_INTEGER distance{};
    distance.QuadPart = static_cast<LONGLONG>(place);
    Require(SetFilePointerEx(handle_, distance, nullptr, FILE_BEGIN));
  }
  void WriteAll(std::string_view bytes) {
    constexpr std::size_t mostAtOnce = 1 << 30;
    while (!bytes.empty()) {
      DWORD written = 0;
      Require(WriteFile(handle_, bytes.data(),
                        static_cast<DWORD>(std::min(bytes.size(), mostAtOnce)), &written, nullptr));
      bytes.remove_prefix(written);
    }
  }
  void Flush() { Require(FlushFileBuffers(handle_)); }

 private:
  static void Require(BOOL done) {
    if (!done) {
      throw FromLastError();
    }
  }

  HANDLE handle_;
};

class DiskUpdate : public FileUpdate {
 public:
  explicit DiskUpdate(const fs::path& path)
      : file_(path, FILE_SHARE_READ | FILE_SHARE_WRITE, OPEN_EXISTING) {
    if (!file_.IsOpen()) {
      throw IsMissing() ? MissingFileError(path) : FromLastError();
    }
  }
  void WriteAt(std::uint64_t place, std::string_view bytes) override {
    file_.MoveTo(place);
    file_.WriteAll(bytes);
    file_.Flush();
  }

 private:
  FileHandle file_;
};

/// Makes a file of these bytes and sees them on the disk. There must be none of this name yet.
void WriteNewFile(const fs::path& path, std::string_view bytes) {
  FileHandle file(path, 0, CREATE_NEW);
  if (!file.IsOpen()) {
    throw IsMissing() ? RuntimeError(ErrorNumber::PathNotFound) : FromLastError();
  }
  file.WriteAll(bytes);
  file.Flush();
}

/// A new name in the target's folder. It is not the target's with something behind it, which could
/// become too long.
fs::path NameBeside(const fs::path& target) {
  std::random_device random;
  return target.parent_path() /
         (".trelonit-new" + std::to_string(random()) + "-" + std::to_string(random()));
}

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

void ReplaceOnDisk(const fs::path& target, std::string_view bytes) {
  const fs::path beside = NameBeside(target);
  std::error_code code;
  try {
    WriteNewFile(beside, bytes);
    const fs::file_status before = fs::status(target, code);
    if (fs::exists(before)) {
      // A file system without permissions refuses this; the content matters more.
      fs::permissions(beside, before.permissions(), code);
    }
    fs::rename(beside, target);
  } catch (const RuntimeError&) {
    fs::remove(beside, code);
    throw;
  } catch (const fs::filesystem_error& error) {
    fs::remove(beside, code);
    throw FileError(error.code());
  }
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
