#include "catalogue/SectionComposition.h"

#include "platform/values/Arithmetic.h"

namespace trelonit {

namespace {

/// From a profile's centroid to the axis of symmetry of the pair, cm.
Real ToSymmetryAxis(double centroid, double gap) {
  return Real(centroid) / 10 + Real(gap) / 20;
}

/// Of a profile about an axis parallel to its own, cm4.
Real Shifted(double inertia, double area, Real distance) {
  return Real(inertia) + Real(area) * distance * distance;
}

SectionProps Single(double area, double in, double out) {
  // The fields come from a file and may hold anything.
  return {.Area = Finite(area), .Jin = Finite(in), .Jout = Finite(out)};
}

SectionProps Pair(double area, Real in, Real out) {
  return {.Area = 2 * Real(area), .Jin = 2 * in, .Jout = 2 * out};
}

}  // namespace

SectionProps ComposeSection(const SectionRec& section) {
  const ProfileRec& profile = section.Profile;
  // Routines and not values: the layouts without a gap must not look at it, whatever it holds.
  const auto shiftedAcross = [&] {
    return Shifted(profile.Jz, profile.A, ToSymmetryAxis(profile.y0, section.Gdist));
  };
  const auto shiftedAlong = [&] {
    return Shifted(profile.Jy, profile.A, ToSymmetryAxis(profile.z0, section.Gdist));
  };
  switch (section.Layout) {
    case 1:
    case 5:
    case 6:
    // Intended: a tee counts as its record stands, about its own axes.
    case 7:
    case 9:
    case 11:
      return Single(profile.A, profile.Jy, profile.Jz);
    case 2:
    // Intended: channels share the formula of the angles, since their centroid is in y0 as well.
    case 8:
      return Pair(profile.A, profile.Jy, shiftedAcross());
    case 3:
      return Pair(profile.A, profile.Jz, shiftedAlong());
    case 4:
      return Pair(profile.A, shiftedAlong(), shiftedAcross());
    case 10:
      return Single(profile.A, profile.Jz, profile.Jy);
    default:
      return {};
  }
}

}  // namespace trelonit
