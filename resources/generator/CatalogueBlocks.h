#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "resources/generator/CsvTable.h"

namespace trelonit::packer {

constexpr std::string_view standardsHead = "Number,Name";
constexpr std::string_view sizesHead = "Name,B,H,t,s,r1,r2,A,Jy,Jz,P,Wy,Wz,y0,z0";

/// The two blocks that the program carries.
struct CatalogueBlocks {
  /// Block 102: a record of 177 bytes a type size, and two zero bytes.
  std::string Data;
  /// Block 103: a record of 58 bytes a standard.
  std::string Index;
};

/// Packs the table of standards (numbered 1, 2, ...) and the tables of their type sizes, one asked
/// for each standard in turn. Raises SourceFault for a designation or a name that is empty, too
/// long for its field (15 and 50 characters), repeated or not of code page 1251, and for a cell
/// that is not a finite number from 0 up.
CatalogueBlocks PackCatalogue(const CsvTable& standards,
                              const std::function<CsvTable(int standard)>& sizesOf);

}  // namespace trelonit::packer
