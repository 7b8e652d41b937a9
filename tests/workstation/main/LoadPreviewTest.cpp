#include <gtest/gtest.h>

#include "tests/workstation/main/LoadEntry.h"
#include "workstation/main/LoadPreview.h"

namespace trelonit::test {
namespace {

/// Pieces of this width in a row, all of them shown.
void ExpectPieces(const ChordMarks::Marks& pieces, Long count, Long width) {
  EXPECT_EQ(pieces.LowerBound(), 0);
  ASSERT_EQ(pieces.UpperBound(), count - 1);
  for (Long panel = 0; panel < count; ++panel) {
    EXPECT_EQ(pieces[panel].X1, panel * width);
    EXPECT_EQ(pieces[panel].X2, (panel + 1) * width);
    EXPECT_TRUE(pieces[panel].Visible);
  }
}

TEST_F(LoadEntry, PreviewDividesTheChordIntoPanels) {
  ExpectPieces(form.Preview.linPoyas, 10, 903);
  GoTo(1, "4");
  ExpectPieces(form.Preview.linPoyas, 4, 2257);
  GoTo(1, "30");
  ExpectPieces(form.Preview.linPoyas, 30, 301);
  GoTo(3, "7");
  ExpectPieces(form.Preview.linPoyas, 7, 1290);
}

TEST_F(LoadEntry, PreviewDividesTheLowerChordByItsScheme) {
  struct Row {
    Long Scheme;
    Long Pieces;
    Long Width;
  };
  for (const Row& row : {Row{1, 12, 752}, Row{2, 10, 903}, Row{4, 5, 1806}, Row{3, 11, 820}}) {
    GoTo(row.Scheme, "12");
    form.tglDwnPoyas.SetValue(true);
    ExpectPieces(form.Preview.linPoyas, row.Pieces, row.Width);
    form.tglUpPoyas.SetValue(true);
    ExpectPieces(form.Preview.linPoyas, 12, 752);
  }
}

TEST_F(LoadEntry, PreviewOfASinglePieceTakesTheWholeWidth) {
  GoTo(4, "4");
  form.tglDwnPoyas.SetValue(true);
  ExpectPieces(form.Preview.linPoyas, 1, 9030);
}

TEST_F(LoadEntry, PreviewTicksTheJoints) {
  const ChordMarks::Marks& ticks = form.Preview.linStart;
  ASSERT_EQ(ticks.UpperBound(), 10);
  for (Long joint = 0; joint <= 10; ++joint) {
    EXPECT_EQ(ticks[joint].X1, joint * 903);
    EXPECT_EQ(ticks[joint].X2, joint * 903);
    EXPECT_TRUE(ticks[joint].Visible);
  }
}

TEST_F(LoadEntry, PreviewPlacesItsMarksOnTheJointsAndPanels) {
  for (const ChordMarks* chord : {&form.Preview.Up, &form.Preview.Dwn}) {
    for (Long line = 1; line <= 5; ++line) {
      ASSERT_EQ(chord->linP[line].UpperBound(), 10);
      EXPECT_EQ(chord->linP[line][7].X1, 7 * 903);
    }
    ASSERT_EQ(chord->lblP.UpperBound(), 10);
    EXPECT_EQ(chord->lblP[10].X, 9030);
    ASSERT_EQ(chord->linQ.UpperBound(), 9);
    EXPECT_EQ(chord->linQ[9].X1, 9 * 903);
    EXPECT_EQ(chord->linQ[9].X2, 9030);
    ASSERT_EQ(chord->lblQ.UpperBound(), 9);
    EXPECT_GE(chord->lblQ[3].X, chord->linQ[3].X1);
    EXPECT_LE(chord->lblQ[3].X, chord->linQ[3].X2);
  }
}

TEST_F(LoadEntry, PreviewStartsWithoutLoads) {
  EXPECT_EQ(ShownMarks(form.Preview.Up), Shown());
  EXPECT_EQ(ShownMarks(form.Preview.Dwn), Shown());
  for (const ChordMarks* chord : {&form.Preview.Up, &form.Preview.Dwn}) {
    for (const PreviewLabel& label : chord->lblP) {
      EXPECT_EQ(label.Caption, "0");
    }
    for (const PreviewLabel& label : chord->lblQ) {
      EXPECT_EQ(label.Caption, "0");
    }
  }
}

TEST_F(LoadEntry, PreviewShowsTheChosenJointInRed) {
  EXPECT_EQ(Reds(form.Preview.linStart), std::vector<Long>{0});
  EXPECT_EQ(Reds(form.Preview.linPoyas), std::vector<Long>());
  Choose(form.cmbKnotNum, "10");
  EXPECT_EQ(Reds(form.Preview.linStart), std::vector<Long>{10});
  EXPECT_EQ(Reds(form.Preview.linPoyas), std::vector<Long>());
}

TEST_F(LoadEntry, PreviewShowsTheChosenPanelInRed) {
  form.imgDistForce_Click();
  EXPECT_EQ(Reds(form.Preview.linPoyas), std::vector<Long>{0});
  EXPECT_EQ(Reds(form.Preview.linStart), std::vector<Long>());
  Choose(form.cmbKnotNum, "9");
  EXPECT_EQ(Reds(form.Preview.linPoyas), std::vector<Long>{9});
  form.imgPForce_Click();
  EXPECT_EQ(Reds(form.Preview.linPoyas), std::vector<Long>());
  EXPECT_EQ(Reds(form.Preview.linStart), std::vector<Long>{0});
}

TEST_F(LoadEntry, PreviewShowsAllPanelsInRedWhenAllAreChosen) {
  form.imgDistForce_Click();
  Choose(form.cmbKnotNum, "3");
  form.chkAllPanels.SetChecked(true);
  EXPECT_EQ(Reds(form.Preview.linPoyas), (std::vector<Long>{0, 1, 2, 3, 4, 5, 6, 7, 8, 9}));
  EXPECT_EQ(Reds(form.Preview.linStart), std::vector<Long>());
  form.chkAllPanels.SetChecked(false);
  EXPECT_EQ(Reds(form.Preview.linPoyas), std::vector<Long>{3});
}

TEST_F(LoadEntry, PreviewColoursTheFirstMarkOfANewChord) {
  Choose(form.cmbKnotNum, "5");
  form.tglDwnPoyas.SetValue(true);
  EXPECT_EQ(Reds(form.Preview.linStart), std::vector<Long>{0});
  form.imgDistForce_Click();
  Choose(form.cmbKnotNum, "5");
  form.RefreshLoadPreview();
  EXPECT_EQ(Reds(form.Preview.linPoyas), std::vector<Long>{0});
}

TEST_F(LoadEntry, PreviewTellsAPlaceThatHasNoMark) {
  form.cmbKnotNum.SetText("11");
  form.cmbKnotNum_Click();
  form.cmbKnotNum.SetText("first");
  form.cmbKnotNum_Click();
  form.imgDistForce_Click();
  form.cmbKnotNum.SetText("10");
  form.chkAllPanels_Click();
  EXPECT_EQ(desk.TakeMessages(),
            (Messages{SubscriptTail("cmbKnotNum_Click"), TypeMismatchTail("cmbKnotNum_Click"),
                      SubscriptTail("chkAllPanels_Click")}));
}

TEST_F(LoadEntry, PreviewShowsTheLoadsOfThePressedChordOnly) {
  loads.UpPForce[2] = 2;
  loads.UpDistForce[3] = -0.5;
  loads.DwnPForce[4] = 4;
  loads.DwnDistForce[5] = 0.125;
  form.RefreshLoadPreview();
  EXPECT_EQ(ShownMarks(form.Preview.Up), (Shown{"P2: 123 (2)", "Q3: (-0.5)"}));
  EXPECT_EQ(ShownMarks(form.Preview.Dwn), Shown());
  form.tglDwnPoyas.SetValue(true);
  EXPECT_EQ(ShownMarks(form.Preview.Up), Shown());
  EXPECT_EQ(ShownMarks(form.Preview.Dwn), (Shown{"P4: 123 (4)", "Q5: (0.125)"}));
  form.RefreshLoadPreview();
  EXPECT_EQ(ShownMarks(form.Preview.Up), Shown());
  EXPECT_EQ(ShownMarks(form.Preview.Dwn), (Shown{"P4: 123 (4)", "Q5: (0.125)"}));
  form.tglUpPoyas.SetValue(true);
  EXPECT_EQ(ShownMarks(form.Preview.Up), (Shown{"P2: 123 (2)", "Q3: (-0.5)"}));
  EXPECT_EQ(ShownMarks(form.Preview.Dwn), Shown());
}

TEST_F(LoadEntry, PreviewOfAnUpwardLowerForceHangsOnTheUpperChord) {
  loads.DwnPForce[2] = -2;
  loads.DwnPForce[3] = -3;
  loads.UpPForce[3] = -1;
  loads.UpPForce[4] = 1;
  loads.DwnPForce[5] = 6;
  loads.UpPForce[5] = 5;
  form.tglDwnPoyas.SetValue(true);
  // Joint 2 points upward without being shown, joint 3 is shown because the upper joint 3 points
  // upward.
  EXPECT_EQ(ShownMarks(form.Preview.Dwn), (Shown{"P3: 145 (-3)", "P5: 123 (6)"}));
}

TEST_F(LoadEntry, PreviewShowsUpwardForcesOfTheUpperChord) {
  loads.UpPForce[0] = -2.5;
  loads.DwnPForce[1] = -1;
  form.RefreshLoadPreview();
  EXPECT_EQ(ShownMarks(form.Preview.Up), (Shown{"P0: 145 (-2.5)"}));
}

TEST_F(LoadEntry, PreviewFollowsAChangedTruss) {
  AddForce(form, 4, "3");
  AddForce(form, 9, "2");
  GoTo(3, "5");
  EXPECT_EQ(form.cmbKnotNum.List(), Numbers(0, 5));
  // The way to scheme 3 led over its first panel count, 2.
  EXPECT_EQ(ShownMarks(form.Preview.Up), Shown());
  AddForce(form, 5, "1");
  EXPECT_EQ(ShownMarks(form.Preview.Up), (Shown{"P5: 123 (1)"}));
  GoTo(1, "4");
  EXPECT_EQ(ShownMarks(form.Preview.Up), Shown());
  EXPECT_EQ(desk.TakeMessages(), Messages());
}

TEST_F(LoadEntry, PreviewTellsThatItHasChanged) {
  int changes = 0;
  form.PreviewChanged = [&changes] { ++changes; };
  const auto changed = [&changes](const std::function<void()>& input) {
    changes = 0;
    input();
    return changes > 0;
  };
  EXPECT_TRUE(changed([this] { AddForce(form, 0, "1"); }));
  EXPECT_TRUE(changed([this] { Choose(form.cmbKnotNum, "5"); }));
  EXPECT_TRUE(changed([this] { form.imgDistForce_Click(); }));
  EXPECT_TRUE(changed([this] { form.chkAllPanels.SetChecked(true); }));
  EXPECT_TRUE(changed([this] { form.tglDwnPoyas.SetValue(true); }));
  EXPECT_TRUE(changed([this] { form.cmdClearLoads_Click(); }));
  EXPECT_TRUE(changed([this] { form.RefreshLoadPreview(); }));
  EXPECT_FALSE(changed([this] { form.txtForceVal.SetText("4"); }));
}

TEST_F(LoadEntry, ChordsTellAPanelCountThatIsNoNumber) {
  form.cmbPanelNum.SetText("many");
  form.tglDwnPoyas.SetValue(true);
  form.tglUpPoyas.SetValue(true);
  EXPECT_EQ(desk.TakeMessages(), (Messages{TypeMismatchTail("tglDwnPoyas_Click"),
                                           TypeMismatchTail("tglUpPoyas_Click")}));
}

}  // namespace
}  // namespace trelonit::test
