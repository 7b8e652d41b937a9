#include "windows/variants/VariantsWindow.h"

#include <QApplication>
#include <QCloseEvent>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QMenuBar>
#include <QProgressBar>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QSplitter>

#include "windows/binding/Binding.h"
#include "windows/binding/ClearButton.h"
#include "windows/binding/Layouts.h"
#include "windows/binding/Pictures.h"
#include "windows/main/NoticeViews.h"
#include "windows/variants/VariantAxesPanel.h"
#include "windows/variants/VariantPlotView.h"
#include "windows/variants/VariantTableView.h"

namespace trelonit {

namespace {

constexpr const char* windowSection = "VariantsWindow";
constexpr QSize usualSize{1360, 840};
constexpr int newsInterval = 250;
constexpr int progressSteps = 1000;

QLabel* NewWords(Label& state, const char* name) {
  auto* label = new QLabel;
  label->setObjectName(QLatin1String(name));
  label->setTextFormat(Qt::PlainText);
  label->setWordWrap(true);
  Follow(state, label, [&state, label] { ShowColoured(state, label); });
  return label;
}

QComboBox* NewCombo(ComboBox& state, const char* name) {
  auto* box = new QComboBox;
  box->setObjectName(QLatin1String(name));
  Bind(state, box);
  return box;
}

QWidget* NewBody(QVBoxLayout*& column) {
  auto* body = new QWidget;
  column = new QVBoxLayout(body);
  column->setContentsMargins(0, 0, 0, 0);
  return body;
}

}  // namespace

VariantsWindow::VariantsWindow(frmVariants& form, QWidget* parent)
    : FormDialog(form.Form, form.Unload, parent), form_(form) {
  setWindowFlag(Qt::WindowMaximizeButtonHint);
  auto* column = new QVBoxLayout(this);
  auto* notice = new NoticeLine(Severity::Warning);
  notice->setObjectName(QStringLiteral("lblNotice"));
  Bind(form_.lblNotice, notice);
  column->addWidget(notice);
  columns_ = new QSplitter(Qt::Horizontal);
  columns_->setChildrenCollapsible(false);
  columns_->addWidget(NewLeft());
  columns_->addWidget(NewRight());
  columns_->setStretchFactor(1, 1);
  column->addWidget(columns_, 1);
  AddButtons(column);
  AddMenu(column);

  news_.setSingleShot(true);
  QObject::connect(&news_, &QTimer::timeout, this, [this] { form_.TakeNews(); });
  form_.Refreshed = [this] {
    progress_->setValue(static_cast<int>(form_.Share() * progressSteps));
    table_->Refresh();
    plot_->Refresh();
  };
  form_.ChosenChanged = [this] {
    table_->ShowChosen();
    plot_->ShowChosen();
  };
  // It is called by a thread of the study.
  form_.Moved = [this] {
    QMetaObject::invokeMethod(
        this, [this] { news_.start(newsInterval); }, Qt::QueuedConnection);
  };
  form_.Refreshed();
  RestorePlace();
}

VariantsWindow::~VariantsWindow() {
  StorePlace();
  form_.Refreshed = nullptr;
  form_.ChosenChanged = nullptr;
  form_.EndStudy();
  form_.Moved = nullptr;
}

void VariantsWindow::reject() {
  if (form_.IsRunning()) {
    form_.cmdCancel_Click();
  } else {
    FormDialog::reject();
  }
}

void VariantsWindow::closeEvent(QCloseEvent* event) {
  form_.EndStudy();
  FormDialog::closeEvent(event);
}

QWidget* VariantsWindow::NewLeft() {
  QVBoxLayout* column = nullptr;
  QWidget* body = NewBody(column);
  auto* scroll = new QScrollArea;
  scroll->setFrameShape(QFrame::NoFrame);
  scroll->setWidgetResizable(true);
  scroll->setFocusPolicy(Qt::NoFocus);
  scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  auto* axes = new VariantAxesPanel(form_);
  scroll->setWidget(axes);
  scroll->setMinimumWidth(axes->minimumSizeHint().width() +
                          scroll->verticalScrollBar()->sizeHint().width());
  column->addWidget(scroll, 1);
  AddCommands(column);
  return body;
}

void VariantsWindow::AddCommands(QBoxLayout* column) {
  column->addWidget(NewWords(form_.lblCount, "lblCount"));
  auto* row = new QHBoxLayout;
  QPushButton* start = NewButton(form_.cmdStart, "cmdStart", QStringLiteral("&Рассчитать"),
                                 &frmVariants::cmdStart_Click);
  start->setShortcut(QKeySequence(Qt::Key_F9));
  SetHint(start, QStringLiteral("Рассчитать все варианты (F9)"));
  row->addWidget(start, 2);
  row->addWidget(NewButton(form_.cmdCancel, "cmdCancel", QStringLiteral("Пре&рвать"),
                           &frmVariants::cmdCancel_Click),
                 1);
  column->addLayout(row);
  progress_ = new QProgressBar;
  progress_->setObjectName(QStringLiteral("Progress"));
  progress_->setAccessibleName(QStringLiteral("Ход расчета"));
  progress_->setRange(0, progressSteps);
  column->addWidget(progress_);
  column->addWidget(NewWords(form_.lblProgress, "lblProgress"));
}

QPushButton* VariantsWindow::NewButton(MenuEntry& state, const char* name, const QString& caption,
                                       void (frmVariants::*click)()) {
  auto* button = new QPushButton(caption);
  button->setObjectName(QLatin1String(name));
  button->setAutoDefault(false);
  Follow(state, button, [&state, button] { button->setEnabled(state.Enabled()); });
  QObject::connect(button, &QPushButton::clicked, this, [this, click] { (form_.*click)(); });
  return button;
}

QWidget* VariantsWindow::NewRight() {
  rows_ = new QSplitter(Qt::Vertical);
  rows_->setChildrenCollapsible(false);
  rows_->addWidget(NewPlot());
  rows_->addWidget(NewTable());
  rows_->setStretchFactor(0, 1);
  rows_->setStretchFactor(1, 1);
  return rows_;
}

QWidget* VariantsWindow::NewPlot() {
  QVBoxLayout* column = nullptr;
  QWidget* body = NewBody(column);
  auto* row = new QHBoxLayout;
  const auto choice = [&](ComboBox& state, const char* name, const QString& caption) {
    QComboBox* box = NewCombo(state, name);
    row->addWidget(LabelFor(box, caption));
    row->addWidget(box);
    row->addSpacing(12);
  };
  choice(form_.cmbPlot, "cmbPlot", QStringLiteral("&График массы от"));
  choice(form_.cmbColour, "cmbColour", QStringLiteral("&Цвет по"));
  row->addStretch();
  column->addLayout(row);
  plot_ = new VariantPlotView(form_);
  column->addWidget(plot_, 1);
  return body;
}

QWidget* VariantsWindow::NewTable() {
  QVBoxLayout* column = nullptr;
  QWidget* body = NewBody(column);
  auto* row = new QHBoxLayout;
  QComboBox* show = NewCombo(form_.cmbShow, "cmbShow");
  row->addWidget(LabelFor(show, QStringLiteral("Пока&зать")));
  row->addWidget(show);
  row->addSpacing(12);
  auto* filter = new QLineEdit;
  filter->setObjectName(QStringLiteral("txtFilter"));
  filter->setPlaceholderText(QStringLiteral("профиль, сталь, причина"));
  // Dark themes without a colour for it leave it black. The box itself gets its palette anew with
  // every text.
  QPalette palette = body->palette();
  palette.setColor(QPalette::PlaceholderText, AsideColor(palette));
  body->setPalette(palette);
  AddClearButton(*filter);
  Bind(form_.txtFilter, filter);
  row->addWidget(LabelFor(filter, QStringLiteral("&Текст")));
  row->addWidget(filter, 1);
  row->addSpacing(12);
  auto* all = new QCheckBox(QStringLiteral("все стол&бцы"));
  all->setObjectName(QStringLiteral("chkAllColumns"));
  SetHint(all, QStringLiteral("Показывать и столбцы, одинаковые во всех строках"));
  Bind(form_.chkAllColumns, all);
  row->addWidget(all);
  row->addSpacing(12);
  auto* shown = new QLabel;
  shown->setObjectName(QStringLiteral("lblShown"));
  Bind(form_.lblShown, shown);
  row->addWidget(shown);
  column->addLayout(row);
  table_ = new VariantTableView(form_);
  column->addWidget(table_, 1);
  return body;
}

void VariantsWindow::AddButtons(QBoxLayout* column) {
  auto* row = new QHBoxLayout;
  QLabel* chosen = NewWords(form_.lblChosen, "lblChosen");
  chosen->setMinimumHeight(3 * chosen->fontMetrics().lineSpacing());
  chosen->setTextInteractionFlags(Qt::TextSelectableByMouse);
  row->addWidget(chosen, 1);
  QPushButton* apply = NewButton(form_.cmdApply, "cmdApply", QStringLiteral("При&менить"),
                                 &frmVariants::cmdApply_Click);
  SetHint(apply, QStringLiteral("Сделать выбранный вариант проектом; его можно отменить"));
  row->addWidget(apply, 0, Qt::AlignBottom);
  auto* close = new QPushButton(QStringLiteral("Закр&ыть"));
  close->setObjectName(QStringLiteral("cmdClose"));
  close->setAutoDefault(false);
  QObject::connect(close, &QPushButton::clicked, this, &QWidget::close);
  row->addWidget(close, 0, Qt::AlignBottom);
  column->addLayout(row);
}

void VariantsWindow::AddMenu(QBoxLayout* column) {
  auto* bar = new QMenuBar;
  column->setMenuBar(bar);
  QMenu* menu = bar->addMenu(QStringLiteral("&Файл"));
  const auto add = [&](MenuEntry& state, const char* name, const QString& caption,
                       const QKeySequence& key, std::function<void()> click) {
    QAction* action = menu->addAction(caption);
    action->setObjectName(QLatin1String(name));
    action->setShortcut(key);
    QObject::connect(action, &QAction::triggered, this, std::move(click));
    // Two entries may follow one state.
    QObject::connect(menu, &QMenu::aboutToShow, action,
                     [&state, action] { action->setEnabled(state.Enabled()); });
  };
  add(form_.mnuSaveCsv, "mnuSaveCsv", QStringLiteral("Сохранить таблицу как CSV..."),
      QKeySequence::Save, [this] { form_.mnuSaveCsv_Click(); });
  add(form_.mnuSavePlot, "mnuSaveSvg", QStringLiteral("Сохранить график как SVG..."),
      QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S), [this] { form_.mnuSaveSvg_Click(); });
  add(form_.mnuSavePlot, "mnuSavePng", QStringLiteral("Сохранить график как PNG..."),
      QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_P),
      [this] { form_.mnuSavePng_Click([this] { return plot_->Png(); }); });
}

void VariantsWindow::RestorePlace() {
  ResizeWithinScreen(*this, usualSize);
  const auto stored = [this](const char* key) {
    return QByteArray::fromBase64(
        QByteArray::fromStdString(form_.Settings().Get(windowSection, key, "")));
  };
  restoreGeometry(stored("Geometry"));
  columns_->restoreState(stored("Columns"));
  rows_->restoreState(stored("Rows"));
}

void VariantsWindow::StorePlace() {
  const auto store = [this](const char* key, const QByteArray& place) {
    form_.Settings().Set(windowSection, key, place.toBase64().toStdString());
  };
  store("Geometry", saveGeometry());
  store("Columns", columns_->saveState());
  store("Rows", rows_->saveState());
}

}  // namespace trelonit
