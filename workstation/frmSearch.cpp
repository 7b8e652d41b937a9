#include "workstation/frmSearch.h"

#include "workstation/ResultPicture.h"
#include "workstation/WaitCaption.h"

namespace trelonit {

frmSearch::frmSearch() {
  for (Long option = 1; option <= groupCount; ++option) {
    lblName[option - 1].SetCaption(GroupName(static_cast<GroupOption>(option)));
  }
}

void frmSearch::Fill(const SelectionProposal& proposal, const BoundedArray<Image>& layoutPictures,
                     Long treloType) {
  SearchApplied = false;
  Form.SetCaption("Результаты подбора профиля");
  for (Long option = 1; option <= groupCount; ++option) {
    imgProfileSec[option].Show(layoutPictures[option].Shown());
    lblProfilName[option].SetCaption(
        proposal.Sections[PlaceOfOption(option)].Profile.Name.Trimmed());
    const bool impossible = proposal.Impossible.count(static_cast<GroupOption>(option)) != 0;
    lblProfilName[option].SetForeColor(impossible ? colorRed : colorWindowText);
    lblWorry[option].SetCaption(impossible ? "Подбор невозможен" : "");
  }
  const bool verticals = treloType != 3;
  imgProfileSec[optionStoyka].SetVisible(verticals);
  lblProfilName[optionStoyka].SetVisible(verticals);
  lblWorry[optionStoyka].SetVisible(verticals);
  lblName[optionStoyka - 1].SetVisible(verticals);
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
