// What is shown of a design while it is being entered.

#include <cmath>
#include <gtest/gtest.h>
#include <map>

#include "tests/workstation/design/SmallTruss.h"
#include "workstation/design/modHelper.h"

namespace trelonit::test {
namespace {

constexpr double millimetresInAMetre = 1000;

/// The live result of a form against what its Calculate then comes to.
void ExpectSameResult(const LiveResult& live, const Calculation& told, const Opinion& opinion) {
  ASSERT_EQ(live.Refusal, "");
  const std::vector<GroupUse> use = BuildUse(told);
  ASSERT_EQ(live.Groups.size(), use.size());
  for (std::size_t place = 0; place < use.size(); ++place) {
    const LiveGroup& group = live.Groups[place];
    EXPECT_EQ(group.Group, use[place].Group);
    EXPECT_EQ(group.Told, use[place].Value) << group.Hint;
    const GroupJudgement* judgement = opinion.FindGroup(GroupOfOption(group.Group));
    ASSERT_NE(judgement, nullptr);
    EXPECT_EQ(group.Opinion, LargestFigure(*judgement)) << group.Hint;
  }
  ASSERT_EQ(live.Figures.size(), 2U);
  EXPECT_EQ(live.Figures[0].Value, FormatShown(told.CheckData.Mass, 3, PointLocale()) + " т");
}

class LiveResultOfASmallTruss : public ::testing::TestWithParam<int> {
 protected:
  LiveResultOfASmallTruss() {
    desk.Load(true, 1, "4");
    desk.Load(false, 0, "1.5");
  }
  SmallTruss desk{GetParam()};
  frmMain& form = desk.Main;
};

TEST_P(LiveResultOfASmallTruss, IsWhatCalculateComesTo) {
  const LiveResult live = form.CalculateLive();
  const ResultLists& lists = desk.Calculate();
  ExpectSameResult(live, lists.Of, lists.Opinion.Figures);
}

TEST_P(LiveResultOfASmallTruss, HasOwnWeightInItAsCalculateHas) {
  const LiveResult without = form.CalculateLive();
  form.chkOwnWeight.SetChecked(true);
  const LiveResult live = form.CalculateLive();
  EXPECT_NE(live.Groups.front().Told, without.Groups.front().Told);
  const ResultLists& lists = desk.Calculate();
  ExpectSameResult(live, lists.Of, lists.Opinion.Figures);
  // By now it is inside the loads; it must not come in a second time.
  ExpectSameResult(form.CalculateLive(), lists.Of, lists.Opinion.Figures);
}

TEST_P(LiveResultOfASmallTruss, TellsTheDeflectionAgainstItsLimit) {
  form.chkProgib.SetChecked(true);
  const LiveResult live = form.CalculateLive();
  const ResultLists& lists = desk.Calculate();
  // The span over 120 in millimetresInAMetre.
  const std::string limit = GetParam() == 3 ? "33.3" : "66.7";
  EXPECT_EQ(live.Figures[1].Value,
            FormatShown(lists.Of.Progib->Value * millimetresInAMetre, 1, PointLocale()) + " из " +
                limit + " мм");
  EXPECT_EQ(live.Figures[1].Fails, !lists.Of.Progib->Satisfied);
  EXPECT_NE(live.Figures[1].Hint.find("верхнему поясу, предел 1 / 120 пролета"), std::string::npos);
}

TEST_P(LiveResultOfASmallTruss, ChangesNothingAndTellsNothing) {
  form.chkOwnWeight.SetChecked(true);
  form.chkProgib.SetChecked(true);
  form.txtProgib.SetText("0.5");
  const DesignInputs before = form.Model.Inputs;
  const double accepted = form.Model.Accepted.LengthF;
  form.CalculateLive();
  EXPECT_EQ(form.Model.Inputs.Loads, before.Loads);
  EXPECT_EQ(form.Model.Inputs.ElementSection, before.ElementSection);
  EXPECT_EQ(form.Model.Inputs.OwnWeightOn, before.OwnWeightOn);
  EXPECT_FALSE(form.Model.OwnWeight.Added);
  EXPECT_EQ(form.Model.Accepted.LengthF, accepted);
  EXPECT_EQ(form.Model.Last.TreloResult.KnotNum, 0);
  EXPECT_EQ(form.txtProgib.Text(), "0.5");
  EXPECT_EQ(form.tabMain.Tab(), 2);
  EXPECT_EQ(desk.TakeMessages(), Messages());
  EXPECT_TRUE(desk.Results.empty());
}

INSTANTIATE_TEST_SUITE_P(AllSchemes, LiveResultOfASmallTruss, ::testing::Values(1, 2, 3, 4));

TEST(LiveResult, HasNoVerticalsWhereTheSchemeHasNone) {
  EXPECT_EQ(SmallTruss(1).Main.CalculateLive().Groups.size(), 5U);
  EXPECT_EQ(SmallTruss(3).Main.CalculateLive().Groups.size(), 4U);
}

TEST(LiveResult, TakesTheBoxesAndNotWhatTheGeometryCheckTookLast) {
  SmallTruss desk(1);
  desk.Load(true, 2, "4");
  const double before = desk.Main.CalculateLive().Groups.front().Told;
  // Half the height doubles the forces of the chords and takes nothing off the slenderness.
  desk.Main.txtHight.SetText("0.1");
  EXPECT_GT(desk.Main.CalculateLive().Groups.front().Told, 2 * before);
  EXPECT_EQ(desk.Main.Model.Accepted.Hight, 2);
}

TEST(LiveResult, TellsTheChecksThatRuleIt) {
  // 4 m between the held points against a panel of 2 m: the norm asks for more than is told.
  SmallTruss desk(1);
  desk.Load(true, 2, "4");
  const LiveGroup upper = desk.Main.CalculateLive().Groups.front();
  ASSERT_TRUE(upper.Opinion);
  EXPECT_GT(*upper.Opinion, upper.Told);
  EXPECT_EQ(upper.Hint.rfind("Верхний пояс\nРасчет: " + upper.Value + ", ", 0), 0U) << upper.Hint;
  EXPECT_NE(upper.Hint.find("\nСНиП: "), std::string::npos);
  EXPECT_NE(upper.Hint.find("из плоскости фермы"), std::string::npos);
}

TEST(LiveResult, DistinguishesWhatOnlyTheNormRefuses) {
  const auto fails = [](double told, std::optional<double> opinion) {
    const LiveGroup group{.Told = told, .Opinion = opinion};
    return std::pair(group.Fails(), group.FailsByOpinionOnly());
  };
  EXPECT_EQ(fails(1, 1), std::pair(false, false));
  EXPECT_EQ(fails(0.5, 1.1), std::pair(false, true));
  EXPECT_EQ(fails(1.1, 1.1), std::pair(true, false));
  EXPECT_EQ(fails(1.1, 0.5), std::pair(true, false));
  EXPECT_EQ(fails(0.5, std::nullopt), std::pair(false, false));
}

TEST(LiveResult, HasNoLimitOfTheDeflectionThatNobodyAskedFor) {
  const LiveFigure deflection = SmallTruss(1).Main.CalculateLive().Figures[1];
  EXPECT_EQ(deflection.Value, "0.0 мм");
  EXPECT_EQ(deflection.Hint, "Наибольший прогиб по верхнему поясу; предел не задан");
  EXPECT_FALSE(deflection.Fails);
}

TEST(LiveResult, IsWrittenAsTheSystemWritesNumbers) {
  SmallTruss desk(1, CommaLocale());
  const LiveResult live = desk.Main.CalculateLive();
  EXPECT_NE(live.Groups.front().Value.find(','), std::string::npos);
  EXPECT_NE(live.InWords().find("Масса: 0,"), std::string::npos) << live.InWords();
}

TEST(LiveResult, TellsWhyThereIsNone) {
  const std::map<std::string, std::function<void(frmMain&)>> reasons{
      {"Длина фермы должна быть числом больше нуля",
       [](frmMain& form) { form.txtLengthF.SetText("abc"); }},
      {"Высота фермы должна быть числом больше нуля",
       [](frmMain& form) { form.txtHight.SetText("-1"); }},
      {"Опорные панели, 2 × 4 м, не оставляют места остальным",
       [](frmMain& form) { form.txtLenOporn.SetText("4"); }},
      {"У схемы 1 такого числа панелей нет", [](frmMain& form) { form.cmbPanelNum.SetText("7"); }},
      {"Количество панелей должно быть числом",
       [](frmMain& form) { form.cmbPanelNum.SetText("1e300"); }},
      {"Схема 5 не рассчитывается", [](frmMain& form) { form.imgTreloType_Click(5); }},
      {"Расчетное сопротивление Ry: нужно число больше нуля",
       [](frmMain& form) { form.txtRy.SetText(""); }},
      {"Коэффициент условий работы: нужно число больше нуля",
       [](frmMain& form) { form.txtUsloviyaRabot.SetText("0"); }},
      {"Коэффициент надежности: нужно число больше нуля",
       [](frmMain& form) { form.txtNadegnost.SetText("x"); }},
      {"Плотность стали: нужно число больше нуля",
       [](frmMain& form) { form.Steel.DensitSteel = "0"; }},
      {"Модуль упругости стали: нужно число больше нуля",
       [](frmMain& form) { form.Steel.ModulYung = ""; }},
      {"Предельная гибкость пользователя: нужно число больше нуля",
       [](frmMain& form) { form.Steel.LimitFlex = "0"; }},
      {"С этими данными расчет не удается",
       [](frmMain& form) { form.Model.Inputs.Loads.UpPForce = {}; }},
  };
  for (const auto& [reason, spoil] : reasons) {
    SmallTruss desk(1);
    spoil(desk.Main);
    desk.TakeMessages();
    const LiveResult live = desk.Main.CalculateLive();
    EXPECT_EQ(live.Refusal, reason);
    EXPECT_TRUE(live.Groups.empty() && live.Figures.empty());
    EXPECT_EQ(live.InWords(), reason);
    EXPECT_EQ(desk.TakeMessages(), Messages());
  }
}

TEST(DesignTouched, FollowsEverythingThatAResultDependsOn) {
  const std::map<std::string, std::function<void(frmMain&)>> changes{
      {"scheme", [](frmMain& form) { form.imgTreloType_Click(2); }},
      {"span", [](frmMain& form) { form.txtLengthF.SetText("9"); }},
      {"height", [](frmMain& form) { form.txtHight.SetText("9"); }},
      {"end panel", [](frmMain& form) { form.txtLenOporn.SetText("1"); }},
      {"panels", [](frmMain& form) { Choose(form.cmbPanelNum, "6"); }},
      {"upper bracing", [](frmMain& form) { form.optUpPoyas.Select(4); }},
      {"lower bracing", [](frmMain& form) { form.optDownPoyas.Select(1); }},
      {"deflection", [](frmMain& form) { form.chkProgib.SetChecked(true); }},
      {"its limit", [](frmMain& form) { Choose(form.cmbLenlim, "1 / 250"); }},
      {"its chord", [](frmMain& form) { form.optNP.SetValue(true); }},
      {"layout", [](frmMain& form) { form.imgProfileSecSelect_Click(11); }},
      {"standard", [](frmMain& form) { form.cmbTypeProfile.Select(1); }},
      {"size", [](frmMain& form) { form.cmbSectType.Select(3); }},
      {"gap", [](frmMain& form) { form.cmbGdist.Select(3); }},
      {"strength", [](frmMain& form) { form.txtRy.SetText("300"); }},
      {"conditions", [](frmMain& form) { form.txtUsloviyaRabot.SetText("1"); }},
      {"importance", [](frmMain& form) { form.txtNadegnost.SetText("0.95"); }},
      {"steel", [](frmMain& form) { form.optio_Click(); }},
      {"own weight", [](frmMain& form) { form.chkOwnWeight.SetChecked(true); }},
      {"dynamics", [](frmMain& form) { form.chkDinloadEnable.SetChecked(true); }},
      {"a load", [](frmMain& form) { AddForce(form, 1, "2"); }},
      {"all loads", [](frmMain& form) { form.cmdClearLoads_Click(); }},
      {"a selection", [](frmMain& form) { form.cmdCalcAndSelect_Click(); }},
  };
  for (const auto& [what, change] : changes) {
    SmallTruss desk(1);
    desk.TakesProposals = true;
    int touched = 0;
    desk.Main.DesignTouched = [&touched] { ++touched; };
    change(desk.Main);
    EXPECT_GT(touched, 0) << what;
  }
}

}  // namespace
}  // namespace trelonit::test
