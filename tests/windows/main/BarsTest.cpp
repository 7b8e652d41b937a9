#include <cmath>
#include <gtest/gtest.h>
#include <map>

#include "tests/workstation/design/Calculations.h"
#include "tests/workstation/main/Desk.h"

namespace trelonit::test {
namespace {

/// The numbers of bars that a truss of a scheme has.
struct BarCounts {
  Long Upper, Lower, Diagonals, Verticals;
};

BarCounts CountsOf(Long scheme, Long n) {
  switch (scheme) {
    case 1:
      return {n, n, n, n + 1};
    case 2:
      return {n, n - 2, n, n - 1};
    case 3:
      return {n, n - 1, 2 * n, 0};
    default:
      return {n, n / 2 - 1, n, n / 2};
  }
}

constexpr double trussSpan = 20;
constexpr double height = 1.7;

/// A calculated design with loads that differ from joint to joint.
class Bars : public ::testing::TestWithParam<Long> {
 protected:
  Bars() {
    desk_.Main.txtLengthF.SetText("20");
    desk_.Main.txtHight.SetText("1.7");
    desk_.Main.imgTreloType_Click(GetParam());
  }

  const std::vector<PictureBar>& Calculate(Long n) {
    frmMain& form = desk_.Main;
    form.tabMain.SetTab(0);
    Choose(form.cmbPanelNum, std::to_string(n));
    form.txtLenOporn.SetText(NumberToText(trussSpan / static_cast<double>(n) * 0.9, PointLocale()));
    form.cmdClearLoads_Click();
    double force = 0.5;
    std::vector<BoundedArray<double>*> chords{&form.Model.Inputs.Loads.UpPForce};
    // Intended: scheme 2 takes loads of its lower chord out of their places, so that the truss is
    // not in balance under them.
    if (GetParam() != 2) {
      chords.push_back(&form.Model.Inputs.Loads.DwnPForce);
    }
    for (BoundedArray<double>* joints : chords) {
      for (double& joint : *joints) {
        joint = force;
        force = force * -1.25 + 0.125;
        if (std::abs(force) > 4) {
          force = 0.75;
        }
      }
    }
    form.tabMain.SetTab(2);
    form.cmdCalculate_Click();
    return desk_.Results.back().Picture.Bars;
  }

  std::vector<Long> PanelCounts() const {
    std::vector<Long> counts;
    const bool lattice = GetParam() == 3;
    for (Long n = lattice ? 2 : 4; n <= 30; n += lattice ? 1 : 2) {
      counts.push_back(n);
    }
    return counts;
  }
  const TreloResult& Result() const { return desk_.Main.Model.Last.TreloResult; }
  const LoadArrays& Loads() const { return desk_.Main.Model.Inputs.Loads; }

