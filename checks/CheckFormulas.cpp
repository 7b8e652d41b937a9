#include "checks/CheckFormulas.h"

#include <cmath>

#include "catalogue/SectionComposition.h"
#include "checks/ElementGroups.h"
#include "platform/system/ProgramNames.h"
#include "platform/values/Arithmetic.h"
#include "platform/values/Units.h"

namespace trelonit {

namespace {

constexpr Long layoutSingleAngle = 1;

}  // namespace

double CalcStrength(double N, double Area, double Ry, double Yc, double Gn) {
  return Real(N) * Gn * megapascals / (Real(Area) * Ry * Yc);
}

double CalcStability(double N, double Phi, double Area, double Ry, double Yc, double Gn) {
  return Real(N) * Gn * megapascals / (Real(Phi) * Area * Ry * Yc);
}

double CalcFlex(double Len, double Area, double J, double Mu) {
  return Real(Mu) * Len * 100 / SquareRoot(Real(J) / Area);
}

double CalcFlexBar(double Flex, double Ry, double E) {
  return Real(Flex) * SquareRoot(Real(Ry) / E);
}

double CalcPhi(double FlexBar, double Ry, double E) {
  const Real x = FlexBar;
  const Real ratio = Real(Ry) / E;
  // Intended: the comparisons are strict, so that 2.5 and 4.5 themselves give 0.
  if (0 < FlexBar && FlexBar < 2.5) {
    return 1 - (0.073 - 5.53 * ratio) * x * SquareRoot(x);
  }
  if (2.5 < FlexBar && FlexBar < 4.5) {
    return 1.47 - 13 * ratio - (0.371 - 27.3 * ratio) * x + (0.0275 - 5.53 * ratio) * x * x;
  }
  if (4.5 < FlexBar && FlexBar <= 35) {
    return 332 / (x * x * (51 - x));
  }
  return FlexBar > 35 ? 0.017 : 0;
}

double CalcAlpha(double N, double Ry, double Area, double Phi, double Yc) {
  // Not megapascals: the two products may differ in their last digit.
  const Real alpha = Real(N) * 10 * 9.81 / (Real(Phi) * Area * Ry * Yc);
  return alpha > 1.0 ? Real(1) : alpha;
}

Outcome<LimitFlex> CalcLimitFlex(const SectionRec& Sec, double Alpha, double Len, bool Dynamic) {
  Outcome<LimitFlex> outcome;
  LimitFlex& limit = outcome.Value;
  // Intended: the choice hangs on the layout, not on the group, and 50 is compared with metres.
  if (Sec.Layout == layoutSingleAngle) {
    limit.Compress = 210 - 60 * Real(Alpha);
  } else if (0 < Len && Len <= 50) {
    limit.Compress = 180 - 60 * Real(Alpha);
  } else if (Len > 50) {
    limit.Compress = 120;
  } else {
    outcome.Told.push_back({.Title = warningTitle,
                            .Text = "Ошибочное значение длинны стержня (<=0)!",
                            .Style = MessageStyle::Critical});
  }
  limit.Tension = Dynamic ? 250 : 400;
  limit.Tension2 = Dynamic ? 350 : 400;
  return outcome;
}

double CalcMass(const TreloResult& Res, double Density, const CheckResult& Areas) {
  const Real mass =
      (Real(Areas.UpPoyas.Area) * Res.SumLenUpPoyas +
       Real(Areas.DwnPoyas.Area) * Res.SumLenDwnPoyas + Real(Areas.Raskos.Area) * Res.SumLenRaskos +
       Real(Areas.OpornRaskos.Area) * Res.SumLenOpornRaskos +
       Real(Areas.Stoyka.Area) * Res.SumLenStoyka) *
      Density / 10000;
  return mass > 0.0 ? mass : Real(0);
}

double CalcMass(const TreloResult& Res, double Density, const SectionArray& Sections) {
  CheckResult areas;
  for (const ElementGroupRow& group : elementGroups) {
    (areas.*group.Block).Area = ComposeSection(Sections[group.Place]).Area;
  }
  return CalcMass(Res, Density, areas);
}

ForceExtreme MaxAbsForce(const BoundedArray<double>& Forces) {
  ForceExtreme extreme{.Value = std::abs(Forces[1]), .Index = 1};
  const Long last = Forces.UpperBound();
  for (Long bar = 2; bar <= last; ++bar) {
    if (std::abs(Forces[bar]) > extreme.Value) {
      extreme = {.Value = std::abs(Forces[bar]), .Index = bar};
    }
  }
  return extreme;
}

ForceExtreme MinForce(const BoundedArray<double>& Forces) {
  ForceExtreme extreme{.Value = Forces[1], .Index = 1};
  const Long last = Forces.UpperBound();
  for (Long bar = 2; bar <= last; ++bar) {
    if (Forces[bar] < extreme.Value) {
      extreme = {.Value = Forces[bar], .Index = bar};
    }
  }
  return extreme;
}

BoundedArray<double> StripEnds(const BoundedArray<double>& Forces) {
  const Long last = Forces.UpperBound() - 2;
  if (last < 1) {
    RaiseSubscriptOutOfRange();
  }
  BoundedArray<double> stripped(1, last);
  for (Long bar = 1; bar <= last; ++bar) {
    stripped[bar] = Forces[bar + 1];
  }
  return stripped;
}

double MaxOf(double A, double B) {
  return A > B ? A : B;
}

}  // namespace trelonit
