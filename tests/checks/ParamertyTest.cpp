#include <gtest/gtest.h>
#include <rapidcheck.h>
#include <rapidcheck/gtest.h>
#include <string>
#include <vector>

#include "checks/frmParamerty.h"
#include "resources/EmbeddedResources.h"
#include "tests/checks/LocalWorld.h"

namespace trelonit {
namespace {

const Message flexNotPositive{.Title = "Параметр не принят !!!",
                              .Text = "Гибкость должна быть числом положительным > 0",
                              .Style = MessageStyle::Critical};
const Message flexTooGreat{.Title = "Параметр не принят !!!",
                           .Text = "Гибкость должна быть < 400",
                           .Style = MessageStyle::Critical};
const Message densityDoubted{
    .Title = "Параметр принят, но вызывает сомнения!!!",
    .Text =
        "Плотность стали, которую Вы указали, вызывает сомнения !\n"
        "Данная версия программы не расчитана на работу с АМг или титаном или чем либо кроме "
        "стали !!!",
    .Style = MessageStyle::Exclamation};
const Message densityRefused{
    .Title = "Параметр не принят!!!",
    .Text =
        "Плотность стали, которую Вы указали, вызывает серьезные сомнения !\n"
        "Данная версия программы не расчитана на работу с АМг или титаном или чем либо кроме "
        "стали !!!\n"
        "Сверхлегкие или особо тыжелые стали не рассматриваются !!!",
    .Style = MessageStyle::Critical};
const Message yungDoubted{
    .Title = "Параметр принят, но вызывает сомнения!!!",
    .Text =
        "Модуль Юнга, которую Вы указали, вызывает сомнения !\n"
        "Данная версия программы не расчитана на работу с АМг или титаном или чем либо кроме "
        "стали !!!",
    .Style = MessageStyle::Exclamation};
const Message yungRefused{
    .Title = "Параметр не принят!!!",
    .Text =
        "Модуль Юнга, которую Вы указали, вызывает серьезные сомнения !\n"
        "Данная версия программы не расчитана на работу с АМг или титаном или чем либо кроме "
        "стали !!!\n"
        "Весьма необычные стали стали не рассматриваются !!!",
    .Style = MessageStyle::Critical};

using Messages = std::vector<Message>;

/// The window, just opened over a main form with the values of its start.
struct Desk {
  explicit Desk(const NumberLocale& locale = {}) : World(Resources, locale) {
    Form.Unload = [this] { ++Closed; };
    Form.Form_Load();
  }
  /// Modulus, density and slenderness of the main form.
  std::string Main() const {
    return Steel.ModulYung + "|" + Steel.DensitSteel + "|" + Steel.LimitFlex;
  }
  void Apply(const std::string& yung, const std::string& density, const std::string& flex) {
    Form.txtYung.SetText(yung);
    Form.txtDensity.SetText(density);
    Form.txtLimFlex.SetText(flex);
    Form.cmdApply_Click();
  }
  const Messages& Shown() const { return World.Messages.Shown; }

