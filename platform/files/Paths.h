#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

namespace trelonit {

// Names of files are UTF-8; the system may keep them otherwise.

std::filesystem::path PathOfUtf8(std::string_view name);
std::string Utf8OfPath(const std::filesystem::path& path);

/// The name from the working folder on; nothing where that folder is not there.
std::optional<std::filesystem::path> AbsolutePath(std::string_view name);

/// The name with the long form of each part that stands in a short one ("FERMA1~1.TSA"), as Windows
/// keeps both; what is not there, and every name elsewhere, stays as it is.
std::filesystem::path LongName(const std::filesystem::path& path);

/// Folder and bare name with exactly one separator between them, whether or not the folder ends
/// with one (a program started from a drive root has a folder that does).
std::string JoinPath(std::string_view folder, std::string_view name);

/// What stands in front of the bare name, without a separator at its end unless it is the root's;
/// empty for a bare name.
std::string FolderOf(std::string_view path);

}  // namespace trelonit
