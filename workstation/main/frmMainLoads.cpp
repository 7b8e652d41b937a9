#include <utility>

#include "checks/CheckFormulas.h"
#include "platform/errors/Guard.h"
#include "platform/system/ProgramNames.h"
#include "platform/values/Arithmetic.h"
#include "workstation/design/Loads.h"
#include "workstation/design/OwnWeight.h"
#include "workstation/main/frmMain.h"

namespace trelonit {

namespace {

constexpr Integer nodalPreviewBitmap = 309;
constexpr Integer distributedPreviewBitmap = 310;

}  // namespace

void frmMain::ReDimLoadArrays() {
  const LoadArrays before = Model.Inputs.Loads;
  Guard(services_.Messages, "ReDimLoadArrays",
        [&] { ReDimLoads(Model.Inputs.Loads, Model.Inputs.TreloType, PanelNum()); });
  CountLostLoads(before);
  SetOwnWeightInside(std::nullopt);
}

void frmMain::CountLostLoads(const LoadArrays& before) {
  loadsLost_ += LoadsLost(before, Model.Inputs.Loads, InsideOf(Model.OwnWeight));
}

Long frmMain::TakeLoadsLost() {
  return std::exchange(loadsLost_, 0);
}

void frmMain::FillList(Long last) {
  cmbKnotNum.Clear();
  for (Long number = 0; number <= last; ++number) {
    cmbKnotNum.AddItem(std::to_string(number));
  }
  if (last >= 0) {
    cmbKnotNum.Select(0);
  }
}

void frmMain::FillKnotListP(bool upper) {
  FillList(LastKnotNum(upper, Model.Inputs.TreloType, PanelNum()));
}

void frmMain::FillKnotListQ(bool upper) {
  FillList(LastPanelNum(upper, Model.Inputs.TreloType, PanelNum()));
}

void frmMain::FillKnotList(bool upper) {
  if (imgPForce.Marked()) {
    FillKnotListP(upper);
  } else {
    FillKnotListQ(upper);
  }
}

void frmMain::ChooseLoadTool(bool nodal) {
  imgPForce.SetMarked(nodal);
  imgDistForce.SetMarked(!nodal);
  imgLoadPreview.Show(
      services_.Resources.Bitmap(nodal ? nodalPreviewBitmap : distributedPreviewBitmap));
  chkAllPanels.SetEnabled(!nodal);
}

void frmMain::NotifyPreview() {
  if (PreviewChanged) {
    PreviewChanged();
  }
  if (LoadsChanged) {
    LoadsChanged();
  }
  TouchDesign();
}

void frmMain::ColourChosenMark() {
  const Long number = TextToLong(cmbKnotNum.Text(), services_.Locale);
  if (imgPForce.Marked()) {
    Preview.MarkTick(number);
  } else {
    Preview.MarkPiece(number);
  }
  NotifyPreview();
}

void frmMain::ShowMarksOfShownChord() {
  const bool upper = tglUpPoyas.Value();
  Preview.ShowDwnMarks(!upper, Model.Inputs.Loads, services_.Locale);
  Preview.ShowUpMarks(upper, Model.Inputs.Loads, services_.Locale);
  NotifyPreview();
}

void frmMain::BuildChord(bool upper) {
  // The chord comes before its list, whose first entry colours a mark of it.
  Preview.BuildChord(LastPanelNum(upper, Model.Inputs.TreloType, PanelNum()) + 1);
  FillKnotList(upper);
}

void frmMain::RefreshLoadPreview() {
  const Long scheme = Model.Inputs.TreloType;
  BuildChord(tglUpPoyas.Value());
  Preview.ClearLoadMarks();
  Preview.PlaceUpMarks(LastPanelNum(true, scheme, PanelNum()) + 1);
  Preview.PlaceDwnMarks(LastPanelNum(false, scheme, PanelNum()) + 1);
  ShowMarksOfShownChord();
}

void frmMain::imgPForce_Click() {
  Guard(services_.Messages, "imgPForce_Click", [&] {
    ChooseLoadTool(true);
    FillKnotListP(tglUpPoyas.Value());
    chkAllPanels.SetChecked(false);
    ColourChosenMark();
  });
}

void frmMain::imgDistForce_Click() {
  Guard(services_.Messages, "imgDistForce_Click", [&] {
    ChooseLoadTool(false);
    FillKnotListQ(tglUpPoyas.Value());
    ColourChosenMark();
  });
}

void frmMain::cmbKnotNum_Click() {
  Guard(services_.Messages, "cmbKnotNum_Click", [&] { ColourChosenMark(); });
}

void frmMain::tglUpPoyas_Click() {
  Guard(services_.Messages, "tglUpPoyas_Click", [&] {
    tglDwnPoyas.SetValue(!tglUpPoyas.Value());
    BuildChord(true);
    ShowMarksOfShownChord();
  });
}

void frmMain::tglDwnPoyas_Click() {
  Guard(services_.Messages, "tglDwnPoyas_Click", [&] {
    tglUpPoyas.SetValue(!tglDwnPoyas.Value());
    BuildChord(false);
    ShowMarksOfShownChord();
  });
}

void frmMain::chkAllPanels_Click() {
  Guard(services_.Messages, "chkAllPanels_Click", [&] {
    if (chkAllPanels.Checked()) {
      Preview.MarkAllPieces();
      NotifyPreview();
    } else {
      ColourChosenMark();
    }
  });
}

void frmMain::cmdAddForce_Click() {
  Guard(services_.Messages, "cmdAddForce_Click", [&] {
    const Long number = TextToLong(cmbKnotNum.Text(), services_.Locale);
    const Real force = Number(txtForceVal);
    if (force == 0.0) {
      services_.Messages.Show({.Title = warningTitle,
                               .Text = "Не задана величина силы\n"
                                       "Или значение силы не корректно !",
                               .Style = MessageStyle::Critical});
      txtForceVal.SetText("");
      return;
    }
    const bool upper = tglUpPoyas.Value();
    if (imgPForce.Marked()) {
      double& joint = (upper ? Model.Inputs.Loads.UpPForce : Model.Inputs.Loads.DwnPForce)[number];
      joint = Real(joint) + force;
      Preview.ShowJoint(upper, number, joint, services_.Locale);
    } else {
      BoundedArray<double>& panels =
          upper ? Model.Inputs.Loads.UpDistForce : Model.Inputs.Loads.DwnDistForce;
      const bool all = chkAllPanels.Checked();
      const Long first = all ? panels.LowerBound() : number;
      const Long last = all ? panels.UpperBound() : number;
      for (Long panel = first; panel <= last; ++panel) {
        panels[panel] = Real(panels[panel]) + force;
        Preview.ShowPanel(upper, panel, panels[panel], services_.Locale);
      }
    }
    NotifyPreview();
  });
}

void frmMain::cmdClearLoads_Click() {
  Guard(services_.Messages, "cmdClearLoads_Click", [&] {
    const LoadArrays before = Model.Inputs.Loads;
    ClearLoads(Model.Inputs.Loads, Model.Inputs.TreloType, PanelNum());
    CountLostLoads(before);
    Preview.ClearLoadMarks();
    Model.OwnWeight = {};
    chkOwnWeight.SetChecked(false);
    SetOwnWeightInside(std::nullopt);
    NotifyPreview();
  });
}

bool frmMain::TakeOwnWeightOut() {
  const double perMetre = Model.OwnWeight.PerMetre;
  const bool inside = WithdrawOwnWeight(Model.Inputs.Loads, Model.OwnWeight);
  if (!inside) {
    services_.Messages.Show({.Title = "chkOwnWeight_Click",
                             .Text = "Некорректная погонная масса фермы ! \nqMass = " +
                                     NumberToText(perMetre, services_.Locale) +
                                     "\n Собственный вес фермы не вычтен из общей нагрузки",
                             .Style = MessageStyle::Critical});
  }
  return inside;
}

void frmMain::chkOwnWeight_Click() {
  RefreshOwnWeightTwice();
  Guard(services_.Messages, "chkOwnWeight_Click", [&] {
    // Setting the box does nothing here: the commands add the weight.
    if (chkOwnWeight.Checked() || !Model.OwnWeight.Added) {
      return;
    }
    if (TakeOwnWeightOut()) {
      RefreshLoadPreview();
    }
  });
}

}  // namespace trelonit
