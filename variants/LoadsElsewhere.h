#pragma once

#include "analysis/modDatatypes.h"

namespace trelonit {

/// The loads of a truss brought to another one of other joints. Lengths along the span are taken as
/// shares of it, so that a wider truss carries as much a metre.
///
/// Distributed loads keep their value by place: a panel gets the mean, by length, of what lies over
/// it. Point loads go on only where every inner joint of the chord carries the same one; then each
/// new inner joint carries it times new over old panel length, and the end joints, which rest on
/// the supports, take what is left of the sum. So each chord carries the same in all, a metre of
/// span.
///
/// Raises 5, with the reason for the user, where they cannot be brought over: point loads that
/// differ, or distributed ones beyond the ends of the new chord, whose sum would not be kept; and
/// what TrussOf raises for either truss.
LoadArrays LoadsElsewhere(const TreloData& from, const TreloData& to);

}  // namespace trelonit
