#include "analysis/Scheme.h"
#include "platform/errors/Guard.h"
#include "platform/text/NumberText.h"
#include "workstation/main/frmMain.h"

// The whole design as one value: taken from the inputs, shown in them again.

namespace trelonit {

namespace {

constexpr Long bracingOptions = 4;

/// While it lives the events of the controls are not those of a user.
class Showing {
 public:
  explicit Showing(bool& showing) : showing_(showing) { showing_ = true; }
  Showing(const Showing&) = delete;
  Showing& operator=(const Showing&) = delete;
  ~Showing() { showing_ = false; }

 private:
  bool& showing_;
};

void Choose(OptionGroup& group, Long number) {
  group.ClearAll();
  // A damaged project leaves none of them set.
  if (number >= 1 && number <= bracingOptions) {
    group.Select(number);
  }
}

}  // namespace

DesignState frmMain::State() {
  // A panel count that is no number stays in its text.
  PassOver([&] { ReadInputs(); });
  return {.Inputs = Model.Inputs,
          .Texts = {.LengthF = txtLengthF.Text(),
                    .Hight = txtHight.Text(),
                    .LenOporn = txtLenOporn.Text(),
                    .PanelNum = cmbPanelNum.Text(),
                    .Ry = txtRy.Text(),
                    .UsloviyaRabot = txtUsloviyaRabot.Text(),
                    .Nadegnost = txtNadegnost.Text(),
                    .Steel = Steel},
          .OwnWeight = Model.OwnWeight,
          .OwnWeightInside = ownWeightInside_};
}

void frmMain::ShowState(const DesignState& state, const DesignPlace& place) {
  bool taken = false;
  {
    const Showing quietly(showing_);
    Model.Inputs = state.Inputs;
    Model.OwnWeight = state.OwnWeight;
    ShowGeometryOf(state);
    ShowTextsOf(state);
    ShowSectionsOf(place.Option != 0 ? place.Option : optElementSection.Selected());
    ShowLoadsAgain();
    PassOver([&] { taken = TakeGeometry(); });
    constexpr Integer first = 0;
    tabMain.SetTab(taken ? place.Tab : first);
  }
  loadsLost_ = 0;
  txtProgib.SetText("");
  chkProgib_Click();
  RefreshHopt();
  RefreshGeometry();
  TouchDesign();
  SetOwnWeightInside(state.OwnWeightInside);
}

void frmMain::ShowGeometryOf(const DesignState& state) {
  const Long number = state.Inputs.TreloType;
  for (Long scheme = 1; scheme <= schemeCount; ++scheme) {
    imgTreloType[scheme].SetMarked(scheme == number);
  }
  PassOver([&] { ShowScheme(number); });
  if (const Scheme* scheme = FindScheme(number)) {
    cmbPanelNum.Clear();
    FillPanelNum(scheme->FewestPanels, scheme->PanelStep);
    ShowEndPanels(scheme->OwnEndPanels);
    ShowVerticals(scheme->HasVerticals);
  }
  txtLengthF.SetText(state.Texts.LengthF);
  txtHight.SetText(state.Texts.Hight);
  txtLenOporn.SetText(state.Texts.LenOporn);
  cmbPanelNum.SetText(state.Texts.PanelNum);
  Choose(optUpPoyas, state.Inputs.UpPoyasBrace);
  Choose(optDownPoyas, state.Inputs.DownPoyasBrace);
  chkProgib.SetChecked(state.Inputs.ProgibOn != 0);
  cmbLenlim.SetText(state.Inputs.LenLim);
  optBP.SetValue(state.Inputs.ProgibUpper != 0);
  optNP.SetValue(state.Inputs.ProgibUpper == 0);
}

void frmMain::ShowTextsOf(const DesignState& state) {
  lblStillName.SetCaption(state.Inputs.SteelName);
  txtRy.SetText(state.Texts.Ry);
  txtUsloviyaRabot.SetText(state.Texts.UsloviyaRabot);
  txtNadegnost.SetText(state.Texts.Nadegnost);
  Steel = state.Texts.Steel;
  chkDinloadEnable.SetChecked(state.Inputs.DinloadOn != 0);
  chkOwnWeight.SetChecked(state.Inputs.OwnWeightOn != 0);
}

void frmMain::ShowSectionsOf(Long option) {
  for (Long each = 1; each <= groupCount; ++each) {
    // A section that is not in the catalogue has no name and no picture to show.
    PassOver([&] { ShowSection(each); });
  }
  PassOver([&] {
    const SectionRec& section = Model.Inputs.ElementSection[PlaceOfOption(option)];
    optElementSection.Select(option);
    ColourGroup(option);
    MarkLayout(section.Layout);
    if (const SectionLayout* layout = FindSectionLayout(section.Layout)) {
      ShowLayout(*layout);
      FillProfileLists(section.Layout);
    }
    cmbGdist.SetEnabled(section.Paired);
    if (section.Paired) {
      cmbGdist.SetText(NumberToText(section.Gdist, services_.Locale));
    }
    RefreshSectionSource(section);
    FillSizes(section.TypeIdx);
    cmbTypeProfile.SetText(Model.ProfileTypes[section.TypeIdx].Name.Trimmed());
    cmbSectType.SetText(section.Profile.Name.Trimmed());
  });
}

void frmMain::ReplaceLoads(const LoadArrays& loads) {
  Model.Inputs.Loads = loads;
  ShowLoadsAgain();
}

void frmMain::ShowLoadsAgain() {
  const Long chosen = cmbKnotNum.ListIndex();
  PassOver([&] {
    RefreshLoadPreview();
    if (chosen >= 0 && chosen < static_cast<Long>(cmbKnotNum.List().size())) {
      cmbKnotNum.Select(chosen);
    }
    if (chkAllPanels.Checked()) {
      Preview.MarkAllPieces();
    } else {
      ColourChosenMark();
    }
  });
  NotifyPreview();
}

}  // namespace trelonit
