#pragma once

#include "windows/binding/FormDialog.h"
#include "workstation/dialogs/frmSearch.h"

namespace trelonit {

/// The proposal of automatic selection.
class SearchWindow : public FormDialog {
 public:
  SearchWindow(frmSearch& form, QWidget* parent);
};

}  // namespace trelonit
