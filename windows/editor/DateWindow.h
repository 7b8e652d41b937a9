#pragma once

#include "editor/dialogs/frmDate.h"
#include "windows/binding/FormDialog.h"

namespace trelonit {

/// The list of date and time forms. The form has been loaded.
class DateWindow : public FormDialog {
 public:
  DateWindow(frmDate& form, QWidget* parent);
};

}  // namespace trelonit
