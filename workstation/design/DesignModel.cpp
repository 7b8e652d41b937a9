#include "workstation/design/DesignModel.h"

namespace trelonit {

Design DesignModel::ToCalculate() const {
  Design design{.ElementSection = Inputs.ElementSection, .OwnWeight = OwnWeight};
  TreloData& data = design.TreloData;
  static_cast<LoadArrays&>(data) = Inputs.Loads;
  data.TreloType = Inputs.TreloType;
  data.UpPoyasBrace = Inputs.UpPoyasBrace;
  data.DownPoyasBrace = Inputs.DownPoyasBrace;
  data.LengthF = Accepted.LengthF;
  data.Hight = Accepted.Hight;
  data.LenOporn = Accepted.LenOporn;
  data.PanelNum = Accepted.PanelNum;
  return design;
}

}  // namespace trelonit
