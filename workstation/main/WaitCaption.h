#pragma once

#include "platform/forms/Controls.h"

namespace trelonit {

/// One step of the caption that tells the user to wait: blanks and points grow before the caption,
/// then the text stands, then it begins anew. The counter starts at 1. Its timers have no interval,
/// so that it stands ready and does not run.
void StepWaitCaption(Label& form, Long& counter);

}  // namespace trelonit
