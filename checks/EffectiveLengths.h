#pragma once

#include "analysis/CheckRecord.h"
#include "analysis/modDatatypes.h"

namespace trelonit {

/// Sets LenX and LenY of the five groups, m, from the panel lengths, the bracing options and, for
/// chords with end panels of their own, from the place of the bar of greatest force (NMax, which
/// must be set). A bracing or scheme outside the tables leaves a length at 0.
void PutEffectiveLengths(CheckResult& check, const TreloData& data, const TreloResult& res);

}  // namespace trelonit
