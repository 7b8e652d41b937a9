#include <gtest/gtest.h>
#include <map>
#include <rapidcheck/gtest.h>

#include "opinion/Opinion.h"
#include "tests/analysis/Expectations.h"
#include "tests/analysis/RandomDesigns.h"
#include "tests/analysis/TrussModel.h"
#include "tests/opinion/OpinionCase.h"

namespace trelonit::test {

namespace {

// The opinion's statics against two others that share nothing with it: the program's own walk from
// joint to joint, where that follows statics, and the stiffness method everywhere.

std::vector<double> Found(const TreloData& data) {
  return AllForces(SolveTruss(data).Forces);
}

/// The forces of the program's own calculation in the order of the opinion's bars.
std::vector<double> Walked(const TreloData& data) {
  const TreloResult result = Solved(data);
  std::vector<double> forces{result.ReactLeft, result.ReactRight};
  for (const TrussBar& bar : TrussOf(data).Bars) {
    forces.push_back((result.*bar.Forces)[bar.Subscript]);
  }
  return forces;
}

/// Takes away what the program's own calculation has rules of its own for: in scheme 1 it exchanges
/// the lengths of the last two upper panels, in scheme 2 it takes lower loads out of their places.
void KeepToStatics(TreloData& data) {
  if (data.TreloType == 1) {
    data.UpDistForce[data.PanelNum - 2] = data.UpDistForce[data.PanelNum - 1];
  }
  if (data.TreloType == 2) {
    Clear(data.DwnPForce);
    Clear(data.DwnDistForce);
  }
}

TEST(Forces, AreThoseOfTheWalkForEveryPanelCount) {
  for (Long scheme = 1; scheme <= 4; ++scheme) {
    for (const Long n : PanelCounts(scheme)) {
      TreloData data = Design(scheme, n, 30, 2.25, 1.75);
      FillIrregular(data);
      KeepToStatics(data);
      EXPECT_TRUE(AlmostEqual(Found(data), Walked(data), 1e-9)) << scheme << ", " << n;
    }
  }
}

RC_GTEST_PROP(Forces, AreThoseOfTheWalkForAnyDesign, ()) {
  TreloData data = PickDesign(PickScheme());
  KeepToStatics(data);
  RC_ASSERT(AlmostEqual(Found(data), Walked(data), 1e-9));
}

// Or the agreement above would say nothing of the loads that were taken away.
TEST(Forces, AreNotThoseOfTheWalkWhereThatHasRulesOfItsOwn) {
  TreloData first = Design(1, 8, 30, 2.25, 1.75);
  first.UpDistForce[7] = 1;
  EXPECT_FALSE(AlmostEqual(Found(first), Walked(first), 1e-3));
  TreloData second = Design(2, 8, 30, 2.25, 1.75);
  second.DwnPForce[5] = 1;
  EXPECT_FALSE(AlmostEqual(Found(second), Walked(second), 1e-3));
}

/// An opinion and the stiffness method on one truss, bar by bar and joint by joint.
struct Comparison {
  std::vector<double> Forces;
  std::vector<double> ElasticForces;
  std::vector<double> Drops;
  std::vector<double> ElasticDrops;
};

/// Areas in cm2 by group, in the order of the enumeration.
Comparison Compare(const TreloData& data, const std::vector<double>& areaOfGroup, double E) {
  const JudgedTruss truss = SolveTruss(data);
  std::vector<double> areas;
  std::map<std::pair<Long, Long>, double> areaBetween;
  for (const TrussBar& bar : truss.Model.Bars) {
    areas.push_back(areaOfGroup[static_cast<std::size_t>(bar.Group)]);
    areaBetween[{truss.Model.Joints[bar.A].Number, truss.Model.Joints[bar.B].Number}] =
        areas.back();
  }
  const std::vector<Displacement> moved = Displacements(truss.Model, truss.Forces.Forces, areas, E);

  const TrussModel model = ModelOf(data);
  std::vector<double> loads(model.Joints.size());
  std::vector<double> stiffness;
  for (std::size_t joint = 0; joint < loads.size(); ++joint) {
    loads[joint] = truss.Forces.Loads[static_cast<std::size_t>(model.Joints[joint].Number - 1)];
  }
  for (const ModelBar& bar : model.Bars) {
    // E in MPa and the area in cm2 make a stiffness in tonnes (9810 N) as E A / 98.1.
    const auto ends = std::pair(model.Joints[bar.A].Number, model.Joints[bar.B].Number);
    stiffness.push_back(E * areaBetween.at(ends) / 98.1);
  }
  const ElasticSolution elastic = SolveElastic(model, loads, stiffness);

  Comparison comparison{.Forces = AllForces(truss.Forces),
                        .ElasticForces = {elastic.ReactLeft, elastic.ReactRight}};
  std::map<std::pair<Long, Long>, double> elasticBetween;
  for (std::size_t bar = 0; bar < model.Bars.size(); ++bar) {
    elasticBetween[{model.Joints[model.Bars[bar].A].Number,
                    model.Joints[model.Bars[bar].B].Number}] = elastic.BarForces[bar];
  }
  for (const TrussBar& bar : truss.Model.Bars) {
    comparison.ElasticForces.push_back(
        elasticBetween.at({truss.Model.Joints[bar.A].Number, truss.Model.Joints[bar.B].Number}));
  }
  comparison.ElasticDrops.resize(model.Joints.size());
  for (std::size_t joint = 0; joint < model.Joints.size(); ++joint) {
    comparison.Drops.push_back(moved[joint].Down);
    comparison.ElasticDrops[static_cast<std::size_t>(model.Joints[joint].Number - 1)] =
        elastic.Drop[joint];
  }
  return comparison;
}

double GreatestDifference(const std::vector<double>& a, const std::vector<double>& b) {
  double greatest = 0;
  for (std::size_t i = 0; i < a.size(); ++i) {
    greatest = std::max(greatest, std::abs(a[i] - b[i]));
  }
  return greatest;
}

/// The greatest of the displacements themselves: they are millimetres, not numbers around 1.
double Size(const std::vector<double>& values) {
  return GreatestDifference(values, std::vector<double>(values.size()));
}

TEST(Forces, AndDisplacementsAreThoseOfTheStiffnessMethodForEveryPanelCount) {
  const std::vector<double> areas{60, 45, 10, 15, 25};
  for (Long scheme = 1; scheme <= 4; ++scheme) {
    for (const Long n : PanelCounts(scheme)) {
      TreloData data = Design(scheme, n, 30, 2.25, 1.75);
      FillIrregular(data);
      const Comparison comparison = Compare(data, areas, 206000);
      EXPECT_TRUE(AlmostEqual(comparison.Forces, comparison.ElasticForces, 1e-9))
          << scheme << ", " << n;
      EXPECT_GT(Size(comparison.Drops), 1e-4);
      EXPECT_LE(GreatestDifference(comparison.Drops, comparison.ElasticDrops),
                1e-7 * Size(comparison.ElasticDrops))
          << scheme << ", " << n;
    }
  }
}

RC_GTEST_PROP(Forces, AndDisplacementsAreThoseOfTheStiffnessMethodForAnyDesign, ()) {
  const TreloData data = PickDesign(PickScheme());
  std::vector<double> areas(5);
  for (double& area : areas) {
    area = PickBetween(2, 200);
  }
  const Comparison comparison = Compare(data, areas, PickBetween(1e5, 3e5));
  RC_ASSERT(AlmostEqual(comparison.Forces, comparison.ElasticForces, 1e-9));
  RC_ASSERT(GreatestDifference(comparison.Drops, comparison.ElasticDrops) <=
            1e-7 * Size(comparison.ElasticDrops));
}

}  // namespace

}  // namespace trelonit::test
