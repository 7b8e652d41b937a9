#pragma once

#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>

#include "platform/errors/RuntimeError.h"
#include "platform/win32/WindowsHeader.h"

namespace trelonit {

/// What the system's last failed call on a file means.
RuntimeError FromLastFileError();

/// Whether that call failed because there is no such file or folder.
bool LastFileIsMissing();

/// Owns an open file. What cannot be done raises as the file service does.
class FileHandle {
 public:
  /// As CreateFileW; IsOpen tells whether it succeeded.
  FileHandle(const std::filesystem::path& path, DWORD access, DWORD sharing, DWORD disposition,
             SECURITY_ATTRIBUTES* security = nullptr);
  FileHandle(const FileHandle&) = delete;
  FileHandle& operator=(const FileHandle&) = delete;
  ~FileHandle();

  bool IsOpen() const { return handle_ != INVALID_HANDLE_VALUE; }
  HANDLE Get() const { return handle_; }

  void WriteAt(std::uint64_t place, std::string_view bytes);
  /// Cuts off what stands behind this place.
  void EndAt(std::uint64_t place);
  /// The whole content.
  std::string ReadAll();
  void Flush();
  /// While this is set, the system removes the file when its last handle is closed, also that of a
  /// program that was ended.
  void SetGoesWithItsHandle(bool goes);

 private:
  void MoveTo(std::uint64_t place);

  HANDLE handle_;
};

}  // namespace trelonit
