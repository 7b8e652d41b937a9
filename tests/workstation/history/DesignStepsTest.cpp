#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>

#include "tests/workstation/main/Desk.h"
#include "workstation/history/DesignSteps.h"

namespace trelonit::test {
namespace {

/// A started desk whose changes are noted as the window notes them.
class UndoDesk : public StartedDesk {
 public:
  explicit UndoDesk(const NumberLocale& locale = PointLocale())
      : StartedDesk(locale), Steps(Main) {}

  /// A handler, to its end.
  template <class Handler>
  void Do(Handler&& handler) {
    handler(Main);
    Steps.Note();
  }
  void Type(TextBox& box, const std::string& text) {
    std::string typed;
    for (const char key : text) {
      typed += key;
      box.SetText(typed);
      Steps.Note("box");
    }
    Steps.Note();
  }
  /// What a user sees of the design.
  std::string Saved() { return ProjectText(Main.State().Inputs, Outside.Locale); }

  DesignSteps Steps;
};

TEST(Undo, TakesATypedNumberBackAsOneStep) {
  UndoDesk desk;
  desk.Type(desk.Main.txtLengthF, "30");
  EXPECT_EQ(desk.Steps.mnuUndo.Caption(), "Отменить: длина фермы");
  desk.Steps.mnuUndo_Click();
  EXPECT_EQ(desk.Main.txtLengthF.Text(), "20");
  EXPECT_EQ(desk.Main.StatusBarMain[6].Caption(), "Hopt = 2.00000");
  EXPECT_FALSE(desk.Steps.mnuUndo.Enabled());
  EXPECT_EQ(desk.Steps.mnuRedo.Caption(), "Вернуть: длина фермы");
  desk.Steps.mnuRedo_Click();
  EXPECT_EQ(desk.Main.txtLengthF.Text(), "30");
  EXPECT_EQ(desk.Main.StatusBarMain[6].Caption(), "Hopt = 3.00000");
}

TEST(Undo, BringsATextBackAsItWasWritten) {
  UndoDesk desk(CommaLocale());
  desk.Type(desk.Main.txtHight, "abc");
  desk.Steps.mnuUndo_Click();
  // The start writes it so, whatever the locale.
  EXPECT_EQ(desk.Main.txtHight.Text(), "1.5");
  desk.Steps.mnuRedo_Click();
  EXPECT_EQ(desk.Main.txtHight.Text(), "abc");
}

TEST(Undo, BringsTheSchemeWithItsPanelsAndLoadsBack) {
  UndoDesk desk;
  desk.Do([](frmMain& form) {
    form.tabMain.SetTab(2);
    AddForce(form, 7, "2.5");
  });
  const LoadArrays loads = desk.Main.Model.Inputs.Loads;
  desk.Do([](frmMain& form) { form.imgTreloType_Click(3); });
  EXPECT_EQ(desk.Main.cmbPanelNum.Text(), "2");
  desk.Steps.mnuUndo_Click();
  EXPECT_EQ(desk.Main.Model.Inputs.TreloType, 1);
  EXPECT_EQ(MarkedOf(desk.Main.imgTreloType), std::vector<Long>{1});
  EXPECT_EQ(desk.Main.imgMain.Shown(), BitmapOf(101));
  EXPECT_EQ(desk.Main.cmbPanelNum.List(), Numbers(4, 30, 2));
  EXPECT_EQ(desk.Main.cmbPanelNum.Text(), "10");
  EXPECT_TRUE(desk.Main.txtLenOporn.Enabled());
  EXPECT_TRUE(desk.Main.optElementSection[optionStoyka].Visible());
  EXPECT_EQ(desk.Main.Model.Inputs.Loads, loads);
  EXPECT_EQ(desk.Main.tabMain.Tab(), 0);
  desk.Steps.mnuUndo_Click();
  EXPECT_EQ(desk.Main.Model.Inputs.Loads.UpPForce[7], 0);
  EXPECT_EQ(desk.Main.tabMain.Tab(), 2);
  EXPECT_EQ(desk.TakeMessages(), Messages());
}

TEST(Undo, BringsTheSchemeOfFreePanelCountsBack) {
  UndoDesk desk;
  desk.Do([](frmMain& form) { form.imgTreloType_Click(3); });
  desk.Do([](frmMain& form) { Choose(form.cmbPanelNum, "7"); });
  desk.Do([](frmMain& form) { form.imgTreloType_Click(1); });
  desk.Steps.mnuUndo_Click();
  EXPECT_EQ(desk.Main.cmbPanelNum.List(), Numbers(2, 30));
  EXPECT_EQ(desk.Main.cmbPanelNum.Text(), "7");
  EXPECT_FALSE(desk.Main.txtLenOporn.Enabled());
  EXPECT_EQ(desk.Main.txtLenOporn.BackColor(), 0xC0C0C0U);
  EXPECT_FALSE(desk.Main.lblProfilName[optionStoyka].Visible());
}

TEST(Undo, ShowsTheGroupWhoseSectionComesBack) {
  UndoDesk desk;
  desk.Do([](frmMain& form) { form.optElementSection.Select(optionRaskos); });
  desk.Do([](frmMain& form) { form.imgProfileSecSelect_Click(2); });
  desk.Do([](frmMain& form) { Choose(form.cmbSectType, SizeName(form, 1, 12)); });
  desk.Do([](frmMain& form) { form.optElementSection.Select(optionUpPoyas); });
  EXPECT_EQ(desk.Steps.mnuUndo.Caption(), "Отменить: сечение: Раскосы");
  desk.Steps.mnuUndo_Click();
  EXPECT_EQ(desk.Main.optElementSection.Selected(), optionRaskos);
  EXPECT_EQ(desk.Main.cmbSectType.Text(), SizeName(desk.Main, 1, 1));
  EXPECT_EQ(desk.Main.lblProfilName[optionRaskos].Caption(), SizeName(desk.Main, 1, 1));
  EXPECT_EQ(desk.Main.tabMain.Tab(), 1);
  desk.Steps.mnuUndo_Click();
  EXPECT_EQ(MarkedOf(desk.Main.imgProfileSecSelect), std::vector<Long>{1});
  EXPECT_FALSE(desk.Main.Model.Inputs.ElementSection[sectionRaskos].Paired);
  EXPECT_FALSE(desk.Main.cmbGdist.Enabled());
  desk.Steps.mnuRedo_Click();
  desk.Steps.mnuRedo_Click();
  EXPECT_EQ(desk.Main.Model.Inputs.ElementSection[sectionRaskos].SizeIdx, 12);
  EXPECT_EQ(desk.Main.cmbSectType.Text(), SizeName(desk.Main, 1, 12));
  EXPECT_EQ(MarkedOf(desk.Main.imgProfileSecSelect), std::vector<Long>{2});
}

TEST(Undo, OfLoadsKeepsTheChosenJoint) {
  UndoDesk desk;
  desk.Do([](frmMain& form) { form.tabMain.SetTab(2); });
  desk.Do([](frmMain& form) { AddForce(form, 3, "1"); });
  desk.Do([](frmMain& form) { AddForce(form, 5, "2"); });
  desk.Steps.mnuUndo_Click();
  EXPECT_EQ(desk.Main.Model.Inputs.Loads.UpPForce[5], 0);
  EXPECT_EQ(desk.Main.Model.Inputs.Loads.UpPForce[3], 1);
  EXPECT_EQ(desk.Main.cmbKnotNum.Text(), "5");
  EXPECT_EQ(desk.Main.Preview.linStart[5].BorderColor, colorRed);
  EXPECT_FALSE(desk.Main.Preview.Up.lblP[5].Visible);
  EXPECT_TRUE(desk.Main.Preview.Up.lblP[3].Visible);
}

TEST(Undo, OwnWeightOfACalculationIsNoStepOfItsOwn) {
  UndoDesk desk;
  desk.Do([](frmMain& form) { form.tabMain.SetTab(2); });
  desk.Do([](frmMain& form) { AddForce(form, 3, "1"); });
  desk.Do([](frmMain& form) { form.chkOwnWeight.SetChecked(true); });
  desk.Do([](frmMain& form) { form.cmdCalculate_Click(); });
  ASSERT_TRUE(desk.Main.Model.OwnWeight.Added);
  EXPECT_EQ(desk.Steps.mnuUndo.Caption(), "Отменить: собственный вес");
  desk.Steps.mnuUndo_Click();
  EXPECT_FALSE(desk.Main.chkOwnWeight.Checked());
  EXPECT_FALSE(desk.Main.Model.OwnWeight.Added);
  EXPECT_EQ(desk.Main.Model.Inputs.Loads.UpDistForce[0], 0);
  desk.Steps.mnuRedo_Click();
  EXPECT_TRUE(desk.Main.Model.OwnWeight.Added);
  EXPECT_EQ(desk.Main.Model.Inputs.Loads.UpDistForce[0], desk.Main.Model.OwnWeight.PerMetre);
  // Cleared, the box takes out just what is inside.
  desk.Do([](frmMain& form) { form.chkOwnWeight.SetChecked(false); });
  EXPECT_EQ(desk.Main.Model.Inputs.Loads.UpDistForce[0], 0);
  EXPECT_EQ(desk.TakeMessages(), Messages());
}

TEST(Undo, TakesASelectionBack) {
  UndoDesk desk;
  desk.TakesProposals = true;
  desk.Do([](frmMain& form) { form.tabMain.SetTab(2); });
  desk.Do([](frmMain& form) { AddForce(form, 5, "20"); });
  const std::string before = desk.Saved();
  desk.Do([](frmMain& form) { form.cmdCalcAndSelect_Click(); });
  ASSERT_NE(desk.Saved(), before);
  desk.Steps.mnuUndo_Click();
  EXPECT_EQ(desk.Saved(), before);
  EXPECT_EQ(desk.Main.lblProfilName[1].Caption(), SizeName(desk.Main, 1, 1));
}

TEST(Undo, TakesARestoreBackWithItsOwnWeightNotice) {
  UndoDesk desk;
  desk.Outside.Files.Content["/other.tsav"] = [] {
    UndoDesk other;
    other.Main.txtLengthF.SetText("42");
    other.Main.imgTreloType_Click(4);
    return other.Saved();
  }();
  desk.Type(desk.Main.txtHight, "3");
  const std::string before = desk.Saved();
  desk.Do([](frmMain& form) { EXPECT_TRUE(form.OpenProject("/other.tsav")); });
  EXPECT_EQ(desk.Main.txtLengthF.Text(), "42");
  EXPECT_EQ(desk.Steps.mnuUndo.Caption(), "Отменить: проект");
  desk.Steps.mnuUndo_Click();
  EXPECT_EQ(desk.Saved(), before);
  EXPECT_EQ(desk.Main.Model.Inputs.TreloType, 1);
  EXPECT_EQ(desk.TakeMessages(), Messages());
}

TEST(Undo, DropsTheShownDeflectionAndTakesTheSizesForTheNextCalculation) {
  UndoDesk desk;
  desk.Do([](frmMain& form) { form.tabMain.SetTab(2); });
  desk.Do([](frmMain& form) { AddForce(form, 5, "2"); });
  desk.Do([](frmMain& form) { form.tabMain.SetTab(0); });
  desk.Type(desk.Main.txtLengthF, "40");
  desk.Do([](frmMain& form) { form.tabMain.SetTab(2); });
  desk.Main.txtProgib.SetText("0.01");
  desk.Steps.mnuUndo_Click();
  desk.Steps.mnuUndo_Click();
  EXPECT_EQ(desk.Main.tabMain.Tab(), 2);
  EXPECT_EQ(desk.Main.txtProgib.Text(), "");
  // On that tab no check of the geometry stands between the sizes and a calculation.
  EXPECT_EQ(desk.Main.Model.Accepted.LengthF, 20);
  EXPECT_EQ(desk.TakeMessages(), Messages());
}

TEST(Undo, IntoSizesThatMakeNoTrussGoesToTheFirstTab) {
  UndoDesk desk;
  desk.Type(desk.Main.txtLengthF, "0");
  desk.Do([](frmMain& form) { form.chkDinloadEnable.SetChecked(true); });
  desk.Do([](frmMain& form) { form.txtLengthF.SetText("20"); });
  desk.Do([](frmMain& form) { form.tabMain.SetTab(2); });
  desk.Steps.mnuUndo_Click();
  desk.Steps.mnuUndo_Click();
  EXPECT_EQ(desk.Main.txtLengthF.Text(), "0");
  EXPECT_FALSE(desk.Main.chkDinloadEnable.Checked());
  EXPECT_EQ(desk.Main.tabMain.Tab(), 0);
  EXPECT_EQ(desk.TakeMessages(), Messages());
}

TEST(Undo, WithoutAnythingToTakeBackDoesNothing) {
  UndoDesk desk;
  const std::string before = desk.Saved();
  desk.Steps.mnuUndo_Click();
  desk.Steps.mnuRedo_Click();
  EXPECT_EQ(desk.Saved(), before);
}

TEST(LoadsLost, ByFewerPanelsAreCounted) {
  UndoDesk desk;
  desk.Do([](frmMain& form) {
    form.tabMain.SetTab(2);
    for (const int joint : {1, 4, 5, 9, 10}) {
      AddForce(form, joint, "1");
    }
  });
  EXPECT_FALSE(desk.Steps.lblLoadsLost.Visible());
  // Of the joints 0 to 4 that are left two keep their load.
  desk.Do([](frmMain& form) { Choose(form.cmbPanelNum, "4"); });
  EXPECT_TRUE(desk.Steps.lblLoadsLost.Visible());
  EXPECT_EQ(desk.Steps.lblLoadsLost.Caption(), "Потеряно нагрузок: 3.");
  desk.Steps.mnuUndo_Click();
  EXPECT_FALSE(desk.Steps.lblLoadsLost.Visible());
  EXPECT_EQ(desk.Main.Model.Inputs.Loads.UpPForce[10], 1);
}

TEST(LoadsLost, ByClearingAreCountedWithoutOwnWeight) {
  UndoDesk desk;
  desk.Do([](frmMain& form) {
    form.tabMain.SetTab(2);
    AddForce(form, 1, "1");
    form.chkOwnWeight.SetChecked(true);
    form.cmdCalculate_Click();
  });
  desk.Do([](frmMain& form) { form.cmdClearLoads_Click(); });
  EXPECT_EQ(desk.Steps.lblLoadsLost.Caption(), "Потеряно нагрузок: 1.");
}

TEST(LoadsLost, GoOutOfSightWithTheNextChange) {
  UndoDesk desk;
  desk.Do([](frmMain& form) {
    form.tabMain.SetTab(2);
    AddForce(form, 10, "1");
  });
  desk.Do([](frmMain& form) { form.imgTreloType_Click(3); });
  EXPECT_TRUE(desk.Steps.lblLoadsLost.Visible());
  desk.Steps.Note();
  EXPECT_TRUE(desk.Steps.lblLoadsLost.Visible());
  desk.Type(desk.Main.txtHight, "2");
  EXPECT_FALSE(desk.Steps.lblLoadsLost.Visible());
}

TEST(LoadsLost, OfAProjectThatWasClosedAreNotCounted) {
  UndoDesk desk;
  const std::string other = desk.Saved();
  desk.Outside.Files.Content["/other.tsav"] = other;
  desk.Do([](frmMain& form) {
    form.tabMain.SetTab(2);
    AddForce(form, 10, "1");
    Choose(form.cmbPanelNum, "12");
  });
  desk.Do([](frmMain& form) { form.OpenProject("/other.tsav"); });
  EXPECT_FALSE(desk.Steps.lblLoadsLost.Visible());
}

/// One thing that a user may do, chosen by chance.
void DoSomething(UndoDesk& desk) {
  frmMain& form = desk.Main;
  switch (*rc::gen::inRange(0, 10)) {
    case 0:
      desk.Type(form.txtLengthF, std::to_string(*rc::gen::inRange(0, 60)));
      break;
    case 1:
      desk.Type(form.txtHight, *rc::gen::element<std::string>("1,5", "3", "x", ""));
      break;
    case 2:
      desk.Do([](frmMain& f) { f.imgTreloType_Click(*rc::gen::inRange<Long>(1, 5)); });
      break;
    case 3:
      desk.Do([](frmMain& f) {
        f.cmbPanelNum.Select(
            *rc::gen::inRange<Long>(0, static_cast<Long>(f.cmbPanelNum.List().size())));
      });
      break;
    case 4:
      desk.Do([](frmMain& f) { f.optElementSection.Select(*rc::gen::inRange<Long>(1, 6)); });
      break;
    case 5:
      desk.Do([](frmMain& f) { f.imgProfileSecSelect_Click(*rc::gen::inRange<Long>(1, 12)); });
      break;
    case 6:
      desk.Do([](frmMain& f) {
        f.cmbSectType.Select(
            *rc::gen::inRange<Long>(0, static_cast<Long>(f.cmbSectType.List().size())));
      });
      break;
    case 7:
      desk.Do([](frmMain& f) { f.tabMain.SetTab(*rc::gen::inRange<Integer>(0, 3)); });
      break;
    case 8:
      desk.Do([](frmMain& f) {
        f.RefreshLoadPreview();
        f.cmbKnotNum.Select(
            *rc::gen::inRange<Long>(0, static_cast<Long>(f.cmbKnotNum.List().size())));
        f.txtForceVal.SetText("1,25");
        f.cmdAddForce_Click();
      });
      break;
    default:
      desk.Do([](frmMain& f) {
        f.chkOwnWeight.SetChecked(!f.chkOwnWeight.Checked());
        f.mnuCalc_Click();
      });
  }
}

RC_GTEST_PROP(Undo, GoesThroughAllStatesBackAndForth, ()) {
  UndoDesk desk;
  const int count = *rc::gen::inRange(1, 25);
  for (int step = 0; step < count; ++step) {
    DoSomething(desk);
  }
  const DesignState last = desk.Main.State();
  std::vector<DesignState> seen;
  while (desk.Steps.mnuUndo.Enabled()) {
    desk.Steps.mnuUndo_Click();
    // What is shown is what was kept: looking again finds no change.
    RC_ASSERT(!desk.Steps.Note());
    seen.push_back(desk.Main.State());
  }
  StartedDesk untouched;
  RC_ASSERT(SameDesign(desk.Main.State(), untouched.Main.State()));
  desk.TakeMessages();
  while (desk.Steps.mnuRedo.Enabled()) {
    RC_ASSERT(SameDesign(desk.Main.State(), seen.back()));
    seen.pop_back();
    desk.Steps.mnuRedo_Click();
    RC_ASSERT(!desk.Steps.Note());
  }
  RC_ASSERT(seen.empty());
  RC_ASSERT(SameDesign(desk.Main.State(), last));
  RC_ASSERT(desk.TakeMessages().empty());
}

}  // namespace
}  // namespace trelonit::test
