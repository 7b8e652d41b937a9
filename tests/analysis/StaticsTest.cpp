#include <algorithm>
#include <functional>
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "tests/analysis/Designs.h"
#include "tests/analysis/Expectations.h"
#include "tests/analysis/RandomDesigns.h"

namespace trelonit::test {
namespace {

using LoadMember = BoundedArray<double> LoadArrays::*;
constexpr LoadMember loadMembers[] = {&LoadArrays::UpPForce, &LoadArrays::UpDistForce,
                                      &LoadArrays::DwnPForce, &LoadArrays::DwnDistForce};

RC_GTEST_PROP(Statics, ForcesOfTwoLoadSetsAddUp, ()) {
  TreloData first = PickDesign(PickScheme());
  TreloData second = first;
  PickLoads(second);
  TreloData both = first;
  for (const LoadMember member : loadMembers) {
    std::transform((first.*member).begin(), (first.*member).end(), (second.*member).begin(),
                   (both.*member).begin(), std::plus<>());
  }
  std::vector<double> sum = AllForces(Solved(first));
  const std::vector<double> other = AllForces(Solved(second));
  std::transform(sum.begin(), sum.end(), other.begin(), sum.begin(), std::plus<>());
  RC_ASSERT(AlmostEqual(AllForces(Solved(both)), sum));
}

RC_GTEST_PROP(Statics, ForcesGrowWithTheLoads, ()) {
  const TreloData data = PickDesign(PickScheme());
  const double factor = PickBetween(-3, 3);
  TreloData scaled = data;
  for (const LoadMember member : loadMembers) {
    for (double& load : scaled.*member) {
      load *= factor;
    }
  }
  std::vector<double> expected = AllForces(Solved(data));
  for (double& force : expected) {
    force *= factor;
  }
  RC_ASSERT(AlmostEqual(AllForces(Solved(scaled)), expected));
}

RC_GTEST_PROP(Statics, ForcesOfPointLoadsDoNotDependOnTheScaleOfTheTruss, ()) {
  TreloData data = PickDesign(PickScheme());
  Clear(data.UpDistForce);
  Clear(data.DwnDistForce);
  const double factor = PickBetween(0.2, 5);
  TreloData scaled = data;
  scaled.LengthF *= factor;
  scaled.Hight *= factor;
  scaled.LenOporn *= factor;
  RC_ASSERT(AlmostEqual(AllForces(Solved(scaled)), AllForces(Solved(data))));
}

RC_GTEST_PROP(Statics, ReactionsCarryAllLoadsTogether, ()) {
  const TreloResult result = Solved(PickDesign(PickScheme()));
  double total = 0;
  for (const auto* loads : {&result.UpKnotLoad, &result.DwnKnotLoad}) {
    for (const double load : *loads) {
      total += load;
    }
  }
  RC_ASSERT(AlmostEqual({result.ReactLeft + result.ReactRight, Magnitude(AllForces(result))},
                        {total, Magnitude(AllForces(result))}));
}

/// Loads that keep their total under a mirror: scheme 1 exchanges two panel lengths near the right
/// end of the upper chord, which shows where those two panels are loaded unlike, and scheme 2 takes
/// the lower loads out of their places.
void KeepMirrorable(TreloData& data) {
  const Long n = data.PanelNum;
  if (data.TreloType == 1) {
    data.UpDistForce[1] = data.UpDistForce[0];
    data.UpDistForce[n - 2] = data.UpDistForce[n - 1];
  }
  if (data.TreloType == 2) {
    Clear(data.DwnPForce);
    Clear(data.DwnDistForce);
  }
}

void Mirror(BoundedArray<double>& values) {
  std::reverse(values.begin(), values.end());
}

void Mirror(TreloData& data) {
  for (const LoadMember member : loadMembers) {
    Mirror(data.*member);
  }
}

void Mirror(TreloResult& result) {
  std::swap(result.ReactLeft, result.ReactRight);
  for (auto* forces :
       {&result.UpPoyasForce, &result.DwnPoyasForce, &result.RaskosForce, &result.StoykaForce}) {
    Mirror(*forces);
  }
}

RC_GTEST_PROP(Statics, MirroredLoadsGiveMirroredForces, ()) {
  TreloData data = PickDesign(PickScheme());
  KeepMirrorable(data);
  TreloResult expected = Solved(data);
  Mirror(expected);
  Mirror(data);
  // Scheme 1 has one bar that carries nothing at either end of the lower chord.
  RC_ASSERT(AlmostEqual(AllForces(Solved(data)), AllForces(expected)));
}

RC_GTEST_PROP(Statics, SymmetricLoadsGiveEqualReactionsAndSymmetricForces, ()) {
  TreloData data = PickDesign(PickScheme());
  KeepMirrorable(data);
  for (const LoadMember member : loadMembers) {
    const BoundedArray<double> loads = data.*member;
    BoundedArray<double> mirrored = loads;
    Mirror(mirrored);
    std::transform(loads.begin(), loads.end(), mirrored.begin(), (data.*member).begin(),
                   std::plus<>());
  }
  const TreloResult result = Solved(data);
  TreloResult mirrored = result;
  Mirror(mirrored);
  RC_ASSERT(AlmostEqual(AllForces(result), AllForces(mirrored)));
  RC_ASSERT(result.Balanced);
}

RC_GTEST_PROP(Statics, LoadsOverTheSupportsOfTheUpperChordReachOnlyTheReactions, ()) {
  TreloData data = PickUnloadedDesign(*rc::gen::element<Long>(2, 3, 4));
  data.UpPForce[0] = PickBetween(-20, 20);
  data.UpPForce[data.PanelNum] = PickBetween(-20, 20);
  std::vector<double> expected(AllForces(Solved(data)).size());
  expected[0] = data.UpPForce[0];
  expected[1] = data.UpPForce[data.PanelNum];
  RC_ASSERT(AlmostEqual(AllForces(Solved(data)), expected, 1e-13));
}

TEST(Statics, EvenLoadsBalanceInEverySchemeButTheSecond) {
  for (Long scheme = 1; scheme <= 4; ++scheme) {
    for (const Long n : PanelCounts(scheme)) {
      SCOPED_TRACE(testing::Message() << "scheme " << scheme << ", n " << n);
      TreloData data = Design(scheme, n, 24, 2, 1.75);
      for (double& load : data.UpDistForce) {
        load = 0.8;
      }
      if (scheme != 2) {
        for (double& load : data.DwnDistForce) {
          load = 0.3;
        }
      }
      const TreloResult result = Solved(data);
      EXPECT_TRUE(result.Balanced);
      EXPECT_NEAR(result.ReactLeft, result.ReactRight, 1e-12);
      EXPECT_GT(result.ReactLeft, 9);
      // The upper chord is pressed and the lower one pulled.
      EXPECT_LT(result.UpPoyasForce[(n + 1) / 2], 0);
      EXPECT_GT(result.DwnPoyasForce[(result.DwnPoyasForce.UpperBound() + 1) / 2], 0);
    }
  }
}

}  // namespace
}  // namespace trelonit::test
