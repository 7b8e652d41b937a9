#pragma once

#include "editor/dialogs/frmFind.h"
#include "windows/binding/FormDialog.h"

class QComboBox;

namespace trelonit {

/// Find and replace, beside the document window. The form has been loaded; it is unloaded however
/// the window closes.
class FindWindow : public FormDialog {
 public:
  FindWindow(frmFind& form, QWidget* parent);
  ~FindWindow() override;
  FindWindow(const FindWindow&) = delete;
  FindWindow& operator=(const FindWindow&) = delete;

  /// Escape and the close button stop a running replace-all, as the form's own button does.
  void reject() override;

 private:
  QComboBox* AddBox(ComboBox& state, const char* name);
  void TakeTexts();

  frmFind& form_;
  QComboBox* find_ = nullptr;
  QComboBox* replace_ = nullptr;
};

}  // namespace trelonit
