#include "tests/checks/Recomputation.h"

#include <algorithm>
#include <cmath>

namespace trelonit::test {
namespace {

struct Properties {
  double A = 0;
  double in = 0;
  double out = 0;
};

Properties Composed(const SectionRec& section) {
  const double A = section.Profile.A;
  const double Jy = section.Profile.Jy;
  const double Jz = section.Profile.Jz;
  const double a = section.Profile.y0 / 10 + section.Gdist / 20;
  const double c = section.Profile.z0 / 10 + section.Gdist / 20;
  const double aroundA = 2 * (Jz + A * a * a);
  const double aroundC = 2 * (Jy + A * c * c);
  const Properties byLayout[] = {{},
                                 {A, Jy, Jz},
                                 {2 * A, 2 * Jy, aroundA},
                                 {2 * A, 2 * Jz, aroundC},
                                 {2 * A, aroundC, aroundA},
                                 {A, Jy, Jz},
                                 {A, Jy, Jz},
                                 {A, Jy, Jz},
                                 {2 * A, 2 * Jy, aroundA},
                                 {A, Jy, Jz},
                                 {A, Jz, Jy},
                                 {A, Jy, Jz}};
  return byLayout[section.Layout];
}

double Phi(double bar, double strain) {
  if (bar > 35) {
    return 0.017;
  }
  if (bar > 4.5) {
    return 332 / (bar * bar * (51 - bar));
  }
  if (bar > 2.5 && bar < 4.5) {
    return 1.47 - 13 * strain - (0.371 - 27.3 * strain) * bar +
           (0.0275 - 5.53 * strain) * bar * bar;
  }
  if (bar > 0 && bar < 2.5) {
    return 1 - (0.073 - 5.53 * strain) * std::pow(bar, 1.5);
  }
  return 0;
}

void PutForces(GroupCheck& block, const std::vector<double>& forces) {
  for (std::size_t i = 0; i < forces.size(); ++i) {
    const auto place = static_cast<Long>(i + 1);
    if (i == 0 || std::abs(forces[i]) > block.NMax.Value) {
      block.NMax = {std::abs(forces[i]), place};
    }
    if (forces[i] < block.NComp.Value) {
      block.NComp = {forces[i], place};
    }
  }
}

std::vector<double> Values(const BoundedArray<double>& forces) {
  return {forces.begin(), forces.end()};
}

/// The rows are the bracing options, the columns the schemes, both from 1.
struct LowerTable {
  double Length[4][4];
};

LowerTable LowerLengths(const DriverCase& c) {
  const double d = c.Res.LenPanel;
  const double d0 = c.Data.LenOporn;
  const double L = c.Data.LengthF;
  const Long n = c.Data.PanelNum;
  const double longer = std::max(d, d0);
  return {{{longer, d, d, 2 * d},
           {longer, 2 * d, n > 2 ? 2 * d : d, n > 4 ? 4 * d : 2 * d},
           {L / 2, L / 2, L / 2, L / 2},
           {L, L, L, L}}};
}

bool Among(Long number, Long last) {
  return number >= 1 && number <= last;
}

void PutLengths(CheckResult& check, const DriverCase& c) {
  const Long scheme = c.Data.TreloType;
  const double d = c.Res.LenPanel;
  const double d0 = c.Data.LenOporn;
  const double L = c.Data.LengthF;
  const auto endOr = [&](const ForceExtreme& force, const std::vector<double>& bars) {
    return force.Index == 1 || force.Index == static_cast<Long>(bars.size()) ? d0 : d;
  };
  const double upEnd = endOr(check.UpPoyas.NMax, Values(c.Res.UpPoyasForce));
  const double dwnEnd = endOr(check.DwnPoyas.NMax, Values(c.Res.DwnPoyasForce));

  check.UpPoyas.LenX = scheme == 3 ? d : upEnd;
  const double upper[] = {std::max(d, d0), std::max(d, d0), L / 2, L};
  if (Among(c.Data.UpPoyasBrace, 4)) {
    check.UpPoyas.LenY = upper[c.Data.UpPoyasBrace - 1];
  }
  const double lower[] = {dwnEnd, d, d, 2 * d};
  if (Among(scheme, 4)) {
    check.DwnPoyas.LenX = lower[scheme - 1];
    if (Among(c.Data.DownPoyasBrace, 4)) {
      check.DwnPoyas.LenY = LowerLengths(c).Length[c.Data.DownPoyasBrace - 1][scheme - 1];
    }
  }
  check.Stoyka.LenX = check.Stoyka.LenY = scheme == 3 ? 0 : c.Data.Hight;
  check.Raskos.LenX = check.Raskos.LenY = c.Res.LenRaskos;
  check.OpornRaskos.LenX = check.OpornRaskos.LenY = c.Res.LenOpornRaskos;
}

/// Figures of one plane of one group.
struct Plane {
  double Flex = 0, Bar = 0, Phi = 0, Alpha = 0, Stab = 0, Norm = 0, User = 0;
  LimitFlex Limit;
};

struct PlaneInput {
  double Length;
  double J;
  double A;
  double Compression;
  bool Absent;
  Long Layout;
};

Plane Calculated(const PlaneInput& in, const CheckNumbers& steel, std::vector<Message>& shown) {
  Plane p;
  p.Flex = in.Absent ? 0 : in.Length * 100 / std::sqrt(in.J / in.A);
  p.Bar = p.Flex * std::sqrt(steel.Ry / steel.E);
  p.Phi = Phi(p.Bar, steel.Ry / steel.E);
  const double resistance = in.A * steel.Ry * steel.Yc;
  if (p.Phi > 0) {
    p.Alpha = std::min(1.0, in.Compression * 98.1 / (p.Phi * resistance));
  }
  if (in.Layout == 1) {
    p.Limit.Compress = 210 - 60 * p.Alpha;
  } else if (in.Length > 50) {
    p.Limit.Compress = 120;
  } else if (in.Length > 0) {
    p.Limit.Compress = 180 - 60 * p.Alpha;
  } else {
    shown.push_back(lengthMessage);
  }
  p.Limit.Tension = steel.Dynamic ? 250 : 400;
  p.Limit.Tension2 = steel.Dynamic ? 350 : 400;
  if (in.Compression > 0) {
    p.Stab = in.Compression * steel.Gn * 98.1 / (p.Phi * resistance);
  }
  p.Norm = p.Flex / (in.Compression > 0 ? p.Limit.Compress : p.Limit.Tension);
  p.User = p.Flex / steel.LimitUser;
  return p;
}

void PutPlanes(GroupCheck& block, const Plane& x, const Plane& y) {
  block.AlphaX = x.Alpha;
  block.AlphaY = y.Alpha;
  block.FlexX = x.Flex;
  block.FlexY = y.Flex;
  block.FlexBarX = x.Bar;
  block.FlexBarY = y.Bar;
  block.PhiX = x.Phi;
  block.PhiY = y.Phi;
  block.KStabX = x.Stab;
  block.KStabY = y.Stab;
  block.KFlexX = x.Norm;
  block.KFlexY = y.Norm;
  block.LimitX = x.Limit;
  block.LimitY = y.Limit;
  block.KUserX = x.User;
  block.KUserY = y.User;
}

}  // namespace

Outcome Recomputed(const DriverCase& c) {
  Outcome outcome;
  CheckResult& check = outcome.Check;
  const bool lattice = c.Data.TreloType == 3;

  PutForces(check.UpPoyas, Values(c.Res.UpPoyasForce));
  PutForces(check.DwnPoyas, Values(c.Res.DwnPoyasForce));
  if (!lattice) {
    PutForces(check.Stoyka, Values(c.Res.StoykaForce));
  }
  std::vector<double> diagonals = Values(c.Res.RaskosForce);
  PutForces(check.OpornRaskos, diagonals);
  diagonals.erase(diagonals.begin());
  diagonals.pop_back();
  PutForces(check.Raskos, diagonals);
  PutLengths(check, c);

  const double totals[] = {c.Res.SumLenUpPoyas, c.Res.SumLenDwnPoyas, c.Res.SumLenRaskos,
                           c.Res.SumLenOpornRaskos, c.Res.SumLenStoyka};
  for (Long place = 1; place <= 5; ++place) {
    check.Mass += Composed(c.Sections[place]).A * totals[place - 1] * c.Numbers.Density / 10000;
  }
  if (!(check.Mass > 0)) {
    check.Mass = 0;
    outcome.Shown.push_back(massMessage);
  }

  GroupCheck* const blocks[] = {&check.UpPoyas, &check.DwnPoyas, &check.Stoyka, &check.Raskos,
                                &check.OpornRaskos};
  const Long placeOfBlock[] = {1, 2, 5, 3, 4};
  bool dividesByZero = false;
  for (int b = 0; b < 5; ++b) {
    GroupCheck& block = *blocks[b];
    const SectionRec& section = c.Sections[placeOfBlock[b]];
    const Properties props = Composed(section);
    const bool absent = lattice && b == 2;
    block.Area = props.A;
    block.Jin = props.in;
    block.Jout = props.out;
    if (!absent) {
      block.KStrength =
          block.NMax.Value * c.Numbers.Gn * 98.1 / (props.A * c.Numbers.Ry * c.Numbers.Yc);
    }
    PlaneInput input{block.LenX, props.in, props.A, -block.NComp.Value, absent, section.Layout};
    const Plane x = Calculated(input, c.Numbers, outcome.Shown);
    input.Length = block.LenY;
    input.J = props.out;
    const Plane y = Calculated(input, c.Numbers, outcome.Shown);
    PutPlanes(block, x, y);
    dividesByZero = dividesByZero || (block.NComp.Value < 0 && (x.Phi == 0 || y.Phi == 0));
  }
  if (dividesByZero) {
    outcome.Shown.push_back(DriverError("11 Discription : Division by zero"));
    outcome.Check = {};
  }
  return outcome;
}

}  // namespace trelonit::test
