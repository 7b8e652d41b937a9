#pragma once

#include <string>
#include <string_view>

namespace trelonit::fuzz {

/// Reads the bytes as a table of steels and lets the window of steels run over it. Returns what is
/// wrong with it; empty when all is well.
std::string ComplaintAboutSteels(std::string_view bytes);

}  // namespace trelonit::fuzz
