#include <gtest/gtest.h>

#include "tests/workstation/design/SmallTruss.h"
#include "tests/workstation/main/LoadEntry.h"
#include "workstation/design/OwnWeight.h"

namespace trelonit::test {
namespace {

/// A load of 4 t, and own weight asked for. The mass is 0.1288095 t and both chords have 16 m, so
/// that a metre weighs 0.0081 t when rounded to 4 decimals.
class OwnWeight : public ::testing::Test {
 protected:
  OwnWeight() {
    desk.Load(true, 1, "4");
    form.chkOwnWeight.SetChecked(true);
    form.PreviewChanged = [this] { ++previews; };
  }

  std::vector<double> Distributed() const {
    std::vector<double> values = Values(form.Model.Inputs.Loads.UpDistForce);
    for (const double value : form.Model.Inputs.Loads.DwnDistForce) {
      values.push_back(value);
    }
    return values;
  }

  SmallTruss desk{1};
  frmMain& form = desk.Main;
  int previews = 0;
};

TEST_F(OwnWeight, IsSpreadOverBothChords) {
  desk.Calculate();
  EXPECT_EQ(Distributed(), std::vector<double>(8, 0.0081));
  EXPECT_EQ(Values(form.Model.Inputs.Loads.UpPForce), (std::vector<double>{0, 4, 0, 0, 0}));
  EXPECT_TRUE(form.Model.OwnWeight.Added);
  EXPECT_EQ(form.Model.OwnWeight.PerMetre, 0.0081);
  EXPECT_TRUE(form.chkOwnWeight.Checked());
  EXPECT_EQ(desk.TakeMessages(), Messages());
}

TEST_F(OwnWeight, IsInTheForcesShown) {
  const std::vector<std::string> lines = desk.Calculate().lstForces;
  ASSERT_GE(lines.size(), 11U);
  // Half of 16 m at 0.0081 t/m is 0.0648 t. The second pair has half the mass on top of that.
  EXPECT_EQ(std::vector<std::string>(lines.end() - 11, lines.end()),
            (std::vector<std::string>{
                " Реакции опор без учета собственной массы фермы:",
                "3.0648 тонн",
                "1.0648 тонн",
                " ",
                " Теоретическая масса фермы:",
                "0.1288 тонн",
                " ",
                " Реакции опор c учетом собственной массы фермы:",
                "3.1292 тонн",
                "1.1292 тонн",
                " ",
            }));
  EXPECT_EQ(static_cast<const LoadArrays&>(form.Model.Last.TreloData), form.Model.Inputs.Loads);
}

TEST_F(OwnWeight, IsShownAmongTheLoads) {
  previews = 0;
  desk.Calculate();
  EXPECT_GT(previews, 0);
  EXPECT_EQ(ShownMarks(form.Preview.Up),
            (Shown{"P1: 123 (4)", "Q0: (0.0081)", "Q1: (0.0081)", "Q2: (0.0081)", "Q3: (0.0081)"}));
}

TEST_F(OwnWeight, StaysAsItIsOnASecondPress) {
  const std::vector<std::string> first = desk.Calculate().lstForces;
  const LoadArrays loads = form.Model.Inputs.Loads;
  previews = 0;
  const std::vector<std::string> second = desk.Calculate().lstForces;
  EXPECT_EQ(second, first);
  EXPECT_EQ(form.Model.Inputs.Loads, loads);
  EXPECT_EQ(form.Model.OwnWeight.PerMetre, 0.0081);
  EXPECT_EQ(previews, 0);
}

TEST_F(OwnWeight, IsReplacedWhenTheMassHasChanged) {
  desk.Calculate();
  // Another density changes the mass and leaves the weight inside the loads: 0.14768 / 16.
  form.Steel.DensitSteel = "9";
  previews = 0;
  desk.Calculate();
  EXPECT_EQ(form.Model.OwnWeight.PerMetre, 0.0092);
  EXPECT_GT(previews, 0);
  for (const double value : Distributed()) {
    EXPECT_NEAR(value, 0.0092, 1e-15);
  }
}

TEST_F(OwnWeight, FollowsAnotherSection) {
  desk.Calculate();
  form.optElementSection.Select(optionStoyka);
  form.imgProfileSecSelect_Click(9);
  EXPECT_FALSE(form.Model.OwnWeight.Added);
  EXPECT_EQ(Distributed(), Zeros(8));
  // Tubes of 3.9 cm2 in the place of angles of 1.16 along 10 m of verticals: 0.15032 / 16.
  desk.Calculate();
  EXPECT_TRUE(form.Model.OwnWeight.Added);
  EXPECT_EQ(form.Model.OwnWeight.PerMetre, 0.0094);
  EXPECT_EQ(Distributed(), std::vector<double>(8, 0.0094));
}

TEST_F(OwnWeight, LeavesTheLoadsOfTheUserUnderIt) {
  form.imgDistForce_Click();
  AddForce(form, 2, "0.5");
  desk.Calculate();
  EXPECT_EQ(Values(form.Model.Inputs.Loads.UpDistForce),
            (std::vector<double>{0.0081, 0.0081, 0.5 + 0.0081, 0.0081}));
  form.chkOwnWeight.SetChecked(false);
  EXPECT_FALSE(form.Model.OwnWeight.Added);
  EXPECT_NEAR(form.Model.Inputs.Loads.UpDistForce[2], 0.5, 1e-15);
  EXPECT_EQ(form.Model.Inputs.Loads.UpDistForce[3], 0);
}

TEST_F(OwnWeight, IsOutOfTheNextResultsWhenItsBoxIsCleared) {
  desk.Calculate();
  form.chkOwnWeight.SetChecked(false);
  const std::vector<std::string> without = desk.Calculate().lstForces;
  SmallTruss fresh(1);
  fresh.Load(true, 1, "4");
  EXPECT_EQ(without, fresh.Calculate().lstForces);
  EXPECT_FALSE(form.Model.OwnWeight.Added);
  EXPECT_EQ(Distributed(), Zeros(8));
}

TEST_F(OwnWeight, IsNotAddedUnasked) {
  form.chkOwnWeight.SetChecked(false);
  previews = 0;
  desk.Calculate();
  EXPECT_EQ(Distributed(), Zeros(8));
  EXPECT_FALSE(form.Model.OwnWeight.Added);
  EXPECT_EQ(form.Model.OwnWeight.PerMetre, 0);
  EXPECT_EQ(previews, 0);
}

TEST_F(OwnWeight, StaysInTheLoadsWhenSchemeAndPanelsChange) {
  desk.Calculate();
  form.tabMain.SetTab(0);
  Choose(form.cmbPanelNum, "6");
  EXPECT_EQ(Values(form.Model.Inputs.Loads.UpDistForce),
            (std::vector<double>{0.0081, 0.0081, 0.0081, 0.0081, 0, 0}));
  EXPECT_TRUE(form.Model.OwnWeight.Added);
}

TEST_F(OwnWeight, IsAddedOnceMoreAfterTheLoadsWereCleared) {
  desk.Calculate();
  form.cmdClearLoads_Click();
  EXPECT_FALSE(form.chkOwnWeight.Checked());
  form.chkOwnWeight.SetChecked(true);
  desk.Calculate();
  EXPECT_EQ(Distributed(), std::vector<double>(8, 0.0081));
}

/// The own weight a metre that comes of this mass, with chords of 16 m.
double PerMetreOf(Calculation calculation, double mass) {
  calculation.CheckData.Mass = mass;
  return OwnWeightPerMetreOf(calculation);
}

TEST_F(OwnWeight, IsRoundedToFourDecimalsHalfAwayFromZero) {
  form.chkOwnWeight.SetChecked(false);
  desk.Calculate();
  const auto perMetre = [this](double mass) { return PerMetreOf(form.Model.Last, mass); };
  EXPECT_EQ(perMetre(16 * 0.00014), 0.0001);
  EXPECT_EQ(perMetre(16 * 0.00015), 0.0002);
  EXPECT_EQ(perMetre(16 * 1.25), 1.25);
  EXPECT_EQ(perMetre(16 * 1234.56785), 1234.5679);
  EXPECT_EQ(perMetre(16 * 0.00004), 0);
}

TEST_F(OwnWeight, ThatRoundsToNothingCannotBeTakenOutLater) {
  form.Steel.DensitSteel = "0.01";
  desk.Calculate();
  EXPECT_TRUE(form.Model.OwnWeight.Added);
  EXPECT_EQ(form.Model.OwnWeight.PerMetre, 0);
  EXPECT_EQ(Distributed(), Zeros(8));
  form.chkOwnWeight.SetChecked(false);
  EXPECT_EQ(desk.TakeMessages(),
            (Messages{{"chkOwnWeight_Click",
                       "Некорректная погонная масса фермы ! \nqMass = 0\n Собственный вес фермы "
                       "не вычтен из общей нагрузки",
                       MessageStyle::Critical}}));
  EXPECT_FALSE(form.Model.OwnWeight.Added);
}

TEST_F(OwnWeight, OfTheSameAmountChangesNothing) {
  desk.Calculate();
  DesignModel& model = form.Model;
  const LoadArrays before = model.Inputs.Loads;
  EXPECT_FALSE(PutOwnWeight(model.Inputs.Loads, model.OwnWeight, OwnWeightPerMetreOf(model.Last)));
  EXPECT_EQ(model.Inputs.Loads, before);
}

/// A scheme and what a metre of its chords weighs.
struct SchemeWeight {
  Long Scheme;
  double PerMetre;
};

class OwnWeightOfScheme : public ::testing::TestWithParam<SchemeWeight> {};

TEST_P(OwnWeightOfScheme, IsThatOfAllBarsOverTheLengthOfItsChords) {
  SmallTruss desk(GetParam().Scheme);
  desk.Main.chkOwnWeight.SetChecked(true);
  desk.Calculate();
  const DesignModel& model = desk.Main.Model;
  EXPECT_EQ(model.OwnWeight.PerMetre, GetParam().PerMetre);
  for (const double value : model.Inputs.Loads.UpDistForce) {
    EXPECT_EQ(value, GetParam().PerMetre);
  }
  for (const double value : model.Inputs.Loads.DwnDistForce) {
    EXPECT_EQ(value, GetParam().PerMetre);
  }
  EXPECT_EQ(desk.TakeMessages(), Messages());
}

// 0.12881 t over 16 m, 0.11788 t and 0.11606 t over 12 m, 0.04324 t over 6 m.
INSTANTIATE_TEST_SUITE_P(Solved, OwnWeightOfScheme,
                         ::testing::Values(SchemeWeight{1, 0.0081}, SchemeWeight{2, 0.0098},
                                           SchemeWeight{3, 0.0072}, SchemeWeight{4, 0.0097}),
                         [](const auto& scheme) {
                           return "Scheme" + std::to_string(scheme.param.Scheme);
                         });

}  // namespace
}  // namespace trelonit::test
