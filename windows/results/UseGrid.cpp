#include "windows/results/UseGrid.h"

#include <QApplication>
#include <QClipboard>
#include <QEvent>
#include <QHeaderView>
#include <algorithm>
#include <map>
#include <utility>

#include "opinion/Opinion.h"
#include "windows/binding/Binding.h"
#include "windows/binding/Pictures.h"
#include "windows/results/CopyAction.h"

namespace trelonit {

namespace {

constexpr int toldColumns = 2;
constexpr int checkColumn = 0;
constexpr int opinionColumn = 2;
/// Narrower, the names of the checks would fall to pieces.
constexpr int narrowestLetters = 54;
constexpr int narrowestColumn = 76;

void MakeBold(QTableWidgetItem& item) {
  QFont font = item.font();
  font.setBold(true);
  item.setFont(font);
}

}  // namespace

UseGrid::UseGrid(frmKoeffOfUse& form, QWidget* parent)
    : QTableWidget(parent), form_(form), rows_([this] { FitRows(); }) {
  setObjectName(QStringLiteral("MSFlexGKoefUse"));
  setAccessibleName(ToQt(form_.framKoef.Caption()));
  setSelectionBehavior(QAbstractItemView::SelectRows);
  setTabKeyNavigation(false);
  setMinimumWidth(narrowestLetters * fontMetrics().averageCharWidth());
  verticalHeader()->hide();
  setAlternatingRowColors(true);
  Bind(form_.MSFlexGKoefUse, this);
  AddOpinion();
  Emphasise();
  horizontalHeader()->setHighlightSections(false);
  horizontalHeader()->setMinimumSectionSize(narrowestColumn);
  horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  horizontalHeader()->setSectionResizeMode(checkColumn, QHeaderView::Stretch);
  verticalHeader()->setMinimumSectionSize(22);
  verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  FitFigures();
  // The longest checks take two lines in a narrow window.
  rows_.Ask();
  QObject::connect(horizontalHeader(), &QHeaderView::sectionResized, this, [this](int column) {
    if (column == checkColumn) {
      rows_.Ask();
    }
  });
  AddCopy(this, [this] { Copy(); });
  QObject::connect(this, &QTableWidget::itemSelectionChanged, this, [this] {
    if (Chosen) {
      Chosen(ChosenRow());
    }
  });
}

void UseGrid::changeEvent(QEvent* event) {
  QTableWidget::changeEvent(event);
  if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange) {
    FitFigures();
    rows_.Ask();
  }
}

void UseGrid::FitFigures() {
  for (int column = checkColumn + 1; column < columnCount(); ++column) {
    resizeColumnToContents(column);
  }
}

void UseGrid::FitRows() {
  // Most rows are of one line: how high such a one is depends on which of its columns are bold.
  std::map<std::pair<bool, bool>, int> oneLine;
  const auto measured = [this](int row) {
    return std::max(sizeHintForRow(row), verticalHeader()->sectionSizeHint(row));
  };
  for (int row = 0; row < rowCount(); ++row) {
    if (!IsOfOneLine(row)) {
      setRowHeight(row, measured(row));
      continue;
    }
    const std::pair fonts(item(row, checkColumn)->font().bold(),
                          item(row, opinionColumn)->font().bold());
    const auto known = oneLine.find(fonts);
    setRowHeight(row, known != oneLine.end() ? known->second
                                             : oneLine.emplace(fonts, measured(row)).first->second);
  }
}

bool UseGrid::IsOfOneLine(int row) const {
  // More than any style keeps at the ends of a text.
  constexpr int ends = 24;
  const QTableWidgetItem& check = *item(row, checkColumn);
  return QFontMetrics(check.font()).horizontalAdvance(check.text()) + ends <=
         columnWidth(checkColumn);
}

void UseGrid::AddOpinion() {
  setColumnCount(opinionColumn + 1);
  auto* head = new QTableWidgetItem(QStringLiteral("СНиП"));
  head->setToolTip(QStringLiteral("Второе мнение: тот же коэффициент, найденный заново по %1")
                       .arg(QString::fromUtf8(normName)));
  setHorizontalHeaderItem(opinionColumn, head);
  for (int row = 0; row < rowCount(); ++row) {
    const auto place = static_cast<std::size_t>(row);
    auto* item = new QTableWidgetItem;
    item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
    item->setTextAlignment(Qt::AlignRight | Qt::AlignVCenter);
    if (place < form_.Rows.size()) {
      item->setText(ToQt(form_.Rows[place].Opinion));
      if (form_.Rows[place].OpinionFails) {
        MakeBold(*item);
        item->setForeground(WarningColor(palette()));
      }
    }
    setItem(row, opinionColumn, item);
  }
}

void UseGrid::Emphasise() {
  for (int row = 0; row < rowCount(); ++row) {
    const bool head = item(row, 1)->text() == QLatin1String("***");
    const auto place = static_cast<std::size_t>(row);
    const bool exceeded = place < form_.Picture.OverLimit.size() && form_.Picture.OverLimit[place];
    for (int column = 0; column < toldColumns; ++column) {
      QTableWidgetItem& told = *item(row, column);
      if (head || exceeded) {
        MakeBold(told);
      }
      if (exceeded) {
        told.setForeground(WarningColor(palette()));
      }
    }
  }
}

void UseGrid::Copy() const {
  QStringList lines;
  for (int row = 0; row < rowCount(); ++row) {
    if (selectedItems().isEmpty() || item(row, 0)->isSelected()) {
      QStringList cells;
      for (int column = 0; column < columnCount(); ++column) {
        cells << item(row, column)->text();
      }
      lines << cells.join(QLatin1Char('\t'));
    }
  }
  QApplication::clipboard()->setText(lines.join(QLatin1Char('\n')));
}

const ResultRow* UseGrid::ChosenRow() const {
  const QList<QTableWidgetItem*> selected = selectedItems();
  if (selected.isEmpty()) {
    return nullptr;
  }
  const QTableWidgetItem* current = currentItem();
  const int row =
      current != nullptr && current->isSelected() ? current->row() : selected.front()->row();
  const auto place = static_cast<std::size_t>(row);
  return place < form_.Rows.size() ? &form_.Rows[place] : nullptr;
}

}  // namespace trelonit
