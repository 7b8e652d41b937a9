#pragma once

#include <QTableWidget>
#include <functional>
#include <optional>

#include "workstation/dialogs/frmKoeffOfUse.h"

namespace trelonit {

/// The utilisation coefficients: the grid of the form and, in a third column, what the second
/// opinion says. Ctrl+C copies the chosen rows, or all of them.
class UseGrid : public QTableWidget {
 public:
  explicit UseGrid(frmKoeffOfUse& form, QWidget* parent = nullptr);

  /// Called with the chosen row, or with nothing.
  std::function<void(const ResultRow* row)> Chosen;

 private:
  void AddOpinion();
  /// Heads of groups stand out, and so does what exceeds the limit.
  void Emphasise();
  void Copy() const;
  const ResultRow* ChosenRow() const;

  frmKoeffOfUse& form_;
};

}  // namespace trelonit
