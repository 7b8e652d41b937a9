#include <algorithm>
#include <cmath>
#include <cstddef>
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>
#include <stdexcept>
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

/// The greatest difference between what the transposed walk finds for the joints of a chord and
/// what a walk for each of them finds, as a share of the sums.
double Difference(TreloData data, bool upChord, const BarWeights& weights) {
  const std::vector<double> found =
      WeightedUnitForces(data, upChord ? Chord::Upper : Chord::Lower, weights);
  BoundedArray<double>& loads = upChord ? data.UpPForce : data.DwnPForce;
  if (static_cast<Long>(found.size()) != loads.UpperBound() + 1) {
    throw std::logic_error("other joints");
  }
  double greatest = 0;
  for (Long joint = 0; joint <= loads.UpperBound(); ++joint) {
    loads[joint] = 1;
    const TreloResult unit = Solved(data);
    double scale = 0;
    const double expected = Product(weights.U, unit.UpPoyasForce, scale) +
                            Product(weights.D, unit.DwnPoyasForce, scale) +
                            Product(weights.R, unit.RaskosForce, scale) +
                            Product(weights.V, unit.StoykaForce, scale);
    const double difference = std::abs(found[static_cast<std::size_t>(joint)] - expected);
    greatest = std::max(greatest, difference / (1 + scale));
    loads[joint] = 0;
  }
  return greatest;
}

RC_GTEST_PROP(TransposedWalk, FindsWhatAWalkForEveryJointFinds, ()) {
  const TreloData data = PickUnloadedDesign(PickScheme());
  const TreloResult result = Solved(data);
  const BarWeights weights{.U = PickWeights(result.UpPoyasForce),
                           .D = PickWeights(result.DwnPoyasForce),
                           .R = PickWeights(result.RaskosForce),
                           .V = PickWeights(result.StoykaForce)};
  RC_ASSERT(Difference(data, *rc::gen::arbitrary<bool>(), weights) <= 1e-10);
}

TEST(TransposedWalk, FindsItForEverySchemeAndPanelCount) {
  // No two bars weigh the same.
  const auto weigh = [](const BoundedArray<double>& forces, double first) {
    std::vector<double> weights = Values(forces);
    for (double& weight : weights) {
      weight = first;
      first = first > 0 ? -1.125 * first : 0.3125 - first;
    }
    return weights;
  };
  for (Long scheme = 1; scheme <= 4; ++scheme) {
    for (const Long n : PanelCounts(scheme)) {
      SCOPED_TRACE(testing::Message() << "scheme " << scheme << ", panels " << n);
      const TreloData data = Design(scheme, n, 20, 1.5, 0.4);
      const TreloResult result = Solved(data);
      const BarWeights weights{.U = weigh(result.UpPoyasForce, 0.5),
                               .D = weigh(result.DwnPoyasForce, -0.75),
                               .R = weigh(result.RaskosForce, 0.375),
                               .V = weigh(result.StoykaForce, 0.625)};
      EXPECT_LE(Difference(data, true, weights), 1e-10);
      EXPECT_LE(Difference(data, false, weights), 1e-10);
    }
  }
}

}  // namespace
}  // namespace trelonit::test
