#include <gtest/gtest.h>

#include "workstation/history/DesignHistory.h"

namespace trelonit::test {
namespace {

DesignState WithSpan(const std::string& span) {
  DesignState state;
  state.Texts.LengthF = span;
  return state;
}

class History : public ::testing::Test {
 protected:
  History() { history.Begin(WithSpan("20")); }
  DesignHistory history;
};

TEST_F(History, BeginsWithNothingToTakeBack) {
  EXPECT_FALSE(history.CanUndo());
  EXPECT_FALSE(history.CanRedo());
}

TEST_F(History, TakesBackAndMakesAgain) {
  history.Note(WithSpan("24"));
  history.Note(WithSpan("30"));
  EXPECT_EQ(history.Undo().Texts.LengthF, "24");
  EXPECT_EQ(history.Undo().Texts.LengthF, "20");
  EXPECT_FALSE(history.CanUndo());
  EXPECT_EQ(history.Redo().Texts.LengthF, "24");
  EXPECT_EQ(history.Redo().Texts.LengthF, "30");
  EXPECT_FALSE(history.CanRedo());
}

TEST_F(History, AChangeAfterAnUndoEndsWhatCouldBeMadeAgain) {
  history.Note(WithSpan("24"));
  history.Undo();
  history.Note(WithSpan("18"));
  EXPECT_FALSE(history.CanRedo());
  EXPECT_EQ(history.Undo().Texts.LengthF, "20");
}

TEST_F(History, TheSameDesignIsNoStep) {
  DesignState shownOtherwise = WithSpan("20");
  shownOtherwise.Inputs.ActiveGroup = 3;
  shownOtherwise.Inputs.PForceTool = 1;
  shownOtherwise.Inputs.AllPanelsOn = 1;
  EXPECT_FALSE(history.Note(shownOtherwise));
  EXPECT_FALSE(history.CanUndo());
}

TEST_F(History, WhatIsTypedIntoOneBoxIsOneStep) {
  EXPECT_TRUE(history.Note(WithSpan("3"), "txtLengthF"));
  EXPECT_TRUE(history.Note(WithSpan("30"), "txtLengthF"));
  EXPECT_TRUE(history.Note(WithSpan("30,5"), "txtLengthF"));
  EXPECT_EQ(history.Steps(), 1U);
  EXPECT_EQ(history.Undo().Texts.LengthF, "20");
}

TEST_F(History, ABoxThatWasLeftBeginsANewStep) {
  history.Note(WithSpan("24"), "txtLengthF");
  history.Note(WithSpan("24"));
  history.Note(WithSpan("30"), "txtLengthF");
  EXPECT_EQ(history.Steps(), 2U);
  EXPECT_EQ(history.Undo().Texts.LengthF, "24");
}

TEST_F(History, TypingBackLeavesNoStep) {
  history.Note(WithSpan("2"), "txtLengthF");
  history.Note(WithSpan("20"), "txtLengthF");
  EXPECT_FALSE(history.CanUndo());
}

TEST_F(History, TypingAfterAnUndoIsAStepOfItsOwn) {
  history.Note(WithSpan("24"), "txtLengthF");
  history.Undo();
  history.Note(WithSpan("2"), "txtLengthF");
  EXPECT_EQ(history.Steps(), 1U);
  EXPECT_EQ(history.Undo().Texts.LengthF, "20");
}

TEST_F(History, OwnWeightOfACalculationIsNoStep) {
  DesignState calculated = WithSpan("20");
  calculated.Inputs.Loads.UpDistForce = BoundedArray<double>(0, 1);
  history.Begin(calculated);
  calculated.Inputs.Loads.UpDistForce[0] = 0.1;
  calculated.Inputs.Loads.UpDistForce[1] = 0.1;
  calculated.OwnWeight = {.Added = true, .PerMetre = 0.1};
  EXPECT_FALSE(history.Note(calculated));
  // It is what the next step begins from.
  DesignState next = calculated;
  next.Texts.LengthF = "24";
  history.Note(next);
  EXPECT_TRUE(history.Undo().OwnWeight.Added);
}

TEST_F(History, ForgetsTheOldestWhereItWouldTakeMoreThanItsBytes) {
  const std::size_t one = BytesOf(WithSpan("20"));
  DesignHistory small(4 * one);
  small.Begin(WithSpan("20"));
  for (int span = 21; span <= 40; ++span) {
    small.Note(WithSpan(std::to_string(span)));
    EXPECT_LE(small.Bytes(), 4 * one);
  }
  EXPECT_EQ(small.Steps(), 3U);
  small.Undo();
  small.Undo();
  EXPECT_EQ(small.Undo().Texts.LengthF, "37");
  EXPECT_FALSE(small.CanUndo());
}

TEST_F(History, OfOneDesignThatTakesAllItsBytesHasNoSteps) {
  DesignHistory tiny(1);
  tiny.Begin(WithSpan("20"));
  EXPECT_TRUE(tiny.Note(WithSpan("3"), "txtLengthF"));
  EXPECT_EQ(tiny.Steps(), 0U);
  // There is no step left that typing on could be a part of.
  EXPECT_TRUE(tiny.Note(WithSpan("30"), "txtLengthF"));
  EXPECT_EQ(tiny.Steps(), 0U);
  EXPECT_EQ(tiny.Now().Texts.LengthF, "30");
}

TEST_F(History, HoldsADayOfWorkInItsTenMegabytes) {
  // A truss of 30 panels, changed once a quarter of a minute through eight hours.
  for (int step = 1; step <= 1920; ++step) {
    DesignState state = WithSpan(std::to_string(step % 97));
    state.Inputs.Loads.UpPForce = BoundedArray<double>(0, 30);
    state.Inputs.Loads.UpDistForce = BoundedArray<double>(0, 29);
    state.Inputs.Loads.DwnPForce = BoundedArray<double>(0, 30);
    state.Inputs.Loads.DwnDistForce = BoundedArray<double>(0, 29);
    history.Note(std::move(state));
  }
  EXPECT_EQ(history.Steps(), 1920U);
  EXPECT_LE(history.Bytes(), DesignHistory::mostBytes);
}

TEST(Changes, AreNamedAfterWhatDiffers) {
  DesignState before;
  before.Inputs.TreloType = 1;
  before.Texts.PanelNum = "10";
  const auto named = [&](const auto& change) {
    DesignState after = before;
    change(after);
    return ChangeBetween(before, after).Name;
  };
  EXPECT_EQ(named([](DesignState& s) { s.Texts.Hight = "3"; }), "высота фермы");
  EXPECT_EQ(named([](DesignState& s) { s.Texts.PanelNum = "4"; }), "число панелей");
  EXPECT_EQ(named([](DesignState& s) {
              s.Inputs.TreloType = 3;
              s.Texts.PanelNum = "2";
            }),
            "схема фермы");
  EXPECT_EQ(named([](DesignState& s) { s.Inputs.ElementSection[sectionStoyka].SizeIdx = 7; }),
            "сечение: Стойки");
  EXPECT_EQ(named([](DesignState& s) {
              s.Inputs.ElementSection[sectionStoyka].SizeIdx = 7;
              s.Inputs.ElementSection[sectionRaskos].SizeIdx = 7;
            }),
            "сечения");
  EXPECT_EQ(named([](DesignState& s) { s.Inputs.Loads.UpPForce = BoundedArray<double>(0, 1); }),
            "нагрузки");
  EXPECT_EQ(named([](DesignState& s) {
              s.Inputs.SteelName = "C345";
              s.Texts.Ry = "315";
            }),
            "сталь");
  EXPECT_EQ(named([](DesignState& s) {
              s.Texts.LengthF = "30";
              s.Inputs.SteelName = "C345";
            }),
            "проект");
}

TEST(Changes, AreSeenOnTheirTab) {
  DesignState before;
  DesignState after = before;
  after.Inputs.ElementSection[sectionStoyka].SizeIdx = 7;
  EXPECT_EQ(ChangeBetween(before, after).Place.Tab, 1);
  EXPECT_EQ(ChangeBetween(before, after).Place.Option, optionStoyka);
  after = before;
  after.Inputs.DinloadOn = 1;
  EXPECT_EQ(ChangeBetween(before, after).Place.Tab, 2);
  after = before;
  after.Inputs.DownPoyasBrace = 4;
  EXPECT_EQ(ChangeBetween(before, after).Place.Tab, 0);
}

}  // namespace
}  // namespace trelonit::test
