#include "analysis/modDatatypes.h"


namespace trelonit {

std::optional<LoadBounds> BoundsOfLoads(Long treloType, Long panelNum) {
  const Long n = panelNum;
  LoadBounds bounds{.UpPForce = n, .UpDistForce = n - 1};
  switch (treloType) {
    case 1:
      bounds.DwnPForce = n;
      bounds.DwnDistForce = n - 1;
      break;
    case 2:
      bounds.DwnPForce = n - 2;
      bounds.DwnDistForce = n - 3;
      break;
    case 3:
      bounds.DwnPForce = n - 1;
      bounds.DwnDistForce = n - 2;
      break;
    case 4:
      bounds.DwnPForce = n / 2 - 1;
      bounds.DwnDistForce = n / 2 - 2;
      break;
    case 5:
      bounds.DwnPForce = n / 2;
      bounds.DwnDistForce = n / 2 - 1;
      break;
    default:
      return std::nullopt;
  }
  return bounds;
}

namespace {

BoundedArray<double> Zeros(Long upper) {
  if (upper < 0) {
    RaiseSubscriptOutOfRange();
  }
  return {0, upper};
}

}  // namespace

LoadArrays ZeroLoads(const LoadBounds& bounds) {
  return {.UpPForce = Zeros(bounds.UpPForce),
          .UpDistForce = Zeros(bounds.UpDistForce),
          .DwnPForce = Zeros(bounds.DwnPForce),
          .DwnDistForce = Zeros(bounds.DwnDistForce)};
}

}  // namespace trelonit
