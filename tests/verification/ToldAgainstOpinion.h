#pragma once

#include <array>
#include <map>

#include "opinion/Opinion.h"
#include "tests/verification/Chance.h"

namespace trelonit::verification {

/// How many designs of how many.
struct Tally {
  int Drawn = 0;
  int Passing = 0;  ///< every check of the program's own calculation, after automatic selection
  int Refused = 0;  ///< of those, by the opinion
  /// Of the passing ones, with the upper chord's figures out of the plane set aside.
  int RefusedInOther = 0;
  /// And with those of the lower chord as well.
  int RefusedInPlane = 0;
  /// Refused ones by group and check; a design counts in each that it fails.
  std::map<ElementGroup, std::array<int, memberCheckCount>> ByCheck;
  /// By the bracing option of the upper chord, 1 to 4.
  std::array<int, 4> PassingByUpper{};
  std::array<int, 4> RefusedByUpper{};
  /// By that of the lower chord: those that are refused in other than the upper chord.
  std::array<int, 4> PassingByLower{};
  std::array<int, 4> RefusedByLower{};
};

/// Draws this many random roofs, selects their sections as the program does, calculates them with
/// these and asks the opinion.
Tally CompareToldWithOpinion(Chance chance, int count);

}  // namespace trelonit::verification
