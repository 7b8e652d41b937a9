#pragma once

#include <cstdint>
#include <string_view>

#include "resources/Carried.h"

namespace trelonit {

// The letters of drawings, from resources/letters: upright, of one weight, so that a drawing looks
// the same whatever fonts a machine has. Lengths are units of which lettersEm make the height of
// the type; Y goes up from the base line.

constexpr double lettersEm = 2048;

struct CompiledLetter {
  char32_t Code = 0;
  std::int16_t Advance = 0;  ///< to where the next letter stands
  std::string_view Verbs;    ///< M and L have a point each, Q two, Z none
  Carried<std::int16_t> Numbers;
};

/// All of them, by code. The last one, U+FFFD, stands for those that are not there.
Carried<CompiledLetter> CompiledLetters();

}  // namespace trelonit
