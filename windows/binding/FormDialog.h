#pragma once

#include <QDialog>
#include <functional>

#include "platform/forms/Controls.h"

namespace trelonit {

/// The window of a form that opens from the main form: its title is the form's, and the form's
/// Unload closes it.
class FormDialog : public QDialog {
 public:
  FormDialog(Label& title, std::function<void()>& unload, QWidget* parent);
  ~FormDialog() override;
  FormDialog(const FormDialog&) = delete;
  FormDialog& operator=(const FormDialog&) = delete;

 private:
  std::function<void()>& unload_;
};

}  // namespace trelonit
