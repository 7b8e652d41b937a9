#pragma once

#include <functional>

#include "platform/forms/Controls.h"
#include "workstation/results/ResultLists.h"

namespace trelonit {

/// The results window, title "Коэффициенты использования и усилия в стержнях".
class frmKoeffOfUse {
 public:
  frmKoeffOfUse();

  void Fill(const ResultLists& lists);
  void cmdClose_Click();
  void mnuAppendix_Click();

  Label Form;
  Grid MSFlexGKoefUse;
  ListBox lstForces;
  /// The truss with its forces and the groups with their largest coefficient, beside the lists.
  ResultPicture Picture;
  /// The second opinion and its place beside the rows of the grid, its head not counted.
  SecondOpinion Opinion;
  std::vector<ResultRow> Rows;
  NumberLocale Locale;
  /// Whether reports end with the opinion.
  MenuEntry mnuAppendix;
  Label framKoef;
  Label framForces;
  Label cmdClose;
  /// Unloads the window.
  std::function<void()> Unload;
  std::function<void(bool on)> AppendixChanged;
};

}  // namespace trelonit
