#pragma once

#include "analysis/modDatatypes.h"
#include "platform/errors/Outcome.h"

namespace trelonit {

/// The one entrance of every analysis: picks the solver by TreloType, 1 to 10. Another number tells
/// a message and gives an empty result. No exception leaves it or a solver: a failure is told under
/// the routine's title and the result is empty.
Outcome<TreloResult> CalcTrelo(const TreloData& data);

/// Parallel chords, supported at the ends of the lower chord, a vertical at every column.
Outcome<TreloResult> CalcTrelo1(const TreloData& data);
/// Parallel chords, supported at the ends of the upper chord, lower chord shorter by both ends.
Outcome<TreloResult> CalcTrelo2(const TreloData& data);
/// Triangular lattice without verticals, supported at the ends of the upper chord.
Outcome<TreloResult> CalcTrelo3(const TreloData& data);
/// As scheme 2, with a lower joint under every second upper joint only.
Outcome<TreloResult> CalcTrelo4(const TreloData& data);

// Reserved schemes: entry points without a body, which give an empty result and show nothing.
Outcome<TreloResult> CalcTrelo5(const TreloData& data);
Outcome<TreloResult> CalcTrelo6(const TreloData& data);
Outcome<TreloResult> CalcTrelo7(const TreloData& data);
Outcome<TreloResult> CalcTrelo8(const TreloData& data);
Outcome<TreloResult> CalcTrelo9(const TreloData& data);
Outcome<TreloResult> CalcTrelo10(const TreloData& data);

}  // namespace trelonit
