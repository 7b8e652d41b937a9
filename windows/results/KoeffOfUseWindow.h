#pragma once

#include "windows/binding/FormDialog.h"
#include "workstation/dialogs/frmKoeffOfUse.h"

class QVBoxLayout;

namespace trelonit {

class ExplanationView;
class TrussView;

/// The results: coefficients and forces as lists, and both as pictures; what the second opinion
/// says of them, and how each coefficient came about.
class KoeffOfUseWindow : public FormDialog {
 public:
  KoeffOfUseWindow(frmKoeffOfUse& form, QWidget* parent);

 private:
  void AddMenu(QVBoxLayout* column);
  QWidget* NewLists();
  QWidget* NewPictures();
  QWidget* NewExplanation();
  void AddButtons(QVBoxLayout* column);
  /// The row's explanation and its bar; without a row what holds for all of them.
  void ShowRow(const ResultRow* row);

  frmKoeffOfUse& form_;
  TrussView* truss_ = nullptr;
  ExplanationView* explanation_ = nullptr;
};

}  // namespace trelonit
