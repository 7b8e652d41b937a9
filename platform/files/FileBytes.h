#pragma once

#include <string>

#include "platform/files/Files.h"

namespace trelonit {

/// All bytes of a file. Raises as the files do, 57 where the reading breaks off.
std::string ReadBytes(FileService& files, const std::string& path);

}  // namespace trelonit
