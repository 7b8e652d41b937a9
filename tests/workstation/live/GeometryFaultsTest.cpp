#include <gtest/gtest.h>

#include "tests/workstation/main/Desk.h"

namespace trelonit::test {
namespace {

struct BoxSizes {
  Integer Scheme = 1;
  double Span = 24;
  double Height = 3;
  double EndPanel = 3;
  Long Panels = 8;
};

std::vector<GeometryFault> FaultsOf(const BoxSizes& sizes) {
  DesignInputs inputs;
  inputs.TreloType = sizes.Scheme;
  inputs.LengthF = sizes.Span;
  inputs.Hight = sizes.Height;
  inputs.LenOporn = sizes.EndPanel;
  inputs.PanelNum = sizes.Panels;
  return FindGeometryFaults(inputs, PointLocale());
}

/// The one fault of these sizes; one that is none fails the test.
void ExpectFault(const BoxSizes& sizes, GeometryInput at, Severity grade) {
  const std::vector<GeometryFault> faults = FaultsOf(sizes);
  ASSERT_EQ(faults.size(), 1U);
  EXPECT_EQ(faults[0].At, at) << faults[0].Text;
  EXPECT_EQ(faults[0].Grade, grade) << faults[0].Text;
}

TEST(GeometryFaults, AreNoneInASoundTruss) {
  EXPECT_TRUE(FaultsOf({}).empty());
  EXPECT_TRUE(FaultsOf({.EndPanel = 0}).empty()) << "all panels are equal then";
  EXPECT_TRUE(FaultsOf({.Scheme = 3, .EndPanel = 100, .Panels = 7}).empty())
      << "scheme 3 has no end panels of its own";
}

TEST(GeometryFaults, StandAtTheSizeThatMakesNoTruss) {
  ExpectFault({.Span = 0}, GeometryInput::Span, Severity::Danger);
  ExpectFault({.Span = -24}, GeometryInput::Span, Severity::Danger);
  ExpectFault({.Height = 0}, GeometryInput::Height, Severity::Danger);
  ExpectFault({.Panels = 7}, GeometryInput::PanelNum, Severity::Danger);
  ExpectFault({.Panels = 32}, GeometryInput::PanelNum, Severity::Danger);
  ExpectFault({.Panels = 0}, GeometryInput::PanelNum, Severity::Danger);
  ExpectFault({.EndPanel = 12}, GeometryInput::EndPanel, Severity::Danger);
  ExpectFault({.EndPanel = 100}, GeometryInput::EndPanel, Severity::Danger);
}

TEST(GeometryFaults, LeaveRoomToTheLastMillimetre) {
  EXPECT_TRUE(FaultsOf({.Height = 12, .EndPanel = 11.999}).empty() ||
              FaultsOf({.Height = 12, .EndPanel = 11.999})[0].Grade == Severity::Warning);
}

TEST(GeometryFaults, WarnWhereTheGeometryCheckWarns) {
  ExpectFault({.Height = 24}, GeometryInput::Height, Severity::Warning);
  // 2.2 panels high is the last that passes; with half panels 4.4.
  EXPECT_TRUE(FaultsOf({.Height = 6.6}).empty());
  ExpectFault({.Height = 6.61}, GeometryInput::Height, Severity::Warning);
  EXPECT_TRUE(FaultsOf({.Scheme = 3, .Height = 13.2}).empty());
  ExpectFault({.Scheme = 3, .Height = 13.21}, GeometryInput::Height, Severity::Warning);
  // A short end panel is steep by itself.
  ExpectFault({.Height = 3, .EndPanel = 1}, GeometryInput::Height, Severity::Warning);
  ExpectFault({.EndPanel = -1}, GeometryInput::EndPanel, Severity::Warning);
}

TEST(GeometryFaults, OfSeveralSizesStandAtEach) {
  const std::vector<GeometryFault> faults = FaultsOf({.Span = 0, .Height = 0, .Panels = 3});
  ASSERT_EQ(faults.size(), 3U);
  EXPECT_EQ(faults[0].At, GeometryInput::Span);
  EXPECT_EQ(faults[1].At, GeometryInput::Height);
  EXPECT_EQ(faults[2].At, GeometryInput::PanelNum);
}

TEST(GeometryFaults, AreNotLookedForInASchemeThatIsNotCalculated) {
  EXPECT_TRUE(FaultsOf({.Scheme = 5, .Span = 0}).empty());
}

TEST(GeometryFaults, OfTheFormAreThoseOfItsBoxes) {
  StartedDesk desk;
  EXPECT_TRUE(desk.Main.GeometryFaults().empty());
  desk.Main.txtLenOporn.SetText("10");
  ASSERT_EQ(desk.Main.GeometryFaults().size(), 1U);
  EXPECT_EQ(desk.Main.GeometryFaults()[0].Text,
            "Опорные панели, 2 × 10 м, не оставляют места остальным");
  desk.Main.txtLenOporn.SetText("2");
  EXPECT_TRUE(desk.Main.GeometryFaults().empty());
}

TEST(GeometryChanged, FollowsEveryBoxAndTheScheme) {
  StartedDesk desk;
  int changes = 0;
  desk.Main.GeometryChanged = [&changes] { ++changes; };
  const auto follows = [&](const char* what, auto change) {
    changes = 0;
    change();
    EXPECT_GT(changes, 0) << what;
  };
  follows("span", [&] { desk.Main.txtLengthF.SetText("30"); });
  follows("height", [&] { desk.Main.txtHight.SetText("3"); });
  follows("end panel", [&] { desk.Main.txtLenOporn.SetText("3"); });
  follows("panels", [&] { Choose(desk.Main.cmbPanelNum, "8"); });
  follows("scheme", [&] { desk.Main.imgTreloType_Click(3); });
}

}  // namespace
}  // namespace trelonit::test
