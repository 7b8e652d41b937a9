#include "platform/files/Claim.h"
#include "platform/win32/WindowsHeader.h"

namespace trelonit {

namespace {

class FileClaim : public Claim {
 public:
  explicit FileClaim(HANDLE handle) : handle_(handle) {}
  FileClaim(const FileClaim&) = delete;
  FileClaim& operator=(const FileClaim&) = delete;
  ~FileClaim() override { CloseHandle(handle_); }

 private:
  HANDLE handle_;
};

}  // namespace

ClaimAttempt TryClaim(const std::filesystem::path& file) {
  constexpr DWORD sharedWithNobody = 0;
  HANDLE handle =
      CreateFileW(file.c_str(), GENERIC_READ | GENERIC_WRITE, sharedWithNobody, nullptr,
                  OPEN_ALWAYS, FILE_ATTRIBUTE_NORMAL | FILE_FLAG_DELETE_ON_CLOSE, nullptr);
  if (handle == INVALID_HANDLE_VALUE) {
    return {.Held = nullptr, .ByAnother = GetLastError() == ERROR_SHARING_VIOLATION};
  }
  return {.Held = std::make_unique<FileClaim>(handle)};
}

}  // namespace trelonit
