#pragma once

#include "editor/frmDate.h"
#include "windows/FormDialog.h"

namespace trelonit {

/// The list of date and time forms. The form has been loaded.
class DateWindow : public FormDialog {
 public:
  DateWindow(frmDate& form, QWidget* parent);
};

}  // namespace trelonit
