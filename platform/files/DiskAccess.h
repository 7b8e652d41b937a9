#pragma once

#include <filesystem>
#include <memory>
#include <string_view>

#include "platform/files/Files.h"

namespace trelonit {

// What each system does with its files in its own way: platform/posix and platform/win32 have one
// each. All raise as the file service does.

/// Makes a file of these bytes and sees them on the disk. There must be none of this name yet.
void WriteNewFile(const std::filesystem::path& path, std::string_view bytes);

std::unique_ptr<FileUpdate> OpenDiskUpdate(const std::filesystem::path& path);

/// A file that is there but may not be written must not be replaced by way of its folder.
void RequireWritable(const std::filesystem::path& target);

/// Whether files can be made in this folder.
bool IsWritableFolder(const std::filesystem::path& folder);

}  // namespace trelonit
