#pragma once

#include <array>
#include <cstddef>
#include <vector>

#include "drawing/sheet/Plane.h"

namespace trelonit {

// Keeps the texts of a drawing apart. Bars and dimensions tell where a text stands and how high its
// letters are meant to be; where panels are narrow, neighbours would run into each other.

/// A text as the room that its letters take, in drawing units.
struct TextRoom {
  std::array<PlanePoint, 4> Corners;  ///< of a convex box, in turn
  PlanePoint Anchor;                  ///< the point that it hangs on and shrinks to
  double Height = 0;                  ///< of its letters
  /// Texts of one kind shrink alike. Of two kinds about as high, the one with the greater number
  /// gives way first.
  int Kind = 0;
};

struct TextFit {
  /// By text: the part of its height that it is shown in; 0 where it is left out.
  std::vector<double> Factors;
  std::size_t LeftOut = 0;
  double Smallest = 0;  ///< height of the smallest text that is shown; 0 without texts
};

/// Makes the texts smaller that are crowded, all of a kind alike, but none smaller than this height
/// (one that is smaller by itself stays) nor than two fifths of its own. Of texts that then still
/// cover each other the first one is shown. Bars are kept clear too: a text that is crossed by one
/// and would not be at its smallest is left out until it can be so small.
TextFit FitTexts(const std::vector<TextRoom>& texts, double smallest,
                 const std::vector<PlaneLine>& bars = {});

/// How far two texts stand apart in these parts of their height; below zero where they cover each
/// other.
double GapBetween(const TextRoom& text1, double factor1, const TextRoom& text2, double factor2);

}  // namespace trelonit
