#pragma once

#include "checks/CheckNumbers.h"
#include "tests/verification/Chance.h"
#include "workstation/design/Calculation.h"

namespace trelonit::verification {

struct RandomRoof {
  Design Inputs;
  CheckNumbers Numbers;
};

/// A roof truss as an engineer might enter it: any scheme, 12 to 36 m, panels of 1.5 to 3.5 m, a
/// height of a twelfth to a seventh of the span, any bracing of either chord, roof and snow on the
/// upper chord, sometimes on one half alone, sometimes something hung from the lower one; a layout,
/// a standard and a size by chance for each group; Ry of 230 to 335 MPa.
RandomRoof AnyRoof(Chance& chance);

}  // namespace trelonit::verification
