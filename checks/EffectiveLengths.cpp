#include "checks/EffectiveLengths.h"

#include "checks/CheckFormulas.h"
#include "platform/Arithmetic.h"

namespace trelonit {

namespace {

bool IsEndBar(const ForceExtreme& force, const BoundedArray<double>& forces) {
  return force.Index == 1 || force.Index == forces.UpperBound();
}

double UpperInPlane(const CheckResult& check, const TreloData& data, const TreloResult& res) {
  if (data.TreloType == 3) {
    return res.LenPanel;
  }
  // The bar of greatest force decides, even when the end panel is the shorter one.
  return IsEndBar(check.UpPoyas.NMax, res.UpPoyasForce) ? data.LenOporn : res.LenPanel;
}

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

double LowerInPlane(const CheckResult& check, const TreloData& data, const TreloResult& res) {
  switch (data.TreloType) {
    case 1:
      return IsEndBar(check.DwnPoyas.NMax, res.DwnPoyasForce) ? data.LenOporn : res.LenPanel;
    case 2:
    case 3:
      return res.LenPanel;
    case 4:
      return Real(2) * res.LenPanel;
    default:
      return 0;
  }
}

/// Bracing 1: every joint of the lower chord is held.
double LowerHeldEverywhere(const TreloData& data, double d) {
  switch (data.TreloType) {
    case 1:
      return MaxOf(d, data.LenOporn);
    case 2:
    case 3:
      return d;
    case 4:
      return Real(2) * d;
    default:
      return 0;
  }
}

/// Bracing 2: the joints between are held alternately where the chord has enough of them.
double LowerHeldAlternately(const TreloData& data, Real d) {
  switch (data.TreloType) {
    case 1:
      return MaxOf(d, data.LenOporn);
    case 2:
      return 2 * d;
    case 3:
      return data.PanelNum > 2 ? 2 * d : d;
    case 4:
      return data.PanelNum > 4 ? 4 * d : 2 * d;
    default:
      return 0;
  }
}

double LowerOutOfPlane(Integer bracing, const TreloData& data, double d) {
  const bool known = data.TreloType >= 1 && data.TreloType <= 4;
  switch (bracing) {
    case 1:
      return LowerHeldEverywhere(data, d);
    case 2:
      return LowerHeldAlternately(data, d);
    case 3:
      return known ? data.LengthF / 2 : 0;
    case 4:
      return known ? data.LengthF : 0;
    default:
      return 0;
  }
}

void PutBoth(GroupCheck& group, double length) {
  group.LenX = length;
  group.LenY = length;
}

}  // namespace

double OutOfPlaneLength(Chord chord, Integer bracing, const TreloData& data, double LenPanel) {
  return chord == Chord::Upper ? UpperOutOfPlane(bracing, data, LenPanel)
                               : LowerOutOfPlane(bracing, data, LenPanel);
}

void PutEffectiveLengths(CheckResult& check, const TreloData& data, const TreloResult& res) {
  check.UpPoyas.LenX = UpperInPlane(check, data, res);
  check.UpPoyas.LenY = OutOfPlaneLength(Chord::Upper, data.UpPoyasBrace, data, res.LenPanel);
  check.DwnPoyas.LenX = LowerInPlane(check, data, res);
  check.DwnPoyas.LenY = OutOfPlaneLength(Chord::Lower, data.DownPoyasBrace, data, res.LenPanel);
  // Web members are taken at full length in both planes, without a reduction.
  PutBoth(check.Stoyka, data.TreloType == 3 ? 0 : data.Hight);
  PutBoth(check.Raskos, res.LenRaskos);
  PutBoth(check.OpornRaskos, res.LenOpornRaskos);
}

}  // namespace trelonit
