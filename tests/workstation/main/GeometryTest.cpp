#include <gtest/gtest.h>

#include "tests/workstation/main/Desk.h"

namespace trelonit::test {
namespace {

const Message refused =
    Stop("Неверно заданы геометрические параметры фермы.\nПроверте значение длинны/высоты фермы !");
const Message higherThanLong = Hint(
    "Высота фермы превышает ее длинну !\nВозможно данный случай продиктован "
    "конструктивно,\n но не лучше ли использовать простую балку ? .");
const Message proportions = Hint(
    "Соотношение высоты фермы и длинны панели вызывают сомнения \nв оптимальности выбора "
    "соотношений длинна фермы - высота фермы - !\n кол-во панелей. Угол наклона раскосов > 65 "
    "град .");

class Geometry : public ::testing::Test {
 protected:
  /// The messages of the check for these inputs as typed.
  Messages Check(const std::string& L, const std::string& H, const std::string& a) {
    form.txtLengthF.SetText(L);
    form.txtHight.SetText(H);
    form.txtLenOporn.SetText(a);
    form.CheckGeometry();
    return desk.TakeMessages();
  }

  StartedDesk desk;
  frmMain& form = desk.Main;
  const AcceptedGeometry& data = form.Model.Accepted;
};

TEST_F(Geometry, IsTaken) {
  EXPECT_EQ(Check("24", "2", "3"), Messages());
  EXPECT_EQ(data.LengthF, 24);
  EXPECT_EQ(data.Hight, 2);
  EXPECT_EQ(data.LenOporn, 3);
  EXPECT_EQ(data.PanelNum, 10);
}

TEST_F(Geometry, AcceptsCommaAndPointInEveryLocale) {
  for (const NumberLocale& locale : {PointLocale(), CommaLocale()}) {
    StartedDesk other(locale);
    other.Main.txtLengthF.SetText("24,5");
    other.Main.txtHight.SetText("2.25");
    other.Main.txtLenOporn.SetText(" 2,75 ");
    other.Main.CheckGeometry();
    EXPECT_EQ(other.Main.Model.Accepted.LengthF, 24.5);
    EXPECT_EQ(other.Main.Model.Accepted.Hight, 2.25);
    EXPECT_EQ(other.Main.Model.Accepted.LenOporn, 2.75);
    EXPECT_EQ(other.TakeMessages(), Messages());
  }
}

TEST_F(Geometry, WithoutSpanOrHeightIsRefused) {
  Check("24", "2", "3");
  const AcceptedGeometry before = data;
  Choose(form.cmbPanelNum, "12");
  form.tabMain.Click = nullptr;
  for (const auto& [L, H] : std::vector<std::pair<std::string, std::string>>{{"0", "2"},
                                                                             {"-20", "2"},
                                                                             {"", "2"},
                                                                             {"abc", "2"},
                                                                             {"20", "0"},
                                                                             {"20", "-1"},
                                                                             {"20", ""},
                                                                             {"20", "two"},
                                                                             {"0", "0"}}) {
    form.tabMain.SetTab(1);
    EXPECT_EQ(Check(L, H, "2"), Messages{refused}) << L << " by " << H;
    EXPECT_EQ(form.tabMain.Tab(), 0);
    EXPECT_EQ(data.LengthF, before.LengthF);
    EXPECT_EQ(data.Hight, before.Hight);
    EXPECT_EQ(data.LenOporn, before.LenOporn);
    EXPECT_EQ(data.PanelNum, before.PanelNum);
  }
}

TEST_F(Geometry, SharesTheSpanEquallyWithoutAnEndPanel) {
  for (const char* a : {"", "0", "-1", "none"}) {
    EXPECT_EQ(Check("30", "2", a), Messages());
    EXPECT_EQ(data.LenOporn, 3) << a;
    // The box is the user's.
    EXPECT_EQ(form.txtLenOporn.Text(), a);
  }
}

TEST_F(Geometry, OfSchemeThreeHasNoEndPanelOfItsOwn) {
  form.imgTreloType_Click(3);
  Choose(form.cmbPanelNum, "5");
  EXPECT_EQ(Check("20", "2", "1.25"), Messages());
  EXPECT_EQ(data.LenOporn, 4);
  EXPECT_EQ(data.PanelNum, 5);
}

TEST_F(Geometry, OfSchemeThreeMayHaveTwoPanels) {
  form.imgTreloType_Click(3);
  EXPECT_EQ(Check("20", "2", ""), Messages());
  EXPECT_EQ(data.PanelNum, 2);
  EXPECT_EQ(data.LenOporn, 10);
}

TEST_F(Geometry, WarnsOfATrussThatIsNotLongerThanHigh) {
  EXPECT_EQ(Check("20", "20", "2"), Messages{higherThanLong});
  EXPECT_EQ(data.LengthF, 20);
  EXPECT_EQ(data.Hight, 20);
  EXPECT_EQ(data.LenOporn, 2);
  EXPECT_EQ(Check("20", "21", "2"), Messages{higherThanLong});
  EXPECT_EQ(data.Hight, 21);
  // A little longer than high is a case of the proportions.
  EXPECT_EQ(Check("20.001", "20", "2"), Messages{proportions});
}

TEST_F(Geometry, WarnsOfSteepDiagonalsOfThePanels) {
  // 4.4 * 10 / 20 is 2.2.
  EXPECT_EQ(Check("20", "4.4", "8"), Messages());
  EXPECT_EQ(Check("20", "4.4001", "8"), Messages{proportions});
  EXPECT_EQ(data.Hight, 4.4001);
}

TEST_F(Geometry, WarnsOfSteepDiagonalsOfTheEndPanels) {
  EXPECT_EQ(Check("20", "2.2", "1"), Messages());
  EXPECT_EQ(Check("20", "2.2001", "1"), Messages{proportions});
  // Without an end panel the height is compared with the equal panels.
  EXPECT_EQ(Check("20", "4.4", ""), Messages());
  EXPECT_EQ(Check("20", "4.4001", ""), Messages{proportions});
}

TEST_F(Geometry, WarnsOfSteepDiagonalsOfSchemeThreeAtTwiceTheSlope) {
  form.imgTreloType_Click(3);
  Choose(form.cmbPanelNum, "10");
  EXPECT_EQ(Check("20", "8.8", "0.1"), Messages());
  EXPECT_EQ(Check("20", "8.8001", "0.1"), Messages{proportions});
  EXPECT_EQ(Check("20", "20", "0.1"), Messages{higherThanLong});
}

TEST_F(Geometry, OfTheOtherSchemesIsJudgedLikeTheFirst) {
  for (const Long scheme : {2, 4, 5}) {
    form.imgTreloType_Click(scheme);
    EXPECT_EQ(Check("20", "4.4", "8"), Messages()) << scheme;
    EXPECT_EQ(Check("20", "4.4001", "8"), Messages{proportions}) << scheme;
  }
}

TEST_F(Geometry, MayHaveEndPanelsThatLeaveNoRoom) {
  EXPECT_EQ(Check("20", "2", "15"), Messages());
  EXPECT_EQ(data.LenOporn, 15);
}

TEST_F(Geometry, OutOfRangeTakesTheTailOfTheTabChange) {
  form.txtHight.SetText("1E308");
  form.txtLengthF.SetText("1.5E308");
  form.tabMain.SetTab(1);
  EXPECT_EQ(desk.TakeMessages(), (Messages{Tail("tabMain_Click", 6, "Overflow")}));
}

}  // namespace
}  // namespace trelonit::test
