#pragma once

#include "checks/frmSteel.h"
#include "windows/binding/FormDialog.h"

class QBoxLayout;

namespace trelonit {

/// The window of steels, working conditions and importance.
class SteelWindow : public FormDialog {
 public:
  SteelWindow(frmSteel& form, QWidget* parent);

 private:
  void AddSteel(QBoxLayout* column);
  void AddImportance(QBoxLayout* column);
  void AddConditions(QBoxLayout* column);

  frmSteel& form_;
};

}  // namespace trelonit
