#include "analysis/modMaxProgib.h"

#include <algorithm>

#include "analysis/Scheme.h"
#include "analysis/modTrelo.h"
#include "platform/errors/Guard.h"
#include "platform/values/Arithmetic.h"
#include "platform/values/Units.h"

namespace trelonit {

namespace {

/// Sum of real times unit force over the bars first to last of a force array.
Real Work(const BoundedArray<double>& real, const BoundedArray<double>& unit, Long first,
          Long last) {
  double sum = 0;
  for (Long bar = first; bar <= last; ++bar) {
    sum += real[bar] * unit[bar];
  }
  return {Finite(sum)};
}

Real EndBarWork(const BoundedArray<double>& real, const BoundedArray<double>& unit) {
  return Work(real, unit, real.LowerBound(), real.LowerBound()) +
         Work(real, unit, real.UpperBound(), real.UpperBound());
}

Real MiddleBarWork(const BoundedArray<double>& real, const BoundedArray<double>& unit) {
  return Work(real, unit, real.LowerBound() + 1, real.UpperBound() - 1);
}

Real AllBarWork(const BoundedArray<double>& real, const BoundedArray<double>& unit) {
  return Work(real, unit, real.LowerBound(), real.UpperBound());
}

/// Sums of real times unit force by the length that the bars are taken with.
struct WorkSums {
  // Doubles, not Reals: GCC 12 drops the zero that a Real starts with when the call that is to
  // give it its value throws, and the sum of a failed unit run would be whatever lay in memory.
  double UpEnds = 0, UpMiddle = 0, DwnEnds = 0, DwnMiddle = 0;
  double Verticals = 0, Diagonals = 0, SupportDiagonals = 0;
};

WorkSums SumWork(const TreloData& data, const TreloResult& real, const TreloResult& unit) {
  WorkSums sums;
  // A failed unit run has no force arrays: its sums stay 0.
  PassOver([&] { sums.UpEnds = EndBarWork(real.UpPoyasForce, unit.UpPoyasForce); });
  PassOver([&] { sums.UpMiddle = MiddleBarWork(real.UpPoyasForce, unit.UpPoyasForce); });
  const Scheme* scheme = FindScheme(data.TreloType);
  if (scheme != nullptr && scheme->LowerEndPanels) {
    PassOver([&] { sums.DwnEnds = EndBarWork(real.DwnPoyasForce, unit.DwnPoyasForce); });
    PassOver([&] { sums.DwnMiddle = MiddleBarWork(real.DwnPoyasForce, unit.DwnPoyasForce); });
  } else {
    PassOver([&] { sums.DwnMiddle = AllBarWork(real.DwnPoyasForce, unit.DwnPoyasForce); });
  }
  PassOver([&] { sums.Verticals = AllBarWork(real.StoykaForce, unit.StoykaForce); });
  PassOver([&] { sums.Diagonals = MiddleBarWork(real.RaskosForce, unit.RaskosForce); });
  PassOver([&] { sums.SupportDiagonals = EndBarWork(real.RaskosForce, unit.RaskosForce); });
  return sums;
}

/// Deflection in metres by the sum of N u l / (E A), with forces in tonnes, areas in cm2 and E
/// in MPa.
Real Deflection(const TreloData& data, const TreloResult& real, const CheckResult& check,
                const WorkSums& sums, Real E) {
  const auto term = [E](double length, double area, Real sum) {
    return megapascals * Real(length) / (area * E) * sum;
  };
  // Intended, and the program's own rule: the lengths are the same whatever the scheme, although a
  // lower chord bar of scheme 4 is 2d long and counts with d here.
  return term(data.LenOporn, check.UpPoyas.Area, sums.UpEnds) +
         term(real.LenPanel, check.UpPoyas.Area, sums.UpMiddle) +
         term(data.LenOporn, check.DwnPoyas.Area, sums.DwnEnds) +
         term(real.LenPanel, check.DwnPoyas.Area, sums.DwnMiddle) +
         term(data.Hight, check.Stoyka.Area, sums.Verticals) +
         term(real.LenRaskos, check.Raskos.Area, sums.Diagonals) +
         term(real.LenOpornRaskos, check.OpornRaskos.Area, sums.SupportDiagonals);
}

}  // namespace

Outcome<double> CalcProgib(const TreloData& data, const TreloResult& res, const CheckResult& check,
                           bool upChord, double E) {
  Outcome<double> progib;
  TreloData unitData = data;
  const auto bounds = BoundsOfLoads(data.TreloType, data.PanelNum);
  if (!bounds || !PassOver([&] { static_cast<LoadArrays&>(unitData) = ZeroLoads(*bounds); })) {
    return progib;
  }
  BoundedArray<double>& pointLoads = upChord ? unitData.UpPForce : unitData.DwnPForce;

  double& greatest = progib.Value;
  for (Long joint = pointLoads.LowerBound(); joint <= pointLoads.UpperBound(); ++joint) {
    pointLoads[joint] = 1;
    const TreloResult unit = TakeValue(CalcTrelo(unitData), progib.Told);
    const WorkSums sums = SumWork(data, res, unit);
    double deflection = 0;
    PassOver([&] { deflection = Deflection(data, res, check, sums, E); });
    greatest = joint == pointLoads.LowerBound() ? deflection : std::max(greatest, deflection);
    pointLoads[joint] = 0;
  }
  return progib;
}

}  // namespace trelonit
