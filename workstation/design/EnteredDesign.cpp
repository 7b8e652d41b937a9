#include "workstation/design/EnteredDesign.h"

#include "analysis/Scheme.h"
#include "platform/values/Arithmetic.h"

namespace trelonit {

double EndPanelOf(const DesignInputs& inputs) {
  const Scheme* scheme = FindScheme(inputs.TreloType);
  const bool own = scheme != nullptr && scheme->OwnEndPanels && inputs.LenOporn > 0;
  return own ? Real(inputs.LenOporn) : Real(inputs.LengthF) / inputs.PanelNum;
}

bool HasSteepDiagonals(const DesignInputs& inputs) {
  // 2.2 is the tangent of about 65.6 degrees for a diagonal across one panel, 4.4 across half a
  // panel.
  const Scheme* scheme = FindScheme(inputs.TreloType);
  const Real H = inputs.Hight;
  const Real slope = H * inputs.PanelNum / Real(inputs.LengthF);
  return scheme != nullptr && scheme->DiagonalsSpanHalfPanels()
             ? slope > 4.4
             : slope > 2.2 || H / EndPanelOf(inputs) > 2.2;
}

Design DesignOf(const DesignInputs& inputs, const AcceptedGeometry& sizes,
                const OwnWeightState& ownWeight) {
  Design design{.ElementSection = inputs.ElementSection, .OwnWeight = ownWeight};
  TreloData& data = design.TreloData;
  static_cast<LoadArrays&>(data) = inputs.Loads;
  data.TreloType = inputs.TreloType;
  data.UpPoyasBrace = inputs.UpPoyasBrace;
  data.DownPoyasBrace = inputs.DownPoyasBrace;
  data.LengthF = sizes.LengthF;
  data.Hight = sizes.Hight;
  data.LenOporn = sizes.LenOporn;
  data.PanelNum = sizes.PanelNum;
  return design;
}

Design DesignOf(const DesignInputs& inputs, const OwnWeightState& ownWeight) {
  return DesignOf(inputs,
                  {.LengthF = inputs.LengthF,
                   .Hight = inputs.Hight,
                   .LenOporn = EndPanelOf(inputs),
                   .PanelNum = inputs.PanelNum},
                  ownWeight);
}

}  // namespace trelonit
