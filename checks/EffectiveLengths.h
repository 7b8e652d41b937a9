#pragma once

#include "analysis/CheckRecord.h"
#include "analysis/Scheme.h"

namespace trelonit {

/// The length out of the plane that a chord is taken with under a bracing option, m; LenPanel is
/// the regular panel. The program's own table: SNiP II-23-81* (clause 6.1, table 11) takes the
/// distance between the points that are held. A bracing or scheme outside it gives 0.
double OutOfPlaneLength(Chord chord, Integer bracing, const TreloData& data, double LenPanel);

/// Sets LenX and LenY of the five groups, m, from the panel lengths, the bracing options and, for
/// chords with end panels of their own, from the place of the bar of greatest force (NMax, which
/// must be set). In the plane this is the bar's own length of clause 6.1, table 11; that the bar of
/// greatest force chooses among them is the program's own rule, and so are the web members, where
/// the norm takes 0.8 in the plane save for the support ones. A bracing or scheme outside the
/// tables leaves a length at 0.
void PutEffectiveLengths(CheckResult& check, const TreloData& data, const TreloResult& res);

}  // namespace trelonit
