#pragma once

#include "windows/binding/FormDialog.h"
#include "workstation/dialogs/frmKoeffOfUse.h"

class QMenuBar;
class QTabWidget;
class QVBoxLayout;

namespace trelonit {

class BarTableView;
class ExplanationView;
class TrussView;
class UseGrid;

/// The results: coefficients and forces as lists, and both as pictures; what the second opinion
/// says of them, how each coefficient came about, and every bar with its figures.
class KoeffOfUseWindow : public FormDialog {
 public:
  KoeffOfUseWindow(frmKoeffOfUse& form, QWidget* parent);

 private:
  void AddMenu(QVBoxLayout* column);
  QWidget* NewLists();
  QWidget* NewPictures();
  /// Under the lists: the explanation and the table of the bars, one behind the other.
  QWidget* NewPages();
  QWidget* NewExplanation();
  /// The table of the bars, made the first time that it is shown or asked for: most users close the
  /// window before.
  BarTableView& Bars();
  void AddTableMenu(QMenuBar* bar);
  void AddButtons(QVBoxLayout* column);
  /// The row's explanation and its bar; without a row what holds for all of them.
  void ShowRow(const ResultRow* row);
  void ShowBar(const MarkedBar& bar);

  frmKoeffOfUse& form_;
  UseGrid* grid_ = nullptr;
  TrussView* truss_ = nullptr;
  ExplanationView* explanation_ = nullptr;
  QWidget* barPage_ = nullptr;
  BarTableView* bars_ = nullptr;
  QTabWidget* pages_ = nullptr;
};

}  // namespace trelonit
