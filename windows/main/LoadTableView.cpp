#include "windows/main/LoadTableView.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QEvent>
#include <QHeaderView>
#include <algorithm>
#include <array>

#include "windows/binding/Binding.h"
#include "windows/binding/Pictures.h"

namespace trelonit {

namespace {

const std::array loadHeads{QStringLiteral("Пояс"), QStringLiteral("Место"), QStringLiteral("№"),
                           QStringLiteral("Величина, т (т/м)")};

}  // namespace

LoadTableModel::LoadTableModel(LoadEditor& editor, QObject* parent)
    : QAbstractTableModel(parent), editor_(editor), rows_(editor.Rows()) {}

void LoadTableModel::Refresh() {
  std::vector<LoadRow> rows = editor_.Rows();
  if (rows.size() != rows_.size()) {
    beginResetModel();
    rows_ = std::move(rows);
    endResetModel();
  } else if (rows != rows_) {
    rows_ = std::move(rows);
    emit dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
  }
}

int LoadTableModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

int LoadTableModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(loadHeads.size());
}

QVariant LoadTableModel::data(const QModelIndex& index, int role) const {
  const LoadRow& row = rows_[static_cast<std::size_t>(index.row())];
  switch (role) {
    case Qt::DisplayRole:
    case Qt::EditRole:
      return ToQt(editor_.Columns(row)[static_cast<std::size_t>(index.column())]);
    case Qt::TextAlignmentRole:
      return QVariant(index.column() >= 2 ? Qt::AlignRight | Qt::AlignVCenter
                                          : Qt::AlignLeft | Qt::AlignVCenter);
    case Qt::ForegroundRole:
      return row.OwnWeight ? QVariant(AsideColor(QApplication::palette())) : QVariant();
    case Qt::ToolTipRole:
      if (row.OwnWeight) {
        return QStringLiteral("Собственный вес прибавлен расчетом ко всем панелям, т/м");
      }
      return row.Spot.Panel ? QStringLiteral("т/м, вниз - с плюсом")
                            : QStringLiteral("тонн, вниз - с плюсом");
    default:
      return {};
  }
}

QVariant LoadTableModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || role != Qt::DisplayRole) {
    return {};
  }
  return loadHeads[static_cast<std::size_t>(section)];
}

Qt::ItemFlags LoadTableModel::flags(const QModelIndex& index) const {
  Qt::ItemFlags flags = QAbstractTableModel::flags(index);
  if (index.isValid() && index.column() == valueColumn &&
      !rows_[static_cast<std::size_t>(index.row())].OwnWeight) {
    flags |= Qt::ItemIsEditable;
  }
  return flags;
}

bool LoadTableModel::setData(const QModelIndex& index, const QVariant& value, int role) {
  return role == Qt::EditRole &&
         editor_.Type(static_cast<std::size_t>(index.row()), FromQt(value.toString()));
}

LoadTableView::LoadTableView(LoadEditor& editor, QWidget* parent)
    : QTableView(parent), editor_(editor), model_(editor), columns_([this] { FitColumns(); }) {
  setModel(&model_);
  setAccessibleName(QStringLiteral("Нагрузки таблицей"));
  setSelectionBehavior(QAbstractItemView::SelectRows);
  setAlternatingRowColors(true);
  // The tabulator goes on to the next input of the window.
  setTabKeyNavigation(false);
  verticalHeader()->hide();
  verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 6);
  horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  horizontalHeader()->setStretchLastSection(true);
  QObject::connect(&model_, &QAbstractItemModel::modelReset, this, [this] { columns_.Ask(); });
  QObject::connect(&model_, &QAbstractItemModel::dataChanged, this, [this] { columns_.Ask(); });
  columns_.Ask();
  setContextMenuPolicy(Qt::ActionsContextMenu);
  AddCommand(QStringLiteral("Копировать"), QKeySequence::Copy, "mnuLoadCopy",
             [this] { QApplication::clipboard()->setText(ToQt(editor_.Copy(SelectedRows()))); });
  AddCommand(QStringLiteral("Вставить из таблицы"), QKeySequence::Paste, "mnuLoadPaste", [this] {
    const int row = std::max(0, currentIndex().row());
    editor_.Paste(static_cast<std::size_t>(row), FromQt(QApplication::clipboard()->text()));
  });
  AddCommand(QStringLiteral("Удалить"), QKeySequence::Delete, "mnuLoadDelete",
             [this] { editor_.Delete(SelectedRows()); });
  AddCommand(QStringLiteral("Заполнить вниз"), QKeySequence(Qt::CTRL | Qt::Key_D), "mnuLoadFill",
             [this] { editor_.FillDown(SelectedRows()); });
  Refresh();
}

void LoadTableView::changeEvent(QEvent* event) {
  QTableView::changeEvent(event);
  if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
    columns_.Ask();
  }
}

void LoadTableView::FitColumns() {
  for (int column = 0; column + 1 < model_.columnCount(); ++column) {
    resizeColumnToContents(column);
  }
}

void LoadTableView::AddCommand(const QString& caption, const QKeySequence& key, const char* name,
                               std::function<void()> run) {
  auto* action = new QAction(caption, this);
  action->setObjectName(QLatin1String(name));
  action->setShortcut(key);
  // While a value is being edited the keys are those of its box.
  action->setShortcutContext(Qt::WidgetShortcut);
  QObject::connect(action, &QAction::triggered, this, std::move(run));
  addAction(action);
}

std::vector<std::size_t> LoadTableView::SelectedRows() const {
  std::vector<std::size_t> rows;
  for (const QModelIndex& index : selectionModel()->selectedRows()) {
    rows.push_back(static_cast<std::size_t>(index.row()));
  }
  std::sort(rows.begin(), rows.end());
  return rows;
}

void LoadTableView::Refresh() {
  following_ = true;
  model_.Refresh();
  const std::optional<LoadSpot> picked = editor_.Picked();
  const auto& rows = model_.Rows();
  const auto found = std::find_if(rows.begin(), rows.end(), [&](const LoadRow& row) {
    return picked && !row.OwnWeight && row.Spot == *picked;
  });
  const int row = static_cast<int>(found - rows.begin());
  // The rows that the user has selected stay so while the chosen one is the same.
  if (found != rows.end() && currentIndex().row() != row) {
    setCurrentIndex(model_.index(row, LoadTableModel::valueColumn));
  }
  following_ = false;
}

void LoadTableView::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
  QTableView::currentChanged(current, previous);
  if (following_ || !current.isValid()) {
    return;
  }
  const LoadRow& row = model_.Rows()[static_cast<std::size_t>(current.row())];
  if (!row.OwnWeight) {
    // What that shows is this row: nothing is to be followed.
    following_ = true;
    editor_.Pick(row.Spot);
    following_ = false;
  }
}

void LoadTableView::closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) {
  QTableView::closeEditor(editor, hint);
  const QModelIndex below = currentIndex().siblingAtRow(currentIndex().row() + 1);
  if (hint == QAbstractItemDelegate::SubmitModelCache && below.isValid()) {
    setCurrentIndex(below);
  }
}

}  // namespace trelonit
