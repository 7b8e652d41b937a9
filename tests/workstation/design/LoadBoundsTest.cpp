#include <gtest/gtest.h>

#include "tests/workstation/main/LoadEntry.h"
#include "workstation/design/Loads.h"

namespace trelonit::test {
namespace {

std::vector<Long> Uppers(const LoadArrays& loads) {
  return {loads.UpPForce.UpperBound(), loads.UpDistForce.UpperBound(), loads.DwnPForce.UpperBound(),
          loads.DwnDistForce.UpperBound()};
}

TEST_F(LoadEntry, BoundsFollowSchemeAndPanelCount) {
  const std::vector<std::pair<Long, std::vector<Long>>> table{
      {1, {8, 7, 8, 7}}, {2, {8, 7, 6, 5}}, {4, {8, 7, 3, 2}}, {5, {8, 7, 4, 3}}};
  Choose(form.cmbPanelNum, "8");
  for (const auto& [scheme, bounds] : table) {
    form.imgTreloType_Click(scheme);
    EXPECT_EQ(Uppers(loads), bounds) << scheme;
  }
  form.imgTreloType_Click(3);
  EXPECT_EQ(Uppers(loads), (std::vector<Long>{2, 1, 1, 0}));
  Choose(form.cmbPanelNum, "8");
  EXPECT_EQ(Uppers(loads), (std::vector<Long>{8, 7, 7, 6}));
  for (const auto* array :
       {&loads.UpPForce, &loads.UpDistForce, &loads.DwnPForce, &loads.DwnDistForce}) {
    EXPECT_EQ(array->LowerBound(), 0);
  }
}

TEST_F(LoadEntry, BoundsOfTheSmallestTrusses) {
  Choose(form.cmbPanelNum, "4");
  EXPECT_EQ(Uppers(loads), (std::vector<Long>{4, 3, 4, 3}));
  form.imgTreloType_Click(2);
  EXPECT_EQ(Uppers(loads), (std::vector<Long>{4, 3, 2, 1}));
  form.imgTreloType_Click(4);
  EXPECT_EQ(Uppers(loads), (std::vector<Long>{4, 3, 1, 0}));
  form.imgTreloType_Click(5);
  EXPECT_EQ(Uppers(loads), (std::vector<Long>{4, 3, 2, 1}));
  EXPECT_EQ(desk.TakeMessages(), Messages());
}

TEST_F(LoadEntry, BoundsKeepWhatStillFits) {
  for (Long joint = 0; joint <= 10; ++joint) {
    loads.UpPForce[joint] = joint + 1;
    loads.DwnPForce[joint] = -joint - 1;
  }
  loads.UpDistForce[9] = 5;
  Choose(form.cmbPanelNum, "4");
  EXPECT_EQ(Values(loads.UpPForce), (std::vector<double>{1, 2, 3, 4, 5}));
  EXPECT_EQ(Values(loads.DwnPForce), (std::vector<double>{-1, -2, -3, -4, -5}));
  Choose(form.cmbPanelNum, "6");
  EXPECT_EQ(Values(loads.UpPForce), (std::vector<double>{1, 2, 3, 4, 5, 0, 0}));
  EXPECT_EQ(Values(loads.UpDistForce), Zeros(6));
  form.imgTreloType_Click(4);
  EXPECT_EQ(Values(loads.DwnPForce), (std::vector<double>{-1, -2, -3}));
  form.imgTreloType_Click(1);
  EXPECT_EQ(Values(loads.DwnPForce), (std::vector<double>{-1, -2, -3, 0, 0, 0, 0}));
}

TEST_F(LoadEntry, BoundsKeepTheOwnWeightInside) {
  for (double& load : loads.UpDistForce) {
    load = 0.5;
  }
  form.Model.OwnWeight.Added = true;
  form.Model.OwnWeight.PerMetre = 0.5;
  Choose(form.cmbPanelNum, "8");
  EXPECT_EQ(Values(loads.UpDistForce), std::vector<double>(8, 0.5));
  form.imgTreloType_Click(2);
  EXPECT_TRUE(form.Model.OwnWeight.Added);
  EXPECT_EQ(form.Model.OwnWeight.PerMetre, 0.5);
}

TEST_F(LoadEntry, BoundBelowZeroLeavesTheArraysAsTheyWere) {
  form.imgTreloType_Click(4);
  loads.UpPForce[2] = 3;
  const LoadArrays before = loads;
  form.cmbPanelNum.SetText("2");
  form.ReDimLoadArrays();
  EXPECT_EQ(desk.TakeMessages(), Messages{SubscriptTail("ReDimLoadArrays")});
  EXPECT_EQ(loads, before);
}

TEST_F(LoadEntry, PanelCountThatIsNoNumberTakesTheTail) {
  const LoadArrays before = loads;
  form.cmbPanelNum.SetText("many");
  form.ReDimLoadArrays();
  EXPECT_EQ(desk.TakeMessages(), Messages{TypeMismatchTail("ReDimLoadArrays")});
  EXPECT_EQ(loads, before);
}

void Fill(LoadArrays& loads, double value) {
  for (auto* array : {&loads.UpPForce, &loads.UpDistForce, &loads.DwnPForce, &loads.DwnDistForce}) {
    for (double& load : *array) {
      load = value;
    }
  }
}

TEST_F(LoadEntry, ClearingZeroesTheLoadsOfTheSolvedSchemes) {
  const std::vector<std::pair<Long, std::vector<std::size_t>>> table{
      {1, {5, 4, 5, 4}}, {2, {5, 4, 3, 2}}, {4, {5, 4, 2, 1}}, {3, {5, 4, 4, 3}}};
  for (const auto& [scheme, counts] : table) {
    form.imgTreloType_Click(scheme);
    Choose(form.cmbPanelNum, "4");
    Fill(loads, 3);
    form.cmdClearLoads_Click();
    EXPECT_EQ(Values(loads.UpPForce), Zeros(counts[0]));
    EXPECT_EQ(Values(loads.UpDistForce), Zeros(counts[1]));
    EXPECT_EQ(Values(loads.DwnPForce), Zeros(counts[2]));
    EXPECT_EQ(Values(loads.DwnDistForce), Zeros(counts[3]));
  }
}

TEST_F(LoadEntry, ClearingLeavesTheLowerLoadsOfSchemeFive) {
  form.imgTreloType_Click(5);
  Choose(form.cmbPanelNum, "4");
  Fill(loads, 3);
  form.cmdClearLoads_Click();
  EXPECT_EQ(Values(loads.UpPForce), Zeros(5));
  EXPECT_EQ(Values(loads.UpDistForce), Zeros(4));
  EXPECT_EQ(Values(loads.DwnPForce), std::vector<double>(3, 3.0));
  EXPECT_EQ(Values(loads.DwnDistForce), std::vector<double>(2, 3.0));
}

TEST_F(LoadEntry, ClearingDropsTheOwnWeightAndTheWishForIt) {
  form.chkOwnWeight.SetChecked(true);
  form.Model.OwnWeight.Added = true;
  form.Model.OwnWeight.PerMetre = 0.5;
  AddForce(form, 3, "4");
  form.cmdClearLoads_Click();
  EXPECT_FALSE(form.Model.OwnWeight.Added);
  EXPECT_EQ(form.Model.OwnWeight.PerMetre, 0);
  EXPECT_FALSE(form.chkOwnWeight.Checked());
  EXPECT_EQ(Values(loads.UpDistForce), Zeros(10));
  EXPECT_EQ(ShownMarks(form.Preview.Up), Shown());
  EXPECT_EQ(form.Preview.Up.lblP[3].Caption, "0");
  EXPECT_EQ(desk.TakeMessages(), Messages());
}

TEST(Loads, OfSchemesWithoutATableStayAsTheyAre) {
  LoadArrays loads = ZeroLoads({.UpPForce = 2, .UpDistForce = 1});
  loads.UpPForce[2] = 5;
  const LoadArrays before = loads;
  for (Long scheme = 6; scheme <= 10; ++scheme) {
    ReDimLoads(loads, scheme, 10);
    EXPECT_EQ(loads, before);
    ClearLoads(loads, scheme, 10);
    EXPECT_EQ(loads, before);
  }
}

TEST(Loads, TakeAnAmountOnEveryPanelOfBothChords) {
  LoadArrays loads =
      ZeroLoads({.UpPForce = 2, .UpDistForce = 1, .DwnPForce = 1, .DwnDistForce = 0});
  loads.UpDistForce[1] = 2;
  AddToDistributedLoads(loads, 0.5);
  EXPECT_EQ(Values(loads.UpDistForce), (std::vector<double>{0.5, 2.5}));
  EXPECT_EQ(Values(loads.DwnDistForce), std::vector<double>{0.5});
  EXPECT_EQ(Values(loads.UpPForce), Zeros(3));
  EXPECT_EQ(Values(loads.DwnPForce), Zeros(2));
}

}  // namespace
}  // namespace trelonit::test
