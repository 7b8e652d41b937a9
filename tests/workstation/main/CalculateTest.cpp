#include <algorithm>
#include <gtest/gtest.h>

#include "tests/workstation/design/SmallTruss.h"

namespace trelonit::test {
namespace {

const Message wrongMass = Stop("Не правильно расчитана масса фермы !");

/// The second text of the row with this caption; empty where there is no such row.
std::string Coefficient(const ResultLists& lists, const std::string& caption) {
  for (const Grid::Row& row : lists.MSFlexGKoefUse) {
    if (row.at(0) == caption) {
      return row.at(1);
    }
  }
  return "";
}

TEST(CheckNumbersOfTheForm, ReadBothSeparatorsInEveryLocale) {
  for (const NumberLocale& locale : {PointLocale(), CommaLocale()}) {
    StartedDesk desk(locale);
    desk.Main.txtRy.SetText("240,5");
    desk.Main.Steel.ModulYung = "2.1E5";
    desk.Main.txtUsloviyaRabot.SetText("0,95");
    desk.Main.txtNadegnost.SetText("1.05");
    desk.Main.Steel.DensitSteel = "7,9";
    desk.Main.Steel.LimitFlex = "120.5";
    const CheckNumbers numbers = CheckNumbersOf(desk.Main.ReadInputs());
    EXPECT_EQ(numbers.Ry, 240.5);
    EXPECT_EQ(numbers.E, 210000);
    EXPECT_EQ(numbers.Yc, 0.95);
    EXPECT_EQ(numbers.Gn, 1.05);
    EXPECT_EQ(numbers.Density, 7.9);
    EXPECT_EQ(numbers.LimitUser, 120.5);
    EXPECT_FALSE(numbers.Dynamic);
  }
}

void ExpectZeros(const CheckNumbers& numbers) {
  EXPECT_EQ(numbers.Ry, 0);
  EXPECT_EQ(numbers.E, 0);
  EXPECT_EQ(numbers.Yc, 0);
  EXPECT_EQ(numbers.Gn, 0);
  EXPECT_EQ(numbers.Density, 0);
  EXPECT_EQ(numbers.LimitUser, 0);
}

TEST(CheckNumbersOfTheForm, AreZeroForTextThatIsNoNumber) {
  StartedDesk desk;
  desk.Main.txtRy.SetText("steel");
  desk.Main.Steel.ModulYung = "";
  desk.Main.txtUsloviyaRabot.SetText("-");
  desk.Main.txtNadegnost.SetText("one");
  desk.Main.Steel.DensitSteel = "t/m3";
  desk.Main.Steel.LimitFlex = "none";
  ExpectZeros(CheckNumbersOf(desk.Main.ReadInputs()));
  EXPECT_EQ(desk.TakeMessages(), Messages());
}

TEST(CheckNumbersOfTheForm, AreNotReadBeforeTheFirstCalculation) {
  StartedDesk desk;
  ExpectZeros(desk.Main.Model.Last.Numbers);
  EXPECT_FALSE(desk.Main.Model.Last.Numbers.Dynamic);
}

TEST(CheckNumbersOfTheForm, TakeTheBoxOfDynamicLoads) {
  StartedDesk desk;
  desk.Main.chkDinloadEnable.SetChecked(true);
  EXPECT_TRUE(CheckNumbersOf(desk.Main.ReadInputs()).Dynamic);
}

TEST(Calculate, ShowsTheResultsOnceAndStaysOnItsTab) {
  SmallTruss desk(1);
  desk.Load(true, 1, "4");
  desk.Calculate();
  EXPECT_EQ(desk.Results.size(), 1U);
  EXPECT_EQ(desk.Main.tabMain.Tab(), 2);
  EXPECT_EQ(desk.Main.txtProgib.Text(), "");
}

TEST(Calculate, KeepsWhatItFoundInTheModel) {
  SmallTruss desk(1);
  desk.Load(true, 1, "4");
  desk.Load(false, 2, "2");
  desk.Calculate();
  const DesignModel& model = desk.Main.Model;
  EXPECT_EQ(static_cast<const LoadArrays&>(model.Last.TreloData), model.Inputs.Loads);
  EXPECT_EQ(model.Last.TreloData.UpPForce[1], 4);
  EXPECT_EQ(model.Last.TreloData.DwnPForce[2], 2);
  EXPECT_NEAR(model.Last.TreloResult.ReactLeft, 4, 1e-12);
  EXPECT_NEAR(model.Last.TreloResult.ReactRight, 2, 1e-12);
  EXPECT_NEAR(model.Last.CheckData.UpPoyas.NMax.Value, 4, 1e-12);
  EXPECT_NEAR(model.Last.CheckData.Mass, 0.1288094514, 1e-9);
}

TEST(Calculate, LeavesTheResultsAsTheyAreWhenAnInputMoves) {
  SmallTruss desk(1);
  desk.Load(true, 1, "4");
  desk.Calculate();
  desk.Load(true, 1, "4");
  desk.Main.txtRy.SetText("480");
  EXPECT_NEAR(desk.Main.Model.Last.TreloResult.ReactLeft, 3, 1e-12);
  EXPECT_EQ(desk.Main.Model.Last.TreloData.UpPForce[1], 4);
  desk.Calculate();
  EXPECT_NEAR(desk.Main.Model.Last.TreloResult.ReactLeft, 6, 1e-12);
  // Twice the force in twice the resistance.
  EXPECT_EQ(Coefficient(desk.Results.back(), "Прочность верхнего пояса"), "0.34936");
}

TEST(Calculate, WritesInTheUsersLocale) {
  SmallTruss desk(1, CommaLocale());
  desk.Load(true, 1, "4000");
  const ResultLists& lists = desk.Calculate();
  // Groups of three as the system writes them, here with a no-break blank.
  EXPECT_EQ(lists.lstForces.at(3), " Усилие в 1-ом стержне  -3\u00A0000,0000 тонн");
  EXPECT_EQ(Coefficient(lists, "Прочность верхнего пояса"), "349,35897");
}

TEST(Calculate, ShowsNoStabilityForAGroupInPureTension) {
  SmallTruss desk(1);
  desk.Load(true, 2, "4");
  const ResultLists& lists = desk.Calculate();
  std::vector<std::string> captions;
  for (const Grid::Row& row : lists.MSFlexGKoefUse) {
    captions.push_back(row.at(0));
  }
  const auto start = std::find(captions.begin(), captions.end(), "*** Нижний пояс");
  const auto end = std::find(captions.begin(), captions.end(), "*** Опорные pаскосы");
  EXPECT_EQ(std::vector<std::string>(start, end),
            (std::vector<std::string>{
                "*** Нижний пояс",
                "Прочность нижнего пояса",
                "Гибкость нижнего пояса ",
                "Гибкость нижнего пояса по предельной гибкости, заданной пользователем",
                "*** Раскосы",
                "Прочность раскосов",
                "Гибкость раскосов ",
                "Гибкость раскосов по предельной гибкости, заданной пользователем",
            }));
}

TEST(Calculate, ShowsOnlySlendernessWithoutAnyLoad) {
  SmallTruss desk(1);
  const ResultLists& lists = desk.Calculate();
  EXPECT_EQ(lists.MSFlexGKoefUse.size(), 5U * 3U);
  for (const Grid::Row& row : lists.MSFlexGKoefUse) {
    EXPECT_TRUE(row.at(0).rfind("*** ", 0) == 0 || row.at(0).rfind("Гибкость ", 0) == 0)
        << row.at(0);
  }
  EXPECT_EQ(lists.lstForces.at(3), " Усилие в 1-ом стержне  0.0000 тонн");
}

TEST(Calculate, LimitsTheSlendernessInTensionUnderDynamicLoads) {
  SmallTruss desk(1);
  desk.Load(true, 1, "4");
  EXPECT_EQ(Coefficient(desk.Calculate(), "Гибкость нижнего пояса "), "0.64365");
  desk.Main.chkDinloadEnable.SetChecked(true);
  // The limit of bars in tension falls from 400 to 250; that of compressed ones stays.
  const ResultLists& lists = desk.Calculate();
  EXPECT_EQ(Coefficient(lists, "Гибкость нижнего пояса "), "1.02984");
  EXPECT_EQ(Coefficient(lists, "Гибкость верхнего пояса "), "0.74439");
}

TEST(Calculate, MeasuresSlendernessByTheUsersLimit) {
  SmallTruss desk(1);
  desk.Main.Steel.LimitFlex = "75";
  EXPECT_EQ(Coefficient(desk.Calculate(),
                        "Гибкость верхнего пояса по предельной гибкости, заданной пользователем"),
            "1.38778");
}

TEST(Calculate, ShowsAnEmptyCheckAfterTellingThatItFailed) {
  SmallTruss desk(1);
  desk.Load(true, 1, "4");
  desk.Main.Steel.LimitFlex = "none";
  const ResultLists& lists = desk.Calculate();
  EXPECT_EQ(desk.TakeMessages(), (Messages{Tail(formTitle, 11, "Division by zero")}));
  EXPECT_EQ(lists.lstForces.at(3), " Усилие в 1-ом стержне  -3.0000 тонн");
  EXPECT_EQ(lists.MSFlexGKoefUse.size(), 5U * 3U);
  EXPECT_EQ(Coefficient(lists, "Гибкость стоек "), "0.00000");
}

TEST(Calculate, GoesOnToTheChecksAfterAFailedAnalysis) {
  SmallTruss desk(1);
  desk.Load(true, 1, "4");
  desk.Main.tabMain.SetTab(0);
  // End panels that take the whole span leave panels of length 0.
  desk.Main.txtLenOporn.SetText("4");
  desk.Main.tabMain.SetTab(2);
  desk.TakeMessages();
  desk.Main.cmdCalculate_Click();
  EXPECT_EQ(desk.TakeMessages(),
            (Messages{Tail("CalcTrelo1", 11, "Division by zero"), wrongMass,
                      SubscriptTail(formTitle), SubscriptTail("cmdCalculate_Click")}));
  EXPECT_TRUE(desk.Results.empty());
  EXPECT_FALSE(desk.Main.Model.Last.TreloResult.UpPoyasForce.IsAllocated());
  EXPECT_EQ(desk.Main.Model.Last.CheckData.Mass, 0);
}

TEST(Calculate, WorksAgainAfterAFailedAnalysis) {
  SmallTruss desk(1);
  desk.Load(true, 1, "4");
  desk.Main.tabMain.SetTab(0);
  desk.Main.txtLenOporn.SetText("4");
  desk.Main.tabMain.SetTab(2);
  desk.Main.cmdCalculate_Click();
  desk.Main.tabMain.SetTab(0);
  desk.Main.txtLenOporn.SetText("2");
  desk.Main.tabMain.SetTab(2);
  EXPECT_EQ(desk.Calculate().lstForces.at(3), " Усилие в 1-ом стержне  -3.0000 тонн");
}

TEST(Calculate, HasNoOwnWeightToSpreadAfterAFailedAnalysis) {
  SmallTruss desk(1);
  desk.Main.tabMain.SetTab(0);
  desk.Main.txtLenOporn.SetText("4");
  desk.Main.tabMain.SetTab(2);
  desk.Main.chkOwnWeight.SetChecked(true);
  desk.TakeMessages();
  const LoadArrays before = desk.Main.Model.Inputs.Loads;
  desk.Main.cmdCalculate_Click();
  // No mass over no chords.
  EXPECT_EQ(desk.TakeMessages(),
            (Messages{Tail("CalcTrelo1", 11, "Division by zero"), wrongMass,
                      SubscriptTail(formTitle), Tail("cmdCalculate_Click", 6, "Overflow")}));
  EXPECT_FALSE(desk.Main.Model.OwnWeight.Added);
  EXPECT_EQ(desk.Main.Model.Inputs.Loads, before);
}

TEST(Calculate, HasNothingToShowForAReservedScheme) {
  SmallTruss desk(5);
  desk.TakeMessages();
  desk.Main.cmdCalculate_Click();
  // The analysis itself is silent on a reserved scheme.
  EXPECT_EQ(desk.TakeMessages(),
            (Messages{wrongMass, SubscriptTail(formTitle), SubscriptTail("cmdCalculate_Click")}));
  EXPECT_TRUE(desk.Results.empty());
}

TEST(Calculate, TellsASchemeThatIsNone) {
  SmallTruss desk(1);
  desk.Main.Model.Inputs.TreloType = 11;
  desk.Main.cmdCalculate_Click();
  const Message unknown{"Trelo's error", "Неизвестный тип фермы, расчет не возможен ",
                        MessageStyle::Critical};
  EXPECT_EQ(desk.TakeMessages(), (Messages{unknown, wrongMass, SubscriptTail(formTitle),
                                           SubscriptTail("cmdCalculate_Click")}));
}

TEST(Calculate, TellsTwiceThatHiddenVerticalsHaveNoLength) {
  SmallTruss desk(3);
  desk.Main.Model.Inputs.ElementSection[sectionStoyka].Layout = 6;
  desk.Load(true, 1, "2");
  desk.Calculate();
  const Message noLength = Stop("Ошибочное значение длинны стержня (<=0)!");
  EXPECT_EQ(desk.TakeMessages(), (Messages{noLength, noLength}));
  // With own weight there are two runs of the checks.
  desk.Main.chkOwnWeight.SetChecked(true);
  desk.Calculate();
  EXPECT_EQ(desk.TakeMessages(), (Messages{noLength, noLength, noLength, noLength}));
}

TEST(Calculate, DoesNotNeedItsWindow) {
  Desk desk;
  frmMain form(desk.Outside.Bundle(), {});
  form.Form_Load();
  form.tabMain.SetTab(2);
  AddForce(form, 5, "4");
  form.cmdCalculate_Click();
  EXPECT_EQ(desk.TakeMessages(), Messages());
  EXPECT_NEAR(form.Model.Last.TreloResult.ReactLeft, 2, 1e-12);
}

}  // namespace
}  // namespace trelonit::test
