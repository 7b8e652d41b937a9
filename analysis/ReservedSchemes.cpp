#include "analysis/modTrelo.h"

namespace trelonit {

// Schemes with a place in the program and no body yet. A new truss takes its row in the schemes'
// table, and its routine moves from here to a file of its own, modTrelo5.cpp for the fifth.

Outcome<TreloResult> CalcTrelo5(const TreloData& /*data*/) {
  return {};
}

Outcome<TreloResult> CalcTrelo6(const TreloData& /*data*/) {
  return {};
}

Outcome<TreloResult> CalcTrelo7(const TreloData& /*data*/) {
  return {};
}

Outcome<TreloResult> CalcTrelo8(const TreloData& /*data*/) {
  return {};
}

Outcome<TreloResult> CalcTrelo9(const TreloData& /*data*/) {
  return {};
}

Outcome<TreloResult> CalcTrelo10(const TreloData& /*data*/) {
  return {};
}

}  // namespace trelonit
