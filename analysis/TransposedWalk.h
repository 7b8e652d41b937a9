#pragma once

#include <vector>

#include "analysis/Scheme.h"
#include "analysis/modDatatypes.h"

namespace trelonit {

/// A number for every bar of a truss: chords, diagonals, verticals, each from the left, as many as
/// the solver of its scheme has forces.
struct BarWeights {
  std::vector<double> U, D, R, V;
};

/// For each joint of a chord, from the left, the sum over all bars of weight times the bar's force
/// under a unit load there. The forces of a walk are linear in the loads, so that one walk the
/// other way round, from the last statement to the first, finds what takes a walk a joint
/// otherwise; each scheme's own rules go with it. Rounding differs from that of the walks, and what
/// these drop as noise counts here.
///
/// Schemes 1 to 4 with at least four panels; the weights have the sizes that their solvers give the
/// forces. Nothing is raised: a geometry that no solver takes gives infinities and NaNs.
std::vector<double> WeightedUnitForces(const TreloData& data, Chord chord, BarWeights weights);

}  // namespace trelonit
