#include "platform/errors/Guard.h"
#include "workstation/main/frmMain.h"

// What is shown while the design is being entered: results without a command, the truss to scale.

namespace trelonit {

void frmMain::WatchInputs() {
  const auto watch = [this](ControlState& input) { input.Watch = [this] { TouchDesign(); }; };
  for (TextBox* box :
       {&txtLengthF, &txtHight, &txtLenOporn, &txtRy, &txtUsloviyaRabot, &txtNadegnost}) {
    watch(*box);
  }
  for (ComboBox* box : {&cmbPanelNum, &cmbLenlim, &cmbTypeProfile, &cmbSectType, &cmbGdist}) {
    watch(*box);
  }
  for (CheckBox* box : {&chkProgib, &chkOwnWeight, &chkDinloadEnable}) {
    watch(*box);
  }
  for (OptionButton* option : {&optBP, &optNP}) {
    watch(*option);
  }
  for (OptionGroup* group : {&optUpPoyas, &optDownPoyas}) {
    for (OptionButton& option : *group) {
      watch(option);
    }
  }
  // The scheme and the sections, whoever chooses them.
  for (BoundedArray<Image>* row : {&imgTreloType, &imgProfileSec}) {
    for (Image& picture : *row) {
      watch(picture);
    }
  }
  for (Label& name : lblProfilName) {
    watch(name);
  }
}

void frmMain::TouchDesign() {
  if (DesignTouched) {
    DesignTouched();
  }
}

LiveResult frmMain::CalculateLive() const {
  LiveResult result{.Refusal = "Количество панелей должно быть числом"};
  PassOver([&] { result = FormLiveResult(EnteredInputs(), Model.OwnWeight, services_.Locale); });
  return result;
}

std::vector<GeometryFault> frmMain::GeometryFaults() const {
  std::vector<GeometryFault> faults;
  PassOver([&] { faults = FindGeometryFaults(EnteredInputs(), services_.Locale); });
  return faults;
}

TrussSketch frmMain::SketchTruss(const SketchCanvas& canvas) const {
  TrussSketch picture;
  PassOver([&] { picture = trelonit::SketchTruss(EnteredInputs(), canvas, services_.Locale); });
  return picture;
}

void frmMain::RefreshGeometry() {
  RefreshBracingLengths();
  if (GeometryChanged) {
    GeometryChanged();
  }
}

}  // namespace trelonit
