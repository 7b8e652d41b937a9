#pragma once

#include <string>

#include "platform/files/Files.h"

namespace trelonit {

/// All bytes of a file. Raises as the files do, 57 where the reading breaks off.
std::string ReadBytes(FileService& files, const std::string& path);

/// The same; nothing where there is no such file.
std::string ReadBytesIfThere(FileService& files, const std::string& path);

/// Puts the bytes of one file in the place of another, which stays whole on a failure. Raises as
/// the files do.
void CopyBytes(FileService& files, const std::string& from, const std::string& to);

}  // namespace trelonit
