#include "analysis/modMaxProgib.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <numeric>
#include <vector>

#include "analysis/Scheme.h"
#include "analysis/TransposedWalk.h"
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

/// A bar's share in the deflection for a unit force in it, end bars and the others apart, as
/// Deflection has them.
std::vector<double> Weights(const BoundedArray<double>& real, double endSlack, double slack) {
  std::vector<double> weights(real.begin(), real.end());
  for (std::size_t bar = 0; bar < weights.size(); ++bar) {
    weights[bar] *= bar == 0 || bar + 1 == weights.size() ? endSlack : slack;
  }
  return weights;
}

BarWeights WeightsOf(const Scheme& scheme, const TreloData& data, const TreloResult& real,
                     const CheckResult& check, double E) {
  const auto slack = [E](double length, const GroupCheck& group) {
    return static_cast<double>(megapascals) * length / (group.Area * E);
  };
  const double lower = slack(real.LenPanel, check.DwnPoyas);
  const double vertical = slack(data.Hight, check.Stoyka);
  return {.U = Weights(real.UpPoyasForce, slack(data.LenOporn, check.UpPoyas),
                       slack(real.LenPanel, check.UpPoyas)),
          .D = Weights(real.DwnPoyasForce,
                       scheme.LowerEndPanels ? slack(data.LenOporn, check.DwnPoyas) : lower, lower),
          .R = Weights(real.RaskosForce, slack(real.LenOpornRaskos, check.OpornRaskos),
                       slack(real.LenRaskos, check.Raskos)),
          .V = Weights(real.StoykaForce, vertical, vertical)};
}

/// Nothing in it comes near a division by zero or the range of Double, so that no walk can fail.
bool IsOrdinary(const Scheme& scheme, const TreloData& data, const CheckResult& check, double E) {
  const double panels = scheme.OwnEndPanels ? data.LengthF - 2 * data.LenOporn : data.LengthF;
  const std::array<double, 10> values{data.LengthF,           data.Hight,
                                      data.LenOporn,          panels,
                                      check.UpPoyas.Area,     check.DwnPoyas.Area,
                                      check.Stoyka.Area,      check.Raskos.Area,
                                      check.OpornRaskos.Area, E};
  return std::all_of(values.begin(), values.end(),
                     [](double value) { return 1e-6 <= value && value <= 1e12; });
}

/// Whether the forces are those of a truss with these joints.
bool HasForcesOf(const Scheme& scheme, const TreloData& data, const TreloResult& real) {
  const Long n = data.PanelNum;
  const Long lower = scheme.LastLowerJoint(n);
  const auto has = [](const BoundedArray<double>& forces, Long count) {
    return forces.end() - forces.begin() == count;
  };
  return has(real.UpPoyasForce, n) && has(real.DwnPoyasForce, lower) &&
         has(real.RaskosForce, scheme.HasVerticals ? n : 2 * n) &&
         has(real.StoykaForce, scheme.HasVerticals ? lower + 1 : n);
}

double SumOfMagnitudes(const std::vector<double>& values) {
  return std::accumulate(values.begin(), values.end(), 0.0,
                         [](double sum, double value) { return sum + std::abs(value); });
}

/// The joints of a chord, 0 to last, that can have the greatest deflection: where one walk the
/// other way round tells the others to stay well below it, they need no unit run. All of them where
/// anything is out of the ordinary.
std::vector<Long> JointsToRun(const TreloData& data, const TreloResult& real,
                              const CheckResult& check, Chord chord, double E, Long last) {
  std::vector<Long> joints(static_cast<std::size_t>(last) + 1);
  std::iota(joints.begin(), joints.end(), 0);
  const Scheme* scheme = FindScheme(data.TreloType);
  if (scheme == nullptr || scheme->Reserved || !scheme->HasPanelNum(data.PanelNum) ||
      !IsOrdinary(*scheme, data, check, E) || !HasForcesOf(*scheme, data, real)) {
    return joints;
  }
  BarWeights weights = WeightsOf(*scheme, data, real, check, E);
  // No unit force is greater than about the span over the height or over a panel, and a walk drops
  // what is below 1e-11 of the greatest: the estimates are a hundred times better than this.
  const double greatestForce =
      1 + data.LengthF / data.Hight + std::abs(real.LenOpornRaskos + real.LenRaskos) / data.Hight;
  const double uncertainty = 1e-9 * greatestForce *
                             (SumOfMagnitudes(weights.U) + SumOfMagnitudes(weights.D) +
                              SumOfMagnitudes(weights.R) + SumOfMagnitudes(weights.V));
  const std::vector<double> estimates = WeightedUnitForces(data, chord, std::move(weights));
  const double least = *std::max_element(estimates.begin(), estimates.end()) - uncertainty;
  // Written so that a NaN keeps its joint.
  const auto isBelow = [&](Long joint) {
    return estimates[static_cast<std::size_t>(joint)] < least;
  };
  joints.erase(std::remove_if(joints.begin(), joints.end(), isBelow), joints.end());
  return joints;
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

  const std::vector<Long> joints = JointsToRun(
      data, res, check, upChord ? Chord::Upper : Chord::Lower, E, pointLoads.UpperBound());
  double& greatest = progib.Value;
  for (const Long joint : joints) {
    pointLoads[joint] = 1;
    const TreloResult unit = TakeValue(CalcTrelo(unitData), progib.Told);
    const WorkSums sums = SumWork(data, res, unit);
    double deflection = 0;
    PassOver([&] { deflection = Deflection(data, res, check, sums, E); });
    greatest = joint == joints.front() ? deflection : std::max(greatest, deflection);
    pointLoads[joint] = 0;
  }
  return progib;
}

}  // namespace trelonit
