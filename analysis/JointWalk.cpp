#include "analysis/JointWalk.h"

#include <algorithm>

#include "analysis/Scheme.h"
#include "platform/text/NumberText.h"

namespace trelonit {

namespace {

BoundedArray<double> CopyFrom(Long lower, const Reals& values) {
  const Long count = values.UpperBound() - values.LowerBound() + 1;
  BoundedArray<double> copy(lower, lower + count - 1);
  auto place = copy.begin();
  for (const Real value : values) {
    *place++ = value;
  }
  return copy;
}

bool ClosesAtFourDecimals(Real residual) {
  // Far below half of the last decimal there is no need to write the number out, which for nearly
  // every truss would cost as much as its walk.
  constexpr double surelyZero = 0.00004;
  return Magnitude(residual) < surelyZero || RoundToDecimals(residual, 4) == 0;
}

}  // namespace

PanelGeometry::PanelGeometry(const TreloData& data)
    : L(data.LengthF), H(data.Hight), Lop(data.LenOporn), n(Subtractable(data.PanelNum)) {
  Alpha = ArcTangent(H / Lop);
  d = (L - 2 * Lop) / (n - 2);
  Beta = ArcTangent(H / d);
  SinAlpha = Sine(Alpha);
  CosAlpha = Cosine(Alpha);
  SinBeta = Sine(Beta);
  CosBeta = Cosine(Beta);
  LenOpornRaskos = Lop / CosAlpha;
  LenRaskos = d / CosBeta;
}

Reals EndPanelKnotLoads(const BoundedArray<double>& q, const BoundedArray<double>& p,
                        const PanelGeometry& panels) {
  const Long n = panels.n;
  const Real d = panels.d;
  const Real Lop = panels.Lop;
  Reals loads(0, n);
  loads[0] = q[0] * Lop / 2 + p[0];
  loads[n] = q[n - 1] * Lop / 2 + p[n];
  loads[1] = q[0] * Lop / 2 + p[1] + d * q[1] / 2;
  loads[n - 1] = d * q[n - 2] / 2 + p[n - 1] + q[n - 1] * Lop / 2;
  for (Long i = 2; i <= n - 2; ++i) {
    loads[i] = d * q[i - 1] / 2 + p[i] + d * q[i] / 2;
  }
  return loads;
}

Reals EqualPanelKnotLoads(const BoundedArray<double>& q, const BoundedArray<double>& p,
                          Real panelLength, Long last) {
  Reals loads(0, last);
  loads[0] = panelLength * q[0] / 2 + p[0];
  loads[last] = panelLength * q[last - 1] / 2 + p[last];
  for (Long i = 1; i <= last - 1; ++i) {
    loads[i] = panelLength * q[i - 1] / 2 + p[i] + panelLength * q[i] / 2;
  }
  return loads;
}

void Moments::AddColumns(const Reals& loads, const PanelGeometry& panels) {
  const Long n = panels.n;
  for (Long i = 1; i <= n - 1; ++i) {
    Left += (panels.d * (n - 1 - i) + panels.Lop) * loads[i];
    Right += (panels.d * (i - 1) + panels.Lop) * loads[i];
  }
  Left += loads[0] * panels.L;
  Right += loads[n] * panels.L;
}

void Moments::AddSpaced(const Reals& loads, Real distance, Real spacing) {
  const Long last = loads.UpperBound();
  for (Long i = 0; i <= last; ++i) {
    Left += (spacing * (last - i) + distance) * loads[i];
    Right += (spacing * i + distance) * loads[i];
  }
}

Long RequireKnotNum(std::int64_t knotNum) {
  constexpr std::int64_t most = mostJoints;
  if (knotNum > most) {
    RaiseSubscriptOutOfRange();
  }
  return static_cast<Long>(std::max(knotNum, -most));
}

void PutBar(SquareTable<double>& bars, Long joint, Long otherJoint, Real force) {
  bars(joint, otherJoint) = force;
  bars(otherJoint, joint) = force;
}

void DropRoundingNoise(WalkedTruss& truss) {
  constexpr double noise = 1e-11;
  Real greatest;
  for (const Reals* bars : {&truss.U, &truss.D, &truss.R, &truss.V}) {
    for (const Real force : *bars) {
      greatest = std::max<double>(greatest, Magnitude(force));
    }
  }
  for (Reals* bars : {&truss.U, &truss.D, &truss.R, &truss.V}) {
    for (Real& force : *bars) {
      if (Magnitude(force) < greatest * noise) {
        force = 0;
      }
    }
  }
}

TreloResult ResultOf(const WalkedTruss& truss) {
  TreloResult result;
  result.KnotNum = truss.J;
  result.BarForce = SquareTable<double>(truss.J);
  result.UpKnotLoad = CopyFrom(0, truss.Pu);
  result.DwnKnotLoad = CopyFrom(0, truss.Pd);
  result.ReactLeft = truss.ReactLeft;
  result.ReactRight = truss.ReactRight;
  result.UpPoyasForce = CopyFrom(1, truss.U);
  result.DwnPoyasForce = CopyFrom(1, truss.D);
  result.RaskosForce = CopyFrom(1, truss.R);
  result.StoykaForce = CopyFrom(1, truss.V);
  result.Balanced = ClosesAtFourDecimals(truss.r1) && ClosesAtFourDecimals(truss.r2) &&
                    ClosesAtFourDecimals(truss.r3);
  return result;
}

void PutPanels(TreloResult& result, const PanelGeometry& panels) {
  result.AngleOporn = panels.Alpha;
  result.AngleRaskos = panels.Beta;
  result.LenPanel = panels.d;
  result.LenOpornRaskos = panels.LenOpornRaskos;
  result.LenRaskos = panels.LenRaskos;
  result.SumLenUpPoyas = panels.d * (panels.n - 2) + 2 * panels.Lop;
  result.SumLenOpornRaskos = 2 * panels.LenOpornRaskos;
  result.SumLenRaskos = (panels.n - 2) * panels.LenRaskos;
}

}  // namespace trelonit
