#pragma once

#include <string>
#include <string_view>

namespace trelonit::fuzz {

/// Reads the bytes as a project file and stores what came out. Returns what is wrong with it; empty
/// when all is well.
std::string ComplaintAboutProject(std::string_view bytes);

}  // namespace trelonit::fuzz
