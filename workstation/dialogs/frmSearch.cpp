#include "workstation/dialogs/frmSearch.h"

#include <string>

#include "analysis/Scheme.h"
#include "workstation/main/WaitCaption.h"
#include "workstation/results/ResultPicture.h"

namespace trelonit {

frmSearch::frmSearch() {
  for (Long option = 1; option <= groupCount; ++option) {
    lblName[option - 1].SetCaption(GroupName(static_cast<GroupOption>(option)));
  }
  chkOpinion.Click = [this] { chkOpinion_Click(); };
}

void frmSearch::Fill(const SelectionOffer& offer, const BoundedArray<Image>& layoutPictures,
                     Long treloType) {
  SearchApplied = false;
  offer_ = offer;
  byOpinion_.reset();
  chkOpinion.SetChecked(false);
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
  lblRounds.SetCaption(proposal.Rounds == 0
                           ? std::string()
                           : "Кругов подбора до неизменности: " + std::to_string(proposal.Rounds));
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
