#pragma once

#include <functional>
#include <optional>

#include "platform/forms/Controls.h"
#include "workstation/design/ElementGroups.h"
#include "workstation/design/Selection.h"

namespace trelonit {

/// The proposal of automatic selection, title "Результаты подбора профиля". Taken with cmdApply,
/// left by closing the window.
class frmSearch {
 public:
  frmSearch();

  /// Shows the proposal of an offer: the pictures of the layouts by option, the sizes' names, and
  /// red where no size passes. Scheme 3 has no verticals.
  void Fill(const SelectionOffer& offer, const BoundedArray<Image>& layoutPictures, Long treloType);
  /// The proposal that is shown.
  const SelectionProposal& Shown() const {
    return byOpinion_ ? *byOpinion_ : repeated_ ? *repeated_ : offer_.Proposal;
  }
  void cmdApply_Click();
  /// Set: selects by the program's own checks and the second opinion, and shows that.
  void chkOpinion_Click();
  /// Set: selects until nothing changes, and shows that. The selection by both repeats anyway.
  void chkRepeat_Click();
  void tmrTimer_Timer();

  /// Whether the user has taken the proposal that was shown last.
  bool SearchApplied = false;

  Label Form;
  BoundedArray<Image> imgProfileSec{1, groupCount};
  BoundedArray<Label> lblProfilName{1, groupCount};
  BoundedArray<Label> lblWorry{1, groupCount};
  /// Names of the groups; unlike the other rows they are counted from 0.
  BoundedArray<Label> lblName{0, groupCount - 1};
  /// What the groups have before, and the greatest coefficients before and with the proposal; empty
  /// where there is nothing to compare with.
  BoundedArray<Label> lblSizeBefore{1, groupCount};
  BoundedArray<Label> lblUseBefore{1, groupCount};
  BoundedArray<Label> lblUse{1, groupCount};
  /// The mass of the truss before and after.
  Label lblMass;
  CheckBox chkOpinion;
  CheckBox chkRepeat;
  /// How many rounds a selection that repeats itself took.
  Label lblRounds;
  Timer tmrTimer;
  /// Unloads the window.
  std::function<void()> Unload;

 private:
  void ShowSizes();
  void ShowComparison();
  void ShowUse(Label& label, const std::optional<double>& use) const;

  Long waitCounter_ = 1;
  SelectionOffer offer_;
  std::optional<SelectionProposal> byOpinion_;
  std::optional<SelectionProposal> repeated_;
};

}  // namespace trelonit
