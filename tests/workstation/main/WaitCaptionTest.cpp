#include <gtest/gtest.h>

#include "tests/workstation/main/Desk.h"
#include "workstation/dialogs/frmSearch.h"
#include "workstation/main/WaitCaption.h"

namespace trelonit::test {
namespace {

const std::string waitText = "Подождите пожалуйста, идет подбор профиля";

/// " . " so many times before a caption.
std::string Points(int count, const std::string& caption = "") {
  std::string text;
  for (int point = 0; point < count; ++point) {
    text += " . ";
  }
  return text + caption;
}

/// What a caption must be after this many ticks.
std::string Expected(int ticks, const std::string& start) {
  if (ticks == 0) {
    return start;
  }
  const int round = (ticks - 1) / 30;
  const int step = (ticks - 1) % 30 + 1;
  if (step > 25) {
    return waitText;
  }
  // From the second round on the caption begins anew with one point of its own.
  return round == 0 ? Points(step, start) : Points(step + 1);
}

TEST(WaitCaption, GrowsForTwentyFiveStepsStandsForFiveAndBeginsAnew) {
  Label form;
  form.SetCaption("Форма");
  Long counter = 1;
  for (int step = 1; step <= 25; ++step) {
    StepWaitCaption(form, counter);
    EXPECT_EQ(form.Caption(), Points(step, "Форма")) << step;
    EXPECT_EQ(counter, step + 1);
  }
  for (int step = 26; step <= 30; ++step) {
    StepWaitCaption(form, counter);
    EXPECT_EQ(form.Caption(), waitText) << step;
    EXPECT_EQ(counter, step + 1);
  }
  StepWaitCaption(form, counter);
  EXPECT_EQ(form.Caption(), " .  . ");
  EXPECT_EQ(counter, 2);
  StepWaitCaption(form, counter);
  EXPECT_EQ(form.Caption(), " .  .  . ");
  EXPECT_EQ(counter, 3);
}

TEST(WaitCaption, RepeatsItsRoundOfThirtySteps) {
  Label form;
  form.SetCaption("x");
  Long counter = 1;
  for (int ticks = 1; ticks <= 200; ++ticks) {
    StepWaitCaption(form, counter);
    EXPECT_EQ(form.Caption(), Expected(ticks, "x")) << ticks;
  }
}

TEST(WaitCaption, RunsTheSameOnBothForms) {
  StartedDesk desk;
  const std::string title = desk.Main.Form.Caption();
  frmSearch search;
  search.Form.SetCaption("Результаты подбора профиля");
  for (int ticks = 1; ticks <= 65; ++ticks) {
    desk.Main.Timer1_Timer();
    EXPECT_EQ(desk.Main.Form.Caption(), Expected(ticks, title)) << ticks;
    search.tmrTimer_Timer();
    EXPECT_EQ(search.Form.Caption(), Expected(ticks, "Результаты подбора профиля")) << ticks;
  }
}

TEST(WaitCaption, StandsReadyAndDoesNotRun) {
  StartedDesk desk;
  EXPECT_EQ(desk.Main.Timer1.Interval(), 0);
  desk.Main.tabMain.SetTab(2);
  AddForce(desk.Main, 5, "4");
  desk.Main.cmdCalcAndSelect_Click();
  desk.Main.cmdCalculate_Click();
  EXPECT_EQ(desk.Main.Timer1.Interval(), 0);
  EXPECT_EQ(frmSearch().tmrTimer.Interval(), 0);
  frmSearch search;
  search.Fill({.Proposal = desk.Proposals.at(0)}, desk.Main.imgProfileSec, 1);
  search.cmdApply_Click();
  EXPECT_EQ(search.tmrTimer.Interval(), 0);
}

}  // namespace
}  // namespace trelonit::test
