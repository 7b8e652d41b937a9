#include "analysis/JointWalk.h"
#include "analysis/Scheme.h"
#include "analysis/modTrelo.h"

namespace trelonit {

namespace {

Reals LowerKnotLoads(const TreloData& data, const PanelGeometry& panels) {
  const Long last = panels.n - 2;
  Reals loads = EqualPanelKnotLoads(data.DwnDistForce, data.DwnPForce, panels.d, last);
  // Intended: the second lower joint stays without load whatever stands there. Results of existing
  // projects depend on it.
  if (last > 1) {
    loads[1] = 0;
  }
  return loads;
}

TreloResult SolveScheme2(const TreloData& data) {
  const Long n = Subtractable(data.PanelNum);
  const Long m = n / 2;
  const Long J = RequireKnotNum(2 * std::int64_t{n});
  const PanelGeometry panels(data);
  const Real d = panels.d;
  const Real sinAlpha = panels.SinAlpha;
  const Real cosAlpha = panels.CosAlpha;
  const Real sinBeta = panels.SinBeta;
  const Real cosBeta = panels.CosBeta;

  WalkedTruss truss{.J = J,
                    .Pu = EndPanelKnotLoads(data.UpDistForce, data.UpPForce, panels),
                    .Pd = LowerKnotLoads(data, panels)};
  auto& [knotNum, Pu, Pd, reactLeft, reactRight, U, D, R, V, r1, r2, r3] = truss;

  Moments moments;
  moments.AddColumns(Pu, panels);
  moments.AddSpaced(Pd, panels.Lop, d);
  reactLeft = moments.Left / panels.L;
  reactRight = moments.Right / panels.L;

  U = Reals(0, n - 1);
  D = Reals(0, n - 3);
  R = Reals(0, n - 1);
  V = Reals(1, n - 1);

  R[0] = (reactLeft - Pu[0]) / sinAlpha;
  U[0] = -cosAlpha * R[0];
  V[1] = Pd[0] - sinAlpha * R[0];
  D[0] = cosAlpha * R[0];
  for (Long c = 1; c <= m - 1; ++c) {
    R[c] = (-V[c] - Pu[c]) / sinBeta;
    U[c] = U[c - 1] - cosBeta * R[c];
    if (c < m - 1) {
      V[c + 1] = Pd[c] - sinBeta * R[c];
      D[c] = cosBeta * R[c] + D[c - 1];
    }
  }
  U[m] = U[m - 1];
  V[m] = -Pu[m];
  // Intended: from the middle on the walk takes the lower loads one index ahead of their joints
  // (the reactions keep each in its place). It shows only under loads on the lower chord, which
  // then leave the truss unbalanced.
  R[m] = (Pd[m] - V[m] - sinBeta * R[m - 1]) / sinBeta;
  D[m - 1] = cosBeta * R[m - 1] + D[m - 2] - cosBeta * R[m];
  for (Long c = m + 1; c <= n - 1; ++c) {
    V[c] = -Pu[c] - sinBeta * R[c - 1];
    U[c] = cosBeta * R[c - 1] + U[c - 1];
    if (c < n - 1) {
      R[c] = (Pd[c] - V[c]) / sinBeta;
      D[c - 1] = D[c - 2] - cosBeta * R[c];
    }
  }
  R[n - 1] = D[n - 3] / cosAlpha;
  r1 = sinAlpha * R[n - 1] + V[n - 1] - Pd[n - 2];
  r2 = reactRight - Pu[n] - sinAlpha * R[n - 1];
  r3 = -U[n - 1] - cosAlpha * R[n - 1];
  DropRoundingNoise(truss);

  const auto upperJoint = [n](Long c) { return JointsOfScheme2::Upper(c, n); };
  // Under the columns 1 to n - 1.
  const auto lowerJoint = [n](Long c) { return JointsOfScheme2::Lower(c - 1, n); };

  TreloResult result = ResultOf(truss);
  for (Long c = 0; c <= n - 1; ++c) {
    PutBar(result.BarForce, upperJoint(c), upperJoint(c + 1), U[c]);
    PutBar(result.BarForce, c < m ? upperJoint(c) : lowerJoint(c),
           c < m ? lowerJoint(c + 1) : upperJoint(c + 1), R[c]);
  }
  for (Long i = 0; i <= n - 3; ++i) {
    PutBar(result.BarForce, lowerJoint(i + 1), lowerJoint(i + 2), D[i]);
  }
  for (Long c = 1; c <= n - 1; ++c) {
    PutBar(result.BarForce, lowerJoint(c), upperJoint(c), V[c]);
  }
  PutPanels(result, panels);
  result.SumLenDwnPoyas = d * (n - 2);
  result.SumLenStoyka = (n - 1) * panels.H;
  return result;
}

}  // namespace

Outcome<TreloResult> CalcTrelo2(const TreloData& data) {
  return Solve("CalcTrelo2", [&] { return SolveScheme2(data); });
}

}  // namespace trelonit
