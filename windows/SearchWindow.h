#pragma once

#include "windows/FormDialog.h"
#include "workstation/frmSearch.h"

namespace trelonit {

/// The proposal of automatic selection.
class SearchWindow : public FormDialog {
 public:
  SearchWindow(frmSearch& form, QWidget* parent);
};

}  // namespace trelonit
