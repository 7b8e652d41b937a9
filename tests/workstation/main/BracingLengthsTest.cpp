#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "tests/workstation/main/Desk.h"

namespace trelonit::test {
namespace {

using Texts = std::vector<std::string>;

/// The lengths beside the bracing options.
class BracingLengths : public ::testing::Test {
 protected:
  using Labels = BoundedArray<frmMain::BracingLength>;

  /// 24 m in 8 panels: the end panels as given, the others share the rest.
  void Enter(Long scheme, const std::string& endPanel) {
    form.imgTreloType_Click(scheme);
    Choose(form.cmbPanelNum, "8");
    form.txtLengthF.SetText("24");
    form.txtHight.SetText("2.8");
    form.txtLenOporn.SetText(endPanel);
  }

  static Texts Taken(const Labels& labels) {
    return Captions(labels, &frmMain::BracingLength::Taken);
  }
  static Texts ByCaption(const Labels& labels) {
    return Captions(labels, &frmMain::BracingLength::ByCaption);
  }
  /// Options whose length is less than what the caption means.
  static std::vector<Long> Red(const Labels& labels) {
    std::vector<Long> red;
    for (Long option = 1; option <= 4; ++option) {
      if (labels[option].Taken.ForeColor() == colorRed) {
        red.push_back(option);
      }
      EXPECT_EQ(labels[option].ByCaption.ForeColor(), colorWindowText);
    }
    return red;
  }

  StartedDesk desk;
  frmMain& form = desk.Main;
  const Labels& upper = form.lblUpPoyasLength;
  const Labels& lower = form.lblDownPoyasLength;

 private:
  static Texts Captions(const Labels& labels, Label frmMain::BracingLength::*which) {
    Texts captions;
    for (Long option = 1; option <= 4; ++option) {
      captions.push_back((labels[option].*which).Caption());
    }
    return captions;
  }
};

TEST_F(BracingLengths, ShowTheTrussOfTheStart) {
  // 20 m in 10 panels of 2 m: the calculation takes a panel or half or all of the span, the
  // captions mean the whole chord, half of it, two panels, one panel.
  EXPECT_EQ(Taken(upper), (Texts{"2.00", "2.00", "10.00", "20.00"}));
  EXPECT_EQ(ByCaption(upper), (Texts{"20.00", "10.00", "4.00", "2.00"}));
  EXPECT_EQ(Taken(lower), (Texts{"2.00", "2.00", "10.00", "20.00"}));
  EXPECT_EQ(ByCaption(lower), (Texts{"20.00", "10.00", "4.00", "2.00"}));
}

TEST_F(BracingLengths, AreRedWhereTheCalculationTakesLess) {
  EXPECT_EQ(Red(upper), (std::vector<Long>{1, 2}));
  EXPECT_EQ(Red(lower), (std::vector<Long>{1, 2}));
}

TEST_F(BracingLengths, FollowTheBoxes) {
  // End panels of 2.4 m leave 19.2 m for six.
  Enter(1, "2.4");
  EXPECT_EQ(Taken(upper), (Texts{"3.20", "3.20", "12.00", "24.00"}));
  EXPECT_EQ(ByCaption(upper), (Texts{"24.00", "12.00", "6.40", "3.20"}));
  // Longer ones: 3.6 and 2.8 m, so that two neighbours are 6.4 m at most.
  form.txtLenOporn.SetText("3.6");
  EXPECT_EQ(Taken(upper), (Texts{"3.60", "3.60", "12.00", "24.00"}));
  EXPECT_EQ(ByCaption(upper), (Texts{"24.00", "12.00", "6.40", "3.60"}));
  form.txtLenOporn.SetText("");
  EXPECT_EQ(ByCaption(upper), (Texts{"24.00", "12.00", "6.00", "3.00"}));
  form.txtLengthF.SetText("30");
  EXPECT_EQ(ByCaption(upper), (Texts{"30.00", "15.00", "7.50", "3.75"}));
  Choose(form.cmbPanelNum, "10");
  EXPECT_EQ(ByCaption(upper), (Texts{"30.00", "15.00", "6.00", "3.00"}));
}

TEST_F(BracingLengths, AreThoseOfTheChordItself) {
  // The lower chords of schemes 2 to 4 end before the supports; 24 m in panels of 3 m.
  Enter(2, "3");
  EXPECT_EQ(ByCaption(upper), (Texts{"24.00", "12.00", "6.00", "3.00"}));
  EXPECT_EQ(ByCaption(lower), (Texts{"18.00", "9.00", "6.00", "3.00"}));
  EXPECT_EQ(Taken(lower), (Texts{"3.00", "6.00", "12.00", "24.00"}));
  Enter(3, "3");
  EXPECT_EQ(ByCaption(lower), (Texts{"21.00", "10.50", "6.00", "3.00"}));
  // A lower panel is two upper ones long.
  Enter(4, "3");
  EXPECT_EQ(ByCaption(lower), (Texts{"18.00", "9.00", "12.00", "6.00"}));
  EXPECT_EQ(Taken(lower), (Texts{"6.00", "12.00", "12.00", "24.00"}));
  EXPECT_EQ(Red(lower), (std::vector<Long>{1}));
}

TEST_F(BracingLengths, AreNoneWhereTheBoxesMakeNoTruss) {
  const Texts none(4, "—");
  for (const char* length : {"", "0", "-24", "text"}) {
    form.txtLengthF.SetText(length);
    EXPECT_EQ(Taken(upper), none) << length;
    EXPECT_EQ(ByCaption(lower), none) << length;
    EXPECT_EQ(Red(upper), std::vector<Long>()) << length;
  }
  form.txtLengthF.SetText("20");
  EXPECT_EQ(Taken(upper).front(), "2.00");
  // End panels that leave no room for the others.
  form.txtLenOporn.SetText("10");
  EXPECT_EQ(Taken(upper), none);
  form.txtLenOporn.SetText("2");
  // A scheme without joints.
  form.imgTreloType_Click(5);
  EXPECT_EQ(Taken(upper), none);
  EXPECT_EQ(ByCaption(lower), none);
  EXPECT_EQ(Red(lower), std::vector<Long>());
}

TEST_F(BracingLengths, ChangeNoInputOfTheCalculation) {
  form.txtLengthF.SetText("36");
  EXPECT_NE(Taken(upper), (Texts{"2.00", "2.00", "10.00", "20.00"}));
  EXPECT_EQ(form.Model.Accepted.LengthF, 0);
  EXPECT_EQ(desk.TakeMessages(), Messages());
}

TEST(BracingLengthsOfACommaLocale, HaveACommaAndTwoDecimals) {
  StartedDesk desk(CommaLocale());
  EXPECT_EQ(desk.Main.lblUpPoyasLength[1].Taken.Caption(), "2,00");
  EXPECT_EQ(desk.Main.lblUpPoyasLength[1].ByCaption.Caption(), "20,00");
}

}  // namespace
}  // namespace trelonit::test
