#include "windows/results/BarTableView.h"

#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <algorithm>

#include "windows/binding/Binding.h"
#include "windows/binding/Pictures.h"
#include "windows/results/ColumnHead.h"
#include "windows/results/CopyAction.h"

namespace trelonit {

namespace {

constexpr int sortRole = Qt::UserRole;
/// The places of the columns that are shown in colours.
constexpr int forceColumn = 3;
constexpr int firstCoefficient = 5;

}  // namespace

/// The cells as they are shown and, by another role, as they are compared.
class BarTableView::Model : public QAbstractTableModel {
 public:
  Model(const BarTableView& view, QObject* parent) : QAbstractTableModel(parent), view_(view) {}

  int rowCount(const QModelIndex& parent) const override {
    return parent.isValid() ? 0 : static_cast<int>(Table().Rows.size());
  }
  int columnCount(const QModelIndex& parent) const override {
    return parent.isValid() ? 0 : static_cast<int>(Table().Columns.size());
  }

  QVariant data(const QModelIndex& index, int role) const override {
    const TableCell& cell =
        Table()
            .Rows[static_cast<std::size_t>(index.row())][static_cast<std::size_t>(index.column())];
    const auto* number = std::get_if<double>(&cell);
    switch (role) {
      case Qt::DisplayRole:
        return ToQt(ShownCell(cell, Column(index.column()), view_.locale_));
      case sortRole:
        return number != nullptr ? QVariant(*number)
               : std::holds_alternative<std::string>(cell)
                   ? QVariant(ToQt(std::get<std::string>(cell)))
                   : QVariant();
      case Qt::TextAlignmentRole:
        return static_cast<int>(Qt::AlignVCenter |
                                (number != nullptr ? Qt::AlignRight : Qt::AlignLeft));
      case Qt::ForegroundRole:
        return number != nullptr ? Ink(index.column(), *number) : QVariant();
      case Qt::FontRole:
        return number != nullptr && IsExceeded(index.column(), *number) ? Bold() : QVariant();
      default:
        return {};
    }
  }

  QVariant headerData(int section, Qt::Orientation orientation, int role) const override {
    return orientation == Qt::Horizontal ? ColumnHead(Column(section), role) : QVariant();
  }

 private:
  const ResultTable& Table() const { return view_.table_.Table; }
  const TableColumn& Column(int place) const {
    return Table().Columns[static_cast<std::size_t>(place)];
  }
  static bool IsExceeded(int column, double value) {
    return column >= firstCoefficient && value > 1;
  }
  QVariant Ink(int column, double value) const {
    if (IsExceeded(column, value)) {
      return WarningColor(view_.palette());
    }
    if (column == forceColumn && value != 0) {
      return value > 0 ? TensionColor(view_.palette()) : CompressionColor(view_.palette());
    }
    return {};
  }
  QVariant Bold() const {
    QFont font = view_.font();
    font.setBold(true);
    return font;
  }

  const BarTableView& view_;
};

BarTableView::BarTableView(BarTable table, NumberLocale locale, QWidget* parent)
    : QTableView(parent), table_(std::move(table)), locale_(std::move(locale)) {
  setObjectName(QStringLiteral("BarTable"));
  setAccessibleName(ToQt(table_.Table.Title));
  sorted_.setSourceModel(new Model(*this, &sorted_));
  sorted_.setSortRole(sortRole);
  sorted_.setSortLocaleAware(true);
  setModel(&sorted_);
  setSelectionBehavior(QAbstractItemView::SelectRows);
  setSelectionMode(QAbstractItemView::ExtendedSelection);
  setAlternatingRowColors(true);
  setTabKeyNavigation(false);
  setWordWrap(false);
  verticalHeader()->hide();
  verticalHeader()->setMinimumSectionSize(fontMetrics().height() + 5);
  verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 5);
  horizontalHeader()->setHighlightSections(false);
  // Until the user sorts, the rows stand as in the list of the forces.
  horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder);
  setSortingEnabled(true);
  FitColumns();
  AddCopy(this, [this] { Copy(); });
}

void BarTableView::FitColumns() {
  horizontalHeader()->setMinimumSectionSize(1);
  constexpr int space = 12;
  for (int column = 0; column < sorted_.columnCount(); ++column) {
    const QString head = sorted_.headerData(column, Qt::Horizontal).toString();
    int widest = 0;
    for (const QString& line : head.split(QLatin1Char('\n'))) {
      widest = std::max(widest, fontMetrics().horizontalAdvance(line));
    }
    for (int row = 0; row < sorted_.rowCount(); ++row) {
      widest = std::max(
          widest, fontMetrics().horizontalAdvance(sorted_.index(row, column).data().toString()));
    }
    setColumnWidth(column, widest + space);
  }
}

void BarTableView::Choose(const MarkedBar& bar) {
  const auto found = std::find(table_.Bars.begin(), table_.Bars.end(), bar);
  if (found != table_.Bars.end()) {
    const QModelIndex row = sorted_.mapFromSource(
        sorted_.sourceModel()->index(static_cast<int>(found - table_.Bars.begin()), 0));
    setCurrentIndex(row);
    scrollTo(row);
  }
}

void BarTableView::selectionChanged(const QItemSelection& selected,
                                    const QItemSelection& deselected) {
  QTableView::selectionChanged(selected, deselected);
  if (Chosen) {
    Chosen(ChosenBar());
  }
}

std::optional<MarkedBar> BarTableView::ChosenBar() const {
  const QModelIndexList rows = selectionModel()->selectedRows();
  if (rows.isEmpty()) {
    return std::nullopt;
  }
  const QModelIndex current = selectionModel()->currentIndex();
  const QModelIndex& row = selectionModel()->isSelected(current) ? current : rows.front();
  return table_.Bars[static_cast<std::size_t>(sorted_.mapToSource(row).row())];
}

ResultTable BarTableView::Rows(bool chosenOnly) const {
  ResultTable shown{.Title = table_.Table.Title, .Columns = table_.Table.Columns};
  const bool all = !chosenOnly || !selectionModel()->hasSelection();
  for (int row = 0; row < sorted_.rowCount(); ++row) {
    const QModelIndex place = sorted_.index(row, 0);
    if (all || selectionModel()->isSelected(place)) {
      shown.Rows.push_back(
          table_.Table.Rows[static_cast<std::size_t>(sorted_.mapToSource(place).row())]);
    }
  }
  return shown;
}

ResultTable BarTableView::Shown() const {
  return Rows(false);
}

void BarTableView::Copy() const {
  QApplication::clipboard()->setText(ToQt(TabSeparated(Rows(true), locale_)));
}

}  // namespace trelonit
