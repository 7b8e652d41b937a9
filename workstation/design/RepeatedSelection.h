#pragma once

#include "workstation/design/Selection.h"

namespace trelonit {

/// Automatic selection again and again: each round begins with the sizes of the one before and,
/// with own weight, with the forces that these sizes bring about, until a round changes nothing.
/// The usual walk can take turns between sizes (a group that steps down to the first size stays
/// there, passed or not); then the round of that circle whose greatest coefficient is the least is
/// proposed. The design stays as it is, nothing is shown. Raises what the selection raises.
SelectionProposal SelectUntilSettled(const Design& design, const ProfileTypeArray& catalogue,
                                     const CheckNumbers& numbers, bool ownWeight);

}  // namespace trelonit
