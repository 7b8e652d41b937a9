#pragma once

#include "analysis/Scheme.h"

namespace trelonit {

// Effective lengths of the bars of plane trusses, metres (SNiP II-23-81*, clauses 6.1 and 6.2,
// table 11).

/// The distance between the points at which a chord is held out of the plane, by what the caption
/// of the bracing option says: 1 "Только крайние", the whole chord; 2 "Крайние и посредине
/// пролета", half of it; 3 "Через один", the longest two neighbouring panels; 4 "Все узлы", the
/// longest panel. Raises 5 for another option.
double LengthBetweenHeldPoints(const Truss& truss, Chord chord, Long bracing);

/// Whether a bar counts with the chords: a support diagonal, or a support post (the first or the
/// last vertical of a truss that is held below).
bool IsSupportBar(const Truss& truss, const TrussBar& bar);

struct BarLengths {
  double X = 0;  ///< in the plane of the truss
  double Y = 0;  ///< out of it
};

/// The lengths of the chords out of the plane come from LengthBetweenHeldPoints.
BarLengths EffectiveLengthsOf(const Truss& truss, const TrussBar& bar, double upperHeld,
                              double lowerHeld);

}  // namespace trelonit
