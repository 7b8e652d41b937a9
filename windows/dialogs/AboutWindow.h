#pragma once

#include "windows/binding/FormDialog.h"
#include "workstation/dialogs/frmAbout.h"

namespace trelonit {

/// The window on the program.
class AboutWindow : public FormDialog {
 public:
  AboutWindow(frmAbout& form, QWidget* parent);

 private:
  frmAbout& form_;
};

}  // namespace trelonit
