#pragma once

#include "windows/FormDialog.h"
#include "workstation/frmAbout.h"

namespace trelonit {

/// The window on the program.
class AboutWindow : public FormDialog {
 public:
  AboutWindow(frmAbout& form, QWidget* parent);

 private:
  frmAbout& form_;
};

}  // namespace trelonit
