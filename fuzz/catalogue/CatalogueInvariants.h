#pragma once

#include <string>
#include <string_view>

namespace trelonit::fuzz {

/// Takes the bytes as a data file and an index file, loads the catalogue from them, writes its
/// records again, judges and composes them. Returns what is wrong with it; empty when all is well.
std::string ComplaintAboutCatalogue(std::string_view bytes);

}  // namespace trelonit::fuzz
