#include <gtest/gtest.h>
#include <map>

#include "tests/workstation/report/ReportText.h"

namespace trelonit::test {
namespace {

const Message wrongMass = Stop("Не правильно расчитана масса фермы !");

void ExpectSnapshotOf(const DesignModel& model, const Calculation& snapshot) {
  EXPECT_EQ(snapshot.TreloData.TreloType, model.Inputs.TreloType);
  EXPECT_EQ(snapshot.TreloData.LengthF, model.Accepted.LengthF);
  EXPECT_EQ(snapshot.TreloData.Hight, model.Accepted.Hight);
  EXPECT_EQ(snapshot.TreloData.LenOporn, model.Accepted.LenOporn);
  EXPECT_EQ(snapshot.TreloData.PanelNum, model.Accepted.PanelNum);
  EXPECT_EQ(snapshot.TreloData.UpPoyasBrace, model.Inputs.UpPoyasBrace);
  EXPECT_EQ(snapshot.TreloData.DownPoyasBrace, model.Inputs.DownPoyasBrace);
  EXPECT_EQ(static_cast<const LoadArrays&>(snapshot.TreloData), model.Inputs.Loads);
  EXPECT_EQ(snapshot.TreloResult.UpPoyasForce, model.Last.TreloResult.UpPoyasForce);
  EXPECT_EQ(snapshot.TreloResult.DwnPoyasForce, model.Last.TreloResult.DwnPoyasForce);
  EXPECT_EQ(snapshot.TreloResult.RaskosForce, model.Last.TreloResult.RaskosForce);
  EXPECT_EQ(snapshot.TreloResult.StoykaForce, model.Last.TreloResult.StoykaForce);
  EXPECT_EQ(snapshot.TreloResult.BarForce, model.Last.TreloResult.BarForce);
  EXPECT_EQ(snapshot.TreloResult.ReactLeft, model.Last.TreloResult.ReactLeft);
  EXPECT_EQ(snapshot.TreloResult.Balanced, model.Last.TreloResult.Balanced);
  EXPECT_EQ(snapshot.CheckData.Mass, model.Last.CheckData.Mass);
  EXPECT_EQ(snapshot.CheckData.Stoyka.KStabY, model.Last.CheckData.Stoyka.KStabY);
  EXPECT_EQ(snapshot.CheckData.OpornRaskos.LenX, model.Last.CheckData.OpornRaskos.LenX);
  EXPECT_EQ(snapshot.ElementSection, model.Inputs.ElementSection);
}

/// A truss under 4 t at its second upper joint.
class ReportCommand : public ::testing::Test {
 protected:
  ReportCommand() { desk.Load(true, 1, "4"); }

  ReportText Report() { return Reported(desk); }

