#pragma once

#include <string>
#include <string_view>

namespace trelonit::fuzz {

/// Reads the bytes as a number by every parser and writes what came out by every writer. Returns
/// what is wrong with it; empty when all is well.
std::string ComplaintAboutNumbers(std::string_view bytes);

}  // namespace trelonit::fuzz
