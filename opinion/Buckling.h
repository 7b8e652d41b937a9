#pragma once

namespace trelonit {

/// The buckling coefficient with the formula of the norm that gave it.
struct Buckling {
  double Phi = 0;
  /// 8, 9 or 10; 0 beyond a conditional slenderness of 35, where the norm has no formula and 0.017
  /// is this program's own figure.
  int Formula = 0;
};

/// SNiP II-23-81*, clause 5.3, formulas (8) to (10), for the conditional slenderness lambda *
/// sqrt(Ry / E). The bounds between the formulas belong to the lower one. Raises 11, 6 or 5 where
/// the arithmetic does.
Buckling BucklingCoefficient(double conditionalSlenderness, double Ry, double E);

}  // namespace trelonit
