#pragma once

#include <cstdint>
#include <string_view>
#include <utility>

#include "analysis/modDatatypes.h"
#include "platform/errors/Outcome.h"
#include "platform/values/Arithmetic.h"

namespace trelonit {

// What the four solvers share. Each of them is the method of joints written out: reactions from
// moments, then joint after joint from the left, two unknown bars a joint. No system of equations
// is formed; what is left over at the right support is the check.

using Reals = BoundedArray<Real>;

/// Half panels and slopes of the trusses with end panels of their own length.
struct PanelGeometry {
  explicit PanelGeometry(const TreloData& data);

  Real L, H, Lop;
  Long n;
  Real Alpha;  ///< slope of the support diagonals: arctan(H / Lop)
  Real d;      ///< regular panel: (L - 2 Lop) / (n - 2)
  Real Beta;   ///< slope of the regular diagonals: arctan(H / d)
  Real SinAlpha, CosAlpha, SinBeta, CosBeta;
  Real LenOpornRaskos;  ///< Lop / cos Alpha
  Real LenRaskos;       ///< d / cos Beta
};

/// Joint loads of a chord whose two end panels are Lop long: the point load and half the load of
/// each adjacent panel. q and p are the chord's distributed and point loads.
Reals EndPanelKnotLoads(const BoundedArray<double>& q, const BoundedArray<double>& p,
                        const PanelGeometry& panels);

/// The same for a chord with joints 0 to last and panels that are all equally long.
Reals EqualPanelKnotLoads(const BoundedArray<double>& q, const BoundedArray<double>& p,
                          Real panelLength, Long last);

/// Moments of joint loads: Left about the right support (it gives the left reaction), Right about
/// the left one.
struct Moments {
  Real Left;
  Real Right;

  /// Loads 0 to n at the columns of a chord with end panels.
  void AddColumns(const Reals& loads, const PanelGeometry& panels);
  /// Loads that stand evenly spaced, the first and the last at this distance from the supports.
  void AddSpaced(const Reals& loads, Real distance, Real spacing);
};

/// The joint count, no more than a Long holds. Raises 9 for one that only a damaged input can ask
/// for: the table of bar forces is square in the joints, and a panel count of 30,000 would cost
/// gigabytes.
Long RequireKnotNum(std::int64_t knotNum);

/// All that a walk has found, in the symbols of the method: loads, reactions, chords U and D,
/// diagonals R, verticals V, each left to right, and the three closing residuals.
struct WalkedTruss {
  Long J = 0;
  Reals Pu, Pd;
  Real ReactLeft, ReactRight;
  Reals U, D, R, V;
  Real r1, r2, r3;
};

/// Sets bar forces that are rounding noise, below 1e-11 of the greatest one, to 0: the program's
/// own rule. A bar that carries nothing must not count as compressed because its force came out as
/// -1e-15: the checks ask for the sign.
void DropRoundingNoise(WalkedTruss& truss);

/// The record of the walk; the bar table is sized and empty, lengths and angles are still 0.
/// Balanced, by the program's own rule, when each residual, shown with 4 decimals, reads back as
/// exactly 0.
TreloResult ResultOf(const WalkedTruss& truss);

/// Puts a bar's force at its joint pair in both orders.
void PutBar(SquareTable<double>& bars, Long joint, Long otherJoint, Real force);

/// Geometry, angles and lengths of the schemes with end panels.
void PutPanels(TreloResult& result, const PanelGeometry& panels);

/// Runs a solver's body under its title. The result is taken whole or not at all.
template <class Body>
Outcome<TreloResult> Solve(std::string_view title, Body&& body) {
  return Attempt<TreloResult>(
      title, [&](Outcome<TreloResult>& outcome) { outcome.Value = std::forward<Body>(body)(); });
}

}  // namespace trelonit
