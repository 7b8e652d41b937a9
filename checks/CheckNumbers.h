#pragma once

namespace trelonit {

/// Steel and reliability data of a check, in the order in which the form reads them.
struct CheckNumbers {
  double Ry = 0;       ///< design resistance, MPa (SNiP II-23-81*, table 51*)
  double E = 0;        ///< elastic modulus, MPa
  double Yc = 0;       ///< working-condition coefficient (SNiP II-23-81*, table 6*)
  double Gn = 0;       ///< reliability coefficient by importance (GOST 27751-88)
  double Density = 0;  ///< t/m3
  bool Dynamic = false;
  double LimitUser = 0;  ///< the user's limit slenderness; no norm asks for it
};

}  // namespace trelonit
