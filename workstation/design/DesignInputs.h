#pragma once

#include <string>

#include "analysis/modDatatypes.h"
#include "catalogue/SectionRecord.h"
#include "checks/CheckNumbers.h"

namespace trelonit {

/// What the engineer has entered: what the inputs of the main form show and what a project file
/// holds, in the order of its fields. Results are not in it. Lengths in metres, strength and
/// modulus in MPa, density in t/m3, loads in tonnes and tonnes per metre.
struct DesignInputs {
  Integer TreloType = 0;
  Integer UpPoyasBrace = 0;
  Integer DownPoyasBrace = 0;
  double LengthF = 0;
  double Hight = 0;
  double LenOporn = 0;
  Long PanelNum = 0;
  std::string SteelName;
  double Ry = 0;
  double Density = 0;
  double ModulYung = 0;
  double LimitFlex = 0;
  double Nadegnost = 0;
  double UsloviyaRabot = 0;
  Integer ProgibOn = 0;
  std::string LenLim;
  Integer ProgibUpper = 0;
  /// The group option whose section the inputs show.
  Integer ActiveGroup = 0;
  /// Subscripts by SectionPlace.
  SectionArray ElementSection{1, sectionCount};
  Integer DinloadOn = 0;
  Integer OwnWeightOn = 0;
  Integer AllPanelsOn = 0;
  Integer PForceTool = 0;
  LoadArrays Loads;
  bool ReservedFlag = false;

  friend bool operator==(const DesignInputs&, const DesignInputs&) = default;
};

/// What the checks read of it.
inline CheckNumbers CheckNumbersOf(const DesignInputs& inputs) {
  return {.Ry = inputs.Ry,
          .E = inputs.ModulYung,
          .Yc = inputs.UsloviyaRabot,
          .Gn = inputs.Nadegnost,
          .Density = inputs.Density,
          .Dynamic = inputs.DinloadOn != 0,
          .LimitUser = inputs.LimitFlex};
}

}  // namespace trelonit
