#pragma once

#include <functional>
#include <vector>

#include "checks/SteelTable.h"
#include "platform/forms/Controls.h"
#include "platform/system/Services.h"

namespace trelonit {

/// The steel window, caption "Стали": design resistance by grade and thickness, working-condition
/// coefficient and importance class. Only cmdApply reaches the main form.
class frmSteel {
 public:
  /// What cmdApply writes.
  struct Targets {
    Label& lblStillName;
    TextBox& txtRy;
    TextBox& txtNadegnost;
    TextBox& txtUsloviyaRabot;
  };
  static constexpr Long importanceCount = 4;

  frmSteel(Services services, Targets targets);
  frmSteel(const frmSteel&) = delete;
  frmSteel& operator=(const frmSteel&) = delete;
  ~frmSteel() = default;

  /// Builds everything anew; nothing that was chosen before is remembered.
  void Form_Load();
  void cmbSteelName_Click();
  void cmbSheetThick_Click();
  void txtRysheet_Click();
  void txtRyfason_Click();
  /// A row of the grid, the head being row 0.
  void MSFGridYc_SelChange(Long row);
  void optOtvetstven_Click(Long option);
  void cmdApply_Click();

  std::vector<SteelRec> Steels;
  // Until the user chooses; the program's own rule.
  double Gn = 1;
  double Yc = 0.9;

  Label Form;
  ComboBox cmbSteelName;
  ComboBox cmbSheetThick;
  TextBox txtRysheet;
  TextBox txtRyfason;
  Grid MSFGridYc;
  Label framYc;
  Label framOtvetstven;
  OptionGroup optOtvetstven{importanceCount};
  BoundedArray<Label> lblOtvetstven{1, importanceCount};
  Label lblSteels;
  Label lblThickness;
  Label lblChoice;
  /// Unloads the window.
  std::function<void()> Unload;

 private:
  void FillGrid();
  void FillRanges();
  void ShowRange();

  Services services_;
  Targets targets_;
};

}  // namespace trelonit
