#pragma once

#include <stdexcept>
#include <vector>

#include "analysis/Scheme.h"
#include "analysis/modTrelo.h"
#include "tests/support/TestServices.h"

namespace trelonit::test {

/// Panel counts that the program offers for a scheme.
inline std::vector<Long> PanelCounts(Long scheme) {
  std::vector<Long> counts;
  const Long step = scheme == 3 ? 1 : 2;
  for (Long n = scheme == 3 ? 2 : 4; n <= 30; n += step) {
    counts.push_back(n);
  }
  return counts;
}

/// A design without loads, the arrays sized for it; lengths in metres. In scheme 3 the end panel is
/// always L / n.
inline TreloData Design(Long scheme, Long n, double L, double H, double Lop) {
  TreloData data;
  data.TreloType = scheme;
  data.LengthF = L;
  data.Hight = H;
  data.LenOporn = scheme == 3 ? L / n : Lop;
  data.PanelNum = n;
  data.UpPoyasBrace = 2;
  data.DownPoyasBrace = 2;
  static_cast<LoadArrays&>(data) = ZeroLoads(BoundsOfLoads(scheme, n).value());
  return data;
}

/// The design of the program's start.
inline TreloData StartDesign(Long scheme) {
  return Design(scheme, 10, 20, 1.5, 2);
}

/// Slopes of 45 degrees everywhere, panels of 2 m: forces are whole numbers or multiples of a
/// root of 2.
inline TreloData SquareDesign(Long scheme, Long n) {
  return Design(scheme, n, 2.0 * n, scheme == 3 ? 1 : 2, 2);
}

inline void FillIrregular(BoundedArray<double>& loads, double seed) {
  double value = seed;
  for (double& load : loads) {
    // No two neighbours are alike and the signs mix.
    value = value > 5 ? value - 7.25 : value + 2.875;
    load = value;
  }
}

/// Loads on everything, without any symmetry.
inline void FillIrregular(TreloData& data) {
  FillIrregular(data.UpPForce, 1.5);
  FillIrregular(data.UpDistForce, -0.75);
  FillIrregular(data.DwnPForce, 0.25);
  FillIrregular(data.DwnDistForce, 3.125);
}

inline void Clear(BoundedArray<double>& loads) {
  for (double& load : loads) {
    load = 0;
  }
}

/// The analysis of a design that must be solved in silence.
inline TreloResult Solved(const TreloData& data) {
  Outcome<TreloResult> outcome = CalcTrelo(data);
  if (!outcome.Told.empty()) {
    throw std::logic_error(outcome.Told.front().Title + ": " + outcome.Told.front().Text);
  }
  return outcome.Value;
}

inline std::vector<double> Values(const BoundedArray<double>& array) {
  return {array.begin(), array.end()};
}

/// Reactions and bar forces in one row: chords, diagonals, verticals.
inline std::vector<double> AllForces(const TreloResult& result) {
  std::vector<double> forces{result.ReactLeft, result.ReactRight};
  for (const auto* group :
       {&result.UpPoyasForce, &result.DwnPoyasForce, &result.RaskosForce, &result.StoykaForce}) {
    forces.insert(forces.end(), group->begin(), group->end());
  }
  return forces;
}

}  // namespace trelonit::test
