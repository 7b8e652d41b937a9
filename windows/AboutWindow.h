#pragma once

#include <QDialog>

#include "workstation/frmAbout.h"

namespace trelonit {

/// The window on the program.
class AboutWindow : public QDialog {
 public:
  AboutWindow(frmAbout& form, QWidget* parent);
  ~AboutWindow() override;
  AboutWindow(const AboutWindow&) = delete;
  AboutWindow& operator=(const AboutWindow&) = delete;

 private:
  frmAbout& form_;
};

}  // namespace trelonit
