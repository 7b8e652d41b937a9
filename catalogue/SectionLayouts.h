#pragma once

#include <span>
#include <string_view>

#include "platform/forms/Resources.h"
#include "platform/values/Integers.h"

namespace trelonit {

/// The program's own choice: one of the arrangements in which catalogue records make a section.
struct SectionLayout {
  Long Number = 0;                  ///< 1 to 11
  std::string_view Caption;         ///< hint of the layout's picture
  bool Paired = false;              ///< two profiles with a gap between them
  std::span<const Long> Standards;  ///< numbers of the standards offered, in list order
  Long DefaultStandard = 0;         ///< one of them
  Picture View;                     ///< the picture of the section preview
};

constexpr Long sectionLayoutCount = 11;

/// Null for a number outside 1 to 11. The layouts live as long as the program.
const SectionLayout* FindSectionLayout(Long number);

}  // namespace trelonit
