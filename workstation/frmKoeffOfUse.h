#pragma once

#include <functional>

#include "platform/Controls.h"
#include "workstation/ResultLists.h"

namespace trelonit {

/// The results window, title "Коэффициенты использования и усилия в стержнях".
class frmKoeffOfUse {
 public:
  frmKoeffOfUse();

  void Fill(const ResultLists& lists);
  void cmdClose_Click();

  Label Form;
  Grid MSFlexGKoefUse;
  ListBox lstForces;
  /// The truss with its forces and the groups with their largest coefficient, beside the lists.
  ResultPicture Picture;
  Label framKoef;
  Label framForces;
  Label cmdClose;
  /// Unloads the window.
  std::function<void()> Unload;
};

}  // namespace trelonit
