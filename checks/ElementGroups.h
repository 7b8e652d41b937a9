#pragma once

#include <array>

#include "analysis/CheckRecord.h"
#include "analysis/ElementGroup.h"
#include "catalogue/SectionRecord.h"

namespace trelonit {

/// What belongs to one element group: its block of the check record, its section in storage, its
/// names.
struct ElementGroupRow {
  ElementGroup Group = ElementGroup::UpPoyas;
  GroupCheck CheckResult::*Block = nullptr;
  SectionPlace Place = sectionUpPoyas;
  const char* Key = "";   ///< the name of the block in the code, for other programs
  const char* Name = "";  ///< for the user
};

/// The groups in the order of the check record, in which messages and errors appear.
constexpr std::array<ElementGroupRow, elementGroupCount> elementGroups{{
    {ElementGroup::UpPoyas, &CheckResult::UpPoyas, sectionUpPoyas, "UpPoyas", "Верхний пояс"},
    {ElementGroup::DwnPoyas, &CheckResult::DwnPoyas, sectionDwnPoyas, "DwnPoyas", "Нижний пояс"},
    {ElementGroup::Stoyka, &CheckResult::Stoyka, sectionStoyka, "Stoyka", "Стойки"},
    {ElementGroup::Raskos, &CheckResult::Raskos, sectionRaskos, "Raskos", "Раскосы"},
    {ElementGroup::OpornRaskos, &CheckResult::OpornRaskos, sectionOpornRaskos, "OpornRaskos",
     "Опорные раскосы"},
}};

constexpr const ElementGroupRow& RowOf(ElementGroup group) {
  return elementGroups[static_cast<std::size_t>(group)];
}

}  // namespace trelonit
