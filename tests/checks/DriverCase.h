#pragma once

#include <functional>
#include <vector>

#include "tests/checks/Checks.h"

namespace trelonit::test {

/// What the driver gave and showed.
struct DriverRun {
  CheckResult Check;
  std::vector<Message> Shown;
};

/// The arguments of the driver, to be changed at will. At the start: a truss of scheme 1 with made
/// up forces, the upper chord and the verticals in compression, the lower chord in tension; forces
/// are equal in pairs, as a symmetric load gives them. Ry / E is 1 / 1024, so that the conditional
/// slenderness is the slenderness over 32, without rounding.
struct DriverCase {
  DriverCase() {
    Data.TreloType = 1;
    Data.LengthF = 24;
    Data.Hight = 2;
    Data.LenOporn = 2.5;
    Data.PanelNum = 8;
    Data.UpPoyasBrace = 1;
    Data.DownPoyasBrace = 1;
    Res.LenPanel = 3;
    Res.LenRaskos = 4.5;
    Res.LenOpornRaskos = 3.5;
    Res.UpPoyasForce = Forces({-6, -10, -14, -16, -16, -14, -10, -6});
    Res.DwnPoyasForce = Forces({1, 8, 12, 15, 15, 12, 8, 1});
    Res.RaskosForce = Forces({9, -7, 5, -3, -3, 5, -7, 9});
    Res.StoykaForce = Forces({-2, -8, -1, -4, -1, -8, -2});
    Res.SumLenUpPoyas = 24;
    Res.SumLenDwnPoyas = 23;
    Res.SumLenRaskos = 27;
    Res.SumLenOpornRaskos = 7;
    Res.SumLenStoyka = 14;
    Numbers = {
        .Ry = 240, .E = 240 * 1024, .Yc = 0.9, .Gn = 0.95, .Density = 7.85, .LimitUser = 150};
    Sections = SameSections(Turned(20, 3, 5));
  }

  /// A section of this area (cm2) with these radii of gyration (cm).
  static SectionRec Turned(double area, double iin, double iout, Long layout = 6) {
    return Single(area, area * iin * iin, area * iout * iout, layout);
  }

  DriverRun Run() const {
    auto [check, told] = CheckueStress(Data, Res, Numbers, Sections);
    return {check, told};
  }

  TreloData Data;
  TreloResult Res;
  CheckNumbers Numbers;
  SectionArray Sections;
};

}  // namespace trelonit::test
