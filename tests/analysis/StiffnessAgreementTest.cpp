#include <cmath>
#include <gtest/gtest.h>
#include <map>
#include <rapidcheck/gtest.h>
#include <set>

#include "tests/analysis/Designs.h"
#include "tests/analysis/Expectations.h"
#include "tests/analysis/RandomDesigns.h"
#include "tests/analysis/TrussModel.h"

namespace trelonit::test {
namespace {

struct Comparison {
  std::vector<double> Walked;
  std::vector<double> Elastic;
};

bool Agree(const Comparison& comparison) {
  return AlmostEqual(comparison.Walked, comparison.Elastic, 1e-9);
}

/// Reactions and forces of the bars that are looked at, by the walk and by the stiffness method.
template <class Looked>
Comparison Compare(const TreloData& data, const Looked& looked) {
  const TreloResult result = Solved(data);
  const TrussModel model = ModelOf(data);
  const ElasticSolution elastic =
      SolveElastic(model, JointLoads(model, result), std::vector<double>(model.Bars.size(), 1.0));
  Comparison comparison{.Walked = {result.ReactLeft, result.ReactRight},
                        .Elastic = {elastic.ReactLeft, elastic.ReactRight}};
  for (std::size_t k = 0; k < model.Bars.size(); ++k) {
    if (looked(model, model.Bars[k])) {
      comparison.Walked.push_back(ForceOf(result, model.Bars[k]));
      comparison.Elastic.push_back(elastic.BarForces[k]);
    }
  }
  return comparison;
}

constexpr auto everyBar = [](const TrussModel&, const ModelBar&) { return true; };

/// Scheme 2 takes the lower loads out of their places, which no statics can follow.
void DropLoadsOutOfPlace(TreloData& data) {
  if (data.TreloType == 2) {
    Clear(data.DwnPForce);
    Clear(data.DwnDistForce);
  }
}

TEST(StiffnessAgreement, HoldsForEverySchemeAndPanelCount) {
  for (Long scheme = 1; scheme <= 4; ++scheme) {
    for (const Long n : PanelCounts(scheme)) {
      TreloData data = Design(scheme, n, 30, 2.25, 1.75);
      FillIrregular(data);
      DropLoadsOutOfPlace(data);
      const Comparison comparison = Compare(data, everyBar);
      EXPECT_GT(comparison.Walked.size(), static_cast<std::size_t>(3 * n)) << scheme << ", " << n;
      EXPECT_TRUE(Agree(comparison)) << "scheme " << scheme << ", n " << n;
    }
  }
}

RC_GTEST_PROP(StiffnessAgreement, HoldsForAnyDesign, ()) {
  TreloData data = PickDesign(PickScheme());
  DropLoadsOutOfPlace(data);
  RC_ASSERT(Agree(Compare(data, everyBar)));
}

RC_GTEST_PROP(StiffnessAgreement, HoldsLeftOfTheMiddleUnderAnyLoadInTheSecondScheme, ()) {
  const TreloData data = PickDesign(2);
  const double middle = data.LengthF / 2;
  RC_ASSERT(Agree(Compare(data, [=](const TrussModel& model, const ModelBar& bar) {
    return std::max(model.Joints[bar.A].X, model.Joints[bar.B].X) < middle + 1e-9;
  })));
}

RC_GTEST_PROP(JointEquilibrium, HoldsAtEveryJointOfTheBarTable, ()) {
  TreloData data = PickDesign(PickScheme());
  DropLoadsOutOfPlace(data);
  const TreloResult result = Solved(data);
  const TrussModel model = ModelOf(data);
  const double tolerance = 1e-10 * Magnitude(AllForces(result));
  for (const Residual& residual : JointResiduals(model, result, JointLoads(model, result))) {
    RC_ASSERT(std::abs(residual.Right) <= tolerance);
    RC_ASSERT(std::abs(residual.Up) <= tolerance);
  }
  RC_ASSERT(result.Balanced);
}

RC_GTEST_PROP(JointEquilibrium, OfTheSecondSchemeHoldsWithLowerLoadsShiftedFromTheMiddleOn, ()) {
  const TreloData data = PickDesign(2);
  const Long n = data.PanelNum;
  const TreloResult result = Solved(data);
  const TrussModel model = ModelOf(data);
  std::vector<double> loads = JointLoads(model, result);
  // The lower joint with index i stands in column i + 1.
  for (Long column = n / 2; column <= n - 2; ++column) {
    loads[model.Lower[static_cast<std::size_t>(column - 1)]] = result.DwnKnotLoad[column];
  }
  const double tolerance = 1e-10 * Magnitude(AllForces(result));
  const std::vector<Residual> residuals = JointResiduals(model, result, loads);
  const std::size_t lastLower = model.Lower.back();
  for (std::size_t joint = 0; joint < residuals.size(); ++joint) {
    if (joint != model.RightSupport) {
      RC_ASSERT(std::abs(residuals[joint].Right) <= tolerance);
      if (joint != lastLower) {
        RC_ASSERT(std::abs(residuals[joint].Up) <= tolerance);
      }
    }
  }
  // What does not close at the last two joints is what the flag reports.
  const double open =
      std::max({std::abs(residuals[lastLower].Up), std::abs(residuals[model.RightSupport].Right),
                std::abs(residuals[model.RightSupport].Up)});
  RC_PRE(std::abs(open - 0.00005) > 1e-9);
  RC_ASSERT(result.Balanced == (open < 0.00005));
}

class BarTable : public testing::TestWithParam<Long> {};
INSTANTIATE_TEST_SUITE_P(EveryScheme, BarTable, testing::Values(1, 2, 3, 4));

TEST_P(BarTable, HoldsEveryBarInBothOrdersAndNothingElse) {
  for (const Long n : PanelCounts(GetParam())) {
    SCOPED_TRACE(n);
    TreloData data = Design(GetParam(), n, 30, 2.25, 1.75);
    FillIrregular(data);
    const TreloResult result = Solved(data);
    const TrussModel model = ModelOf(data);
    std::map<std::pair<Long, Long>, double> bars;
    for (const ModelBar& bar : model.Bars) {
      const Long a = model.Joints[bar.A].Number;
      const Long b = model.Joints[bar.B].Number;
      bars[{a, b}] = ForceOf(result, bar);
      bars[{b, a}] = ForceOf(result, bar);
    }
    ASSERT_EQ(bars.size(), 2 * model.Bars.size());
    ASSERT_EQ(result.BarForce.Size(), static_cast<Long>(model.Joints.size()));
    for (Long row = 1; row <= result.KnotNum; ++row) {
      for (Long column = 1; column <= result.KnotNum; ++column) {
        const auto bar = bars.find({row, column});
        EXPECT_EQ(result.BarForce(row, column), bar == bars.end() ? 0 : bar->second)
            << row << ", " << column;
      }
    }
  }
}

TEST_P(BarTable, HasABarForEveryElementOfTheForceArrays) {
  for (const Long n : PanelCounts(GetParam())) {
    SCOPED_TRACE(n);
    const TreloData data = Design(GetParam(), n, 30, 2.25, 1.75);
    const TreloResult result = Solved(data);
    std::map<BarKind, std::set<Long>> subscripts;
    for (const ModelBar& bar : ModelOf(data).Bars) {
      subscripts[bar.Kind].insert(bar.Subscript);
    }
    EXPECT_EQ(static_cast<Long>(subscripts[BarKind::UpPoyas].size()),
              result.UpPoyasForce.UpperBound());
    EXPECT_EQ(static_cast<Long>(subscripts[BarKind::DwnPoyas].size()),
              result.DwnPoyasForce.UpperBound());
    EXPECT_EQ(static_cast<Long>(subscripts[BarKind::Raskos].size()),
              result.RaskosForce.UpperBound());
    // The lattice has the array without having the bars.
    EXPECT_EQ(static_cast<Long>(subscripts[BarKind::Stoyka].size()),
              GetParam() == 3 ? 0 : result.StoykaForce.UpperBound());
  }
}

RC_GTEST_PROP(Lengths, AreThoseOfTheBars, ()) {
  const TreloData data = PickUnloadedDesign(PickScheme());
  const TreloResult result = Solved(data);
  const TrussModel model = ModelOf(data);
  const Long lastDiagonal = result.RaskosForce.UpperBound();
  double up = 0;
  double dwn = 0;
  double stoyka = 0;
  double raskos = 0;
  double oporn = 0;
  std::vector<double> regular;
  std::vector<double> support;
  for (const ModelBar& bar : model.Bars) {
    const double length = model.Length(bar);
    switch (bar.Kind) {
      case BarKind::UpPoyas:
        up += length;
        break;
      case BarKind::DwnPoyas:
        dwn += length;
        break;
      case BarKind::Stoyka:
        stoyka += length;
        break;
      case BarKind::Raskos: {
        const bool atSupport = bar.Subscript == 1 || bar.Subscript == lastDiagonal;
        (atSupport ? support : regular).push_back(length);
        // The lattice counts all its diagonals as regular.
        (atSupport && data.TreloType != 3 ? oporn : raskos) += length;
        break;
      }
    }
  }
  RC_ASSERT(AlmostEqual({result.SumLenUpPoyas, result.SumLenDwnPoyas, result.SumLenStoyka,
                         result.SumLenRaskos, result.SumLenOpornRaskos},
                        {up, dwn, stoyka, raskos, oporn}, 1e-12));
  RC_ASSERT(AlmostEqual(regular, std::vector<double>(regular.size(), result.LenRaskos), 1e-12));
  RC_ASSERT(
      AlmostEqual(support, std::vector<double>(support.size(), result.LenOpornRaskos), 1e-12));
}

RC_GTEST_PROP(Lengths, AndSlopesBelongTogether, ()) {
  const TreloData data = PickUnloadedDesign(*rc::gen::element<Long>(1, 2, 4));
  const TreloResult result = Solved(data);
  const double d = (data.LengthF - 2 * data.LenOporn) / (data.PanelNum - 2);
  RC_ASSERT(AlmostEqual({result.LenPanel, std::tan(result.AngleOporn) * data.LenOporn,
                         std::tan(result.AngleRaskos) * d},
                        {d, data.Hight, data.Hight}, 1e-12));
}

}  // namespace
}  // namespace trelonit::test
