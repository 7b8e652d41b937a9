#pragma once

#include <QTableWidget>
#include <functional>
#include <optional>

#include "windows/binding/OnceSettled.h"
#include "workstation/dialogs/frmKoeffOfUse.h"

namespace trelonit {

/// The utilisation coefficients: the grid of the form and, in a third column, what the second
/// opinion says. Ctrl+C copies the chosen rows, or all of them.
class UseGrid : public QTableWidget {
 public:
  explicit UseGrid(frmKoeffOfUse& form, QWidget* parent = nullptr);

  /// Called with the chosen row, or with nothing.
  std::function<void(const ResultRow* row)> Chosen;

 protected:
  void changeEvent(QEvent* event) override;

 private:
  void AddOpinion();
  /// Heads of groups stand out, and so does what exceeds the limit.
  void Emphasise();
  /// The checks take what room the figures leave, in as many lines as they need there. The
  /// toolkit's own fitting would measure every cell anew whenever the grid takes another size.
  void FitFigures();
  void FitRows();
  /// Surely; a name that nearly fills its column is measured.
  bool IsOfOneLine(int row) const;
  void Copy() const;
  const ResultRow* ChosenRow() const;

  frmKoeffOfUse& form_;
  OnceSettled rows_;
};

}  // namespace trelonit
