#include "windows/variants/VariantTableView.h"

#include <QAbstractTableModel>
#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QScrollBar>
#include <algorithm>

#include "variants/VariantTable.h"
#include "windows/binding/Binding.h"
#include "windows/binding/Pictures.h"
#include "windows/results/ColumnHead.h"
#include "windows/results/CopyAction.h"

namespace trelonit {

class VariantTableView::Model : public QAbstractTableModel {
 public:
  Model(frmVariants& form, QObject* parent) : QAbstractTableModel(parent), form_(form) {}

  int rowCount(const QModelIndex& parent) const override {
    return parent.isValid() ? 0 : static_cast<int>(form_.List().Shown().size());
  }
  int columnCount(const QModelIndex& parent) const override {
    return parent.isValid() ? 0 : static_cast<int>(VariantTableColumns().size());
  }

  QVariant data(const QModelIndex& index, int role) const override {
    const VariantRow& row = RowAt(index.row());
    switch (role) {
      case Qt::DisplayRole:
        return ToQt(ShownCell(CellAt(index), Column(index.column()), form_.Locale()));
      case Qt::TextAlignmentRole:
        return static_cast<int>(
            Qt::AlignVCenter |
            (std::holds_alternative<double>(CellAt(index)) ? Qt::AlignRight : Qt::AlignLeft));
      case Qt::ForegroundRole:
        return row.Passes()       ? QVariant()
               : row.IsPossible() ? WarningColor(QApplication::palette())
                                  : AsideColor(QApplication::palette());
      case Qt::ToolTipRole:
        return ToQt(form_.Describe(row));
      default:
        return {};
    }
  }

  QVariant headerData(int section, Qt::Orientation orientation, int role) const override {
    return orientation == Qt::Horizontal ? ColumnHead(Column(section), role) : QVariant();
  }

  void sort(int column, Qt::SortOrder order) override {
    form_.Sort({.Column = static_cast<std::size_t>(std::max(column, 0)),
                .Descending = column >= 0 && order == Qt::DescendingOrder});
  }

  void Renew() {
    beginResetModel();
    endResetModel();
  }
  const VariantRow& RowAt(int row) const {
    return *form_.List().Shown()[static_cast<std::size_t>(row)];
  }

 private:
  static const TableColumn& Column(int place) {
    return VariantTableColumns()[static_cast<std::size_t>(place)];
  }
  TableCell CellAt(const QModelIndex& index) const {
    return VariantCell(RowAt(index.row()), static_cast<std::size_t>(index.column()));
  }

  frmVariants& form_;
};

VariantTableView::VariantTableView(frmVariants& form, QWidget* parent)
    : QTableView(parent), form_(form), model_(new Model(form, this)) {
  setObjectName(QStringLiteral("VariantTable"));
  setAccessibleName(QStringLiteral("Варианты"));
  setModel(model_);
  setSelectionBehavior(QAbstractItemView::SelectRows);
  setSelectionMode(QAbstractItemView::ExtendedSelection);
  setAlternatingRowColors(true);
  setTabKeyNavigation(false);
  setWordWrap(false);
  setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
  verticalHeader()->hide();
  verticalHeader()->setMinimumSectionSize(fontMetrics().height() + 5);
  verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 5);
  QHeaderView* heads = horizontalHeader();
  heads->setHighlightSections(false);
  heads->setSectionsMovable(true);
  heads->setMinimumSectionSize(1);
  // What says most stands first; in files the columns keep their order.
  int place = 1;
  for (const std::size_t column : VariantMainColumns()) {
    heads->moveSection(heads->visualIndex(static_cast<int>(column)), place++);
  }
  heads->setSortIndicator(static_cast<int>(numberColumn), Qt::AscendingOrder);
  setSortingEnabled(true);
  AddCopy(this, [this] { Copy(); });
}

void VariantTableView::Refresh() {
  following_ = true;
  model_->Renew();
  following_ = false;
  ShowColumns();
  // Widths that the first rows ask for last until the study is through.
  if (!fitted_ || !form_.IsRunning()) {
    FitColumns();
  }
  fitted_ = !form_.List().Shown().empty();
  // While rows come in the user reads where he reads.
  setAutoScroll(false);
  GoToChosen();
  setAutoScroll(true);
}

void VariantTableView::ShowChosen() {
  if (following_ || !GoToChosen()) {
    return;
  }
  const int across = horizontalScrollBar()->value();
  scrollTo(currentIndex());
  horizontalScrollBar()->setValue(across);
}

bool VariantTableView::GoToChosen() {
  following_ = true;
  const std::optional<std::uint64_t> chosen = form_.Chosen();
  const std::optional<std::size_t> row =
      chosen ? form_.List().PlaceOf(*chosen) : std::optional<std::size_t>();
  if (!row) {
    setCurrentIndex({});
    clearSelection();
  } else if (currentIndex().row() != static_cast<int>(*row)) {
    setCurrentIndex(model_->index(static_cast<int>(*row), static_cast<int>(numberColumn)));
  }
  following_ = false;
  return row.has_value();
}

void VariantTableView::ShowColumns() {
  const bool all = form_.chkAllColumns.Checked();
  const bool gaps = form_.Axes[AxisName::Gap].On.Checked();
  for (std::size_t column = 0; column < VariantTableColumns().size(); ++column) {
    const bool wanted = all || (IsVariantGapColumn(column)
                                    ? gaps
                                    : !IsVariantColumnAside(column) || form_.List().Varies(column));
    setColumnHidden(static_cast<int>(column), !wanted);
  }
}

void VariantTableView::FitColumns() {
  constexpr int space = 14;
  constexpr int rows = 100;
  constexpr int widestText = 420;
  for (int column = 0; column < model_->columnCount({}); ++column) {
    int widest = 0;
    const QString head = model_->headerData(column, Qt::Horizontal, Qt::DisplayRole).toString();
    for (const QString& line : head.split(QLatin1Char('\n'))) {
      widest = std::max(widest, fontMetrics().horizontalAdvance(line));
    }
    for (int row = 0; row < std::min(rows, model_->rowCount({})); ++row) {
      widest = std::max(
          widest, fontMetrics().horizontalAdvance(model_->index(row, column).data().toString()));
    }
    // The mark of the sorting stands beside the narrowest head.
    const int mark = column == static_cast<int>(numberColumn) ? 2 * space : 0;
    setColumnWidth(column, std::min(widest, widestText) + space + mark);
  }
}

void VariantTableView::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
  QTableView::currentChanged(current, previous);
  if (!following_ && current.isValid()) {
    following_ = true;
    form_.Choose(model_->RowAt(current.row()).Number);
    // The focus alone makes a row the current one without choosing it.
    if (!selectionModel()->isRowSelected(current.row())) {
      selectRow(current.row());
    }
    following_ = false;
  }
}

void VariantTableView::Copy() const {
  std::vector<const VariantRow*> rows;
  for (const QModelIndex& index : selectionModel()->selectedRows()) {
    rows.push_back(&model_->RowAt(index.row()));
  }
  QApplication::clipboard()->setText(
      ToQt(TabSeparated(frmVariants::TableOf(rows), form_.Locale())));
}

}  // namespace trelonit
