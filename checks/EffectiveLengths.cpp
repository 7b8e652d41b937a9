#include "checks/EffectiveLengths.h"

#include "checks/CheckFormulas.h"
#include "platform/values/Arithmetic.h"

namespace trelonit {

namespace {

bool IsEndBar(const ForceExtreme& force, const BoundedArray<double>& forces) {
  return force.Index == 1 || force.Index == forces.UpperBound();
}

double UpperInPlane(const CheckResult& check, const TreloData& data, const TreloResult& res,
                    const Scheme* scheme) {
  if (scheme != nullptr && !scheme->OwnEndPanels) {
    return res.LenPanel;
  }
  // The bar of greatest force decides, even when the end panel is the shorter one.
  return IsEndBar(check.UpPoyas.NMax, res.UpPoyasForce) ? data.LenOporn : res.LenPanel;
}

/// The program's own rule: bracing 1 to 4 stands for captions from "the ends only" to "all joints",
/// between whose points the norm would measure.
double UpperOutOfPlane(Integer bracing, const TreloData& data, double d) {
  switch (bracing) {
    case 1:
    case 2:
      return MaxOf(d, data.LenOporn);
    case 3:
      return data.LengthF / 2;
    case 4:
      return data.LengthF;
    default:
      return 0;
  }
}

double LowerInPlane(const CheckResult& check, const TreloData& data, const TreloResult& res,
                    const Scheme& scheme) {
  if (scheme.LowerEndPanels) {
    return IsEndBar(check.DwnPoyas.NMax, res.DwnPoyasForce) ? data.LenOporn : res.LenPanel;
  }
  return Real(scheme.PanelsOfLowerBar) * res.LenPanel;
}

/// Bracing 1 holds every joint of the lower chord, 2 every second one where the chord has enough of
/// them.
double LowerOutOfPlane(Integer bracing, const TreloData& data, double d, const Scheme& scheme) {
  const auto panels = [&](Long count) -> double { return Real(count) * d; };
  switch (bracing) {
    case 1:
      return scheme.LowerEndPanels ? MaxOf(d, data.LenOporn) : panels(scheme.PanelsOfLowerBar);
    case 2:
      return scheme.LowerEndPanels ? MaxOf(d, data.LenOporn)
                                   : panels(scheme.PanelsOfLowerStretch(data.PanelNum));
    case 3:
      return data.LengthF / 2;
    case 4:
      return data.LengthF;
    default:
      return 0;
  }
}

/// The row of a scheme that is solved; null for others, whose lower chords have no lengths.
const Scheme* SolvedScheme(const TreloData& data) {
  const Scheme* scheme = FindScheme(data.TreloType);
  return scheme != nullptr && !scheme->Reserved ? scheme : nullptr;
}

void PutBoth(GroupCheck& group, double length) {
  group.LenX = length;
  group.LenY = length;
}

}  // namespace

double OutOfPlaneLength(Chord chord, Integer bracing, const TreloData& data, double LenPanel) {
  if (chord == Chord::Upper) {
    return UpperOutOfPlane(bracing, data, LenPanel);
  }
  const Scheme* scheme = SolvedScheme(data);
  return scheme != nullptr ? LowerOutOfPlane(bracing, data, LenPanel, *scheme) : 0;
}

void PutEffectiveLengths(CheckResult& check, const TreloData& data, const TreloResult& res) {
  const Scheme* scheme = SolvedScheme(data);
  check.UpPoyas.LenX = UpperInPlane(check, data, res, scheme);
  check.UpPoyas.LenY = OutOfPlaneLength(Chord::Upper, data.UpPoyasBrace, data, res.LenPanel);
  check.DwnPoyas.LenX = scheme != nullptr ? LowerInPlane(check, data, res, *scheme) : 0;
  check.DwnPoyas.LenY = OutOfPlaneLength(Chord::Lower, data.DownPoyasBrace, data, res.LenPanel);
  // The program's own rule: web members at full length in both planes, without table 11's 0.8.
  PutBoth(check.Stoyka, HasVerticals(data.TreloType) ? data.Hight : 0);
  PutBoth(check.Raskos, res.LenRaskos);
  PutBoth(check.OpornRaskos, res.LenOpornRaskos);
}

}  // namespace trelonit
