#pragma once

#include <string>
#include <string_view>

#include "apps/cli/ConsoleSession.h"

namespace trelonit::cli {

/// Whether a file's name ends with the extension (point included, small letters) and has something
/// before it; capital letters count as small ones.
bool HasExtension(std::string_view name, std::string_view extension);

/// Puts the bytes in the place of the file. What keeps it from that is told in one line.
Status WriteOutput(const std::string& file, const std::string& bytes);

}  // namespace trelonit::cli
