#pragma once

#include <QTimer>

#include "variants/frmVariants.h"
#include "windows/binding/FormDialog.h"

class QBoxLayout;
class QMenuBar;
class QProgressBar;
class QPushButton;
class QSplitter;

namespace trelonit {

class VariantPlotView;
class VariantTableView;

/// The studies: the axes at the left, plot and table of the variants at the right. It stays live
/// while a study runs; closing it ends the study.
class VariantsWindow : public FormDialog {
 public:
  VariantsWindow(frmVariants& form, QWidget* parent);
  VariantsWindow(const VariantsWindow&) = delete;
  VariantsWindow& operator=(const VariantsWindow&) = delete;
  /// No thread calls it after that.
  ~VariantsWindow() override;

  /// Escape: ends a study that runs, else the window.
  void reject() override;

 protected:
  void closeEvent(QCloseEvent* event) override;

 private:
  QWidget* NewLeft();
  QWidget* NewRight();
  QWidget* NewPlot();
  QWidget* NewTable();
  void AddCommands(QBoxLayout* column);
  void AddMenu(QBoxLayout* column);
  void AddButtons(QBoxLayout* column);
  QPushButton* NewButton(MenuEntry& state, const char* name, const QString& caption,
                         void (frmVariants::*click)());
  void RestorePlace();
  void StorePlace();

  frmVariants& form_;
  QSplitter* columns_ = nullptr;
  QSplitter* rows_ = nullptr;
  VariantPlotView* plot_ = nullptr;
  VariantTableView* table_ = nullptr;
  QProgressBar* progress_ = nullptr;
  // News come by the hundred a second; people read less.
  QTimer news_;
};

}  // namespace trelonit
