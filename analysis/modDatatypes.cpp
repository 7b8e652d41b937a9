#include "analysis/modDatatypes.h"

namespace trelonit {

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
