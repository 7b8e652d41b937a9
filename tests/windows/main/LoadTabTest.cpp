#include <gtest/gtest.h>

#include "tests/windows/main/Screen.h"
#include "tests/workstation/main/LoadEntry.h"

namespace trelonit::test {
namespace {

/// The window on the load tab.
class LoadScreen : public ::testing::Test, public Screen {
 protected:
  LoadScreen() { GoTo(2); }

  void Add(int place, const std::string& force) {
    PickIn("cmbKnotNum", std::to_string(place));
    TypeInto("txtForceVal", force);
    Press("cmdAddForce");
  }
  LoadArrays& Loads = Main.Model.Inputs.Loads;
};

TEST_F(LoadScreen, ShowsTheStartDefaults) {
  EXPECT_TRUE(Button("imgPForce").isChecked());
  EXPECT_FALSE(Button("imgDistForce").isChecked());
  EXPECT_TRUE(Button("tglUpPoyas").isChecked());
  EXPECT_FALSE(Button("tglDwnPoyas").isChecked());
  EXPECT_EQ(Entries(Combo("cmbKnotNum")), Numbers(0, 10));
  EXPECT_EQ(Edit("txtForceVal").text(), "0");
  EXPECT_FALSE(Button("chkAllPanels").isEnabled());
  EXPECT_FALSE(Button("chkOwnWeight").isChecked());
  EXPECT_FALSE(Button("chkDinloadEnable").isChecked());
  EXPECT_EQ(FromQt(Find<QLabel>(Window, "lblStillName").text()), "Сталь С245 - лист от 2 до 20 мм");
  EXPECT_EQ(Edit("txtRy").text(), "240");
  EXPECT_EQ(Edit("txtUsloviyaRabot").text(), "0.9");
  EXPECT_EQ(Edit("txtNadegnost").text(), "1");
}

TEST_F(LoadScreen, AddsNodalForces) {
  Add(3, "5");
  Add(3, "-2.5");
  Add(4, "-1");
  EXPECT_EQ(Loads.UpPForce[3], 2.5);
  EXPECT_EQ(ShownMarks(Main.Preview.Up), (Shown{"P3: 123 (2.5)", "P4: 145 (-1)"}));
  EXPECT_EQ(Edit("txtForceVal").text(), "-1");
}

TEST_F(LoadScreen, AForceAndItsOppositeLeaveNothing) {
  Add(2, "5");
  Add(2, "-5");
  EXPECT_EQ(Loads.UpPForce[2], 0);
  EXPECT_EQ(ShownMarks(Main.Preview.Up), Shown());
}

TEST_F(LoadScreen, EnterInTheForceBoxAddsToo) {
  PickIn("cmbKnotNum", "1");
  TypeInto("txtForceVal", "4");
  QTest::keyClick(&Edit("txtForceVal"), Qt::Key_Return);
  EXPECT_EQ(Loads.UpPForce[1], 4);
}

TEST_F(LoadScreen, AForceThatIsNoNumberIsToldAndEmptied) {
  for (const char* force : {"abc", "0", ""}) {
    Add(2, force);
    EXPECT_EQ(TakeMessages(), Messages{Stop(noForce)}) << force;
    EXPECT_EQ(Edit("txtForceVal").text(), "");
  }
  EXPECT_EQ(Values(Loads.UpPForce), Zeros(11));
}

TEST_F(LoadScreen, ChangesToTheDistributedTool) {
  Press("imgDistForce");
  EXPECT_TRUE(Button("imgDistForce").isChecked());
  EXPECT_FALSE(Button("imgPForce").isChecked());
  EXPECT_EQ(Main.imgLoadPreview.Shown(), BitmapOf(310));
  EXPECT_EQ(Entries(Combo("cmbKnotNum")), Numbers(0, 9));
  EXPECT_TRUE(Button("chkAllPanels").isEnabled());
  Add(4, "1.5");
  EXPECT_EQ(Loads.UpDistForce[4], 1.5);
  EXPECT_EQ(ShownMarks(Main.Preview.Up), Shown{"Q4: (1.5)"});
}

TEST_F(LoadScreen, ChangesBackToTheNodalTool) {
  Press("imgDistForce");
  Press("chkAllPanels");
  Press("imgPForce");
  EXPECT_EQ(Main.imgLoadPreview.Shown(), BitmapOf(309));
  EXPECT_EQ(Entries(Combo("cmbKnotNum")), Numbers(0, 10));
  EXPECT_FALSE(Button("chkAllPanels").isEnabled());
  EXPECT_FALSE(Button("chkAllPanels").isChecked());
  EXPECT_EQ(TakeMessages(), Messages());
}

TEST_F(LoadScreen, APressedToolStaysPressed) {
  Press("imgPForce");
  EXPECT_TRUE(Button("imgPForce").isChecked());
  Press("imgDistForce");
  Press("imgDistForce");
  EXPECT_TRUE(Button("imgDistForce").isChecked());
}

TEST_F(LoadScreen, AddsToAllPanelsAtOnce) {
  Press("imgDistForce");
  PickIn("cmbKnotNum", "3");
  Press("chkAllPanels");
  TypeInto("txtForceVal", "1");
  Press("cmdAddForce");
  EXPECT_EQ(Values(Loads.UpDistForce), std::vector<double>(10, 1.0));
  EXPECT_EQ(Values(Loads.DwnDistForce), Zeros(10));
  EXPECT_EQ(Combo("cmbKnotNum").currentText(), "3");
}

TEST_F(LoadScreen, AllPanelsColoursAllPiecesRed) {
  Press("imgDistForce");
  PickIn("cmbKnotNum", "2");
  EXPECT_EQ(Reds(Main.Preview.linPoyas), std::vector<Long>{2});
  Press("chkAllPanels");
  EXPECT_EQ(Reds(Main.Preview.linPoyas).size(), 10U);
  Press("chkAllPanels");
  EXPECT_EQ(Reds(Main.Preview.linPoyas), std::vector<Long>{2});
}

TEST_F(LoadScreen, TheChosenJointIsRed) {
  PickIn("cmbKnotNum", "7");
  EXPECT_EQ(Reds(Main.Preview.linStart), std::vector<Long>{7});
  EXPECT_EQ(Reds(Main.Preview.linPoyas), std::vector<Long>());
}

TEST_F(LoadScreen, ChangesTheChord) {
  Press("tglDwnPoyas");
  EXPECT_TRUE(Button("tglDwnPoyas").isChecked());
  EXPECT_FALSE(Button("tglUpPoyas").isChecked());
  Add(5, "3");
  EXPECT_EQ(Loads.DwnPForce[5], 3);
  EXPECT_EQ(ShownMarks(Main.Preview.Dwn), Shown{"P5: 123 (3)"});
  Press("tglUpPoyas");
  EXPECT_FALSE(Button("tglDwnPoyas").isChecked());
  EXPECT_EQ(ShownMarks(Main.Preview.Dwn), Shown());
  Press("imgDistForce");
  Press("tglDwnPoyas");
  Add(2, "0,25");
  EXPECT_EQ(Loads.DwnDistForce[2], 0.25);
}

TEST_F(LoadScreen, ListsTheJointsAndPanelsOfEveryScheme) {
  struct LastOnes {
    int Scheme, UpperJoints, LowerJoints;
  };
  for (const LastOnes& counts :
       {LastOnes{1, 12, 12}, LastOnes{2, 12, 10}, LastOnes{3, 12, 11}, LastOnes{4, 12, 5}}) {
    GoTo(0);
    Press("imgTreloType" + std::to_string(counts.Scheme));
    PickIn("cmbPanelNum", "12");
    GoTo(2);
    Press("imgPForce");
    Press("tglUpPoyas");
    EXPECT_EQ(Entries(Combo("cmbKnotNum")), Numbers(0, counts.UpperJoints));
    Press("tglDwnPoyas");
    EXPECT_EQ(Entries(Combo("cmbKnotNum")), Numbers(0, counts.LowerJoints));
    Press("imgDistForce");
    EXPECT_EQ(Entries(Combo("cmbKnotNum")), Numbers(0, counts.LowerJoints - 1));
    Press("tglUpPoyas");
    EXPECT_EQ(Entries(Combo("cmbKnotNum")), Numbers(0, counts.UpperJoints - 1));
  }
  EXPECT_EQ(TakeMessages(), Messages());
}

TEST_F(LoadScreen, ClearsAllLoadsAndTheOwnWeight) {
  Add(1, "5");
  Press("chkOwnWeight");
  Press("cmdCalculate");
  EXPECT_TRUE(Main.Model.OwnWeight.Added);
  Press("cmdClearLoads");
  EXPECT_EQ(Values(Loads.UpPForce), Zeros(11));
  EXPECT_EQ(Values(Loads.UpDistForce), Zeros(10));
  EXPECT_EQ(Values(Loads.DwnDistForce), Zeros(10));
  EXPECT_EQ(ShownMarks(Main.Preview.Up), Shown());
  EXPECT_FALSE(Button("chkOwnWeight").isChecked());
  EXPECT_FALSE(Main.Model.OwnWeight.Added);
  EXPECT_EQ(Main.Model.OwnWeight.PerMetre, 0);
  EXPECT_EQ(TakeMessages(), Messages());
}

TEST_F(LoadScreen, OwnWeightComesWithTheCalculationAndGoesWithItsBox) {
  Add(5, "5");
  Press("chkOwnWeight");
  EXPECT_EQ(Values(Loads.UpDistForce), Zeros(10)) << "setting the box does nothing by itself";
  Press("cmdCalculate");
  const double weight = Main.Model.OwnWeight.PerMetre;
  EXPECT_GT(weight, 0);
  EXPECT_EQ(Values(Loads.UpDistForce), std::vector<double>(10, weight));
  EXPECT_EQ(ShownMarks(Main.Preview.Up).size(), 11U);
  Press("chkOwnWeight");
  EXPECT_EQ(Values(Loads.UpDistForce), Zeros(10));
  EXPECT_EQ(ShownMarks(Main.Preview.Up), Shown{"P5: 123 (5)"});
  EXPECT_EQ(TakeMessages(), Messages());
}

TEST_F(LoadScreen, AnOwnWeightThatCannotBeTakenOutIsTold) {
  Press("chkOwnWeight");
  Main.Model.OwnWeight.Added = true;
  Main.Model.OwnWeight.PerMetre = 0;
  Press("chkOwnWeight");
  const Message told{"chkOwnWeight_Click",
                     "Некорректная погонная масса фермы ! \nqMass = 0\n Собственный вес фермы не "
                     "вычтен из общей нагрузки",
                     MessageStyle::Critical};
  EXPECT_EQ(TakeMessages(), Messages{told});
}

TEST_F(LoadScreen, LoadsThatStillFitAreKept) {
  Add(4, "5");
  Add(10, "7");
  GoTo(0);
  PickIn("cmbPanelNum", "6");
  GoTo(2);
  EXPECT_EQ(Loads.UpPForce.UpperBound(), 6);
  EXPECT_EQ(ShownMarks(Main.Preview.Up), Shown{"P4: 123 (5)"});
}

TEST_F(LoadScreen, MaterialNumbersGoIntoTheCalculation) {
  TypeInto("txtRy", "315,5");
  TypeInto("txtUsloviyaRabot", "0.95");
  TypeInto("txtNadegnost", "1.1");
  Press("chkDinloadEnable");
  const CheckNumbers numbers = CheckNumbersOf(Main.ReadInputs());
  EXPECT_EQ(numbers.Ry, 315.5);
  EXPECT_EQ(numbers.Yc, 0.95);
  EXPECT_EQ(numbers.Gn, 1.1);
  EXPECT_TRUE(numbers.Dynamic);
}

TEST_F(LoadScreen, ShowsTheMaterialThatTheCodeSets) {
  Main.txtRy.SetText("350");
  Main.lblStillName.SetCaption("Сталь С345");
  Main.chkDinloadEnable.SetChecked(true);
  EXPECT_EQ(Edit("txtRy").text(), "350");
  EXPECT_EQ(FromQt(Find<QLabel>(Window, "lblStillName").text()), "Сталь С345");
  EXPECT_TRUE(Button("chkDinloadEnable").isChecked());
}

TEST_F(LoadScreen, CommandsDoWhatTheirMenusDo) {
  Press("cmdCalculate");
  EXPECT_EQ(Results.size(), 1U);
  Press("cmdCalcAndSelect");
  Press("cmdShowResults");
  Press("cmdSteelGet");
  EXPECT_EQ(Opened, (std::vector<std::string>{"Search", "Otchet", "Steel"}));
}

TEST_F(LoadScreen, TheDeflectionIsShownOnTheFirstTab) {
  Add(5, "1");
  GoTo(0);
  Press("chkProgib");
  GoTo(2);
  Press("cmdCalculate");
  EXPECT_EQ(Tabs().currentIndex(), 0);
  ASSERT_EQ(Results.size(), 1U);
  ASSERT_TRUE(Results[0].Of.Progib.has_value());
  EXPECT_EQ(FromQt(Edit("txtProgib").text()),
            FormatShown(Results[0].Of.Progib->Value, 5, PointLocale()));
}

TEST(LoadInputsWithoutWindows, DisableTheirButtons) {
  Desk desk;
  frmMain form(desk.Outside.Bundle(), {});
  form.Form_Load();
  MainWindow window(form, desk.Outside.Settings);
  window.CompleteTabs();
  for (const char* name : {"cmdCalcAndSelect", "cmdShowResults", "cmdSteelGet"}) {
    EXPECT_FALSE(Find<QAbstractButton>(window, name).isEnabled()) << name;
  }
  EXPECT_TRUE(Find<QAbstractButton>(window, "cmdCalculate").isEnabled());
}

}  // namespace
}  // namespace trelonit::test
