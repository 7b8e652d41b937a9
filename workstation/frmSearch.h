#pragma once

#include <functional>

#include "platform/Controls.h"
#include "workstation/ElementGroups.h"
#include "workstation/Selection.h"

namespace trelonit {

/// The proposal of automatic selection, title "Результаты подбора профиля". Taken with cmdApply,
/// left by closing the window.
class frmSearch {
 public:
  frmSearch();

  /// Shows a proposal: the pictures of the layouts by option, the sizes' names, and red where no
  /// size passes. Scheme 3 has no verticals.
  void Fill(const SelectionProposal& proposal, const BoundedArray<Image>& layoutPictures,
            Long treloType);
  void cmdApply_Click();
  void tmrTimer_Timer();

  /// Whether the user has taken the proposal that was shown last.
  bool SearchApplied = false;

  Label Form;
  BoundedArray<Image> imgProfileSec{1, groupCount};
  BoundedArray<Label> lblProfilName{1, groupCount};
  BoundedArray<Label> lblWorry{1, groupCount};
  /// Names of the groups; unlike the other rows they are counted from 0.
  BoundedArray<Label> lblName{0, groupCount - 1};
  Timer tmrTimer;
  /// Unloads the window.
  std::function<void()> Unload;

 private:
  Long waitCounter_ = 1;
};

}  // namespace trelonit
