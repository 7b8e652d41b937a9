#include "windows/dialogs/DataManagerWindow.h"

#include <QGridLayout>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMenuBar>
#include <QPushButton>
#include <QShortcut>
#include <QSplitter>

#include "windows/binding/Binding.h"
#include "windows/binding/Layouts.h"
#include "windows/dialogs/RecordTable.h"

namespace trelonit {

namespace {

/// Leaves Ctrl+Home and Ctrl+End to the window: in one line they only repeat Home and End.
class RecordBox : public QLineEdit {
 protected:
  bool event(QEvent* event) override {
    if (event->type() == QEvent::ShortcutOverride) {
      const auto* press = static_cast<QKeyEvent*>(event);
      const bool ends = press->key() == Qt::Key_Home || press->key() == Qt::Key_End;
      if (ends && (press->modifiers() & ~Qt::KeypadModifier) == Qt::ControlModifier) {
        return false;
      }
    }
    return QLineEdit::event(event);
  }
};

}  // namespace

DataManagerWindow::DataManagerWindow(frmDataManager& form, QWidget* parent)
    : FormDialog(form.Form, form.Unload, parent), form_(form) {
  setWindowFlag(Qt::WindowMaximizeButtonHint);
  ResizeWithinScreen(*this, {1360, 660});
  auto* column = new QVBoxLayout(this);
  AddMenu(column);
  auto* sides = new QSplitter;
  sides->setChildrenCollapsible(false);
  column->addWidget(sides, 1);
  const auto newSide = [sides](int share) {
    auto* side = new QWidget;
    sides->addWidget(side);
    sides->setStretchFactor(sides->count() - 1, share);
    auto* layout = new QVBoxLayout(side);
    layout->setContentsMargins(0, 0, 0, 0);
    return layout;
  };
  QBoxLayout* left = newSide(0);
  AddRecord(left);
  AddCommands(left);
  AddTable(newSide(1));
}

void DataManagerWindow::AddTable(QBoxLayout* column) {
  AddSearch(column);
  column->addWidget(new RecordTable(form_), 1);
  auto* found = new QLabel;
  found->setObjectName(QStringLiteral("lblFound"));
  Bind(form_.lblFound, found);
  column->addWidget(found);
}

void DataManagerWindow::AddSearch(QBoxLayout* column) {
  auto* row = new QHBoxLayout;
  column->addLayout(row);
  const auto button = [&](const char* name, const QString& caption, const QString& hint,
                          const QKeySequence& key, void (frmDataManager::*click)()) {
    auto* push = new QPushButton(caption);
    push->setObjectName(QLatin1String(name));
    push->setAutoDefault(false);
    SetHint(push, key.isEmpty() ? hint
                                : hint + QStringLiteral(" (") +
                                      key.toString(QKeySequence::NativeText) + QStringLiteral(")"));
    push->setAccessibleName(QString(caption).remove(QLatin1Char('&')));
    QObject::connect(push, &QPushButton::clicked, this, [this, click] { (form_.*click)(); });
    if (!key.isEmpty()) {
      QObject::connect(new QShortcut(key, this), &QShortcut::activated, this,
                       [this, click] { (form_.*click)(); });
    }
    row->addWidget(push);
  };
  const auto box = [&](TextBox& state, const char* name, const QString& caption, int letters,
                       const QKeySequence& key, void (frmDataManager::*enter)()) {
    auto* edit = new RecordBox;
    edit->setObjectName(QLatin1String(name));
    edit->setMinimumWidth(letters * edit->fontMetrics().averageCharWidth());
    edit->setToolTip(key.toString(QKeySequence::NativeText));
    Bind(state, edit);
    row->addWidget(LabelFor(edit, caption));
    row->addWidget(edit, letters);
    QObject::connect(edit, &QLineEdit::returnPressed, this, [this, enter] { (form_.*enter)(); });
    QObject::connect(new QShortcut(key, this), &QShortcut::activated, edit, [edit] {
      edit->setFocus();
      edit->selectAll();
    });
  };
  button("cmdOwnCatalogue", QStringLiteral("&Каталог программы"),
         QStringLiteral("Загрузить каталог, с которым работает программа"), {},
         &frmDataManager::cmdOwnCatalogue_Click);
  row->addStretch();
  row = new QHBoxLayout;
  column->addLayout(row);
  box(form_.txtFind, "txtFind", QStringLiteral("&Обозначение"), 16, QKeySequence::Find,
      &frmDataManager::cmdFindNext_Click);
  button("cmdFindNext", QStringLiteral("&Найти"),
         QStringLiteral("Следующая запись, в обозначении которой есть этот текст"),
         QKeySequence::FindNext, &frmDataManager::cmdFindNext_Click);
  box(form_.txtGoTo, "txtGoTo", QStringLiteral("З&апись"), 10, QKeySequence(Qt::CTRL | Qt::Key_G),
      &frmDataManager::cmdGoTo_Click);
  button("cmdGoTo", QStringLiteral("Пере&йти"), QStringLiteral("Показать запись с этим номером"),
         {}, &frmDataManager::cmdGoTo_Click);
}

void DataManagerWindow::AddMenu(QBoxLayout* column) {
  auto* bar = new QMenuBar;
  column->setMenuBar(bar);
  QMenu* file = bar->addMenu(QStringLiteral("&Файл"));
  const auto item = [&](const char* name, const QString& caption, const QKeySequence& key,
                        void (frmDataManager::*click)()) {
    QAction* action = file->addAction(caption);
    action->setObjectName(QLatin1String(name));
    action->setShortcut(key);
    QObject::connect(action, &QAction::triggered, this, [this, click] { (form_.*click)(); });
  };
  item("mnuLoadDB", QStringLiteral("Загрузить"), QKeySequence::Open,
       &frmDataManager::cmdLoadDB_Click);
  item("CheckueDB", QStringLiteral("Проверка"), {}, &frmDataManager::CheckueDB_Click);
  item("Exit", QStringLiteral("Закрыть"), QKeySequence::Close, &frmDataManager::Exit_Click);
}

void DataManagerWindow::AddRecord(QBoxLayout* column) {
  auto* grid = AddGroup<QGridLayout>(column, QStringLiteral("Запись"), 1);
  // Two columns of boxes, read down; the two texts are long and stand over both.
  constexpr int pairs = 2;
  constexpr Long texts = 2;
  constexpr Long rowsOfNumbers = (frmDataManager::boxCount - texts) / pairs;
  for (Long number = 1; number <= frmDataManager::boxCount; ++number) {
    auto* edit = new RecordBox;
    edit->setObjectName(QStringLiteral("Text%1").arg(number));
    Bind(form_.Text[number], edit);
    auto* label = LabelFor(edit, ToQt(form_.lblText[number].Caption()));
    if (number <= texts) {
      grid->addWidget(label, static_cast<int>(number - 1), 0);
      grid->addWidget(edit, static_cast<int>(number - 1), 1, 1, 3);
      continue;
    }
    const Long place = number - texts - 1;
    const int row = static_cast<int>(texts + place % rowsOfNumbers);
    const int side = static_cast<int>(place / rowsOfNumbers) * pairs;
    grid->addWidget(label, row, side);
    grid->addWidget(edit, row, side + 1);
  }
  auto* health = new QLabel;
  health->setObjectName(QStringLiteral("lblHealth"));
  health->setWordWrap(true);
  health->setMinimumHeight(3 * health->fontMetrics().lineSpacing());
  health->setAlignment(Qt::AlignTop | Qt::AlignLeft);
  Follow(form_.lblHealth, health, [this, health] { ShowColoured(form_.lblHealth, health); });
  column->addWidget(health);
}

void DataManagerWindow::AddCommands(QBoxLayout* column) {
  auto* moves = new QHBoxLayout;
  column->addLayout(moves);
  const auto button = [this](QBoxLayout* row, const char* name, const QString& caption,
                             const QString& hint, const QKeySequence& key,
                             void (frmDataManager::*click)()) {
    auto* push = new QPushButton(caption);
    push->setObjectName(QLatin1String(name));
    push->setAutoDefault(false);
    if (!key.isEmpty()) {
      // Not the button's own shortcut: that one takes the mnemonic away and, as the button stays
      // down for a moment, loses the steps of a key that is held.
      auto* shortcut = new QShortcut(key, this);
      QObject::connect(shortcut, &QShortcut::activated, this, [this, click] { (form_.*click)(); });
    }
    push->setAccessibleName(hint.isEmpty() ? QString(caption).remove(QLatin1Char('&')) : hint);
    push->setToolTip(key.isEmpty()
                         ? hint
                         : hint + QStringLiteral(" (") + key.toString(QKeySequence::NativeText) +
                               QStringLiteral(")"));
    QObject::connect(push, &QPushButton::clicked, this, [this, click] { (form_.*click)(); });
    row->addWidget(push);
  };
  button(moves, "cmdFirst", QStringLiteral("|<"), QStringLiteral("Перейти в начало"),
         QKeySequence(Qt::CTRL | Qt::Key_Home), &frmDataManager::cmdFirst_Click);
  button(moves, "cmdPrew100", QStringLiteral("<<"), QStringLiteral("На 100 позиций назад"),
         QKeySequence(Qt::CTRL | Qt::Key_PageUp), &frmDataManager::cmdPrew100_Click);
  button(moves, "cmdPrew", QStringLiteral("<"), QStringLiteral("на 1 позицию назад"),
         QKeySequence(Qt::Key_PageUp), &frmDataManager::cmdPrew_Click);
  button(moves, "cmdForv", QStringLiteral(">"), QStringLiteral("на 1 позицию вперед"),
         QKeySequence(Qt::Key_PageDown), &frmDataManager::cmdForv_Click);
  button(moves, "cmdForv100", QStringLiteral(">>"), QStringLiteral("на 100 позиций вперед"),
         QKeySequence(Qt::CTRL | Qt::Key_PageDown), &frmDataManager::cmdForv100_Click);
  button(moves, "cmdLastpoz", QStringLiteral(">|"), QStringLiteral("перейти в конец"),
         QKeySequence(Qt::CTRL | Qt::Key_End), &frmDataManager::cmdLastpoz_Click);

  auto* lower = new QHBoxLayout;
  column->addLayout(lower);
  const auto count = [&](const QString& caption, Label& state, const char* name) {
    lower->addWidget(new QLabel(caption));
    auto* label = new QLabel;
    label->setObjectName(QLatin1String(name));
    Bind(state, label);
    lower->addWidget(label);
    lower->addSpacing(16);
  };
  count(QStringLiteral("Текущая запись ="), form_.lblCurr, "lblCurr");
  count(QStringLiteral("Всего записей  ="), form_.lblTotal, "lblTotal");
  lower->addStretch();
  button(lower, "cmdLoadDB", QStringLiteral("&Загрузить БД"),
         QStringLiteral("Загрузить файл Базы Данных"), {}, &frmDataManager::cmdLoadDB_Click);
  button(lower, "cmdEditCurrent", QStringLiteral("&Редактировать текущую запись"),
         QStringLiteral("Внести в Базу Данных изменения для текущей записи"),
         QKeySequence(Qt::CTRL | Qt::Key_Return), &frmDataManager::cmdEditCurrent_Click);
}

}  // namespace trelonit
