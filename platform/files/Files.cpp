#include "platform/files/Files.h"

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <fstream>
#include <random>
#include <string>
#include <system_error>

#include "platform/errors/RuntimeError.h"

#ifdef _WIN32
#include "platform/win32/WindowsHeader.h"
#else
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#endif

namespace trelonit {

namespace fs = std::filesystem;

namespace {

fs::path NativePath(const std::string& path) {
  if (path.empty()) {
    throw RuntimeError(ErrorNumber::BadFileName);
  }
  return {std::u8string(path.begin(), path.end())};
}

RuntimeError FromErrorCode(const std::error_code& code) {
  const auto is = [&code](std::errc condition) { return code == condition; };
  if (is(std::errc::no_such_file_or_directory)) {
    return RuntimeError(ErrorNumber::FileNotFound);
  }
  if (is(std::errc::permission_denied) || is(std::errc::operation_not_permitted) ||
      is(std::errc::read_only_file_system)) {
    return RuntimeError(ErrorNumber::PermissionDenied);
  }
  if (is(std::errc::no_space_on_device) || is(std::errc::file_too_large)) {
    return RuntimeError(ErrorNumber::DiskFull);
  }
  if (is(std::errc::not_a_directory)) {
    return RuntimeError(ErrorNumber::PathNotFound);
  }
  if (is(std::errc::is_a_directory) || is(std::errc::too_many_symbolic_link_levels)) {
    return RuntimeError(ErrorNumber::PathFileAccess);
  }
  if (is(std::errc::filename_too_long) || is(std::errc::invalid_argument)) {
    return RuntimeError(ErrorNumber::BadFileName);
  }
  return RuntimeError(ErrorNumber::DeviceIoError);
}

RuntimeError FromErrno() {
  return FromErrorCode(std::error_code(errno, std::generic_category()));
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

/// 53 where only the file is missing, 76 where its folder is.
RuntimeError MissingError(const fs::path& path) {
  std::error_code code;
  const fs::path folder = path.parent_path();
  return RuntimeError(folder.empty() || fs::exists(folder, code) ? ErrorNumber::FileNotFound
                                                                 : ErrorNumber::PathNotFound);
}

#ifdef _WIN32

RuntimeError FromLastError() {
  const DWORD error = GetLastError();
  // Another program holds the file, which the standard library takes for a busy device.
  if (error == ERROR_SHARING_VIOLATION || error == ERROR_LOCK_VIOLATION) {
    return RuntimeError(ErrorNumber::PermissionDenied);
  }
  return FromErrorCode(std::error_code(static_cast<int>(error), std::system_category()));
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

void WriteFlushed(const fs::path& path, std::string_view bytes) {
  FileHandle file(path, 0, CREATE_NEW);
  if (!file.IsOpen()) {
    throw IsMissing() ? RuntimeError(ErrorNumber::PathNotFound) : FromLastError();
  }
  file.WriteAll(bytes);
  file.Flush();
}

class DiskUpdate : public FileUpdate {
 public:
  explicit DiskUpdate(const fs::path& path)
      : file_(path, FILE_SHARE_READ | FILE_SHARE_WRITE, OPEN_EXISTING) {
    if (!file_.IsOpen()) {
      throw IsMissing() ? MissingError(path) : FromLastError();
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

#else

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

void WriteFlushed(const fs::path& path, std::string_view bytes) {
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

class DiskUpdate : public FileUpdate {
 public:
  explicit DiskUpdate(const fs::path& path) : file_(::open(path.c_str(), O_WRONLY | O_CLOEXEC)) {
    if (file_.Number() < 0) {
      throw errno == ENOENT ? MissingError(path) : FromErrno();
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

#endif

/// A new name in the target's folder. It is not the target's with something behind it, which could
/// become too long, and nobody can guess it and put a link there beforehand.
fs::path NameBeside(const fs::path& target) {
  std::random_device random;
  return target.parent_path() /
         (".trelonit-new" + std::to_string(random()) + "-" + std::to_string(random()));
}

/// A file that is there but may not be written must not be replaced by way of its folder.
void RequireWritable(const fs::path& target) {
#ifdef _WIN32
  const DWORD attributes = GetFileAttributesW(target.c_str());
  if (attributes != INVALID_FILE_ATTRIBUTES && (attributes & FILE_ATTRIBUTE_READONLY) != 0) {
    throw RuntimeError(ErrorNumber::PermissionDenied);
  }
#else
  if (::access(target.c_str(), W_OK) != 0 && errno != ENOENT) {
    throw FromErrno();
  }
#endif
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
    throw code && code != std::errc::no_such_file_or_directory ? FromErrorCode(code)
                                                               : MissingError(native);
  }
  if (fs::is_directory(status)) {
    throw RuntimeError(ErrorNumber::PathFileAccess);
  }
  errno = 0;
  auto stream = std::make_unique<std::ifstream>(native, std::ios::binary);
  if (!*stream) {
    throw errno != 0 ? FromErrno() : RuntimeError(ErrorNumber::PathFileAccess);
  }
  return stream;
}

std::uint64_t DiskFiles::FileLength(const std::string& path) {
  std::error_code code;
  const fs::path native = NativePath(path);
  const std::uintmax_t length = fs::file_size(native, code);
  if (code) {
    throw code == std::errc::no_such_file_or_directory ? MissingError(native) : FromErrorCode(code);
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
    WriteFlushed(beside, bytes);
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
    throw FromErrorCode(error.code());
  }
}

std::unique_ptr<FileUpdate> DiskFiles::OpenForUpdate(const std::string& path) {
  return std::make_unique<DiskUpdate>(NativePath(path));
}

std::string JoinPath(std::string_view folder, std::string_view name) {
  std::string path(folder);
  if (path.empty() || (path.back() != '/' && path.back() != '\\')) {
    path.push_back('/');
  }
  path.append(name);
  return path;
}

}  // namespace trelonit