  SmallTruss desk{1};
  frmMain& form = desk.Main;
};

TEST_F(ReportCommand, LeavesTheLoadInputsWhereTheyAre) {
  form.chkOwnWeight.SetChecked(true);
  form.cmbKnotNum.Select(3);
  Report();
  EXPECT_EQ(form.cmbKnotNum.Text(), "3");
}

TEST_F(ReportCommand, ShowsTheEditorOnceAndNothingElse) {
  Report();
  EXPECT_EQ(desk.Opened, std::vector<std::string>{"Otchet"});
  EXPECT_TRUE(desk.Results.empty());
  EXPECT_EQ(desk.TakeMessages(), Messages());
}

TEST_F(ReportCommand, HandsOverTheSnapshotThenThePiecesThenShows) {
  std::vector<std::string> events;
  frmMain late(
      desk.Outside.Bundle(),
      {.BeginOtchet = [&](const Calculation&) { events.push_back("begin"); },
       .AppendOtchet =
           [&](const ReportPiece& piece) { events.push_back(piece.Heading ? "heading" : "line"); },
       .ShowOtchet = [&] { events.push_back("show"); }});
  late.Form_Load();
  late.tabMain.SetTab(2);
  late.cmdShowResults_Click();
  ASSERT_GT(events.size(), 100U);
  EXPECT_EQ(events[0], "begin");
  EXPECT_EQ(events[1], "heading");
  EXPECT_EQ(events[events.size() - 2], "line");
  EXPECT_EQ(events.back(), "show");
  EXPECT_EQ(std::count(events.begin(), events.end(), "begin"), 1);
  EXPECT_EQ(std::count(events.begin(), events.end(), "show"), 1);
}

TEST_F(ReportCommand, HandsOverTheDesignAsAnalysed) {
  form.chkOwnWeight.SetChecked(true);
  Report();
  ASSERT_EQ(desk.Snapshots.size(), 1U);
  ExpectSnapshotOf(form.Model, desk.Snapshots[0]);
  // With the own weight in it: the loads and the forces of the second analysis.
  EXPECT_EQ(desk.Snapshots[0].TreloData.UpDistForce[0], 0.0081);
  EXPECT_NEAR(desk.Snapshots[0].TreloResult.ReactLeft, 3.0648, 1e-12);
}

TEST_F(ReportCommand, LeavesTheSnapshotToItselfAfterwards) {
  Report();
  form.cmdClearLoads_Click();
  form.tabMain.SetTab(0);
  form.txtLengthF.SetText("16");
  form.tabMain.SetTab(2);
  form.cmdCalculate_Click();
  ASSERT_EQ(desk.Snapshots.size(), 1U);
  EXPECT_EQ(desk.Snapshots[0].TreloData.LengthF, 8);
  EXPECT_EQ(desk.Snapshots[0].TreloData.UpPForce[1], 4);
  EXPECT_NEAR(desk.Snapshots[0].TreloResult.ReactLeft, 3, 1e-12);
}

TEST_F(ReportCommand, WritesTheSameAgainIntoAnEmptyEditor) {
  const ReportText first = Report();
  EXPECT_EQ(Report(), first);
  EXPECT_EQ(desk.Snapshots.size(), 2U);
}

TEST_F(ReportCommand, AnalysesTheInputsAsTheyNowAre) {
  form.cmdCalculate_Click();
  desk.Load(true, 1, "4");
  form.Steel.DensitSteel = "15,7";
  form.txtRy.SetText("480");
  form.txtNadegnost.SetText("1.1");
  form.txtUsloviyaRabot.SetText("1");
  form.Steel.LimitFlex = "300";
  form.lblStillName.SetCaption("Сталь другая");
  form.chkDinloadEnable.SetChecked(true);
  const ReportText lines = Report();
  for (const char* line :
       {"Сталь другая", "Расчетное сопротивление стали Ry = 480",
        "Коэффициент надежности по ответственности Gn = 1.1", "Коэффициент условий работы Yc = 1",
        "Плотность материала p = 15.7",
        "Предельная гибкость сжатого элемента, заданая пользователем Flim = 300",
        "Учет динамических нагрузок включен ", "Реакция левой опоры фермы : 6"}) {
    EXPECT_TRUE(HasLine(lines, line)) << line;
  }
  // 4 t more make 8 t, of which the first upper bar has three quarters in its 3.9 cm2.
  const ReportText upper = Between(lines, "*** Верхний пояс : ", "*** Нижний пояс : ");
  ASSERT_GT(upper.size(), 1U);
  ExpectSameLine(upper[1], "Прочность : " + NumberToText(6 * 1.1 * 98.1 / (3.9 * 480), {}), "");
}

TEST_F(ReportCommand, ReadsWhatIsNoNumberAsZero) {
  form.Steel.DensitSteel = "плотность";
  const ReportText lines = Report();
  EXPECT_TRUE(HasLine(lines, "Плотность материала p = 0"));
  EXPECT_TRUE(HasLine(lines, "Теоретическая масса профильного проката фермы : 0"));
  EXPECT_EQ(desk.TakeMessages(), Messages{wrongMass});
}

TEST_F(ReportCommand, HasNoStabilityOfAGroupInTensionOnly) {
  const ReportText lower = Between(Report(), "*** Нижний пояс : ", "*** Опорные раскосы : ");
  EXPECT_EQ(lower.size(), 6U);
  EXPECT_EQ(CountWith(lower, "Прочность : "), 1);
  EXPECT_EQ(CountWith(lower, "Гибкость"), 4);
  EXPECT_EQ(CountWith(lower, "Устойчивость"), 0);
}

// --- own weight

TEST_F(ReportCommand, AddsTheOwnWeightToTheLoadsItLists) {
  form.chkOwnWeight.SetChecked(true);
  const ReportText lines = Report();
  for (int panel = 0; panel < 4; ++panel) {
    EXPECT_EQ(
        std::count(lines.begin(), lines.end(),
                   " панель № " + std::to_string(panel) + " , приложенное усилие : 0.0081 тонн "),
        2);
  }
  // 3 t and half of 16 m at 0.0081 t/m; half of the mass comes on top of that.
  const auto left = std::find_if(lines.begin(), lines.end(), [](const std::string& line) {
    return line.starts_with("Реакция левой опоры фермы : ");
  });
  ASSERT_NE(left, lines.end());
  ExpectSameLine(*left, "Реакция левой опоры фермы : 3.0648", "");
  ExpectSameLine(*(left + 2),
                 "Реакция левой опоры фермы с учетом масы фермы : " +
                     NumberToText(3.0648 + form.Model.Last.CheckData.Mass / 2, {}),
                 "");
  EXPECT_NEAR(form.Model.Last.CheckData.Mass, 0.1288095, 1e-7);
}

TEST_F(ReportCommand, DoesNotAddTheOwnWeightTwice) {
  form.chkOwnWeight.SetChecked(true);
  const ReportText first = Report();
  const LoadArrays loads = form.Model.Inputs.Loads;
  EXPECT_EQ(Report(), first);
  EXPECT_EQ(form.Model.Inputs.Loads, loads);
  EXPECT_EQ(form.Model.OwnWeight.PerMetre, 0.0081);
  EXPECT_TRUE(form.Model.OwnWeight.Added);
}

TEST_F(ReportCommand, FindsTheOwnWeightThatACalculationAdded) {
  form.chkOwnWeight.SetChecked(true);
  form.cmdCalculate_Click();
  const LoadArrays loads = form.Model.Inputs.Loads;
  Report();
  EXPECT_EQ(form.Model.Inputs.Loads, loads);
  desk.Calculate();
  EXPECT_EQ(form.Model.Inputs.Loads, loads);
}

TEST_F(ReportCommand, ReplacesAnOwnWeightThatHasChanged) {
  form.chkOwnWeight.SetChecked(true);
  Report();
  form.Steel.DensitSteel = "9";
  const ReportText lines = Report();
  EXPECT_EQ(form.Model.OwnWeight.PerMetre, 0.0092);
  for (const double value : form.Model.Inputs.Loads.UpDistForce) {
    EXPECT_NEAR(value, 0.0092, 1e-15);
  }
  const std::string reaction = "Реакция левой опоры фермы : ";
  const auto left = std::find_if(lines.begin(), lines.end(), [&](const std::string& line) {
    return line.starts_with(reaction);
  });
  ASSERT_NE(left, lines.end());
  ExpectSameLine(*left, reaction + "3.0736", "");
}

TEST_F(ReportCommand, LeavesTheLoadsAloneWithoutOwnWeight) {
  const LoadArrays loads = form.Model.Inputs.Loads;
  Report();
  EXPECT_EQ(form.Model.Inputs.Loads, loads);
  EXPECT_FALSE(form.Model.OwnWeight.Added);
}

TEST_F(ReportCommand, LeavesTheDesignAsACalculationDoes) {
  SmallTruss calculated(1);
  calculated.Load(true, 1, "4");
  for (frmMain* main : {&form, &calculated.Main}) {
    main->chkOwnWeight.SetChecked(true);
  }
  Report();
  calculated.Calculate();
  ExpectSnapshotOf(form.Model, calculated.Main.Model.Last);
  EXPECT_EQ(form.Model.OwnWeight.PerMetre, calculated.Main.Model.OwnWeight.PerMetre);
}

// --- deflection

TEST_F(ReportCommand, WritesTheDeflectionIntoTheFormAndNothingMore) {
  form.chkProgib.SetChecked(true);
  form.imgLenLimoverflow.Show(BitmapOf(101));
  const ReportText lines = Report();
  EXPECT_EQ(Between(lines, "Результаты расчета прогиба : ", "Дополнительная информация : "),
            (ReportText{"Результаты расчета прогиба : ", "", "Максимальный прогиб : 0.00688 м ",
                        "Допустимый прогиб фермы : 0.06667 м ", "  ", ""}));
  EXPECT_EQ(form.txtProgib.Text(), "0.00688");
  EXPECT_EQ(form.tabMain.Tab(), 2);
  EXPECT_EQ(form.imgLenLimoverflow.Shown(), BitmapOf(101));
}

TEST_F(ReportCommand, TellsADeflectionBeyondItsLimitInTheTextOnly) {
  form.chkProgib.SetChecked(true);
  Choose(form.cmbLenlim, "1 / 1200");
  const ReportText lines = Report();
  EXPECT_EQ(Between(lines, "Результаты расчета прогиба : ", "Дополнительная информация : "),
            (ReportText{"Результаты расчета прогиба : ", "", "Не выполнено условие жесткости !!! ",
                        "Максимальный прогиб фермы : 0.00688 м ",
                        "Допустимый прогиб фермы : 0.00667 м ", "  ", ""}));
  EXPECT_EQ(form.txtProgib.Text(), "0.00688");
  EXPECT_EQ(form.tabMain.Tab(), 2);
  EXPECT_EQ(form.imgLenLimoverflow.Shown(), Picture());
}

TEST_F(ReportCommand, TakesTheChordOfTheDeflection) {
  form.chkProgib.SetChecked(true);
  form.optNP.SetValue(true);
  const ReportText lines = Report();
  EXPECT_TRUE(HasLine(lines, "Расчет прогиба по нижнему поясу "));
  EXPECT_TRUE(HasLine(lines, "Максимальный прогиб : 0.00590 м "));
  EXPECT_EQ(form.txtProgib.Text(), "0.00590");
}

TEST_F(ReportCommand, TakesTheElasticModulusIntoTheDeflection) {
  form.chkProgib.SetChecked(true);
  form.Steel.ModulYung = "105000";
  EXPECT_TRUE(HasLine(Report(), "Максимальный прогиб : 0.01375 м "));
}

TEST_F(ReportCommand, LeavesOutADeflectionThatIsNotAskedFor) {
  form.txtProgib.SetText("old");
  EXPECT_EQ(CountWith(Report(), "рогиб"), 0);
  EXPECT_EQ(form.txtProgib.Text(), "old");
}

TEST_F(ReportCommand, WritesTheDeflectionInTheUsersLocale) {
  SmallTruss comma(1, CommaLocale());
  comma.Load(true, 1, "4");
  comma.Main.chkProgib.SetChecked(true);
  EXPECT_TRUE(HasLine(Reported(comma), "Максимальный прогиб : 0,00688 м "));
  EXPECT_EQ(comma.Main.txtProgib.Text(), "0,00688");
}

// --- failures

TEST_F(ReportCommand, StopsBehindTheReactionsAtALimitThatIsNone) {
  form.chkProgib.SetChecked(true);
  const std::map<std::string, Message> limits{
      {"1 / x", TypeMismatchTail("cmdShowResults_Click")},
      {"1 /", TypeMismatchTail("cmdShowResults_Click")},
      {"1 / 0", Tail("cmdShowResults_Click", 11, "Division by zero")}};
  for (const auto& [limit, tail] : limits) {
    form.cmbLenlim.SetText(limit);
    form.txtProgib.SetText("old");
    const ReportText lines = Report();
    EXPECT_EQ(desk.TakeMessages(), Messages{tail}) << limit;
    EXPECT_TRUE(HasLine(lines, "Предельно допустимый прогиб = L * " + limit));
    EXPECT_TRUE(lines.back().starts_with("Реакция правой опоры фермы с учетом масы фермы : "));
    EXPECT_EQ(form.txtProgib.Text(), "old");
  }
  EXPECT_TRUE(desk.Opened.empty());
}

TEST_F(ReportCommand, OfAReservedSchemeStopsAtTheForcesAndKeepsWhatStandsBefore) {
  SmallTruss reserved(5);
  reserved.TakeMessages();
  const ReportText lines = Reported(reserved);
  EXPECT_EQ(reserved.TakeMessages(),
            (Messages{wrongMass, SubscriptTail(formTitle), SubscriptTail("cmdShowResults_Click")}));
  EXPECT_TRUE(HasLine(lines, "Тип расчетной схемы № 5"));
  EXPECT_TRUE(HasLine(lines, "Стойки : "));
  // The checks have failed as well: their record is empty.
  EXPECT_EQ(CountWith(lines, "Площадь сечения : 0 "), 5);
  ASSERT_GT(lines.size(), 2U);
  EXPECT_EQ(lines[lines.size() - 2], "Усилия записаны для каждой группы стержней слева на право ");
  EXPECT_EQ(lines.back(), "Верхний пояс : ");
  EXPECT_TRUE(reserved.Opened.empty());
  ASSERT_EQ(reserved.Snapshots.size(), 1U);
  EXPECT_EQ(reserved.Snapshots[0].TreloData.TreloType, 5);
  EXPECT_FALSE(reserved.Snapshots[0].TreloResult.UpPoyasForce.IsAllocated());
}

// The own weight fails before the editor is emptied: no mass on no length.
TEST_F(ReportCommand, OfAReservedSchemeWithOwnWeightLeavesTheEditorAsItIs) {
  const ReportText before = Report();
  desk.Opened.clear();
  form.chkOwnWeight.SetChecked(true);
  form.Model.Inputs.TreloType = 5;
  form.cmdShowResults_Click();
  EXPECT_EQ(desk.TakeMessages(), (Messages{wrongMass, SubscriptTail(formTitle),
                                           Tail("cmdShowResults_Click", 6, "Overflow")}));
  EXPECT_EQ(LinesOf(desk.Report), before);
  EXPECT_EQ(desk.Snapshots.size(), 1U);
  EXPECT_TRUE(desk.Opened.empty());
}

TEST_F(ReportCommand, LeavesTheFormUsableAfterAFailure) {
  const ReportText whole = Report();
  form.Model.Inputs.TreloType = 7;
  Report();
  form.Model.Inputs.TreloType = 1;
  EXPECT_EQ(Report(), whole);
}

// --- menu

TEST(ReportMenu, GoesOverTheTabs) {
  for (const int tab : {0, 1, 2}) {
    const auto from = static_cast<Integer>(tab);
    StartedDesk desk;
    desk.Main.tabMain.SetTab(2);
    desk.Main.tabMain.SetTab(from);
    desk.Main.txtLengthF.SetText("24");
    desk.Main.FindMenuItem("mnuOtchet").Click();
    EXPECT_EQ(desk.Opened, std::vector<std::string>{"Otchet"}) << from;
    EXPECT_EQ(desk.Main.tabMain.Tab(), 2);
    // The geometry is checked on the way off the first tab only.
    EXPECT_TRUE(
        HasLine(LinesOf(desk.Report), from == 0 ? "Длинна фермы - 24" : "Длинна фермы - 20"));
  }
}

TEST(ReportMenu, StopsAtAGeometryThatIsRefused) {
  StartedDesk desk;
  desk.Main.txtLengthF.SetText("0");
  desk.Main.mnuOtchet_Click();
  EXPECT_EQ(desk.Main.tabMain.Tab(), 0);
  EXPECT_EQ(desk.TakeMessages().size(), 1U);
  EXPECT_TRUE(desk.Opened.empty());
  EXPECT_TRUE(desk.Snapshots.empty());
  EXPECT_TRUE(desk.Report.empty());
}

TEST(ReportMenu, DoesWhatTheButtonDoes) {
  SmallTruss menu(2);
  SmallTruss button(2);
  menu.Load(true, 1, "4");
  button.Load(true, 1, "4");
  menu.Main.mnuOtchet_Click();
  EXPECT_EQ(LinesOf(menu.Report), Reported(button));
}

}  // namespace
}  // namespace trelonit::test
