#pragma once

#include <QAbstractTableModel>
#include <QSortFilterProxyModel>
#include <QTableView>
#include <functional>
#include <optional>

#include "workstation/results/BarTable.h"

namespace trelonit {

/// The table of the bars, sorted by a press on a head. Ctrl+C copies the chosen rows, or all of
/// them, for a spreadsheet.
class BarTableView : public QTableView {
 public:
  BarTableView(BarTable table, NumberLocale locale, QWidget* parent = nullptr);

  /// Chooses the row of this bar and brings it into view.
  void Choose(const MarkedBar& bar);
  /// The whole table in the order that is shown.
  ResultTable Shown() const;
  void Copy() const;

  /// Called with the bar of the chosen row, or with nothing.
  std::function<void(std::optional<MarkedBar>)> Chosen;

 protected:
  void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;

 private:
  class Model;

  /// The rows of the table as they are shown; where chosenOnly is set and some are chosen, those.
  ResultTable Rows(bool chosenOnly) const;
  /// As wide as heads and cells need: with room for the mark of the sorting the many columns would
  /// not fit.
  void FitColumns();
  std::optional<MarkedBar> ChosenBar() const;

  BarTable table_;
  NumberLocale locale_;
  QSortFilterProxyModel sorted_;
};

}  // namespace trelonit
