#pragma once

#include <filesystem>

namespace trelonit {

/// Removes what processes that are no more have left in the folder, as far as the rights go.
void RemoveLeftovers(const std::filesystem::path& folder);

}  // namespace trelonit