  EmbeddedResources Resources;
  test::LocalWorld World;
  SteelTexts Steel;
  frmParamerty Form{World.Bundle(), Steel};
  int Closed = 0;
};

/// A text typed into one box, what the main form then has, and what was said.
struct Case {
  std::string Typed;
  std::string Stored;
  Messages Said;
};

/// Tries the texts in one box; the other two boxes keep what they opened with.
void Try(TextBox frmParamerty::*box, std::string SteelTexts::*target,
         const std::vector<Case>& cases) {
  for (const Case& one : cases) {
    Desk desk;
    (desk.Form.*box).SetText(one.Typed);
    desk.Form.cmdApply_Click();
    EXPECT_EQ(desk.Steel.*target, one.Stored) << one.Typed;
    EXPECT_EQ(desk.Shown(), one.Said) << one.Typed;
    EXPECT_EQ(desk.Closed, 1) << one.Typed;
  }
}

TEST(Paramerty, HasItsCaption) {
  EXPECT_EQ(Desk().Form.Form.Caption(), "Дополнительные параметры стали");
}

TEST(Paramerty, OpensWithTheTextsOfTheMainForm) {
  Desk desk;
  EXPECT_EQ(desk.Form.txtYung.Text(), "210000");
  EXPECT_EQ(desk.Form.txtDensity.Text(), "7.850");
  EXPECT_EQ(desk.Form.txtLimFlex.Text(), "150");
  desk.Steel.DensitSteel = "any text";
  desk.Form.Form_Load();
  EXPECT_EQ(desk.Form.txtDensity.Text(), "any text");
}

TEST(Paramerty, ChangesNothingUntilApplied) {
  Desk desk;
  desk.Form.txtYung.SetText("200000");
  desk.Form.txtDensity.SetText("8");
  desk.Form.txtLimFlex.SetText("120");
  EXPECT_EQ(desk.Main(), "210000|7.850|150");
  EXPECT_EQ(desk.Closed, 0);
}

TEST(Paramerty, StoresNumbersInTheirOrdinaryForm) {
  Desk desk;
  desk.Form.cmdApply_Click();
  EXPECT_EQ(desk.Main(), "210000|7.85|150");
  EXPECT_TRUE(desk.Shown().empty());
  EXPECT_EQ(desk.Closed, 1);
}

TEST(Paramerty, StoresNumbersInTheFormOfTheUsersSystem) {
  Desk desk(test::CommaLocale());
  desk.Apply("205000.5", "7.850", "120,6");
  EXPECT_EQ(desk.Main(), "205000,5|7,85|121");
  EXPECT_TRUE(desk.Shown().empty());
}

TEST(ParamertySlenderness, IsAWholeNumberFromOneToFourHundred) {
  Try(&frmParamerty::txtLimFlex, &SteelTexts::LimitFlex,
      {{"1", "1", {}},
       {"120", "120", {}},
       {"120,6", "121", {}},
       {"120.4", "120", {}},
       {"0.51", "1", {}},
       {"399", "399", {}},
       {"400", "400", {}},
       {"400.4", "400", {}},
       {"400.6", "150", {flexTooGreat}},
       {"401", "150", {flexTooGreat}},
       {"32767", "150", {flexTooGreat}},
       {"0", "150", {flexNotPositive}},
       {"0.4", "150", {flexNotPositive}},
       {"-0.4", "150", {flexNotPositive}},
       {"-1", "150", {flexNotPositive}},
       {"-32768", "150", {flexNotPositive}},
       {"", "150", {flexNotPositive}},
       {"abc", "150", {flexNotPositive}}});
}

TEST(ParamertySlenderness, RoundsAHalfToTheEvenNumber) {
  Try(&frmParamerty::txtLimFlex, &SteelTexts::LimitFlex,
      {{"120.5", "120", {}},
       {"121.5", "122", {}},
       {"400.5", "400", {}},
       {"0.5", "150", {flexNotPositive}},
       {"1.5", "2", {}}});
}

TEST(ParamertySlenderness, BeyondAnIntegerDoesNotStopTheOtherTwo) {
  for (const std::string typed : {"32768", "-32769", "1e300"}) {
    Desk desk;
    desk.Apply("200000", "8", typed);
    EXPECT_EQ(desk.Main(), "200000|8|150") << typed;
    ASSERT_EQ(desk.Shown().size(), 1U) << typed;
    EXPECT_TRUE(desk.Shown()[0].Failure) << desk.Shown()[0].Text;
    EXPECT_EQ(desk.Shown()[0].Text, " Err # 6 Discription : Overflow");
    EXPECT_EQ(desk.Closed, 1);
  }
}

TEST(ParamertyDensity, IsStoredSilentlyFromSevenToNine) {
  Try(&frmParamerty::txtDensity, &SteelTexts::DensitSteel,
      {{"7", "7", {}},
       {"7,85", "7.85", {}},
       {"8.999", "8.999", {}},
       {"9", "9", {}},
       {"9.00", "9", {}}});
}

TEST(ParamertyDensity, IsDoubtedAndStoredFromFourToSeven) {
  Try(&frmParamerty::txtDensity, &SteelTexts::DensitSteel,
      {{"4", "4", {densityDoubted}},
       {"4.5", "4.5", {densityDoubted}},
       {"6.99", "6.99", {densityDoubted}},
       {"6.99999999", "6.99999999", {densityDoubted}}});
}

TEST(ParamertyDensity, IsRefusedBelowFourAndAboveNine) {
  Try(&frmParamerty::txtDensity, &SteelTexts::DensitSteel,
      {{"3.99", "7.850", {densityRefused}},
       {"3.99999999", "7.850", {densityRefused}},
       {"9.00000001", "7.850", {densityRefused}},
       {"9.01", "7.850", {densityRefused}},
       {"0", "7.850", {densityRefused}},
       {"-7.85", "7.850", {densityRefused}},
       {"7850", "7.850", {densityRefused}},
       {"", "7.850", {densityRefused}},
       {"steel", "7.850", {densityRefused}}});
}

TEST(ParamertyModulus, IsStoredSilentlyInsideItsRange) {
  Try(&frmParamerty::txtYung, &SteelTexts::ModulYung,
      {{"210000", "210000", {}},
       {"2,06e5", "206000", {}},
       {"180000.01", "180000.01", {}},
       {"180001", "180001", {}},
       {"299999", "299999", {}},
       {"299999.99", "299999.99", {}}});
}

TEST(ParamertyModulus, IsDoubtedAndStoredBelowThatRange) {
  Try(&frmParamerty::txtYung, &SteelTexts::ModulYung,
      {{"100000.01", "100000.01", {yungDoubted}},
       {"100001", "100001", {yungDoubted}},
       {"150000", "150000", {yungDoubted}},
       {"179999", "179999", {yungDoubted}},
       {"179999.99", "179999.99", {yungDoubted}}});
}

TEST(ParamertyModulus, IsRefusedOutside) {
  Try(&frmParamerty::txtYung, &SteelTexts::ModulYung,
      {{"99999", "210000", {yungRefused}},
       {"99999.99", "210000", {yungRefused}},
       {"300000.01", "210000", {yungRefused}},
       {"300001", "210000", {yungRefused}},
       {"0", "210000", {yungRefused}},
       {"-210000", "210000", {yungRefused}},
       {"", "210000", {yungRefused}},
       {"E", "210000", {yungRefused}}});
}

TEST(ParamertyModulus, IsTakenByNoneOfTheThreeAtTheBoundsThemselves) {
  for (const std::string typed : {"100000", "180000", "300000", "1e5", "180000,0"}) {
    Desk desk;
    desk.Steel.ModulYung = "205000";
    desk.Apply(typed, "7.85", "150");
    EXPECT_EQ(desk.Main(), "205000|7.85|150") << typed;
    EXPECT_TRUE(desk.Shown().empty()) << typed;
    EXPECT_EQ(desk.Closed, 1);
  }
}

TEST(Paramerty, RefusesThreeValuesOneAfterAnotherAndCloses) {
  Desk desk;
  desk.Apply("1", "1", "1000");
  EXPECT_EQ(desk.Shown(), (Messages{flexTooGreat, densityRefused, yungRefused}));
  EXPECT_EQ(desk.Main(), "210000|7.850|150");
  EXPECT_EQ(desk.Closed, 1);
}

TEST(Paramerty, JudgesEachValueByItself) {
  Desk desk;
  desk.Apply("170000", "10", "200");
  EXPECT_EQ(desk.Shown(), (Messages{densityRefused, yungDoubted}));
  EXPECT_EQ(desk.Main(), "170000|7.850|200");
  desk.Apply("310000", "5", "-3");
  EXPECT_EQ(desk.Shown(),
            (Messages{densityRefused, yungDoubted, flexNotPositive, densityDoubted, yungRefused}));
  EXPECT_EQ(desk.Main(), "170000|5|200");
  EXPECT_EQ(desk.Closed, 2);
}

TEST(Paramerty, AppliesWithoutAWindow) {
  Desk desk;
  desk.Form.Unload = nullptr;
  desk.Apply("200000", "8", "100");
  EXPECT_EQ(desk.Main(), "200000|8|100");
}

RC_GTEST_PROP(Paramerty, ClosesAndStoresNothingOutsideTheRangesForAnyTexts, ()) {
  const auto typed = rc::gen::oneOf(
      rc::gen::arbitrary<std::string>(),
      rc::gen::container<std::string>(rc::gen::elementOf(std::string("0123456789,.-eE "))),
      rc::gen::map(rc::gen::inRange(-500000, 500000), [](int n) { return std::to_string(n); }));
  Desk desk;
  desk.Apply(*typed, *typed, *typed);
  const auto value = [](const std::string& text) { return TextToNumber(text, {}); };
  RC_ASSERT(desk.Closed == 1);
  RC_ASSERT(desk.Shown().size() <= 3U);
  RC_ASSERT(value(desk.Steel.ModulYung) > 100000 && value(desk.Steel.ModulYung) < 300000);
  RC_ASSERT(value(desk.Steel.DensitSteel) >= 4 && value(desk.Steel.DensitSteel) <= 9);
  RC_ASSERT(value(desk.Steel.LimitFlex) >= 1 && value(desk.Steel.LimitFlex) <= 400);
}

}  // namespace
}  // namespace trelonit
