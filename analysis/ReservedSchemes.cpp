#include "analysis/modTrelo.h"

namespace trelonit {

// Schemes with a place in the program and no body yet. A new truss takes its row in the schemes'
// table, and its routine moves from here to a file of its own, modTrelo5.cpp for the fifth.

TreloResult CalcTrelo5(const TreloData& /*data*/, MessageService& /*messages*/) {
  return {};
}

TreloResult CalcTrelo6(const TreloData& /*data*/, MessageService& /*messages*/) {
  return {};
}

TreloResult CalcTrelo7(const TreloData& /*data*/, MessageService& /*messages*/) {
  return {};
}

TreloResult CalcTrelo8(const TreloData& /*data*/, MessageService& /*messages*/) {
  return {};
}

TreloResult CalcTrelo9(const TreloData& /*data*/, MessageService& /*messages*/) {
  return {};
}

TreloResult CalcTrelo10(const TreloData& /*data*/, MessageService& /*messages*/) {
  return {};
}

}  // namespace trelonit
