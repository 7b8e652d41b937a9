#include "windows/KoeffOfUseWindow.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QPushButton>
#include <QScreen>
#include <QSplitter>

#include "windows/Binding.h"
#include "windows/Layouts.h"
#include "windows/Pictures.h"
#include "windows/ResultViews.h"

namespace trelonit {

namespace {

/// What a user expects of Ctrl+C in a list: the chosen lines, or all of them.
void CopyLines(const QListWidget& list) {
  QStringList lines;
  for (int row = 0; row < list.count(); ++row) {
    if (list.selectedItems().isEmpty() || list.item(row)->isSelected()) {
      lines << list.item(row)->text();
    }
  }
  QApplication::clipboard()->setText(lines.join(QLatin1Char('\n')));
}

void CopyRows(const QTableWidget& table) {
  QStringList lines;
  for (int row = 0; row < table.rowCount(); ++row) {
    if (table.selectedItems().isEmpty() || table.item(row, 0)->isSelected()) {
      lines << table.item(row, 0)->text() + QLatin1Char('\t') + table.item(row, 1)->text();
    }
  }
  QApplication::clipboard()->setText(lines.join(QLatin1Char('\n')));
}

template <class Copy>
void AddCopy(QWidget* widget, Copy copy) {
  auto* action = new QAction(QStringLiteral("&Копировать"), widget);
  action->setShortcut(QKeySequence::Copy);
  action->setShortcutContext(Qt::WidgetShortcut);
  widget->addAction(action);
  widget->setContextMenuPolicy(Qt::ActionsContextMenu);
  QObject::connect(action, &QAction::triggered, widget, copy);
}

/// Group heads stand out, and so does what exceeds the limit.
void Emphasise(QTableWidget& table, const frmKoeffOfUse& form) {
  for (int row = 0; row < table.rowCount(); ++row) {
    const bool head = table.item(row, 1)->text() == QLatin1String("***");
    const auto place = static_cast<std::size_t>(row);
    const bool exceeded = place < form.Picture.OverLimit.size() && form.Picture.OverLimit[place];
    for (int column = 0; column < table.columnCount(); ++column) {
      QTableWidgetItem* item = table.item(row, column);
      if (head || exceeded) {
        QFont font = item->font();
        font.setBold(true);
        item->setFont(font);
      }
      if (exceeded) {
        item->setForeground(WarningColor(table.palette()));
      }
    }
  }
}

QTableWidget* MakeGrid(frmKoeffOfUse& form) {
  auto* table = new QTableWidget;
  table->setObjectName(QStringLiteral("MSFlexGKoefUse"));
  table->setAccessibleName(ToQt(form.framKoef.Caption()));
  table->setSelectionBehavior(QAbstractItemView::SelectRows);
  table->verticalHeader()->hide();
  table->setAlternatingRowColors(true);
  Bind(form.MSFlexGKoefUse, table);
  table->horizontalHeader()->setSectionResizeMode(0, QHeaderView::Stretch);
  table->horizontalHeader()->setSectionResizeMode(1, QHeaderView::ResizeToContents);
  Emphasise(*table, form);
  // The longest checks take two lines in a narrow window.
  table->verticalHeader()->setMinimumSectionSize(22);
  table->verticalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
  AddCopy(table, [table] { CopyRows(*table); });
  return table;
}

QListWidget* MakeList(frmKoeffOfUse& form) {
  auto* list = new QListWidget;
  list->setObjectName(QStringLiteral("lstForces"));
  list->setAccessibleName(ToQt(form.framForces.Caption()));
  list->setSelectionMode(QAbstractItemView::ExtendedSelection);
  list->setUniformItemSizes(true);
  Bind(form.lstForces, list);
  AddCopy(list, [list] { CopyLines(*list); });
  return list;
}

}  // namespace

KoeffOfUseWindow::KoeffOfUseWindow(frmKoeffOfUse& form, QWidget* parent)
    : FormDialog(form.Form, form.Unload, parent), form_(form) {
  setWindowFlag(Qt::WindowMaximizeButtonHint);
  resize(QSize(1120, 680).boundedTo(screen()->availableSize() * 9 / 10));
  auto* column = new QVBoxLayout(this);
  auto* parts = new QSplitter;
  parts->setChildrenCollapsible(false);
  column->addWidget(parts, 1);

  const auto addSide = [parts](int stretch) {
    auto* side = new QWidget;
    auto* layout = new QVBoxLayout(side);
    layout->setContentsMargins(0, 0, 0, 0);
    parts->addWidget(side);
    parts->setStretchFactor(parts->count() - 1, stretch);
    return layout;
  };
  auto* left = addSide(1);
  AddGroup<QVBoxLayout>(left, ToQt(form_.framKoef.Caption()), 1)->addWidget(MakeGrid(form_));
  auto* chart = new UseChart(form_.Picture.Use);
  chart->setObjectName(QStringLiteral("UseChart"));
  chart->setAccessibleName(QStringLiteral("Наибольший коэффициент каждой группы"));
  AddGroup<QVBoxLayout>(left, QStringLiteral("Наибольший коэффициент группы"))->addWidget(chart);

  auto* right = addSide(1);
  auto* truss = new TrussView(form_.Picture.Bars);
  truss->setObjectName(QStringLiteral("TrussView"));
  truss->setAccessibleName(QStringLiteral("Ферма с усилиями в стержнях"));
  AddGroup<QVBoxLayout>(right, QStringLiteral("Ферма"), 1)->addWidget(truss);
  AddGroup<QVBoxLayout>(right, ToQt(form_.framForces.Caption()), 1)->addWidget(MakeList(form_));

  parts->setSizes({1, 1});
  auto* close = new QPushButton(ToQt(form_.cmdClose.Caption()));
  close->setObjectName(QStringLiteral("cmdClose"));
  close->setDefault(true);
  QObject::connect(close, &QPushButton::clicked, this, [this] { form_.cmdClose_Click(); });
  auto* buttons = new QHBoxLayout;
  buttons->addStretch();
  buttons->addWidget(close);
  column->addLayout(buttons);
  close->setFocus();
}

}  // namespace trelonit
