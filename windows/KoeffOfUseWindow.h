#pragma once

#include "windows/FormDialog.h"
#include "workstation/frmKoeffOfUse.h"

namespace trelonit {

/// The results: coefficients and forces as lists, and both as pictures.
class KoeffOfUseWindow : public FormDialog {
 public:
  KoeffOfUseWindow(frmKoeffOfUse& form, QWidget* parent);

 private:
  frmKoeffOfUse& form_;
};

}  // namespace trelonit
