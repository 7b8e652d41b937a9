#pragma once

#include <QTableView>

#include "variants/frmVariants.h"

namespace trelonit {

/// The variants that the form shows, sorted by a press on a head. The chosen row is the form's
/// chosen variant. Ctrl+C copies the chosen rows for a spreadsheet.
class VariantTableView : public QTableView {
 public:
  explicit VariantTableView(frmVariants& form, QWidget* parent = nullptr);

  /// Shows what the form has now.
  void Refresh();
  /// Goes to the row of the form's chosen variant.
  void ShowChosen();

 protected:
  void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;

 private:
  class Model;

  void ShowColumns();
  /// Whether it is shown.
  bool GoToChosen();
  void FitColumns();
  void Copy() const;

  frmVariants& form_;
  Model* model_;
  bool following_ = false;
  bool fitted_ = false;
};

}  // namespace trelonit
