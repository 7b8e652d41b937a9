#include "platform/win32/FileHandle.h"

#include <algorithm>
#include <array>

#include "platform/files/FileErrors.h"

namespace trelonit {

namespace {

void Require(BOOL done) {
  if (!done) {
    throw FromLastFileError();
  }
}

}  // namespace

RuntimeError FromLastFileError() {
  const DWORD error = GetLastError();
  // Another program holds the file, which the standard library takes for a busy device.
  if (error == ERROR_SHARING_VIOLATION || error == ERROR_LOCK_VIOLATION) {
    return RuntimeError(ErrorNumber::PermissionDenied);
  }
  return FileError(std::error_code(static_cast<int>(error), std::system_category()));
}

bool LastFileIsMissing() {
  const DWORD error = GetLastError();
  return error == ERROR_FILE_NOT_FOUND || error == ERROR_PATH_NOT_FOUND;
}

FileHandle::FileHandle(const std::filesystem::path& path, DWORD access, DWORD sharing,
                       DWORD disposition, SECURITY_ATTRIBUTES* security)
    : handle_(CreateFileW(path.c_str(), access, sharing, security, disposition,
                          FILE_ATTRIBUTE_NORMAL, nullptr)) {}

FileHandle::~FileHandle() {
  if (IsOpen()) {
    CloseHandle(handle_);
  }
}

void FileHandle::MoveTo(std::uint64_t place) {
  LARGE_INTEGER distance{};
  distance.QuadPart = static_cast<LONGLONG>(place);
  Require(SetFilePointerEx(handle_, distance, nullptr, FILE_BEGIN));
}

void FileHandle::WriteAt(std::uint64_t place, std::string_view bytes) {
  MoveTo(place);
  constexpr std::size_t mostAtOnce = 1 << 30;
  while (!bytes.empty()) {
    DWORD written = 0;
    Require(WriteFile(handle_, bytes.data(), static_cast<DWORD>(std::min(bytes.size(), mostAtOnce)),
                      &written, nullptr));
    bytes.remove_prefix(written);
  }
}

void FileHandle::EndAt(std::uint64_t place) {
  MoveTo(place);
  Require(SetEndOfFile(handle_));
}

std::string FileHandle::ReadAll() {
  MoveTo(0);
  std::string content;
  std::array<char, 65536> part{};
  for (;;) {
    DWORD count = 0;
    Require(ReadFile(handle_, part.data(), static_cast<DWORD>(part.size()), &count, nullptr));
    if (count == 0) {
      return content;
    }
    content.append(part.data(), count);
  }
}

void FileHandle::Flush() {
  Require(FlushFileBuffers(handle_));
}

void FileHandle::SetGoesWithItsHandle(bool goes) {
  // The headers disagree on the type of the member; a bool fits each of them.
  FILE_DISPOSITION_INFO disposition{.DeleteFile = goes};
  Require(
      SetFileInformationByHandle(handle_, FileDispositionInfo, &disposition, sizeof disposition));
}

}  // namespace trelonit
