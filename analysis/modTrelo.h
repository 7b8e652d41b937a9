#pragma once

#include "analysis/modDatatypes.h"
#include "platform/Message.h"

namespace trelonit {

/// The one entrance of every analysis: picks the solver by TreloType, 1 to 10. Another number shows
/// a message and gives an empty result. No exception leaves it or a solver: a failure is shown
/// under the routine's title and the result is empty.
TreloResult CalcTrelo(const TreloData& data, MessageService& messages);

/// Parallel chords, supported at the ends of the lower chord, a vertical at every column.
TreloResult CalcTrelo1(const TreloData& data, MessageService& messages);
/// Parallel chords, supported at the ends of the upper chord, lower chord shorter by both ends.
TreloResult CalcTrelo2(const TreloData& data, MessageService& messages);
/// Triangular lattice without verticals, supported at the ends of the upper chord.
TreloResult CalcTrelo3(const TreloData& data, MessageService& messages);
/// As scheme 2, with a lower joint under every second upper joint only.
TreloResult CalcTrelo4(const TreloData& data, MessageService& messages);

// Reserved schemes: entry points without a body, which give an empty result and show nothing.
TreloResult CalcTrelo5(const TreloData& data, MessageService& messages);
TreloResult CalcTrelo6(const TreloData& data, MessageService& messages);
TreloResult CalcTrelo7(const TreloData& data, MessageService& messages);
TreloResult CalcTrelo8(const TreloData& data, MessageService& messages);
TreloResult CalcTrelo9(const TreloData& data, MessageService& messages);
TreloResult CalcTrelo10(const TreloData& data, MessageService& messages);

}  // namespace trelonit
