#include <algorithm>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "tests/workstation/design/ProjectLines.h"
#include "tests/workstation/design/SmallTruss.h"
#include "tests/workstation/main/LoadEntry.h"

namespace trelonit::test {
namespace {

/// A truss that is restored with 0.0081 t/m inside its loads, which is just its own weight: see the
/// fixture of the own weight itself.
class OwnWeightTwice : public ::testing::Test {
 protected:
  OwnWeightTwice() {
    desk.Load(true, 1, "4");
    form.chkOwnWeight.SetChecked(true);
    desk.Calculate();
    saved = ValuesOf(SavedBytes(desk, form));
    desk.TakeMessages();
  }

  void Restore(const ProjectValues& values) {
    ASSERT_TRUE(RestoreBytes(desk, form, ProjectBytes(values)));
  }
  bool Shown() const { return form.lblOwnWeightTwice.Visible(); }
  const std::string& Text() const { return form.lblOwnWeightTwice.Caption(); }
  std::vector<double> Upper() const { return Values(form.Model.Inputs.Loads.UpDistForce); }
  std::vector<double> Lower() const { return Values(form.Model.Inputs.Loads.DwnDistForce); }
  std::size_t FindingsOfIt() {
    form.tabMain.SetTab(2);
    const std::vector<Finding> findings = desk.Calculate().Opinion.Findings;
    return static_cast<std::size_t>(std::count_if(
        findings.begin(), findings.end(),
        [](const Finding& finding) { return finding.Code == FindingCode::OwnWeightTwice; }));
  }

