#include <gtest/gtest.h>

#include "tests/workstation/main/LoadEntry.h"

namespace trelonit::test {
namespace {

const Message noForce = Stop("Не задана величина силы\nИли значение силы не корректно !");

TEST_F(LoadEntry, ForcesOnAJointAddUp) {
  AddForce(form, 3, "5");
  AddForce(form, 3, "2,5");
  AddForce(form, 4, "1");
  EXPECT_EQ(Values(loads.UpPForce), (std::vector<double>{0, 0, 0, 7.5, 1, 0, 0, 0, 0, 0, 0}));
  EXPECT_EQ(form.txtForceVal.Text(), "1");
  EXPECT_EQ(ShownMarks(form.Preview.Up), (Shown{"P3: 123 (7.5)", "P4: 123 (1)"}));
}

TEST_F(LoadEntry, OppositeForcesHideTheirArrow) {
  AddForce(form, 3, "5");
  EXPECT_EQ(Arrow(form.Preview.Up, 3), "123 (5)");
  AddForce(form, 3, "-5");
  EXPECT_EQ(loads.UpPForce[3], 0);
  EXPECT_EQ(Arrow(form.Preview.Up, 3), "");
  EXPECT_EQ(form.Preview.Up.lblP[3].Caption, "0");
}

TEST_F(LoadEntry, ForcesMayPointUpward) {
  AddForce(form, 10, "5");
  AddForce(form, 10, "-8");
  EXPECT_EQ(loads.UpPForce[10], -3);
  EXPECT_EQ(Arrow(form.Preview.Up, 10), "145 (-3)");
  AddForce(form, 10, "4");
  EXPECT_EQ(Arrow(form.Preview.Up, 10), "123 (1)");
}

TEST_F(LoadEntry, ForceThatIsNoneIsToldAndAddsNothing) {
  for (const char* text : {"abc", "", "0", "0.0", "-0"}) {
    AddForce(form, 3, text);
    EXPECT_EQ(desk.TakeMessages(), Messages{noForce}) << text;
    EXPECT_EQ(form.txtForceVal.Text(), "") << text;
  }
  EXPECT_EQ(Values(loads.UpPForce), Zeros(11));
}

TEST_F(LoadEntry, JointThatIsNoneTakesTheTail) {
  form.txtForceVal.SetText("5");
  form.cmbKnotNum.SetText("end");
  form.cmdAddForce_Click();
  form.cmbKnotNum.SetText("11");
  form.cmdAddForce_Click();
  EXPECT_EQ(desk.TakeMessages(),
            (Messages{TypeMismatchTail("cmdAddForce_Click"), SubscriptTail("cmdAddForce_Click")}));
  EXPECT_EQ(Values(loads.UpPForce), Zeros(11));
  EXPECT_EQ(form.txtForceVal.Text(), "5");
}

TEST_F(LoadEntry, ForceBeyondEveryNumberTakesTheTail) {
  AddForce(form, 3, "1E308");
  AddForce(form, 3, "1E308");
  EXPECT_EQ(desk.TakeMessages(), (Messages{Tail("cmdAddForce_Click", 6, "Overflow")}));
  EXPECT_EQ(loads.UpPForce[3], 1E308);
}

TEST_F(LoadEntry, DistributedForceActsOnItsPanel) {
  form.imgDistForce_Click();
  AddForce(form, 9, "0.5");
  AddForce(form, 9, "0.25");
  AddForce(form, 0, "-1");
  EXPECT_EQ(Values(loads.UpDistForce), (std::vector<double>{-1, 0, 0, 0, 0, 0, 0, 0, 0, 0.75}));
  EXPECT_EQ(ShownMarks(form.Preview.Up), (Shown{"Q0: (-1)", "Q9: (0.75)"}));
  AddForce(form, 9, "-0.75");
  EXPECT_EQ(ShownMarks(form.Preview.Up), (Shown{"Q0: (-1)"}));
  EXPECT_EQ(form.Preview.Up.lblQ[9].Caption, "0");
  EXPECT_EQ(Values(loads.UpPForce), Zeros(11));
}

TEST_F(LoadEntry, DistributedForceOnAllPanelsKeepsTheSelection) {
  form.imgDistForce_Click();
  AddForce(form, 4, "2");
  form.chkAllPanels.SetChecked(true);
  form.txtForceVal.SetText("1");
  form.cmdAddForce_Click();
  EXPECT_EQ(Values(loads.UpDistForce), (std::vector<double>{1, 1, 1, 1, 3, 1, 1, 1, 1, 1}));
  EXPECT_EQ(Values(loads.DwnDistForce), Zeros(10));
  EXPECT_EQ(form.cmbKnotNum.Text(), "4");
  EXPECT_EQ(form.cmbKnotNum.ListIndex(), 4);
  form.txtForceVal.SetText("-1");
  form.cmdAddForce_Click();
  EXPECT_EQ(ShownMarks(form.Preview.Up), (Shown{"Q4: (2)"}));
  EXPECT_EQ(form.Preview.Up.lblQ[5].Caption, "0");
}

TEST_F(LoadEntry, NodalForceNeverActsOnAll) {
  form.imgDistForce_Click();
  form.chkAllPanels.SetChecked(true);
  form.imgPForce_Click();
  EXPECT_FALSE(form.chkAllPanels.Checked());
  EXPECT_FALSE(form.chkAllPanels.Enabled());
  AddForce(form, 2, "1");
  EXPECT_EQ(Values(loads.UpPForce), (std::vector<double>{0, 0, 1, 0, 0, 0, 0, 0, 0, 0, 0}));
}

TEST_F(LoadEntry, ForcesGoToThePressedChord) {
  form.tglDwnPoyas.SetValue(true);
  AddForce(form, 1, "2");
  AddForce(form, 2, "-3");
  form.imgDistForce_Click();
  AddForce(form, 9, "4");
  EXPECT_EQ(Values(loads.DwnPForce), (std::vector<double>{0, 2, -3, 0, 0, 0, 0, 0, 0, 0, 0}));
  EXPECT_EQ(loads.DwnDistForce[9], 4);
  EXPECT_EQ(Values(loads.UpPForce), Zeros(11));
  EXPECT_EQ(Values(loads.UpDistForce), Zeros(10));
  EXPECT_EQ(ShownMarks(form.Preview.Dwn), (Shown{"P1: 123 (2)", "P2: 145 (-3)", "Q9: (4)"}));
  EXPECT_EQ(ShownMarks(form.Preview.Up), Shown());
  form.chkAllPanels.SetChecked(true);
  form.txtForceVal.SetText("1");
  form.cmdAddForce_Click();
  EXPECT_EQ(Values(loads.DwnDistForce), (std::vector<double>{1, 1, 1, 1, 1, 1, 1, 1, 1, 5}));
  EXPECT_EQ(Values(loads.UpDistForce), Zeros(10));
}

TEST_F(LoadEntry, ValuesAreShownInTheUsersLocale) {
  StartedDesk comma(CommaLocale());
  comma.Main.tabMain.SetTab(2);
  AddForce(comma.Main, 1, "1234.5");
  EXPECT_EQ(Arrow(comma.Main.Preview.Up, 1), "123 (1234,5)");
}

TEST_F(LoadEntry, ToolsTakeTurns) {
  form.imgDistForce_Click();
  EXPECT_FALSE(form.imgPForce.Marked());
  EXPECT_TRUE(form.imgDistForce.Marked());
  EXPECT_EQ(form.imgLoadPreview.Shown(), BitmapOf(310));
  EXPECT_EQ(form.cmbKnotNum.List(), Numbers(0, 9));
  EXPECT_EQ(form.cmbKnotNum.Text(), "0");
  EXPECT_TRUE(form.chkAllPanels.Enabled());
  form.imgPForce_Click();
  EXPECT_TRUE(form.imgPForce.Marked());
  EXPECT_FALSE(form.imgDistForce.Marked());
  EXPECT_EQ(form.imgLoadPreview.Shown(), BitmapOf(309));
  EXPECT_EQ(form.cmbKnotNum.List(), Numbers(0, 10));
  EXPECT_EQ(desk.TakeMessages(), Messages());
}

TEST_F(LoadEntry, ToolsTellThatTheirPictureIsMissing) {
  desk.Resources.MissingBitmaps = {309, 310};
  form.imgDistForce_Click();
  form.imgPForce_Click();
  EXPECT_EQ(desk.TakeMessages(),
            (Messages{BitmapTail("imgDistForce_Click", 310), BitmapTail("imgPForce_Click", 309)}));
  EXPECT_TRUE(form.imgPForce.Marked());
}

TEST_F(LoadEntry, ChordsTakeTurns) {
  form.tglDwnPoyas.SetValue(true);
  EXPECT_FALSE(form.tglUpPoyas.Value());
  EXPECT_TRUE(form.tglDwnPoyas.Value());
  form.tglUpPoyas.SetValue(true);
  EXPECT_TRUE(form.tglUpPoyas.Value());
  EXPECT_FALSE(form.tglDwnPoyas.Value());
}

TEST_F(LoadEntry, ListsHoldTheJointsAndPanelsOfTheChord) {
  struct Row {
    Long Scheme;
    int LastJoint;
    int LastPanel;
  };
  for (const Row& row : {Row{1, 12, 11}, Row{2, 10, 9}, Row{4, 5, 4}, Row{3, 11, 10}}) {
    GoTo(row.Scheme, "12");
    form.imgPForce_Click();
    form.tglDwnPoyas.SetValue(true);
    EXPECT_EQ(form.cmbKnotNum.List(), Numbers(0, row.LastJoint)) << row.Scheme;
    EXPECT_EQ(form.cmbKnotNum.Text(), "0");
    form.imgDistForce_Click();
    EXPECT_EQ(form.cmbKnotNum.List(), Numbers(0, row.LastPanel)) << row.Scheme;
    form.tglUpPoyas.SetValue(true);
    EXPECT_EQ(form.cmbKnotNum.List(), Numbers(0, 11)) << row.Scheme;
    form.imgPForce_Click();
    EXPECT_EQ(form.cmbKnotNum.List(), Numbers(0, 12)) << row.Scheme;
  }
  EXPECT_EQ(desk.TakeMessages(), Messages());
}

TEST_F(LoadEntry, ListsSelectTheirFirstEntry) {
  Choose(form.cmbKnotNum, "7");
  form.FillKnotListP(true);
  EXPECT_EQ(form.cmbKnotNum.ListIndex(), 0);
  form.FillKnotListQ(false);
  EXPECT_EQ(form.cmbKnotNum.List(), Numbers(0, 9));
  EXPECT_EQ(form.cmbKnotNum.ListIndex(), 0);
}

/// Own weight inside loads that the user entered.
class OwnWeightBox : public LoadEntry {
 protected:
  OwnWeightBox() {
    form.chkOwnWeight.SetChecked(true);
    loads.UpDistForce[0] = 1.5;
    loads.DwnDistForce[9] = 0.5;
    form.Model.OwnWeight.Added = true;
  }
};

TEST_F(OwnWeightBox, TakesTheWeightOutWhenCleared) {
  form.Model.OwnWeight.PerMetre = 0.5;
  form.chkOwnWeight.SetChecked(false);
  EXPECT_EQ(Values(loads.UpDistForce),
            (std::vector<double>{1, -0.5, -0.5, -0.5, -0.5, -0.5, -0.5, -0.5, -0.5, -0.5}));
  EXPECT_EQ(loads.DwnDistForce[9], 0);
  EXPECT_FALSE(form.Model.OwnWeight.Added);
  EXPECT_EQ(Bar(form.Preview.Up, 0), "(1)");
  EXPECT_EQ(Bar(form.Preview.Up, 9), "(-0.5)");
  EXPECT_EQ(desk.TakeMessages(), Messages());
}

TEST_F(OwnWeightBox, TellsAnAmountThatCannotBeTakenOut) {
  const LoadArrays before = loads;
  for (const auto& [amount, text] :
       std::vector<std::pair<double, std::string>>{{0, "0"}, {-1.5, "-1.5"}}) {
    form.chkOwnWeight.SetChecked(true);
    form.Model.OwnWeight.Added = true;
    form.Model.OwnWeight.PerMetre = amount;
    form.chkOwnWeight.SetChecked(false);
    const Message told{"chkOwnWeight_Click",
                       "Некорректная погонная масса фермы ! \nqMass = " + text +
                           "\n Собственный вес фермы не вычтен из общей нагрузки",
                       MessageStyle::Critical};
    EXPECT_EQ(desk.TakeMessages(), Messages{told});
    EXPECT_FALSE(form.Model.OwnWeight.Added);
    EXPECT_EQ(form.Model.OwnWeight.PerMetre, 0);
    EXPECT_EQ(loads, before);
  }
}

TEST_F(OwnWeightBox, WritesTheAmountInTheUsersLocale) {
  StartedDesk comma(CommaLocale());
  comma.Main.chkOwnWeight.SetChecked(true);
  comma.Main.Model.OwnWeight.Added = true;
  comma.Main.Model.OwnWeight.PerMetre = -0.25;
  comma.Main.chkOwnWeight.SetChecked(false);
  ASSERT_EQ(comma.Outside.Messages.Shown.size(), 1U);
  EXPECT_NE(comma.Outside.Messages.Shown[0].Text.find("\nqMass = -0,25\n"), std::string::npos);
}

TEST_F(OwnWeightBox, DoesNothingWhenSet) {
  form.Model.OwnWeight.Added = false;
  form.chkOwnWeight.SetChecked(false);
  const LoadArrays before = loads;
  form.chkOwnWeight.SetChecked(true);
  form.Model.OwnWeight.Added = true;
  form.Model.OwnWeight.PerMetre = 0.5;
  form.chkOwnWeight_Click();
  EXPECT_EQ(loads, before);
  EXPECT_TRUE(form.Model.OwnWeight.Added);
}

TEST_F(OwnWeightBox, DoesNothingWhenClearedWithoutWeightInside) {
  form.Model.OwnWeight.Added = false;
  form.Model.OwnWeight.PerMetre = 0.5;
  const LoadArrays before = loads;
  form.chkOwnWeight.SetChecked(false);
  EXPECT_EQ(loads, before);
  EXPECT_EQ(desk.TakeMessages(), Messages());
}

}  // namespace
}  // namespace trelonit::test
