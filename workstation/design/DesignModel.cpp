#include "workstation/design/DesignModel.h"

namespace trelonit {

Design DesignModel::ToCalculate() const {
  return DesignOf(Inputs, Accepted, OwnWeight);
}

}  // namespace trelonit