  SmallTruss desk{1};
  frmMain& form = desk.Main;
  ProjectValues saved;
  bool redrawn = false;
};

TEST_F(OwnWeightTwice, IsNotToldWhileTheWeightIsTheCalculationsOwn) {
  EXPECT_TRUE(form.Model.OwnWeight.Added);
  EXPECT_FALSE(Shown());
  EXPECT_EQ(FindingsOfIt(), 0U);
}

TEST_F(OwnWeightTwice, IsToldWhenTheProjectIsRestored) {
  Restore(saved);
  EXPECT_TRUE(Shown());
  EXPECT_EQ(Text(),
            "Собственный вес, похоже, уже есть в нагрузках проекта: на каждой панели обоих поясов "
            "по 0.0081 т/м. Расчет прибавляет его еще раз, пока включен учет собственного веса.");
  EXPECT_EQ(desk.TakeMessages(), Messages());
  EXPECT_EQ(FindingsOfIt(), 1U);
}

TEST_F(OwnWeightTwice, IsToldOfAProjectThatIsHandedOver) {
  desk.Outside.Files.Content[projectPath] = ProjectBytes(saved);
  EXPECT_TRUE(form.OpenProject(projectPath));
  EXPECT_TRUE(Shown());
}

TEST_F(OwnWeightTwice, IsTakenOutToTheLastDigit) {
  // 0.1 and 0.0081 are no binary fractions: what is left must be 0.1 and 0 all the same.
  Restore(With(saved, lineUpDistForce, "0.0081;0.1081;0.0081;0.0081"));
  ASSERT_TRUE(Shown());
  form.PreviewChanged = [this] { redrawn = true; };
  form.cmdTakeOwnWeightOut_Click();
  EXPECT_EQ(Upper(), (std::vector<double>{0, 0.1, 0, 0}));
  EXPECT_EQ(Lower(), Zeros(4));
  EXPECT_EQ(Values(form.Model.Inputs.Loads.UpPForce), (std::vector<double>{0, 4, 0, 0, 0}));
  EXPECT_FALSE(Shown());
  EXPECT_TRUE(redrawn);
  EXPECT_EQ(ShownMarks(form.Preview.Up), (test::Shown{"P1: 123 (4)", "Q1: (0.1)"}));
  // The box stays on: the calculation adds the weight, once.
  EXPECT_TRUE(form.chkOwnWeight.Checked());
  EXPECT_EQ(FindingsOfIt(), 0U);
  EXPECT_EQ(Lower(), std::vector<double>(4, 0.0081));
  EXPECT_EQ(desk.TakeMessages(), Messages());
}

TEST_F(OwnWeightTwice, IsTakenOutOnce) {
  Restore(saved);
  form.cmdTakeOwnWeightOut_Click();
  const LoadArrays loads = form.Model.Inputs.Loads;
  form.cmdTakeOwnWeightOut_Click();
  EXPECT_EQ(form.Model.Inputs.Loads, loads);
}

TEST_F(OwnWeightTwice, IsLeftWhereTheUserKeepsIt) {
  Restore(saved);
  const LoadArrays loads = form.Model.Inputs.Loads;
  form.cmdKeepOwnWeight_Click();
  EXPECT_FALSE(Shown());
  EXPECT_EQ(form.Model.Inputs.Loads, loads);
  // The decision lasts.
  form.chkOwnWeight.SetChecked(false);
  form.chkOwnWeight.SetChecked(true);
  EXPECT_FALSE(Shown());
  EXPECT_EQ(FindingsOfIt(), 0U);
  EXPECT_EQ(Lower(), std::vector<double>(4, 0.0162));
}

TEST_F(OwnWeightTwice, IsNoMatterWhileTheBoxIsOff) {
  Restore(With(saved, lineOwnWeightOn, "0"));
  EXPECT_FALSE(Shown());
  EXPECT_EQ(FindingsOfIt(), 0U);
  form.chkOwnWeight.SetChecked(true);
  EXPECT_TRUE(Shown());
  form.chkOwnWeight.SetChecked(false);
  EXPECT_FALSE(Shown());
  EXPECT_EQ(Lower(), std::vector<double>(4, 0.0081));
}

TEST_F(OwnWeightTwice, IsGoneWithTheLoads) {
  Restore(saved);
  form.cmdClearLoads_Click();
  EXPECT_FALSE(Shown());
  form.chkOwnWeight.SetChecked(true);
  EXPECT_FALSE(Shown());
}

TEST_F(OwnWeightTwice, IsGoneWithThePanelsItStoodOn) {
  Restore(saved);
  Choose(form.cmbPanelNum, "6");
  EXPECT_FALSE(Shown());
}

TEST_F(OwnWeightTwice, IsGoneWithTheNextProject) {
  Restore(saved);
  Restore(StartUpValues());
  EXPECT_FALSE(Shown());
}

TEST_F(OwnWeightTwice, IsNotSeenInLoadsOfTheUsersOwn) {
  // A panel of the upper chord without it; another amount on the lower chord; far more than the
  // truss weighs: three times 0.00805 t/m is the bound.
  Restore(With(saved, lineUpDistForce, "0.0081;0;0.0081;0.0081"));
  EXPECT_FALSE(Shown());
  Restore(With(saved, lineDwnDistForce, "0.0081;0.0081;0.0082;0.0081"));
  EXPECT_FALSE(Shown());
  const auto withBoth = [this](const std::string& amount) {
    const std::string all = amount + ";" + amount + ";" + amount + ";" + amount;
    return With(With(saved, lineUpDistForce, all), lineDwnDistForce, all);
  };
  Restore(withBoth("0.025"));
  EXPECT_FALSE(Shown());
  Restore(withBoth("0.024"));
  EXPECT_TRUE(Shown());
  Restore(withBoth("0"));
  EXPECT_FALSE(Shown());
  Restore(withBoth("-0.0081"));
  EXPECT_FALSE(Shown());
}

TEST_F(OwnWeightTwice, LeavesNothingBehindWhenItIsWithdrawn) {
  // What the console program does before it saves.
  ASSERT_EQ(Lower(), std::vector<double>(4, 0.0081));
  form.WithdrawOwnWeightFromLoads();
  EXPECT_FALSE(form.Model.OwnWeight.Added);
  EXPECT_EQ(Upper(), Zeros(4));
  EXPECT_EQ(Lower(), Zeros(4));
  const ProjectValues values = ValuesOf(SavedBytes(desk, form));
  EXPECT_EQ(values.at(lineDwnDistForce - 1), "0;0;0;0");
  Restore(values);
  EXPECT_FALSE(Shown());
}

}  // namespace
}  // namespace trelonit::test
