#pragma once

#include <string_view>

#include "checks/modCheckueStress.h"
#include "platform/Message.h"
#include "platform/NumberText.h"
#include "workstation/DesignModel.h"
#include "workstation/ProgibResult.h"

namespace trelonit {

/// Copies the master loads into the analysis input, analyses and checks. A failed analysis leaves
/// an empty result, which goes on to the checks.
void AnalyseAndCheck(Design& design, const CheckNumbers& numbers, MessageService& messages);

/// Brings the own weight inside the distributed master loads to the mass of the last check, spread
/// over the sum of both chord lengths and rounded to 4 decimals, and analyses once more. Returns
/// false, and does nothing, when just this amount is inside already. There is one re-analysis a
/// command: the mass does not depend on the forces.
bool ApplyOwnWeight(Design& design, const CheckNumbers& numbers, MessageService& messages);

/// The deflection of the chosen chord against the limit span / N, with N the whole number in the
/// limit's text ("1 / 120") from its fifth character on.
ProgibResult CheckProgib(const Design& design, bool upChord, double E, std::string_view limitText,
                         const NumberLocale& locale, MessageService& messages);

}  // namespace trelonit
