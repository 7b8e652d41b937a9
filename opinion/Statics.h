#pragma once

#include <vector>

#include "analysis/Scheme.h"
#include "analysis/modDatatypes.h"

namespace trelonit {

// Forces and displacements of a truss from the equilibrium of its joints, all at once: no joint and
// no load has a rule of its own. Forces in tonnes, positive in tension; loads positive downward.

struct Statics {
  std::vector<double> Loads;   ///< by joint
  std::vector<double> Forces;  ///< by bar
  double ReactLeft = 0;        ///< positive upward
  double ReactRight = 0;
};

/// The load of each joint: its point load and half the load of each panel of its chord beside it,
/// with the true length of the panel. Raises 9 where the arrays are too short for the truss.
std::vector<double> JointLoads(const Truss& truss, const LoadArrays& loads);

/// Bar forces and reactions under these joint loads: two equations a joint, one unknown a bar and
/// three reactions. Raises 11 for a truss that is a mechanism, 6 beyond the range of Double.
Statics SolveStatics(const Truss& truss, std::vector<double> loads);

/// What is left over at a joint under bar forces, reactions and loads.
struct Residual {
  double Right = 0;
  double Up = 0;

  double Size() const;
};

/// The residual of each joint; zero throughout is equilibrium. The horizontal reaction is none.
/// Raises 6 beyond the range of Double.
std::vector<Residual> Residuals(const Truss& truss, const Statics& statics);

/// Movement of a joint.
struct Displacement {
  double Right = 0;  ///< metres
  double Down = 0;   ///< metres
};

/// How the joints move when each bar stretches by N l / (E A). Areas by bar in cm2, E in MPa.
/// Raises as SolveStatics.
std::vector<Displacement> Displacements(const Truss& truss, const std::vector<double>& forces,
                                        const std::vector<double>& areas, double E);

}  // namespace trelonit
