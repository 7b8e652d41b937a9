#pragma once

#include <string>
#include <string_view>

namespace trelonit::fuzz {

/// Lets the bytes change a sound design, and does with it all that the program does with a design.
/// Returns what is wrong with it; empty when all is well.
std::string ComplaintAboutDesign(std::string_view bytes);

}  // namespace trelonit::fuzz
