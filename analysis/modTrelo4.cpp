#include "analysis/JointWalk.h"
#include "analysis/Scheme.h"
#include "analysis/modTrelo.h"

namespace trelonit {

namespace {

TreloResult SolveScheme4(const TreloData& data) {
  const Long n = Subtractable(data.PanelNum);
  const Long last = n / 2 - 1;  // the last lower joint
  const Long J = RequireKnotNum(3 * (std::int64_t{n} / 2) + 1);
  const PanelGeometry panels(data);
  const Real d = panels.d;
  const Real sinAlpha = panels.SinAlpha;
  const Real cosAlpha = panels.CosAlpha;
  const Real sinBeta = panels.SinBeta;
  const Real cosBeta = panels.CosBeta;

  // A lower panel is 2d long.
  WalkedTruss truss{.J = J,
                    .Pu = EndPanelKnotLoads(data.UpDistForce, data.UpPForce, panels),
                    .Pd = EqualPanelKnotLoads(data.DwnDistForce, data.DwnPForce, 2 * d, last)};
  auto& [knotNum, Pu, Pd, reactLeft, reactRight, U, D, R, V, r1, r2, r3] = truss;

  Moments moments;
  moments.AddColumns(Pu, panels);
  moments.AddSpaced(Pd, panels.Lop, 2 * d);
  reactLeft = moments.Left / panels.L;
  reactRight = moments.Right / panels.L;

  U = Reals(0, n - 1);
  D = Reals(0, last - 1);
  R = Reals(0, n - 1);
  V = Reals(0, last);

  R[0] = (reactLeft - Pu[0]) / sinAlpha;
  U[0] = -cosAlpha * R[0];
  U[1] = U[0];
  V[0] = -Pu[1];
  R[1] = (Pd[0] - V[0] - sinAlpha * R[0]) / sinBeta;
  D[0] = cosAlpha * R[0] - cosBeta * R[1];
  for (Long i = 1; i <= last - 1; ++i) {
    const Long c = 2 * i;
    R[c] = (-Pu[c] - sinBeta * R[c - 1]) / sinBeta;
    U[c] = cosBeta * R[c - 1] + U[c - 1] - cosBeta * R[c];
    V[i] = -Pu[c + 1];
    U[c + 1] = U[c];
    R[c + 1] = (Pd[i] - V[i] - sinBeta * R[c]) / sinBeta;
    D[i] = cosBeta * R[c] + D[i - 1] - cosBeta * R[c + 1];
  }
  R[n - 2] = (-Pu[n - 2] - sinBeta * R[n - 3]) / sinBeta;
  U[n - 2] = cosBeta * R[n - 3] + U[n - 3] - cosBeta * R[n - 2];
  V[last] = -Pu[n - 1];
  U[n - 1] = U[n - 2];
  R[n - 1] = (cosBeta * R[n - 2] + D[last - 1]) / cosAlpha;
  r1 = sinAlpha * R[n - 1] + V[last] + sinBeta * R[n - 2] - Pd[last];
  r2 = reactRight - Pu[n] - sinAlpha * R[n - 1];
  r3 = -U[n - 1] - cosAlpha * R[n - 1];
  DropRoundingNoise(truss);

  const auto upperJoint = [n](Long c) { return JointsOfScheme4::Upper(c, n); };
  const auto lowerJoint = [n](Long i) { return JointsOfScheme4::Lower(i, n); };

  TreloResult result = ResultOf(truss);
  for (Long c = 0; c <= n - 1; ++c) {
    PutBar(result.BarForce, upperJoint(c), upperJoint(c + 1), U[c]);
    // A diagonal joins the upper joint of its panel's even column with the lower joint of the odd.
    PutBar(result.BarForce, upperJoint(c % 2 == 0 ? c : c + 1), lowerJoint(c / 2), R[c]);
  }
  for (Long i = 0; i <= last - 1; ++i) {
    PutBar(result.BarForce, lowerJoint(i), lowerJoint(i + 1), D[i]);
  }
  for (Long i = 0; i <= last; ++i) {
    PutBar(result.BarForce, upperJoint(2 * i + 1), lowerJoint(i), V[i]);
  }
  PutPanels(result, panels);
  result.SumLenDwnPoyas = 2 * d * last;
  result.SumLenStoyka = (n / 2) * panels.H;
  return result;
}

}  // namespace

Outcome<TreloResult> CalcTrelo4(const TreloData& data) {
  return Solve("CalcTrelo4", [&] { return SolveScheme4(data); });
}

}  // namespace trelonit
