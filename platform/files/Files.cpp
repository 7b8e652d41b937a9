#include "platform/files/Files.h"

#include <filesystem>
#include <string>
#include <system_error>

#include "platform/errors/RuntimeError.h"
#include "platform/files/DiskAccess.h"
#include "platform/files/FileErrors.h"
#include "platform/files/Paths.h"

namespace trelonit {

namespace fs = std::filesystem;

namespace {

fs::path NativePath(const std::string& path) {
  if (path.empty()) {
    throw RuntimeError(ErrorNumber::BadFileName);
  }
  return PathOfUtf8(path);
}

/// A device that does not answer has not said that there is no file: what might stand there is
/// neither new nor nobody's.
bool IsUnanswered(const std::error_code& code) {
  return code && code != std::errc::no_such_file_or_directory &&
         FileError(code).Number() == static_cast<int>(ErrorNumber::DeviceIoError);
}

/// Where the bytes finally go: the file that a symbolic link names, not the link.
fs::path ResolveLinks(const fs::path& path) {
  std::error_code code;
  fs::path target = fs::weakly_canonical(path, code);
  // A link to a file that is not there yet stays unresolved by that.
  while (!code && fs::is_symlink(fs::symlink_status(target, code))) {
    const fs::path named = fs::read_symlink(target, code);
    target = fs::weakly_canonical(target.parent_path() / named, code);
  }
  if (IsUnanswered(code)) {
    throw FileError(code);
  }
  return target.empty() ? path : target;
}

/// The file that the name stands for, which may be written or is not there yet.
fs::path RequireTarget(const std::string& path) {
  fs::path target = ResolveLinks(NativePath(path));
  std::error_code code;
  const fs::file_status before = fs::status(target, code);
  if (IsUnanswered(code)) {
    throw FileError(code);
  }
  // A folder cannot be replaced, and a device or a pipe must not be.
  if (fs::exists(before) && !fs::is_regular_file(before)) {
    throw RuntimeError(ErrorNumber::PathFileAccess);
  }
  RequireWritable(target);
  return target;
}

}  // namespace

bool DiskFiles::FileExists(const std::string& path) {
  if (path.empty()) {
    return false;
  }
  std::error_code code;
  const fs::file_status status = fs::status(NativePath(path), code);
  return IsUnanswered(code) || (fs::exists(status) && !fs::is_directory(status));
}

std::unique_ptr<std::istream> DiskFiles::OpenForReading(const std::string& path) {
  const fs::path native = NativePath(path);
  std::error_code code;
  const fs::file_status status = fs::status(native, code);
  if (!fs::exists(status)) {
    throw code && code != std::errc::no_such_file_or_directory ? FileError(code)
                                                               : MissingFileError(native);
  }
  if (fs::is_directory(status)) {
    throw RuntimeError(ErrorNumber::PathFileAccess);
  }
  return OpenDiskFile(native);
}

std::uint64_t DiskFiles::FileLength(const std::string& path) {
  std::error_code code;
  const fs::path native = NativePath(path);
  const std::uintmax_t length = fs::file_size(native, code);
  if (code) {
    throw code == std::errc::no_such_file_or_directory ? MissingFileError(native) : FileError(code);
  }
  return length;
}

void DiskFiles::ReplaceFile(const std::string& path, std::string_view bytes) {
  ReplaceOnDisk(RequireTarget(path), bytes);
}

std::unique_ptr<GrowingFile> DiskFiles::BeginFile(const std::string& path) {
  return BeginOnDisk(RequireTarget(path));
}

std::unique_ptr<FileUpdate> DiskFiles::OpenForUpdate(const std::string& path) {
  return OpenDiskUpdate(NativePath(path));
}

}  // namespace trelonit
