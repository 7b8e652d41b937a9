#pragma once

#include <string_view>

namespace trelonit {

// Defined in a source file that the build makes from the tables in resources/.

/// Block 101: the steels with their design resistances.
std::string_view EmbeddedSteelTable();

/// Block 102: 2698 records of 177 bytes, each a type size, and two zero bytes.
std::string_view EmbeddedCatalogueData();

/// Block 103: 22 records of 58 bytes, each a standard.
std::string_view EmbeddedCatalogueIndex();

}  // namespace trelonit
