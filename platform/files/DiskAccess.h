#pragma once

#include <filesystem>
#include <memory>
#include <string_view>

#include "platform/files/Files.h"

namespace trelonit {

// What each system does with its files in its own way: platform/posix and platform/win32 have one
// each. All raise as the file service does.

/// A stream at the beginning of a file that is there. A pipe is read while somebody writes into it,
/// otherwise it raises 75, as devices do. What breaks off later is the stream's bad state.
std::unique_ptr<std::istream> OpenDiskFile(const std::filesystem::path& path);

/// Puts these bytes in the place of the target, which is an ordinary file or not there yet, and
/// sees them on the disk: in a new file beside it that is renamed over it, or, where that cannot
/// be, in the file itself. A failure leaves what was there before, and nothing else.
void ReplaceOnDisk(const std::filesystem::path& target, std::string_view bytes);

/// The same for bytes that come one after another; it never writes the target itself.
std::unique_ptr<GrowingFile> BeginOnDisk(const std::filesystem::path& target);

std::unique_ptr<FileUpdate> OpenDiskUpdate(const std::filesystem::path& path);

/// A file that is there but may not be written must not be replaced by way of its folder.
void RequireWritable(const std::filesystem::path& target);

/// Whether files can be made in this folder.
bool IsWritableFolder(const std::filesystem::path& folder);

}  // namespace trelonit
