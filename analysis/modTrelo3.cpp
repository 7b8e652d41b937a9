#include "analysis/JointWalk.h"
#include "analysis/Scheme.h"
#include "analysis/modTrelo.h"

namespace trelonit {

namespace {

// The joints are numbered in zigzag along the diagonals, and here the numbers are the model: upper
// joint t is 2t + 1, lower joint i is 2i + 2, diagonal j joins joints j and j + 1.
TreloResult SolveScheme3(const TreloData& data) {
  const Long n = Subtractable(data.PanelNum);
  const Long J = RequireKnotNum(2 * std::int64_t{n} + 1);
  const Real L = data.LengthF;
  const Real d = L / n;
  const Real alpha = ArcTangent(2 * Real(data.Hight) / d);
  const Real sinAlpha = Sine(alpha);
  const Real cosAlpha = Cosine(alpha);
  const Real lenRaskos = d / (2 * cosAlpha);

  WalkedTruss truss{.J = J,
                    .Pu = EqualPanelKnotLoads(data.UpDistForce, data.UpPForce, d, n),
                    .Pd = EqualPanelKnotLoads(data.DwnDistForce, data.DwnPForce, d, n - 1)};
  auto& [knotNum, Pu, Pd, reactLeft, reactRight, U, D, R, V, r1, r2, r3] = truss;

  Moments moments;
  moments.AddSpaced(Pu, 0, d);
  moments.AddSpaced(Pd, d / 2, d);
  reactLeft = moments.Left / L;
  reactRight = moments.Right / L;

  R = Reals(1, 2 * n);
  U = Reals(0, n - 1);
  D = Reals(0, n - 2);
  // There are no verticals: the array is there and holds zeros.
  V = Reals(1, n);

  R[1] = (reactLeft - Pu[0]) / sinAlpha;
  U[0] = -cosAlpha * R[1];
  R[2] = (Pd[0] - sinAlpha * R[1]) / sinAlpha;
  D[0] = cosAlpha * R[1] - cosAlpha * R[2];
  for (Long k = 3; k <= J - 2; ++k) {
    if (k % 2 == 0) {
      const Long i = k / 2 - 1;
      R[k] = (Pd[i] - sinAlpha * R[k - 1]) / sinAlpha;
      D[i] = cosAlpha * R[k - 1] + D[i - 1] - cosAlpha * R[k];
    } else {
      const Long t = (k - 1) / 2;
      R[k] = (-Pu[t] - sinAlpha * R[k - 1]) / sinAlpha;
      U[t] = cosAlpha * R[k - 1] + U[t - 1] - cosAlpha * R[k];
    }
  }
  R[J - 1] = (Pd[n - 1] - sinAlpha * R[J - 2]) / sinAlpha;
  r1 = cosAlpha * R[J - 1] - cosAlpha * R[J - 2] - D[n - 2];
  r2 = reactRight - Pu[n] - sinAlpha * R[J - 1];
  r3 = -U[n - 1] - cosAlpha * R[J - 1];
  DropRoundingNoise(truss);

  TreloResult result = ResultOf(truss);
  for (Long j = 1; j <= 2 * n; ++j) {
    PutBar(result.BarForce, j, j + 1, R[j]);
  }
  const auto upperJoint = [n](Long t) { return JointsOfScheme3::Upper(t, n); };
  const auto lowerJoint = [n](Long i) { return JointsOfScheme3::Lower(i, n); };
  for (Long t = 0; t <= n - 1; ++t) {
    PutBar(result.BarForce, upperJoint(t), upperJoint(t + 1), U[t]);
  }
  for (Long i = 0; i <= n - 2; ++i) {
    PutBar(result.BarForce, lowerJoint(i), lowerJoint(i + 1), D[i]);
  }
  // All diagonals count as regular ones in the totals, though both lengths are told, and the one
  // lattice angle stands as that of the support diagonals.
  result.AngleOporn = alpha;
  result.LenPanel = d;
  result.LenOpornRaskos = lenRaskos;
  result.LenRaskos = lenRaskos;
  result.SumLenUpPoyas = d * n;
  result.SumLenDwnPoyas = d * (n - 1);
  result.SumLenRaskos = 2 * n * lenRaskos;
  return result;
}

}  // namespace

Outcome<TreloResult> CalcTrelo3(const TreloData& data) {
  return Solve("CalcTrelo3", [&] { return SolveScheme3(data); });
}

}  // namespace trelonit
