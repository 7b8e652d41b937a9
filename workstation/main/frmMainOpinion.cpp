#include "analysis/Scheme.h"
#include "checks/EffectiveLengths.h"
#include "opinion/BarLengths.h"
#include "platform/errors/Guard.h"
#include "platform/values/Arithmetic.h"
#include "workstation/design/EnteredDesign.h"
#include "workstation/design/Loads.h"
#include "workstation/design/OwnWeight.h"
#include "workstation/main/frmMain.h"

// What the main form says beside its inputs and results: the lengths that the bracing options take,
// sections without a published table, own weight that is inside the loads already.

namespace trelonit {

namespace {

constexpr int lengthDecimals = 2;
constexpr const char* noLength = "—";
constexpr Long bracingCount = 4;

}  // namespace

TreloData frmMain::ShownGeometry() {
  return DesignOf(ReadInputs(), Model.OwnWeight).TreloData;
}

void frmMain::RefreshBracingLengths() {
  TreloData data;
  std::optional<Truss> truss;
  // Sizes that make no truss have no lengths.
  PassOver([&] {
    data = ShownGeometry();
    if (data.LengthF > 0 && PanelLength(data) > 0) {
      truss = TrussOf(data);
    }
  });
  const auto show = [&](BoundedArray<BracingLength>& labels, Chord chord) {
    for (Integer bracing = 1; bracing <= bracingCount; ++bracing) {
      BracingLength& label = labels[bracing];
      if (!truss) {
        label.Taken.SetCaption(noLength);
        label.ByCaption.SetCaption(noLength);
        label.Taken.SetForeColor(colorWindowText);
        continue;
      }
      const double taken = OutOfPlaneLength(chord, bracing, data, PanelLength(data));
      const double held = LengthBetweenHeldPoints(*truss, chord, bracing);
      label.Taken.SetCaption(FormatShown(taken, lengthDecimals, services_.Locale));
      label.ByCaption.SetCaption(FormatShown(held, lengthDecimals, services_.Locale));
      constexpr double rounding = 1e-9;
      label.Taken.SetForeColor(taken < held * (1 - rounding) ? colorRed : colorWindowText);
    }
  };
  show(lblUpPoyasLength, Chord::Upper);
  show(lblDownPoyasLength, Chord::Lower);
}

void frmMain::RefreshSectionSource(const SectionRec& section) {
  const std::string text = ProvenanceText(section.Profile);
  lblSectionSource.SetCaption(text);
  lblSectionSource.SetVisible(!text.empty());
  ShowSectionOf(SelectedGroup());
}

void frmMain::RefreshOwnWeightTwice() {
  const std::optional<double> doubled = DoubledOwnWeight();
  lblOwnWeightTwice.SetCaption(doubled ? DoubledOwnWeightText(*doubled, services_.Locale) : "");
  lblOwnWeightTwice.SetVisible(doubled.has_value());
}

std::optional<double> frmMain::DoubledOwnWeight() const {
  return chkOwnWeight.Checked() ? ownWeightInside_ : std::nullopt;
}

void frmMain::FindOwnWeightInside() {
  std::optional<double> inside;
  PassOver([&] {
    inside = OwnWeightInside(ShownGeometry(), Model.Inputs.ElementSection, Model.Inputs.Density);
  });
  SetOwnWeightInside(inside);
}

void frmMain::SetOwnWeightInside(std::optional<double> perMetre) {
  ownWeightInside_ = perMetre;
  RefreshOwnWeightTwice();
}

void frmMain::cmdTakeOwnWeightOut_Click() {
  Guard(services_.Messages, "cmdTakeOwnWeightOut_Click", [&] {
    if (!ownWeightInside_) {
      return;
    }
    AddToDistributedLoads(Model.Inputs.Loads, -*ownWeightInside_);
    // What the subtraction leaves in the last digits is no load.
    constexpr int decimals = 12;
    for (BoundedArray<double>* panels :
         {&Model.Inputs.Loads.UpDistForce, &Model.Inputs.Loads.DwnDistForce}) {
      for (double& load : *panels) {
        load = RoundToDecimals(load, decimals);
      }
    }
    SetOwnWeightInside(std::nullopt);
    RefreshLoadPreview();
  });
}

void frmMain::cmdKeepOwnWeight_Click() {
  SetOwnWeightInside(std::nullopt);
}

void frmMain::WithdrawOwnWeightFromLoads() {
  if (Model.OwnWeight.Added) {
    TakeOwnWeightOut();
    RefreshLoadPreview();
  }
}

SecondOpinion frmMain::OpinionOfLast() const {
  Circumstances circumstances{.DoubledOwnWeight = DoubledOwnWeight()};
  if (takenSections_ && *takenSections_ == Model.Inputs.ElementSection) {
    circumstances.AfterSelection =
        GroupsThatFail(Model.ToCalculate(), Model.Last.Numbers, chkOwnWeight.Checked());
  }
  return FormSecondOpinion(Model.Last, circumstances, services_.Locale);
}

}  // namespace trelonit
