#pragma once

#include <algorithm>
#include <rapidcheck.h>
#include <vector>

#include "tests/analysis/Designs.h"

namespace trelonit::test {

// The Pick functions belong into the body of a property: they draw from its generator.

/// A number in the range, in steps of a millionth of it.
inline double PickBetween(double low, double high) {
  const int step = *rc::gen::inRange(0, 1000001);
  return low + (high - low) * step / 1e6;
}

/// Loads of both signs, zeros among them, in the array's bounds.
inline void PickLoads(BoundedArray<double>& loads) {
  const auto count = static_cast<std::size_t>(loads.end() - loads.begin());
  const auto thousandths = *rc::gen::container<std::vector<int>>(
      count,
      rc::gen::weightedOneOf<int>({{1, rc::gen::just(0)}, {4, rc::gen::inRange(-20000, 20001)}}));
  std::transform(thousandths.begin(), thousandths.end(), loads.begin(),
                 [](int value) { return value / 1000.0; });
}

inline void PickLoads(TreloData& data) {
  PickLoads(data.UpPForce);
  PickLoads(data.UpDistForce);
  PickLoads(data.DwnPForce);
  PickLoads(data.DwnDistForce);
}

/// A design of the scheme without loads: any panel count on offer, regular panels longer or shorter
/// than the end panels.
inline TreloData PickUnloadedDesign(Long scheme) {
  const Long n = *rc::gen::elementOf(PanelCounts(scheme));
  const double L = PickBetween(6, 60);
  const double H = PickBetween(0.5, 6);
  const double Lop = L * PickBetween(0.02, 0.4);
  return Design(scheme, n, L, H, Lop);
}

inline TreloData PickDesign(Long scheme) {
  TreloData data = PickUnloadedDesign(scheme);
  PickLoads(data);
  return data;
}

inline Long PickScheme() {
  return *rc::gen::element<Long>(1, 2, 3, 4);
}

}  // namespace trelonit::test
