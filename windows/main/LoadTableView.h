#pragma once

#include <QAbstractTableModel>
#include <QTableView>
#include <functional>
#include <vector>

#include "windows/binding/OnceSettled.h"
#include "workstation/loads/LoadEditor.h"

namespace trelonit {

/// The rows of the load editor for a view.
class LoadTableModel : public QAbstractTableModel {
 public:
  static constexpr int valueColumn = 3;

  explicit LoadTableModel(LoadEditor& editor, QObject* parent = nullptr);
  /// The loads may be others.
  void Refresh();
  const std::vector<LoadRow>& Rows() const { return rows_; }

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;
  bool setData(const QModelIndex& index, const QVariant& value, int role) override;

 private:
  LoadEditor& editor_;
  std::vector<LoadRow> rows_;
};

/// The table: typed, pasted, deleted, filled down. A chosen row chooses its place in the load tool,
/// and the other way round.
class LoadTableView : public QTableView {
 public:
  explicit LoadTableView(LoadEditor& editor, QWidget* parent = nullptr);
  /// Shows the loads and the chosen place as they are now.
  void Refresh();

 protected:
  void closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) override;
  void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
  void changeEvent(QEvent* event) override;

 private:
  void AddCommand(const QString& caption, const QKeySequence& key, const char* name,
                  std::function<void()> run);
  std::vector<std::size_t> SelectedRows() const;
  /// As wide as heads and cells need. The toolkit's own fitting would measure every cell anew
  /// whenever the table is shown.
  void FitColumns();

  LoadEditor& editor_;
  LoadTableModel model_;
  // While the table follows the load tool, it does not lead it.
  bool following_ = false;
  OnceSettled columns_;
};

}  // namespace trelonit
