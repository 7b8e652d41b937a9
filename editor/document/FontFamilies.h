#pragma once

#include <array>
#include <string_view>

namespace trelonit {

/// Whether the family is known to have letters of one width. Texts written in it keep their columns
/// only if whatever takes its place has that too.
bool IsFixedWidthFamily(std::string_view family);

/// What takes the place of a missing family of one width, the best first; all have Cyrillic
/// letters, and one of them is on every system.
constexpr std::array<std::string_view, 6> fixedWidthFamilies{
    "DejaVu Sans Mono", "Liberation Mono", "Noto Sans Mono", "Consolas", "Menlo", "Courier New"};

}  // namespace trelonit
