#pragma once

#include "editor/associations/frmAssoc.h"
#include "windows/binding/FormDialog.h"

class QBoxLayout;

namespace trelonit {

/// Who opens text files, and what else ties them to the pad. The form has been loaded.
class AssocWindow : public FormDialog {
 public:
  AssocWindow(frmAssoc& form, QWidget* parent);

 private:
  void AddOwner(QBoxLayout* column);
  void AddButtons(QBoxLayout* column);

  frmAssoc& form_;
};

}  // namespace trelonit
