#pragma once

#include <filesystem>
#include <system_error>

#include "platform/errors/RuntimeError.h"

namespace trelonit {

// What the file service raises for what the system tells.

RuntimeError FileError(const std::error_code& code);

/// 53 where only the file is missing, 76 where its folder is.
RuntimeError MissingFileError(const std::filesystem::path& path);

}  // namespace trelonit
