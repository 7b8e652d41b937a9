#pragma once

#include <functional>

#include "platform/forms/Controls.h"
#include "workstation/results/BarTable.h"
#include "workstation/results/ResultLists.h"

namespace trelonit {

/// The results window, title "Коэффициенты использования и усилия в стержнях".
class frmKoeffOfUse {
 public:
  frmKoeffOfUse();

  void Fill(const ResultLists& lists);
  void cmdClose_Click();
  void mnuAppendix_Click();
  /// Store a table as the window shows it. The second is there where the program has a writer for
  /// it.
  void mnuSaveCsv_Click(const ResultTable& table);
  void mnuSaveXlsx_Click(const ResultTable& table);
  /// How the program stores tables, set once by whoever owns the form.
  void SetTableFiles(std::function<void(const ResultTable&)> saveCsv,
                     std::function<void(const ResultTable&)> saveXlsx);

  Label Form;
  Grid MSFlexGKoefUse;
  ListBox lstForces;
  /// The truss with its forces and the groups with their largest coefficient, beside the lists.
  ResultPicture Picture;
  /// The second opinion and its place beside the rows of the grid, its head not counted.
  SecondOpinion Opinion;
  std::vector<ResultRow> Rows;
  /// Bar by bar.
  BarTable Bars;
  NumberLocale Locale;
  /// Whether reports end with the opinion.
  MenuEntry mnuAppendix;
  MenuEntry mnuSaveCsv;
  MenuEntry mnuSaveXlsx;
  Label framKoef;
  Label framForces;
  Label cmdClose;
  /// Unloads the window.
  std::function<void()> Unload;
  std::function<void(bool on)> AppendixChanged;

 private:
  std::function<void(const ResultTable&)> saveCsv_;
  std::function<void(const ResultTable&)> saveXlsx_;
};

}  // namespace trelonit
