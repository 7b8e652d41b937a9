#pragma once

#include <string>
#include <string_view>

namespace trelonit::fuzz {

/// Lets the bytes choose members and values of the built-in drawing host and calls of the wrapper
/// round it, then stores the drawings. Returns what is wrong with it; empty when all is well.
std::string ComplaintAboutAutomation(std::string_view bytes);

}  // namespace trelonit::fuzz
