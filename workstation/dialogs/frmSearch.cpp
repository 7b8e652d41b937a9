#include "workstation/dialogs/frmSearch.h"

#include <string>

#include "analysis/Scheme.h"
#include "platform/errors/Guard.h"
#include "workstation/design/SelectionComparison.h"
#include "workstation/main/WaitCaption.h"
#include "workstation/results/ResultPicture.h"

namespace trelonit {

namespace {

constexpr int useDecimalsOfSearch = 3;
constexpr int massDecimals = 3;

std::string RoundsText(const SelectionProposal& proposal) {
  if (proposal.Rounds == 0) {
    return {};
  }
  const std::string rounds = std::to_string(proposal.Rounds);
  return proposal.Circles ? "Размеры чередуются, взят лучший из кругов подбора: " + rounds
                          : "Кругов подбора до неизменности: " + rounds;
}

std::string MassText(double before, double after, const NumberLocale& locale) {
  std::string text = "Масса фермы: " + FormatShown(before, massDecimals, locale) + " т, станет " +
                     FormatShown(after, massDecimals, locale) + " т";
  if (before > 0) {
    const double percent = 100 * (after - before) / before;
    text += " (" + std::string(percent > 0 ? "+" : "") + FormatShown(percent, 1, locale) + " %)";
  }
  return text;
}

}  // namespace

frmSearch::frmSearch() {
  for (Long option = 1; option <= groupCount; ++option) {
    lblName[option - 1].SetCaption(GroupName(static_cast<GroupOption>(option)));
  }
  chkOpinion.Click = [this] { chkOpinion_Click(); };
  chkRepeat.Click = [this] { chkRepeat_Click(); };
}

void frmSearch::Fill(const SelectionOffer& offer, const BoundedArray<Image>& layoutPictures,
                     Long treloType) {
  SearchApplied = false;
  offer_ = offer;
  byOpinion_.reset();
  repeated_.reset();
  chkOpinion.SetChecked(false);
  chkRepeat.SetChecked(false);
  chkRepeat.SetEnabled(static_cast<bool>(offer_.Repeated));
  Form.SetCaption("Результаты подбора профиля");
  for (Long option = 1; option <= groupCount; ++option) {
    imgProfileSec[option].Show(layoutPictures[option].Shown());
  }
  ShowSizes();
  const bool verticals = HasVerticals(treloType);
  imgProfileSec[optionStoyka].SetVisible(verticals);
  lblProfilName[optionStoyka].SetVisible(verticals);
  lblWorry[optionStoyka].SetVisible(verticals);
  lblName[optionStoyka - 1].SetVisible(verticals);
  lblSizeBefore[optionStoyka].SetVisible(verticals);
  lblUseBefore[optionStoyka].SetVisible(verticals);
  lblUse[optionStoyka].SetVisible(verticals);
}

void frmSearch::ShowSizes() {
  const SelectionProposal& proposal = Shown();
  for (Long option = 1; option <= groupCount; ++option) {
    lblProfilName[option].SetCaption(
        proposal.Sections[PlaceOfOption(option)].Profile.Name.Trimmed());
    const bool impossible = proposal.Impossible.count(static_cast<GroupOption>(option)) != 0;
    lblProfilName[option].SetForeColor(impossible ? colorRed : colorWindowText);
    lblWorry[option].SetCaption(impossible ? "Подбор невозможен" : "");
  }
  lblRounds.SetCaption(RoundsText(proposal));
  ShowComparison();
}

void frmSearch::ShowComparison() {
  SelectionComparison comparison;
  if (offer_.Before) {
    PassOver([&] { comparison = CompareSelection(*offer_.Before, Shown()); });
  }
  for (BoundedArray<Label>* labels : {&lblSizeBefore, &lblUseBefore, &lblUse}) {
    for (Label& label : *labels) {
      label.SetCaption("");
    }
  }
  for (const ComparedGroup& group : comparison.Groups) {
    lblSizeBefore[group.Group].SetCaption(group.SizeBefore);
    ShowUse(lblUseBefore[group.Group], group.UseBefore);
    ShowUse(lblUse[group.Group], group.UseAfter);
  }
  lblMass.SetCaption(comparison.Groups.empty()
                         ? std::string()
                         : MassText(comparison.MassBefore, comparison.MassAfter, offer_.Locale));
}

void frmSearch::ShowUse(Label& label, const std::optional<double>& use) const {
  label.SetCaption(use ? FormatShown(*use, useDecimalsOfSearch, offer_.Locale) : std::string());
  label.SetForeColor(use > 1.0 ? colorRed : colorWindowText);
}

void frmSearch::chkRepeat_Click() {
  repeated_.reset();
  if (chkRepeat.Checked() && offer_.Repeated) {
    PassOver([&] { repeated_ = offer_.Repeated(); });
    if (!repeated_) {
      // Clearing the box comes back here.
      chkRepeat.SetChecked(false);
      return;
    }
  }
  ShowSizes();
}

void frmSearch::chkOpinion_Click() {
  byOpinion_.reset();
  if (chkOpinion.Checked()) {
    byOpinion_ = offer_.ByOpinion ? offer_.ByOpinion() : std::nullopt;
    if (!byOpinion_) {
      // Clearing the box comes back here.
      chkOpinion.SetChecked(false);
      return;
    }
  }
  chkRepeat.SetEnabled(offer_.Repeated && !byOpinion_);
  ShowSizes();
}

void frmSearch::cmdApply_Click() {
  SearchApplied = true;
  if (Unload) {
    Unload();
  }
}

void frmSearch::tmrTimer_Timer() {
  StepWaitCaption(Form, waitCounter_);
}

}  // namespace trelonit
