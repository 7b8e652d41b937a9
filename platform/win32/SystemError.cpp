#include "platform/win32/SystemError.h"

#include "platform/win32/WindowsHeader.h"

namespace trelonit {

RuntimeError FromSystemError(std::uint32_t code) {
  switch (code) {
    case ERROR_FILE_NOT_FOUND:
    case ERROR_PATH_NOT_FOUND:
      return RuntimeError(ErrorNumber::FileNotFound);
    case ERROR_ACCESS_DENIED:
    case ERROR_SHARING_VIOLATION:
    case ERROR_WRITE_PROTECT:
      return RuntimeError(ErrorNumber::PermissionDenied);
    case ERROR_NOT_ENOUGH_MEMORY:
    case ERROR_OUTOFMEMORY:
      return RuntimeError(ErrorNumber::OutOfMemory);
    default:
      return RuntimeError(ErrorNumber::DeviceIoError);
  }
}

}  // namespace trelonit
