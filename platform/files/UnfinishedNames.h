#pragma once

#include <filesystem>
#include <functional>
#include <optional>
#include <string_view>

namespace trelonit {

// Names of files that are being written tell the process that does: what it leaves when it is cut
// off can be told from what another one is at.

/// A new name in the target's folder, for this process. It is not the target's with something
/// behind it, which could become too long, and nobody can guess it and put a link there beforehand.
std::filesystem::path NameForUnfinished(const std::filesystem::path& target, int process);

/// The process that a name tells; nothing for a name that is none of ours.
std::optional<int> ProcessOfUnfinished(std::string_view name);

/// Removes the files with such names in the folder that are abandoned, as far as the rights go.
void RemoveUnfinished(
    const std::filesystem::path& folder,
    const std::function<bool(int process, const std::filesystem::path& file)>& isAbandoned);

}  // namespace trelonit
