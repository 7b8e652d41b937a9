#include <cmath>
#include <cstddef>
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>
#include <vector>

#include "analysis/TransposedWalk.h"
#include "tests/analysis/Designs.h"
#include "tests/analysis/Expectations.h"
#include "tests/analysis/RandomDesigns.h"

namespace trelonit::test {
namespace {

std::vector<double> PickWeights(const BoundedArray<double>& forces) {
  std::vector<double> weights;
  for (auto force = forces.begin(); force != forces.end(); ++force) {
    weights.push_back(PickBetween(-1, 1));
  }
  return weights;
}

double Product(const std::vector<double>& weights, const BoundedArray<double>& forces,
               double& scale) {
  double sum = 0;
  auto force = forces.begin();
  for (const double weight : weights) {
    sum += weight * *force;
    scale += std::abs(weight * *force);
    ++force;
  }
  return sum;
}

RC_GTEST_PROP(TransposedWalk, FindsWhatAWalkForEveryJointFinds, ()) {
  TreloData data = PickUnloadedDesign(PickScheme());
  const bool upChord = *rc::gen::arbitrary<bool>();
  const TreloResult result = Solved(data);
  const BarWeights weights{.U = PickWeights(result.UpPoyasForce),
                           .D = PickWeights(result.DwnPoyasForce),
                           .R = PickWeights(result.RaskosForce),
                           .V = PickWeights(result.StoykaForce)};
  const std::vector<double> found =
      WeightedUnitForces(data, upChord ? Chord::Upper : Chord::Lower, weights);
  BoundedArray<double>& loads = upChord ? data.UpPForce : data.DwnPForce;
  RC_ASSERT(static_cast<Long>(found.size()) == loads.UpperBound() + 1);
  for (Long joint = 0; joint <= loads.UpperBound(); ++joint) {
    loads[joint] = 1;
    const TreloResult unit = Solved(data);
    double scale = 0;
    const double expected = Product(weights.U, unit.UpPoyasForce, scale) +
                            Product(weights.D, unit.DwnPoyasForce, scale) +
                            Product(weights.R, unit.RaskosForce, scale) +
                            Product(weights.V, unit.StoykaForce, scale);
    RC_ASSERT(std::abs(found[static_cast<std::size_t>(joint)] - expected) <= 1e-10 * (1 + scale));
    loads[joint] = 0;
  }
}

}  // namespace
}  // namespace trelonit::test
