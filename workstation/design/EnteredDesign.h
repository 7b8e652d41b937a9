#pragma once

#include "workstation/design/Design.h"
#include "workstation/design/DesignInputs.h"

namespace trelonit {

/// The sizes that the geometry check last let through; what is calculated has them.
struct AcceptedGeometry {
  double LengthF = 0;
  double Hight = 0;
  double LenOporn = 0;
  Long PanelNum = 0;
};

/// The truss of these sizes that has everything else as the inputs have it. The state is that of
/// their loads.
Design DesignOf(const DesignInputs& inputs, const AcceptedGeometry& sizes,
                const OwnWeightState& ownWeight);

// The truss that inputs describe as they stand, whatever the geometry check would say of them.

/// The length of an end panel: the entered one where the scheme has its own and one is given,
/// otherwise that of all panels. Raises 6 or 11 for a panel count of 0.
double EndPanelOf(const DesignInputs& inputs);

/// Whether a diagonal is steeper than about 65 degrees. Raises 6 or 11 for sizes of 0.
bool HasSteepDiagonals(const DesignInputs& inputs);

/// What would be calculated of them. The state is that of their loads. Raises as EndPanelOf does.
Design DesignOf(const DesignInputs& inputs, const OwnWeightState& ownWeight);

}  // namespace trelonit
