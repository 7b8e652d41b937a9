#pragma once

#include <gtest/gtest.h>

#include "tests/workstation/main/Desk.h"

namespace trelonit::test {

/// The arrow at a joint as text: the numbers of its visible lines, then the shown value in
/// brackets; empty for a joint without an arrow.
inline std::string Arrow(const ChordMarks& chord, Long joint) {
  std::string text;
  for (Long line = 1; line <= 5; ++line) {
    if (chord.linP[line][joint].Visible) {
      text += std::to_string(line);
    }
  }
  if (chord.lblP[joint].Visible) {
    text += " (" + chord.lblP[joint].Caption + ")";
  }
  return text;
}

/// The bar over a panel: its shown value in brackets; empty for a panel without a bar.
inline std::string Bar(const ChordMarks& chord, Long panel) {
  EXPECT_EQ(chord.linQ[panel].Visible, chord.lblQ[panel].Visible);
  return chord.linQ[panel].Visible ? "(" + chord.lblQ[panel].Caption + ")" : "";
}

/// All that is shown of a chord's loads, by place: "P3: 123 (5)", "Q0: (1)".
inline std::vector<std::string> ShownMarks(const ChordMarks& chord) {
  std::vector<std::string> shown;
  for (Long joint = 0; joint <= chord.lblP.UpperBound(); ++joint) {
    if (const std::string arrow = Arrow(chord, joint); !arrow.empty()) {
      shown.push_back("P" + std::to_string(joint) + ": " + arrow);
    }
  }
  for (Long panel = 0; panel <= chord.lblQ.UpperBound(); ++panel) {
    if (const std::string bar = Bar(chord, panel); !bar.empty()) {
      shown.push_back("Q" + std::to_string(panel) + ": " + bar);
    }
  }
  return shown;
}

/// Numbers of the red marks; every other one has the colour of window text.
inline std::vector<Long> Reds(const ChordMarks::Marks& marks) {
  std::vector<Long> reds;
  for (Long number = 0; number <= marks.UpperBound(); ++number) {
    if (marks[number].BorderColor == 255U) {
      reds.push_back(number);
    } else {
      EXPECT_EQ(marks[number].BorderColor, 0x80000008U);
    }
  }
  return reds;
}

using Shown = std::vector<std::string>;

/// The form on its load tab.
class LoadEntry : public ::testing::Test {
 protected:
  LoadEntry() { form.tabMain.SetTab(2); }

  void GoTo(Long scheme, const std::string& panels) {
    form.tabMain.SetTab(0);
    form.imgTreloType_Click(scheme);
    Choose(form.cmbPanelNum, panels);
    form.tabMain.SetTab(2);
  }

  StartedDesk desk;
  frmMain& form = desk.Main;
  LoadArrays& loads = form.Model.Inputs.Loads;
};

}  // namespace trelonit::test
