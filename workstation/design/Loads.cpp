#include "workstation/design/Loads.h"

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
