#include <gtest/gtest.h>

#include "tests/workstation/main/Desk.h"

namespace trelonit::test {
namespace {

struct Change {
  Integer From;
  Integer To;
  bool ChecksGeometry;
  bool RefreshesLoads;
};

class TabChange : public ::testing::TestWithParam<Change> {};

TEST_P(TabChange, RunsWhatItsDirectionAsksFor) {
  const Change change = GetParam();
  StartedDesk desk;
  frmMain& form = desk.Main;
  form.tabMain.SetTab(change.From);
  // Traces of the way here are wiped.
  form.Model.Accepted.LengthF = 0;
  form.cmbKnotNum.Clear();
  if (change.From == change.To) {
    form.tabMain_Click(change.From);
  } else {
    form.tabMain.SetTab(change.To);
  }
  EXPECT_EQ(form.Model.Accepted.LengthF, change.ChecksGeometry ? 20 : 0);
  EXPECT_EQ(form.cmbKnotNum.List(),
            change.RefreshesLoads ? Numbers(0, 10) : std::vector<std::string>());
  EXPECT_EQ(form.tabMain.Tab(), change.To);
  EXPECT_EQ(desk.TakeMessages(), Messages());
}

INSTANTIATE_TEST_SUITE_P(AllDirections, TabChange,
                         ::testing::Values(Change{0, 0, false, false}, Change{0, 1, true, false},
                                           Change{0, 2, true, true}, Change{1, 0, false, false},
                                           Change{1, 1, false, false}, Change{1, 2, false, true},
                                           Change{2, 0, false, false}, Change{2, 1, false, false},
                                           Change{2, 2, false, false}),
                         [](const auto& test) {
                           return "From" + std::to_string(test.param.From) + "To" +
                                  std::to_string(test.param.To);
                         });

TEST(TabChange, IsTakenBackByAGeometryThatIsRefused) {
  for (const Integer to : {Integer{1}, Integer{2}}) {
    StartedDesk desk;
    desk.Main.txtLengthF.SetText("0");
    desk.Main.tabMain.SetTab(to);
    EXPECT_EQ(desk.Main.tabMain.Tab(), 0);
    EXPECT_EQ(desk.TakeMessages().size(), 1U);
    EXPECT_EQ(desk.Main.Model.Accepted.LengthF, 0);
  }
}

TEST(TabChange, IsNotHinderedByAWarning) {
  StartedDesk desk;
  desk.Main.txtHight.SetText("25");
  desk.Main.tabMain.SetTab(2);
  EXPECT_EQ(desk.TakeMessages().size(), 1U);
  EXPECT_EQ(desk.Main.tabMain.Tab(), 2);
  EXPECT_EQ(desk.Main.cmbKnotNum.List(), Numbers(0, 10));
}

TEST(TabChange, TellsAFailureOfTheGeometryCheck) {
  StartedDesk desk;
  desk.Main.cmbPanelNum.SetText("ten");
  desk.Main.tabMain.SetTab(1);
  EXPECT_EQ(desk.TakeMessages(), Messages{TypeMismatchTail("tabMain_Click")});
}

TEST(TabChange, TellsAFailureOfTheLoadDisplay) {
  StartedDesk desk;
  desk.Main.tabMain.SetTab(1);
  desk.Main.cmbPanelNum.SetText("ten");
  desk.Main.tabMain.SetTab(2);
  EXPECT_EQ(desk.TakeMessages(), Messages{TypeMismatchTail("tabMain_Click")});
}

}  // namespace
}  // namespace trelonit::test
