#pragma once

#include <string>
#include <string_view>

namespace trelonit::fuzz {

/// Reads the bytes as a plain text, stores and edits it. Returns what is wrong with it; empty when
/// all is well.
std::string ComplaintAboutText(std::string_view bytes);

}  // namespace trelonit::fuzz
