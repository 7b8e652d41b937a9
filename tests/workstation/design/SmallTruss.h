#pragma once

#include "tests/workstation/main/Desk.h"

namespace trelonit::test {

/// A truss with slopes of 45 degrees and a section of its own for every group, entered through the
/// inputs of the form. In storage order: tube Тр50x2 (A 3.9, J 14.4), two angles L25x16x3 10 mm
/// apart (A 2.32, Jin 1.4, Jout 2.403648), channel Шв5П (A 6.16, J 22.8 and 5.95), beam Дт10 (A 12,
/// J 198 and 17.9), one angle L25x16x3 (A 1.16, J 0.7 and 0.22).
class SmallTruss : public StartedDesk {
 public:
  explicit SmallTruss(Long scheme, const NumberLocale& locale = PointLocale())
      : StartedDesk(locale) {
    PutSection(optionUpPoyas, 9);
    PutSection(optionDwnPoyas, 2);
    Choose(Main.cmbGdist, "10");
    PutSection(optionRaskos, 5);
    PutSection(optionOpornRaskos, 6);
    PutSection(optionStoyka, 1);
    Main.imgTreloType_Click(scheme);
    const bool lattice = scheme == 3;
    Choose(Main.cmbPanelNum, lattice ? "2" : "4");
    Main.txtLengthF.SetText(lattice ? "4" : "8");
    Main.txtHight.SetText(lattice ? "1" : "2");
    Main.txtLenOporn.SetText("2");
    Main.tabMain.SetTab(2);
  }

  void Load(bool upper, int joint, const std::string& force) {
    (upper ? Main.tglUpPoyas : Main.tglDwnPoyas).SetValue(true);
    AddForce(Main, joint, force);
  }

  const ResultLists& Calculate() {
    Main.cmdCalculate_Click();
    if (Results.empty()) {
      throw std::logic_error("no results");
    }
    return Results.back();
  }

 private:
  void PutSection(Long option, Long layout) {
    Main.optElementSection.Select(option);
    Main.imgProfileSecSelect_Click(layout);
  }
};

}  // namespace trelonit::test
