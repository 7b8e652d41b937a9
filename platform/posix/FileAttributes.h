#pragma once

#include <filesystem>

#include "platform/posix/Descriptor.h"

namespace trelonit {

/// Gives an open new file the access list of the one that it is to replace, or none where that has
/// none, and the user's own attributes. Must come after its permissions, of which the list holds
/// some. False where the list cannot be given: others would get rights or lose theirs.
bool GiveAttributesOf(const std::filesystem::path& before, const Descriptor& file);

}  // namespace trelonit
