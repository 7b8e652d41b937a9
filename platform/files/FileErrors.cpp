#include "platform/files/FileErrors.h"

namespace trelonit {

namespace fs = std::filesystem;

RuntimeError FileError(const std::error_code& code) {
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

RuntimeError MissingFileError(const fs::path& path) {
  std::error_code code;
  const fs::path folder = path.parent_path();
  return RuntimeError(folder.empty() || fs::exists(folder, code) ? ErrorNumber::FileNotFound
                                                                 : ErrorNumber::PathNotFound);
}

}  // namespace trelonit
