#pragma once

#include <filesystem>

namespace trelonit {

// Names of files that are being written tell the process that does: what it leaves when it is cut
// off can be told from what another one is at.

/// A new name in the target's folder. It is not the target's with something behind it, which could
/// become too long, and nobody can guess it and put a link there beforehand.
std::filesystem::path NameForUnfinished(const std::filesystem::path& target);

/// Removes what processes that are no more have left in the folder, as far as the rights go.
void RemoveLeftovers(const std::filesystem::path& folder);

}  // namespace trelonit
