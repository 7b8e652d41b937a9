#pragma once

#include <QVariant>

#include "windows/binding/Binding.h"
#include "workstation/results/ResultTable.h"

namespace trelonit {

/// What a head of a table tells of its column by a role of Qt's models.
inline QVariant ColumnHead(const TableColumn& column, int role) {
  switch (role) {
    case Qt::DisplayRole:
      return ToQt(column.Head());
    case Qt::ToolTipRole:
      return ToQt(column.Hint.empty() ? column.Caption : column.Hint);
    case Qt::AccessibleTextRole:
      return ToQt(column.Caption);
    default:
      return {};
  }
}

}  // namespace trelonit
