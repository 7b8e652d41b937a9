#pragma once

#include <filesystem>
#include <string_view>

namespace trelonit {

/// Whether a new file may stand there without a name until it is whole, where the system can do
/// that: then a save that is cut off leaves nothing at all.
enum class WhileWritten { Nameless, Named };

/// See ReplaceOnDisk in platform/files/DiskAccess.h.
void ReplaceOnDisk(const std::filesystem::path& target, std::string_view bytes, WhileWritten first);

}  // namespace trelonit
