#pragma once

#include "checks/frmParamerty.h"
#include "windows/binding/FormDialog.h"

namespace trelonit {

/// The window of the elastic modulus, the density and the user's limit slenderness.
class ParamertyWindow : public FormDialog {
 public:
  ParamertyWindow(frmParamerty& form, QWidget* parent);
};

}  // namespace trelonit
