#include "platform/files/Files.h"

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <fstream>
#include <random>
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

/// Where the bytes finally go: the file that a symbolic link names, not the link.
fs::path ResolveLinks(const fs::path& path) {
  std::error_code code;
  fs::path target = fs::weakly_canonical(path, code);
  // A link to a file that is not there yet stays unresolved by that.
  while (!code && fs::is_symlink(fs::symlink_status(target, code))) {
    const fs::path named = fs::read_symlink(target, code);
    target = fs::weakly_canonical(target.parent_path() / named, code);
  }
  return target.empty() ? path : target;
}

/// A new name in the target's folder. It is not the target's with something behind it, which could
/// become too long, and nobody can guess it and put a link there beforehand.
fs::path NameBeside(const fs::path& target) {
  std::random_device random;
  return target.parent_path() /
         (".trelonit-new" + std::to_string(random()) + "-" + std::to_string(random()));
}

}  // namespace

bool DiskFiles::FileExists(const std::string& path) {
  if (path.empty()) {
    return false;
  }
  std::error_code code;
  const fs::file_status status = fs::status(NativePath(path), code);
  return fs::exists(status) && !fs::is_directory(status);
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
  errno = 0;
  auto stream = std::make_unique<std::ifstream>(native, std::ios::binary);
  if (!*stream) {
    throw errno != 0 ? FileError(std::error_code(errno, std::generic_category()))
                     : RuntimeError(ErrorNumber::PathFileAccess);
  }
  return stream;
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
  const fs::path target = ResolveLinks(NativePath(path));
  std::error_code code;
  const fs::file_status before = fs::status(target, code);
  // A folder cannot be replaced, and a device or a pipe must not be.
  if (fs::exists(before) && !fs::is_regular_file(before)) {
    throw RuntimeError(ErrorNumber::PathFileAccess);
  }
  RequireWritable(target);
  const fs::path beside = NameBeside(target);
  try {
    WriteNewFile(beside, bytes);
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

std::unique_ptr<FileUpdate> DiskFiles::OpenForUpdate(const std::string& path) {
  return OpenDiskUpdate(NativePath(path));
}

}  // namespace trelonit
