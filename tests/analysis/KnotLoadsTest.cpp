#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "tests/analysis/Designs.h"
#include "tests/analysis/Expectations.h"
#include "tests/analysis/RandomDesigns.h"
#include "tests/analysis/TrussModel.h"

namespace trelonit::test {
namespace {

/// Point loads, and the load of every panel halved between its two joints.
std::vector<double> ByGeometry(const TrussModel& model, const std::vector<std::size_t>& chord,
                               const BoundedArray<double>& points,
                               const BoundedArray<double>& distributed) {
  std::vector<double> loads = Values(points);
  for (std::size_t i = 0; i + 1 < chord.size(); ++i) {
    const double length = model.Joints[chord[i + 1]].X - model.Joints[chord[i]].X;
    const double half = distributed[static_cast<Long>(i)] * length / 2;
    loads[i] += half;
    loads[i + 1] += half;
  }
  return loads;
}

struct ChordLoads {
  std::vector<double> Up;
  std::vector<double> Dwn;
};

ChordLoads ExpectedLoads(const TreloData& data) {
  const TrussModel model = ModelOf(data);
  ChordLoads loads{.Up = ByGeometry(model, model.Upper, data.UpPForce, data.UpDistForce),
                   .Dwn = ByGeometry(model, model.Lower, data.DwnPForce, data.DwnDistForce)};
  const Long n = data.PanelNum;
  if (data.TreloType == 1) {
    // Intended: the two panel lengths change places at the last upper joint but one.
    const double d = (data.LengthF - 2 * data.LenOporn) / (n - 2);
    loads.Up[static_cast<std::size_t>(n - 1)] = data.UpDistForce[n - 2] * data.LenOporn / 2 +
                                                data.UpPForce[n - 1] +
                                                data.UpDistForce[n - 1] * d / 2;
  }
  if (data.TreloType == 2) {
    // Intended: the second lower joint carries nothing.
    loads.Dwn[1] = 0;
  }
  return loads;
}

void RequireExpectedLoads(const TreloData& data) {
  const TreloResult result = Solved(data);
  const ChordLoads expected = ExpectedLoads(data);
  RC_ASSERT(AlmostEqual(Values(result.UpKnotLoad), expected.Up, 1e-13));
  RC_ASSERT(AlmostEqual(Values(result.DwnKnotLoad), expected.Dwn, 1e-13));
}

RC_GTEST_PROP(KnotLoads, HalveEveryPanelBetweenItsJoints, ()) {
  RequireExpectedLoads(PickDesign(PickScheme()));
}

TEST(KnotLoads, HalveEveryPanelForEveryPanelCount) {
  for (Long scheme = 1; scheme <= 4; ++scheme) {
    for (const Long n : PanelCounts(scheme)) {
      SCOPED_TRACE(testing::Message() << "scheme " << scheme << ", n " << n);
      TreloData data = Design(scheme, n, 30, 2, 1.25);
      FillIrregular(data);
      const TreloResult result = Solved(data);
      const ChordLoads expected = ExpectedLoads(data);
      ExpectForces(result.UpKnotLoad, expected.Up);
      ExpectForces(result.DwnKnotLoad, expected.Dwn);
    }
  }
}

/// End panels of 1 m, regular ones of 4 m.
TreloData LongPanels(Long scheme, Long n) {
  return Design(scheme, n, 2 + 4.0 * (n - 2), 2, 1);
}

TEST(KnotLoads, OfTheFirstSchemeSwapTheLengthsAtTheLastUpperJointButOne) {
  TreloData data = LongPanels(1, 4);
  data.UpDistForce[2] = 2;
  data.UpDistForce[3] = 6;
  // 2 * 1 / 2 + 6 * 4 / 2, where the geometry has 2 * 4 / 2 + 6 * 1 / 2 = 7.
  ExpectForces(Solved(data).UpKnotLoad, {0, 0, 4, 13, 3});
}

TEST(KnotLoads, OfTheFirstSchemeKeepTheLengthsInPlaceBelow) {
  TreloData data = LongPanels(1, 4);
  data.DwnDistForce[2] = 2;
  data.DwnDistForce[3] = 6;
  ExpectForces(Solved(data).DwnKnotLoad, {0, 0, 4, 7, 3});
}

TEST(KnotLoads, OfTheFirstSchemeSwapNothingAtTheSecondUpperJoint) {
  TreloData data = LongPanels(1, 4);
  data.UpDistForce[0] = 6;
  data.UpDistForce[1] = 2;
  ExpectForces(Solved(data).UpKnotLoad, {3, 7, 4, 0, 0});
}

TEST(KnotLoads, OfTheSecondAndFourthSchemeKeepTheLengthsInPlaceAbove) {
  for (const Long scheme : {2, 4}) {
    TreloData data = LongPanels(scheme, 4);
    data.UpDistForce[2] = 2;
    data.UpDistForce[3] = 6;
    ExpectForces(Solved(data).UpKnotLoad, {0, 0, 4, 7, 3});
  }
}

TEST(KnotLoads, OfTheSecondSchemeLeaveOutTheSecondLowerJoint) {
  TreloData data = SquareDesign(2, 6);
  for (double& load : data.DwnDistForce) {
    load = 1;
  }
  data.DwnPForce[1] = 50;
  ExpectForces(Solved(data).DwnKnotLoad, {1, 0, 2, 2, 1});
}

TEST(KnotLoads, OfTheSmallestTrussOfTheSecondSchemeLeaveOutItsMiddleJoint) {
  TreloData data = SquareDesign(2, 4);
  for (double& load : data.DwnDistForce) {
    load = 1;
  }
  data.DwnPForce[1] = 50;
  ExpectForces(Solved(data).DwnKnotLoad, {1, 0, 1});
}

TEST(KnotLoads, OfTheFourthSchemeTakeAWholePanelFromEachSideBelow) {
  TreloData data = SquareDesign(4, 6);
  data.DwnDistForce[0] = 1;
  data.DwnDistForce[1] = 10;
  data.DwnPForce[1] = 0.5;
  ExpectForces(Solved(data).DwnKnotLoad, {2, 22.5, 20});
}

TEST(KnotLoads, OfTheLatticeTakeHalfAPanelFromEachSide) {
  TreloData data = SquareDesign(3, 3);
  data.UpDistForce[0] = 1;
  data.UpDistForce[1] = 10;
  data.DwnDistForce[0] = 2;
  data.DwnDistForce[1] = 20;
  const TreloResult result = Solved(data);
  ExpectForces(result.UpKnotLoad, {1, 11, 10, 0});
  ExpectForces(result.DwnKnotLoad, {2, 22, 20});
}

}  // namespace
}  // namespace trelonit::test
