#pragma once

#include <QDialog>

#include "workstation/frmKoeffOfUse.h"

namespace trelonit {

/// The results: coefficients and forces as lists, and both as pictures.
class KoeffOfUseWindow : public QDialog {
 public:
  KoeffOfUseWindow(frmKoeffOfUse& form, QWidget* parent);
  ~KoeffOfUseWindow() override;
  KoeffOfUseWindow(const KoeffOfUseWindow&) = delete;
  KoeffOfUseWindow& operator=(const KoeffOfUseWindow&) = delete;

 private:
  frmKoeffOfUse& form_;
};

}  // namespace trelonit
