#pragma once

#include <functional>

#include "tests/workstation/main/Desk.h"

namespace trelonit::test {

constexpr Long equalAngles = 2;

/// Enters a truss of 24 m in 8 panels, 2.8 m high, two equal angles in every group, with a load on
/// the upper chord and own weight; chooseSize is called for each group once its kind is chosen.
inline void EnterTrussOfAngles(frmMain& form, const std::function<void()>& chooseSize) {
  form.txtLengthF.SetText("24");
  form.txtHight.SetText("2.8");
  form.txtLenOporn.SetText("3");
  Choose(form.cmbPanelNum, "8");
  for (Long option = 1; option <= groupCount; ++option) {
    form.optElementSection.Select(option);
    form.imgProfileSecSelect_Click(2);
    Choose(form.cmbTypeProfile, StandardName(form, equalAngles));
    chooseSize();
  }
  form.tabMain.SetTab(2);
  form.imgDistForce_Click();
  form.chkAllPanels.SetChecked(true);
  form.txtForceVal.SetText("1.68");
  form.cmdAddForce_Click();
  form.chkOwnWeight.SetChecked(true);
}

}  // namespace trelonit::test
