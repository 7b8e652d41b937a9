#pragma once

#include <string>
#include <string_view>

namespace trelonit::fuzz {

/// Reads the bytes as rich text and looks at what came out. Returns what is wrong with it; empty
/// when all is well. Bytes that the reader refuses are well refused.
std::string ComplaintAboutReading(std::string_view bytes);

}  // namespace trelonit::fuzz
