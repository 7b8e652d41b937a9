#include "workstation/design/Loads.h"

#include <cmath>

#include "analysis/Scheme.h"
#include "platform/values/Arithmetic.h"

namespace trelonit {

namespace {

BoundedArray<double> Resized(const BoundedArray<double>& values, Long upper) {
  if (upper < 0) {
    RaiseSubscriptOutOfRange();
  }
  if (!values.IsAllocated()) {
    return {0, upper};
  }
  BoundedArray<double> resized = values;
  resized.ResizeUpper(upper);
  return resized;
}

Long LostValues(const BoundedArray<double>& before, const BoundedArray<double>& after,
                double ownWeight) {
  constexpr double rounding = 1e-9;
  const Long last = after.IsAllocated() ? after.UpperBound() : -1;
  Long lost = 0;
  Long place = 0;
  for (const double load : before) {
    const bool carried = std::abs(load - ownWeight) > rounding;
    const bool gone = place > last || after[place] == 0;
    lost += carried && gone ? 1 : 0;
    ++place;
  }
  return lost;
}

}  // namespace

void ReDimLoads(LoadArrays& loads, Long treloType, Long panelNum) {
  const auto bounds = BoundsOfLoads(treloType, panelNum);
  if (!bounds) {
    return;
  }
  loads = {.UpPForce = Resized(loads.UpPForce, bounds->UpPForce),
           .UpDistForce = Resized(loads.UpDistForce, bounds->UpDistForce),
           .DwnPForce = Resized(loads.DwnPForce, bounds->DwnPForce),
           .DwnDistForce = Resized(loads.DwnDistForce, bounds->DwnDistForce)};
}

void ClearLoads(LoadArrays& loads, Long treloType, Long panelNum) {
  const auto bounds = BoundsOfLoads(treloType, panelNum);
  if (!bounds) {
    return;
  }
  LoadArrays cleared = ZeroLoads(*bounds);
  if (FindScheme(treloType)->Reserved) {
    cleared.DwnPForce = loads.DwnPForce;
    cleared.DwnDistForce = loads.DwnDistForce;
  }
  loads = cleared;
}

void AddToDistributedLoads(LoadArrays& loads, double perMetre) {
  for (double& panel : loads.UpDistForce) {
    panel = Real(panel) + perMetre;
  }
  for (double& panel : loads.DwnDistForce) {
    panel = Real(panel) + perMetre;
  }
}

Long LoadsLost(const LoadArrays& before, const LoadArrays& after, double ownWeight) {
  return LostValues(before.UpPForce, after.UpPForce, 0) +
         LostValues(before.UpDistForce, after.UpDistForce, ownWeight) +
         LostValues(before.DwnPForce, after.DwnPForce, 0) +
         LostValues(before.DwnDistForce, after.DwnDistForce, ownWeight);
}

Long LastKnotNum(bool upper, Long treloType, Long panelNum) {
  if (upper) {
    return panelNum;
  }
  const auto bounds = BoundsOfLoads(treloType, panelNum);
  return bounds ? bounds->DwnPForce : -1;
}

Long LastPanelNum(bool upper, Long treloType, Long panelNum) {
  if (upper) {
    return panelNum - 1;
  }
  const auto bounds = BoundsOfLoads(treloType, panelNum);
  return bounds ? bounds->DwnDistForce : -1;
}

}  // namespace trelonit
