#include <gtest/gtest.h>

#include "tests/workstation/main/Desk.h"

namespace trelonit::test {
namespace {

class Scheme : public ::testing::Test {
 protected:
  StartedDesk desk;
  frmMain& form = desk.Main;
};

std::vector<bool> VerticalsShown(const frmMain& form) {
  return {form.optElementSection[4].Visible(), form.imgProfileSec[4].Visible(),
          form.lblProfilName[4].Visible()};
}

TEST_F(Scheme, ShowsItsPicture) {
  for (const Integer scheme : {Integer{5}, Integer{2}, Integer{3}, Integer{4}, Integer{1}}) {
    form.imgTreloType_Click(scheme);
    EXPECT_EQ(form.Model.Inputs.TreloType, scheme);
    EXPECT_EQ(MarkedOf(form.imgTreloType), std::vector<Long>{scheme});
    EXPECT_EQ(form.imgMain.Shown(), BitmapOf(static_cast<Integer>(100 + scheme)));
  }
  EXPECT_EQ(desk.TakeMessages(), Messages());
}

TEST_F(Scheme, FailsWithoutALargePicture) {
  for (Long scheme = 6; scheme <= 10; ++scheme) {
    form.imgTreloType_Click(scheme);
    EXPECT_EQ(desk.TakeMessages(),
              Messages{BitmapTail("imgTreloType_Click", static_cast<int>(100 + scheme))});
    // The pictures were unmarked before; the scheme is the one from before.
    EXPECT_EQ(MarkedOf(form.imgTreloType), std::vector<Long>());
    EXPECT_EQ(form.Model.Inputs.TreloType, 1);
    EXPECT_EQ(form.imgMain.Shown(), BitmapOf(101));
  }
  form.imgTreloType_Click(2);
  EXPECT_EQ(MarkedOf(form.imgTreloType), std::vector<Long>{2});
}

TEST_F(Scheme, ThreeTakesEveryPanelCountAndNoEndPanel) {
  form.imgTreloType_Click(3);
  EXPECT_EQ(form.cmbPanelNum.List(), Numbers(2, 30));
  EXPECT_EQ(form.cmbPanelNum.Text(), "2");
  EXPECT_FALSE(form.txtLenOporn.Enabled());
  EXPECT_EQ(form.txtLenOporn.BackColor(), 0xC0C0C0U);
  EXPECT_EQ(form.txtLenOporn.Text(), "2");
}

TEST_F(Scheme, ThreeHidesTheVerticals) {
  form.imgTreloType_Click(3);
  EXPECT_EQ(VerticalsShown(form), std::vector<bool>(3, false));
  EXPECT_TRUE(form.optElementSection[5].Visible());
  EXPECT_TRUE(form.imgProfileSec[5].Visible());
  EXPECT_TRUE(form.lblProfilName[5].Visible());
}

TEST_F(Scheme, OtherThanThreeTakesEvenPanelCountsAgain) {
  form.imgTreloType_Click(3);
  Choose(form.cmbPanelNum, "7");
  form.imgTreloType_Click(4);
  EXPECT_EQ(form.cmbPanelNum.List(), Numbers(4, 30, 2));
  EXPECT_EQ(form.cmbPanelNum.Text(), "4");
  EXPECT_TRUE(form.txtLenOporn.Enabled());
  EXPECT_EQ(form.txtLenOporn.BackColor(), colorWindowBackground);
  EXPECT_EQ(VerticalsShown(form), std::vector<bool>(3, true));
}

TEST_F(Scheme, KeepsThePanelCountAmongThoseWithVerticals) {
  Choose(form.cmbPanelNum, "16");
  for (const Long scheme : {2, 4, 5, 1, 1}) {
    form.imgTreloType_Click(scheme);
    EXPECT_EQ(form.cmbPanelNum.Text(), "16");
    EXPECT_EQ(form.cmbPanelNum.List(), Numbers(4, 30, 2));
  }
}

TEST_F(Scheme, ThreeChosenAgainKeepsItsPanelCount) {
  form.imgTreloType_Click(3);
  Choose(form.cmbPanelNum, "9");
  form.imgTreloType_Click(3);
  EXPECT_EQ(form.cmbPanelNum.Text(), "9");
  EXPECT_EQ(form.cmbPanelNum.List(), Numbers(2, 30));
}

TEST_F(Scheme, KeepsTheSectionOfTheHiddenVerticals) {
  form.optElementSection.Select(4);
  form.imgProfileSecSelect_Click(5);
  const SectionRec verticals = form.Model.Inputs.ElementSection[5];
  EXPECT_EQ(verticals.Layout, 5);
  form.imgTreloType_Click(3);
  EXPECT_EQ(form.Model.Inputs.ElementSection[5], verticals);
  form.imgTreloType_Click(1);
  EXPECT_EQ(form.Model.Inputs.ElementSection[5], verticals);
  EXPECT_EQ(VerticalsShown(form), std::vector<bool>(3, true));
}

TEST_F(Scheme, DropsTheShownDeflection) {
  form.txtProgib.SetText("0.01");
  form.imgTreloType_Click(2);
  EXPECT_EQ(form.txtProgib.Text(), "");
}

TEST_F(Scheme, OptimalHeightIsThePanelLength) {
  const auto hopt = [this] { return form.StatusBarMain[6].Caption(); };
  form.imgTreloType_Click(3);
  EXPECT_EQ(hopt(), "Hopt = 10.00000");
  Choose(form.cmbPanelNum, "3");
  EXPECT_EQ(hopt(), "Hopt = 6.66667");
  form.imgTreloType_Click(1);
  EXPECT_EQ(hopt(), "Hopt = 5.00000");
}

TEST_F(Scheme, OptimalHeightFollowsTheSpanWhenItsBoxIsLeft) {
  form.txtLengthF.SetText("24,5");
  EXPECT_EQ(form.StatusBarMain[6].Caption(), "Hopt = 2.00000");
  form.txtLengthF_LostFocus();
  EXPECT_EQ(form.StatusBarMain[6].Caption(), "Hopt = 2.45000");
  form.txtLengthF.SetText("nothing");
  form.txtLengthF_LostFocus();
  EXPECT_EQ(form.StatusBarMain[6].Caption(), "Hopt = 0.00000");
}

TEST_F(Scheme, OptimalHeightIsUnknownForTheReservedPictures) {
  form.Model.Inputs.TreloType = 5;
  form.txtLengthF_LostFocus();
  EXPECT_EQ(form.StatusBarMain[6].Caption(), "Hopt = 2.00000");
  form.Model.Inputs.TreloType = 6;
  form.txtLengthF_LostFocus();
  EXPECT_EQ(form.StatusBarMain[6].Caption(), "Hopt = 0.00000");
}

TEST_F(Scheme, OptimalHeightIsWrittenInTheUsersLocale) {
  StartedDesk comma(CommaLocale());
  comma.Main.txtLengthF.SetText("24.5");
  comma.Main.txtLengthF_LostFocus();
  EXPECT_EQ(comma.Main.StatusBarMain[6].Caption(), "Hopt = 2,45000");
}

TEST_F(Scheme, PanelCountDropsTheShownDeflection) {
  form.txtProgib.SetText("0.01");
  Choose(form.cmbPanelNum, "12");
  EXPECT_EQ(form.txtProgib.Text(), "");
}

TEST_F(Scheme, PanelCountChosenAgainChangesNothing) {
  form.txtProgib.SetText("0.01");
  Choose(form.cmbPanelNum, "10");
  EXPECT_EQ(form.txtProgib.Text(), "0.01");
}

TEST_F(Scheme, EvenPanelCountsStartWhereTheyAreTold) {
  const auto list = [this](Long first) {
    form.cmbPanelNum.Clear();
    form.WritePanelNumEven(first);
    return form.cmbPanelNum.List();
  };
  EXPECT_EQ(list(4), Numbers(4, 30, 2));
  EXPECT_EQ(list(28), (std::vector<std::string>{"28", "30"}));
  EXPECT_EQ(list(29), std::vector<std::string>{"29"});
  EXPECT_EQ(list(30), Numbers(2, 30, 2));
  EXPECT_EQ(list(31), Numbers(2, 30, 2));
}

TEST_F(Scheme, PanelCountsStartWhereTheyAreTold) {
  const auto list = [this](Long first) {
    form.cmbPanelNum.Clear();
    form.WritePanelNumAll(first);
    return form.cmbPanelNum.List();
  };
  EXPECT_EQ(list(2), Numbers(2, 30));
  EXPECT_EQ(list(29), (std::vector<std::string>{"29", "30"}));
  EXPECT_EQ(list(30), Numbers(2, 30));
  EXPECT_EQ(list(99), Numbers(2, 30));
}

TEST_F(Scheme, PanelCountsAreAddedToTheList) {
  form.cmbPanelNum.Clear();
  form.WritePanelNumEven(28);
  form.WritePanelNumAll(29);
  EXPECT_EQ(form.cmbPanelNum.List(), (std::vector<std::string>{"28", "30", "29", "30"}));
}

TEST_F(Scheme, BracingIsTakenAtOnce) {
  for (Integer option = 1; option <= 4; ++option) {
    form.optUpPoyas.Select(option);
    form.optDownPoyas.Select(5 - option);
    EXPECT_EQ(form.Model.Inputs.UpPoyasBrace, option);
    EXPECT_EQ(form.Model.Inputs.DownPoyasBrace, 5 - option);
  }
}

TEST_F(Scheme, DeflectionLimitIsEnteredOnlyWhenItIsAskedFor) {
  form.chkProgib.SetChecked(true);
  EXPECT_TRUE(form.txtProgib.Enabled());
  EXPECT_TRUE(form.cmbLenlim.Enabled());
  EXPECT_TRUE(form.optBP.Enabled());
  EXPECT_TRUE(form.optNP.Enabled());
  EXPECT_TRUE(form.lblProgib.Visible());
  EXPECT_EQ(form.cmbLenlim.BackColor(), colorWindowBackground);
  form.chkProgib.SetChecked(false);
  EXPECT_FALSE(form.txtProgib.Enabled());
  EXPECT_FALSE(form.cmbLenlim.Enabled());
  EXPECT_FALSE(form.optBP.Enabled());
  EXPECT_FALSE(form.optNP.Enabled());
  EXPECT_FALSE(form.lblProgib.Visible());
  EXPECT_EQ(form.cmbLenlim.BackColor(), 0xC0C0C0U);
}

TEST_F(Scheme, ShownDeflectionIsDroppedWhenItsInputsMove) {
  const auto dropped = [this](const std::function<void()>& input) {
    form.txtProgib.SetText("0.01");
    input();
    return form.txtProgib.Text().empty();
  };
  EXPECT_TRUE(dropped([this] { form.txtLengthF.SetText("21"); }));
  EXPECT_TRUE(dropped([this] { form.txtHight.SetText("2"); }));
  EXPECT_TRUE(dropped([this] { form.txtLenOporn.SetText(""); }));
  EXPECT_TRUE(dropped([this] {
    form.optBP.SetValue(false);
    form.optNP.SetValue(true);
  }));
  EXPECT_TRUE(dropped([this] {
    form.optNP.SetValue(false);
    form.optBP.SetValue(true);
  }));
  EXPECT_FALSE(dropped([this] { form.txtRy.SetText("300"); }));
  EXPECT_FALSE(dropped([this] { form.optUpPoyas.Select(1); }));
  EXPECT_FALSE(dropped([this] { form.chkProgib.SetChecked(true); }));
}

}  // namespace
}  // namespace trelonit::test
