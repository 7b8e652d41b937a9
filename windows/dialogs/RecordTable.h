#pragma once

#include <QAbstractTableModel>
#include <QTableView>

#include "catalogue/frmDataManager.h"

namespace trelonit {

/// All records of the manager's file. The chosen row is the record that the boxes show.
class RecordTable : public QTableView {
 public:
  explicit RecordTable(frmDataManager& form, QWidget* parent = nullptr);
  ~RecordTable() override;
  RecordTable(const RecordTable&) = delete;
  RecordTable& operator=(const RecordTable&) = delete;

 protected:
  void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;

 private:
  class Model;

  void FollowCurrent();

  frmDataManager& form_;
  Model* model_;
  bool following_ = false;
};

}  // namespace trelonit
