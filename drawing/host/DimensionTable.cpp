#include "drawing/host/DimensionTable.h"

namespace trelonit {

DimensionVariables EffectiveVariables(const DrawingDimension& dimension) {
  DimensionVariables variables = dimension.Variables;
  variables.DIMSCALE = dimension.ScaleFactor;
  variables.DIMASZ = dimension.ArrowheadSize;
  variables.DIMGAP = dimension.TextGap;
  variables.DIMTXT = dimension.TextHeight;
  variables.DIMTIH = dimension.TextInsideAlign ? 1 : 0;
  variables.DIMDEC = dimension.PrimaryUnitsPrecision;
  variables.DIMTXSTY = dimension.TextStyle;
  return variables;
}

}  // namespace trelonit
