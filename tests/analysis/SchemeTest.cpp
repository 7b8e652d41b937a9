#include <gtest/gtest.h>
#include <map>
#include <utility>

#include "analysis/Scheme.h"
#include "tests/analysis/Designs.h"
#include "tests/analysis/TrussModel.h"

namespace trelonit::test {

namespace {

TreloData LongEndPanels(Long scheme, Long n) {
  return Design(scheme, n, 30, 2.5, 4);
}

class SchemeTable : public testing::TestWithParam<Long> {};

TEST_P(SchemeTable, HasTheJointsOfTheModelByTheirNumbers) {
  for (const Long n : PanelCounts(GetParam())) {
    const TreloData data = LongEndPanels(GetParam(), n);
    const Truss truss = TrussOf(data);
    const TrussModel model = ModelOf(data);
    ASSERT_EQ(truss.Joints.size(), model.Joints.size()) << n;
    for (const ModelJoint& joint : model.Joints) {
      const TrussJoint& found = truss.Joints[static_cast<std::size_t>(joint.Number - 1)];
      EXPECT_EQ(found.Number, joint.Number);
      EXPECT_NEAR(found.X, joint.X, 1e-12) << n << ' ' << joint.Number;
      EXPECT_EQ(found.Y, joint.Y) << n << ' ' << joint.Number;
    }
  }
}

TEST_P(SchemeTable, NumbersTheJointsOfAChordFromTheLeft) {
  for (const Long n : PanelCounts(GetParam())) {
    const Truss truss = TrussOf(LongEndPanels(GetParam(), n));
    for (const Chord chord : {Chord::Upper, Chord::Lower}) {
      const std::vector<std::size_t>& places = truss.JointsOf(chord);
      for (std::size_t i = 0; i < places.size(); ++i) {
        EXPECT_EQ(truss.Joints[places[i]].Of, chord);
        EXPECT_EQ(truss.Joints[places[i]].Index, static_cast<Long>(i));
        EXPECT_TRUE(i == 0 || truss.Joints[places[i - 1]].X < truss.Joints[places[i]].X);
      }
    }
    const LoadBounds bounds = BoundsOfLoads(GetParam(), n).value();
    EXPECT_EQ(static_cast<Long>(truss.Upper.size()), bounds.UpPForce + 1);
    EXPECT_EQ(static_cast<Long>(truss.Lower.size()), bounds.DwnPForce + 1);
  }
}

TEST_P(SchemeTable, HasTheBarsOfTheModelAtTheirPlacesInTheResult) {
  const std::map<BarKind, BoundedArray<double> TreloResult::*> arrays{
      {BarKind::UpPoyas, &TreloResult::UpPoyasForce},
      {BarKind::DwnPoyas, &TreloResult::DwnPoyasForce},
      {BarKind::Raskos, &TreloResult::RaskosForce},
      {BarKind::Stoyka, &TreloResult::StoykaForce}};
  for (const Long n : PanelCounts(GetParam())) {
    const TreloData data = LongEndPanels(GetParam(), n);
    const Truss truss = TrussOf(data);
    const TrussModel model = ModelOf(data);
    const TreloResult result = Solved(data);
    ASSERT_EQ(truss.Bars.size(), model.Bars.size()) << n;
    for (const ModelBar& bar : model.Bars) {
      int found = 0;
      for (const TrussBar& candidate : truss.Bars) {
        if (candidate.Forces == arrays.at(bar.Kind) && candidate.Subscript == bar.Subscript) {
          ++found;
          EXPECT_EQ(std::pair(truss.Joints[candidate.A].Number, truss.Joints[candidate.B].Number),
                    std::pair(model.Joints[bar.A].Number, model.Joints[bar.B].Number));
          EXPECT_NEAR(candidate.Length, model.Length(bar), 1e-12);
          EXPECT_NO_THROW((result.*candidate.Forces)[candidate.Subscript]);
        }
      }
      EXPECT_EQ(found, 1) << n << ' ' << bar.Subscript;
    }
  }
}

TEST_P(SchemeTable, CountsTheBarsOfEachGroupFromTheLeft) {
  for (const Long n : PanelCounts(GetParam())) {
    const Truss truss = TrussOf(LongEndPanels(GetParam(), n));
    std::map<ElementGroup, Long> counted;
    for (const TrussBar& bar : truss.Bars) {
      EXPECT_EQ(bar.Number, ++counted[bar.Group]);
      EXPECT_LE(truss.Joints[bar.A].X, truss.Joints[bar.B].X);
    }
    EXPECT_EQ(counted[ElementGroup::OpornRaskos], 2);
    EXPECT_EQ(counted[ElementGroup::Stoyka] > 0, FindScheme(GetParam())->HasVerticals);
  }
}

TEST_P(SchemeTable, IsHeldWhereTheModelIs) {
  const TreloData data = LongEndPanels(GetParam(), 8);
  const Truss truss = TrussOf(data);
  const TrussModel model = ModelOf(data);
  EXPECT_EQ(truss.Joints[truss.LeftSupport].Number, model.Joints[model.LeftSupport].Number);
  EXPECT_EQ(truss.Joints[truss.RightSupport].Number, model.Joints[model.RightSupport].Number);
}

TEST_P(SchemeTable, IsStaticallyDeterminate) {
  for (const Long n : PanelCounts(GetParam())) {
    const Truss truss = TrussOf(LongEndPanels(GetParam(), n));
    EXPECT_EQ(truss.Bars.size() + 3, 2 * truss.Joints.size()) << n;
  }
}

TEST_P(SchemeTable, RefusesAPanelCountThatItDoesNotHave) {
  for (const Long n : {-2, 0, 1, GetParam() == 3 ? -1 : 2, GetParam() == 3 ? -3 : 5}) {
    TreloData data = LongEndPanels(GetParam(), 8);
    data.PanelNum = n;
    EXPECT_THROW(TrussOf(data), RuntimeError) << n;
  }
}

TEST_P(SchemeTable, RefusesMoreJointsThanAnyTrussHas) {
  TreloData data = LongEndPanels(GetParam(), 8);
  data.PanelNum = 1'000'000'000;
  EXPECT_THROW(TrussOf(data), RuntimeError);
}

TEST_P(SchemeTable, HasUpToAThousandPanels) {
  TreloData data = LongEndPanels(GetParam(), 8);
  data.PanelNum = 1000;
  EXPECT_EQ(TrussOf(data).Upper.size(), 1001U);
  data.PanelNum = 1002;
  EXPECT_THROW(TrussOf(data), RuntimeError);
}

INSTANTIATE_TEST_SUITE_P(Schemes, SchemeTable, testing::Values(1, 2, 3, 4));

TEST(SchemeTable, KeepsThePlacesOfTheReservedSchemes) {
  for (Long number = 1; number <= 10; ++number) {
    ASSERT_NE(FindScheme(number), nullptr) << number;
    EXPECT_EQ(FindScheme(number)->Number, number);
    EXPECT_EQ(FindScheme(number)->Reserved, number > 4);
  }
  TreloData data = LongEndPanels(1, 8);
  data.TreloType = 5;
  EXPECT_THROW(TrussOf(data), RuntimeError);
}

TEST(SchemeTable, HasNoOtherSchemes) {
  EXPECT_EQ(FindScheme(0), nullptr);
  EXPECT_EQ(FindScheme(11), nullptr);
  EXPECT_EQ(FindScheme(-1), nullptr);
}

}  // namespace

}  // namespace trelonit::test
