#include "analysis/modTrelo.h"

namespace trelonit {

// Reserved scheme: giving it a body is all that a new truss needs here.
TreloResult CalcTrelo8(const TreloData& /*data*/, MessageService& /*messages*/) {
  return {};
}

}  // namespace trelonit
