#pragma once

#include "analysis/ElementGroup.h"
#include "catalogue/SectionRecord.h"

namespace trelonit {

/// Numbers of the element group options on the form. Intended to differ from the places in storage:
/// on the form verticals stand before the support diagonals, in storage after them.
enum GroupOption : Long {
  optionUpPoyas = 1,
  optionDwnPoyas = 2,
  optionRaskos = 3,
  optionStoyka = 4,
  optionOpornRaskos = 5,
};
constexpr Long groupCount = 5;

/// Both raise 9 for a number that is no option.
SectionPlace PlaceOfOption(Long option);
ElementGroup GroupOfOption(Long option);

GroupOption OptionOf(ElementGroup group);

}  // namespace trelonit
