#include "analysis/JointWalk.h"
#include "analysis/Scheme.h"
#include "analysis/modTrelo.h"

namespace trelonit {

namespace {

TreloResult SolveScheme1(const TreloData& data) {
  const Long n = Subtractable(data.PanelNum);
  const Long m = n / 2;
  const Long J = RequireKnotNum(2 * (std::int64_t{n} + 1));
  const PanelGeometry panels(data);
  const Real d = panels.d;
  const Real Lop = panels.Lop;
  const Real sinAlpha = panels.SinAlpha;
  const Real cosAlpha = panels.CosAlpha;
  const Real sinBeta = panels.SinBeta;
  const Real cosBeta = panels.CosBeta;

  WalkedTruss truss{.J = J,
                    .Pu = EndPanelKnotLoads(data.UpDistForce, data.UpPForce, panels),
                    .Pd = EndPanelKnotLoads(data.DwnDistForce, data.DwnPForce, panels)};
  auto& [knotNum, Pu, Pd, reactLeft, reactRight, U, D, R, V, r1, r2, r3] = truss;
  // Intended: at the last upper joint but one the two panel lengths stand the other way round than
  // the geometry has them. Reactions and walk use the same load, so the truss stays balanced; with
  // equal panel loads it makes no difference.
  Pu[n - 1] =
      data.UpDistForce[n - 2] * Lop / 2 + data.UpPForce[n - 1] + d * data.UpDistForce[n - 1] / 2;

  Moments moments;
  moments.AddColumns(Pu, panels);
  moments.AddColumns(Pd, panels);
  reactLeft = moments.Left / panels.L;
  reactRight = moments.Right / panels.L;

  U = Reals(0, n - 1);
  D = Reals(0, n - 1);
  R = Reals(0, n - 1);
  V = Reals(0, n);

  D[0] = 0;
  V[0] = Pd[0] - reactLeft;
  R[0] = (-V[0] - Pu[0]) / sinAlpha;
  U[0] = -cosAlpha * R[0];
  for (Long c = 1; c <= m - 1; ++c) {
    const Real sinTheta = c == 1 ? sinAlpha : sinBeta;
    const Real cosTheta = c == 1 ? cosAlpha : cosBeta;
    V[c] = Pd[c] - sinTheta * R[c - 1];
    D[c] = cosTheta * R[c - 1] + D[c - 1];
    R[c] = (-V[c] - Pu[c]) / sinBeta;
    U[c] = U[c - 1] - cosBeta * R[c];
  }
  // No diagonal meets the upper joint of the middle column.
  U[m] = U[m - 1];
  V[m] = -Pu[m];
  R[m] = (Pd[m] - V[m] - sinBeta * R[m - 1]) / sinBeta;
  D[m] = cosBeta * R[m - 1] + D[m - 1] - cosBeta * R[m];
  for (Long c = m + 1; c <= n - 1; ++c) {
    const Real sinTheta = c == n - 1 ? sinAlpha : sinBeta;
    const Real cosTheta = c == n - 1 ? cosAlpha : cosBeta;
    V[c] = -Pu[c] - sinBeta * R[c - 1];
    U[c] = cosBeta * R[c - 1] + U[c - 1];
    R[c] = (Pd[c] - V[c]) / sinTheta;
    D[c] = D[c - 1] - cosTheta * R[c];
  }
  V[n] = -Pu[n] - sinAlpha * R[n - 1];
  r1 = -cosAlpha * R[n - 1] - U[n - 1];
  r2 = reactRight + V[n] - Pd[n];
  r3 = D[n - 1];
  DropRoundingNoise(truss);

  const auto lowerJoint = [n](Long c) { return JointsOfScheme1::Lower(c, n); };
  const auto upperJoint = [n](Long c) { return JointsOfScheme1::Upper(c, n); };

  TreloResult result = ResultOf(truss);
  for (Long c = 0; c <= n - 1; ++c) {
    PutBar(result.BarForce, upperJoint(c), upperJoint(c + 1), U[c]);
    PutBar(result.BarForce, lowerJoint(c), lowerJoint(c + 1), D[c]);
    // Diagonals fall towards the middle.
    PutBar(result.BarForce, c < m ? upperJoint(c) : lowerJoint(c),
           c < m ? lowerJoint(c + 1) : upperJoint(c + 1), R[c]);
  }
  for (Long c = 0; c <= n; ++c) {
    PutBar(result.BarForce, lowerJoint(c), upperJoint(c), V[c]);
  }
  PutPanels(result, panels);
  result.SumLenDwnPoyas = result.SumLenUpPoyas;
  result.SumLenStoyka = (n + 1) * panels.H;
  return result;
}

}  // namespace

Outcome<TreloResult> CalcTrelo1(const TreloData& data) {
  return Solve("CalcTrelo1", [&] { return SolveScheme1(data); });
}

}  // namespace trelonit
