#pragma once

#include "workstation/design/Selection.h"

namespace trelonit {

/// Automatic selection by both: for each group the first size of its standard, in the order of the
/// catalogue, that passes the program's own checks and the second opinion. With own weight the
/// truss is calculated with the new sizes and searched again until nothing changes; from the tenth
/// round on a group only grows, so that it ends. The design stays as it is; the proposal brings the
/// loads and the results that belong to its sizes. Nothing is shown. Raises what the opinion's
/// statics raise.
SelectionProposal SelectByOpinion(const Design& design, const ProfileTypeArray& catalogue,
                                  const CheckNumbers& numbers, bool ownWeight);

}  // namespace trelonit