 private:
  StartedDesk desk_;
};

std::vector<PictureBar> Of(const std::vector<PictureBar>& bars, GroupOption group) {
  std::vector<PictureBar> found;
  for (const PictureBar& bar : bars) {
    if (bar.Group == group) {
      found.push_back(bar);
    }
  }
  return found;
}

std::vector<double> Forces(const std::vector<PictureBar>& bars) {
  std::vector<double> forces;
  for (const PictureBar& bar : bars) {
    forces.push_back(bar.Force);
  }
  return forces;
}

TEST_P(Bars, AreAsManyAsTheSchemeHas) {
  for (const Long n : PanelCounts()) {
    const std::vector<PictureBar> bars = Calculate(n);
    const BarCounts counts = CountsOf(GetParam(), n);
    const auto count = [&](GroupOption group) { return static_cast<Long>(Of(bars, group).size()); };
    EXPECT_EQ(count(optionUpPoyas), counts.Upper) << n;
    EXPECT_EQ(count(optionDwnPoyas), counts.Lower) << n;
    EXPECT_EQ(count(optionOpornRaskos), 2) << n;
    EXPECT_EQ(count(optionRaskos), counts.Diagonals - 2) << n;
    EXPECT_EQ(count(optionStoyka), counts.Verticals) << n;
    for (const GroupOption group :
         {optionUpPoyas, optionDwnPoyas, optionRaskos, optionOpornRaskos, optionStoyka}) {
      Long number = 0;
      for (const PictureBar& bar : Of(bars, group)) {
        EXPECT_EQ(bar.Number, ++number) << GroupName(group) << ' ' << n;
      }
    }
  }
}

TEST_P(Bars, CarryTheForcesOfTheResult) {
  for (const Long n : PanelCounts()) {
    const std::vector<PictureBar> bars = Calculate(n);
    EXPECT_EQ(Forces(Of(bars, optionUpPoyas)), Values(Result().UpPoyasForce)) << n;
    EXPECT_EQ(Forces(Of(bars, optionDwnPoyas)), Values(Result().DwnPoyasForce)) << n;
    std::vector<double> diagonals = Values(Result().RaskosForce);
    EXPECT_EQ(Forces(Of(bars, optionOpornRaskos)),
              (std::vector<double>{diagonals.front(), diagonals.back()}))
        << n;
    EXPECT_EQ(Forces(Of(bars, optionRaskos)),
              (std::vector<double>{diagonals.begin() + 1, diagonals.end() - 1}))
        << n;
    if (GetParam() != 3) {
      EXPECT_EQ(Forces(Of(bars, optionStoyka)), Values(Result().StoykaForce)) << n;
    }
  }
}

TEST_P(Bars, TheChordsRunThroughFromLeftToRight) {
  for (const Long n : PanelCounts()) {
    const std::vector<PictureBar> bars = Calculate(n);
    for (const GroupOption chord : {optionUpPoyas, optionDwnPoyas}) {
      const std::vector<PictureBar> pieces = Of(bars, chord);
      const double y = chord == optionUpPoyas ? height : 0;
      for (std::size_t piece = 0; piece < pieces.size(); ++piece) {
        EXPECT_EQ(pieces[piece].Y1, y);
        EXPECT_EQ(pieces[piece].Y2, y);
        EXPECT_LT(pieces[piece].X1, pieces[piece].X2);
        if (piece > 0) {
          EXPECT_EQ(pieces[piece].X1, pieces[piece - 1].X2) << n;
        }
      }
    }
    EXPECT_NEAR(Of(bars, optionUpPoyas).front().X1, 0, 1e-12);
    EXPECT_NEAR(Of(bars, optionUpPoyas).back().X2, trussSpan, 1e-12);
  }
}

TEST_P(Bars, EveryFreeJointIsInBalance) {
  // The forces along the drawn directions and the joint's load cancel each other, up and down as
  // well as along, in every joint that is no support.
  for (const Long n : PanelCounts()) {
    const std::vector<PictureBar> bars = Calculate(n);
    using Place = std::pair<long, long>;
    const auto place = [](double x, double y) {
      return Place{std::lround(x * 1e6), std::lround(y * 1e6)};
    };
    std::map<Place, std::pair<double, double>> sums;
    for (const PictureBar& bar : bars) {
      const double length = std::hypot(bar.X2 - bar.X1, bar.Y2 - bar.Y1);
      const double x = bar.Force * (bar.X2 - bar.X1) / length;
      const double y = bar.Force * (bar.Y2 - bar.Y1) / length;
      auto& near = sums[place(bar.X1, bar.Y1)];
      near.first += x;
      near.second += y;
      auto& far = sums[place(bar.X2, bar.Y2)];
      far.first -= x;
      far.second -= y;
    }
    for (const bool upper : {true, false}) {
      const std::vector<double> loads = Values(upper ? Loads().UpPForce : Loads().DwnPForce);
      std::vector<Place> joints;
      for (const auto& [joint, sum] : sums) {
        if ((joint.second != 0) == upper) {
          joints.push_back(joint);
        }
      }
      ASSERT_EQ(joints.size(), loads.size()) << n;
      // The map keeps the joints from left to right; the ends carry the supports.
      for (std::size_t joint = 0; joint < joints.size(); ++joint) {
        // Scheme 1 stands on the ends of its lower chord, the others hang from the upper one.
        const bool end = joint == 0 || joint + 1 == joints.size();
        if (end && upper == (GetParam() != 1)) {
          continue;
        }
        EXPECT_NEAR(sums[joints[joint]].first, 0, 1e-9) << n << ' ' << upper << ' ' << joint;
        EXPECT_NEAR(sums[joints[joint]].second, loads[joint], 1e-9)
            << n << ' ' << upper << ' ' << joint;
      }
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Schemes, Bars, ::testing::Values(1, 2, 3, 4));

TEST(BarsOfReservedSchemes, AreNone) {
  StartedDesk desk;
  desk.Main.tabMain.SetTab(2);
  desk.Main.cmdCalculate_Click();
  TreloData data = desk.Main.Model.ToCalculate().TreloData;
  EXPECT_FALSE(BuildBars(CalculationOf(data, desk.Main.Model.Last.TreloResult)).empty());
  for (const Long scheme : {-1, 0, 5, 6, 7, 8, 9, 10}) {
    data.TreloType = scheme;
    EXPECT_TRUE(BuildBars(CalculationOf(data, desk.Main.Model.Last.TreloResult)).empty()) << scheme;
  }
}

TEST(BarsWithoutAResult, AreNone) {
  StartedDesk desk;
  EXPECT_TRUE(
      BuildBars(CalculationOf(desk.Main.Model.ToCalculate().TreloData, TreloResult())).empty());
}

TEST(BarsOfAnotherScheme, AreNoneWhereTheForcesDoNotFit) {
  StartedDesk desk;
  desk.Main.tabMain.SetTab(2);
  desk.Main.cmdCalculate_Click();
  TreloData data = desk.Main.Model.ToCalculate().TreloData;
  data.TreloType = 3;
  EXPECT_TRUE(BuildBars(CalculationOf(data, desk.Main.Model.Last.TreloResult)).empty());
}

}  // namespace
}  // namespace trelonit::test
