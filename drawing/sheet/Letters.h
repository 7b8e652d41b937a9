#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "drawing/sheet/Plane.h"

namespace trelonit {

// The letters of drawings: a plain upright type with Cyrillic, which the text style of a drawing
// makes narrow and oblique. They are the program's own, so that a drawing needs no fonts and looks
// the same on every machine. Lengths are units of the type, Y goes up, the base line begins at
// (0, 0).

/// Closed outlines; what is inside is by the non-zero rule.
struct LetterOutline {
  std::string Verbs;  ///< M and L have a point each, Q (one control point) two, Z none
  std::vector<PlanePoint> Points;
};

/// Of capital letters without marks.
double LettersCapitalHeight();

/// From the start to where a next letter would stand. UTF-8; letters that there are none of take
/// the room of a box.
double LettersWidth(std::string_view text);

LetterOutline LettersOutline(std::string_view text);

/// Calls with each verb and its points in turn.
template <class Visit>
void ForEachStep(const LetterOutline& outline, Visit visit) {
  const PlanePoint* points = outline.Points.data();
  for (const char verb : outline.Verbs) {
    visit(verb, points);
    points += verb == 'Z' ? 0 : verb == 'Q' ? 2 : 1;
  }
}

/// The box round what is to be seen; nothing for blanks. Exact for outlines after a transform too.
std::optional<PlaneBox> BoxOf(const LetterOutline& outline, const PlaneTransform& transform = {});

}  // namespace trelonit
