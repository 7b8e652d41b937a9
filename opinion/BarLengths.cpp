#include "opinion/BarLengths.h"

#include <algorithm>

#include "platform/errors/RuntimeError.h"

namespace trelonit {

namespace {

/// The greatest distance between joints that are this many panels apart; between the ends of the
/// chord where it has fewer panels.
double LongestStretch(const Truss& truss, Chord chord, std::size_t panels) {
  const std::vector<std::size_t>& joints = truss.JointsOf(chord);
  const std::size_t step = std::min(panels, joints.size() - 1);
  double longest = 0;
  for (std::size_t i = step; i < joints.size(); ++i) {
    longest = std::max(longest, truss.Joints[joints[i]].X - truss.Joints[joints[i - step]].X);
  }
  return longest;
}

}  // namespace

double LengthBetweenHeldPoints(const Truss& truss, Chord chord, Long bracing) {
  const std::size_t whole = truss.JointsOf(chord).size();  // more panels than it has
  switch (bracing) {
    case 1:
      return LongestStretch(truss, chord, whole);
    case 2:
      return LongestStretch(truss, chord, whole) / 2;
    case 3:
      return LongestStretch(truss, chord, 2);
    case 4:
      return LongestStretch(truss, chord, 1);
    default:
      throw RuntimeError(ErrorNumber::InvalidProcedureCall);
  }
}

bool IsSupportBar(const Truss& truss, const TrussBar& bar) {
  if (bar.Group == ElementGroup::OpornRaskos) {
    return true;
  }
  const auto stands = [&](std::size_t support) { return bar.A == support || bar.B == support; };
  return bar.Group == ElementGroup::Stoyka &&
         (stands(truss.LeftSupport) || stands(truss.RightSupport));
}

BarLengths EffectiveLengthsOf(const Truss& truss, const TrussBar& bar, double upperHeld,
                              double lowerHeld) {
  switch (bar.Group) {
    case ElementGroup::UpPoyas:
      return {bar.Length, upperHeld};
    case ElementGroup::DwnPoyas:
      return {bar.Length, lowerHeld};
    case ElementGroup::Stoyka:
    case ElementGroup::Raskos:
    case ElementGroup::OpornRaskos:
      break;
  }
  // A web bar between others is held by the gusset plates in the plane.
  constexpr double webShare = 0.8;
  return {IsSupportBar(truss, bar) ? bar.Length : webShare * bar.Length, bar.Length};
}

}  // namespace trelonit
