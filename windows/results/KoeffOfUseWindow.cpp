#include "windows/results/KoeffOfUseWindow.h"

#include <QApplication>
#include <QClipboard>
#include <QMenuBar>
#include <QPushButton>
#include <QScreen>
#include <QSplitter>
#include <QTabBar>
#include <QTabWidget>
#include <algorithm>

#include "windows/binding/Binding.h"
#include "windows/binding/Frames.h"
#include "windows/binding/Layouts.h"
#include "windows/results/BarTableView.h"
#include "windows/results/CopyAction.h"
#include "windows/results/ExplanationView.h"
#include "windows/results/FindingsStrip.h"
#include "windows/results/ResultViews.h"
#include "windows/results/TablePrint.h"
#include "windows/results/UseGrid.h"
#include "workstation/design/ElementGroups.h"
#include "workstation/report/ReportAppendix.h"

namespace trelonit {

namespace {

constexpr QSize usualSize{1360, 840};
/// Shares of the body: the lists over the explanation, the grid beside the pictures.
constexpr int listShare = 54;
constexpr int gridShare = 44;
constexpr int whole = 100;

void CopyLines(const QListWidget& list) {
  QStringList lines;
  for (int row = 0; row < list.count(); ++row) {
    if (list.selectedItems().isEmpty() || list.item(row)->isSelected()) {
      lines << list.item(row)->text();
    }
  }
  QApplication::clipboard()->setText(lines.join(QLatin1Char('\n')));
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

/// A part of a splitter with nothing round its groups.
struct Side {
  QWidget* Widget = new QWidget;
  QVBoxLayout* Column = new QVBoxLayout(Widget);

  Side() { Column->setContentsMargins(0, 0, 0, 0); }
};

QSplitter* NewSplitter(Qt::Orientation orientation, QWidget* first, QWidget* second, int share) {
  auto* splitter = new QSplitter(orientation);
  splitter->setChildrenCollapsible(false);
  splitter->addWidget(first);
  splitter->addWidget(second);
  splitter->setStretchFactor(0, share);
  splitter->setStretchFactor(1, whole - share);
  // Only the ratio counts.
  constexpr int large = 100;
  splitter->setSizes({share * large, (whole - share) * large});
  return splitter;
}

}  // namespace

KoeffOfUseWindow::KoeffOfUseWindow(frmKoeffOfUse& form, QWidget* parent)
    : FormDialog(form.Form, form.Unload, parent), form_(form) {
  setWindowFlag(Qt::WindowMaximizeButtonHint);
  resize(usualSize.boundedTo(screen()->availableSize() * 9 / 10));
  auto* column = new QVBoxLayout(this);
  column->addWidget(new FindingsStrip(form_.Opinion));
  QWidget* lists = NewLists();
  QWidget* pictures = NewPictures();
  QWidget* upper = NewSplitter(Qt::Horizontal, lists, pictures, gridShare);
  column->addWidget(NewSplitter(Qt::Vertical, upper, NewPages(), listShare), 1);
  AddButtons(column);
  AddMenu(column);
  ShowRow(nullptr);
}

void KoeffOfUseWindow::AddMenu(QVBoxLayout* column) {
  auto* bar = new QMenuBar;
  column->setMenuBar(bar);
  QMenu* view = bar->addMenu(QStringLiteral("&Вид"));
  QAction* appendix = view->addAction(ToQt(form_.mnuAppendix.Caption()));
  appendix->setObjectName(QStringLiteral("mnuAppendix"));
  appendix->setCheckable(true);
  Bind(form_.mnuAppendix, appendix);
  QObject::connect(appendix, &QAction::triggered, this, [this] { form_.mnuAppendix_Click(); });
  AddTableMenu(bar);
}

void KoeffOfUseWindow::AddTableMenu(QMenuBar* bar) {
  QMenu* menu = bar->addMenu(QStringLiteral("&Таблица"));
  const auto add = [&](const char* name, const QString& caption, const QKeySequence& key,
                       std::function<void()> click) {
    QAction* action = menu->addAction(caption);
    action->setObjectName(QLatin1String(name));
    action->setShortcut(key);
    QObject::connect(action, &QAction::triggered, this, std::move(click));
    return action;
  };
  add("mnuShowBars", QStringLiteral("Стержни"), QKeySequence(Qt::CTRL | Qt::Key_T), [this] {
    pages_->setCurrentWidget(barPage_);
    Bars().setFocus();
  });
  menu->addSeparator();
  add("mnuCopyTable", QStringLiteral("Копировать"), {}, [this] { Bars().Copy(); });
  Bind(form_.mnuSaveCsv, add("mnuSaveCsv", ToQt(form_.mnuSaveCsv.Caption()), QKeySequence::Save,
                             [this] { form_.mnuSaveCsv_Click(Bars().Shown()); }));
  Bind(form_.mnuSaveXlsx, add("mnuSaveXlsx", ToQt(form_.mnuSaveXlsx.Caption()), {},
                              [this] { form_.mnuSaveXlsx_Click(Bars().Shown()); }));
  add("mnuPrintTable", QStringLiteral("Печать..."), QKeySequence::Print,
      [this] { PreviewTable(Bars().Shown(), form_.Locale, this); });
}

QWidget* KoeffOfUseWindow::NewLists() {
  const Side side;
  grid_ = new UseGrid(form_);
  grid_->Chosen = [this](const ResultRow* row) { ShowRow(row); };
  AddGroup<QVBoxLayout>(side.Column, ToQt(form_.framKoef.Caption()), 1)->addWidget(grid_);
  return side.Widget;
}

QWidget* KoeffOfUseWindow::NewPictures() {
  const Side side;
  truss_ = new TrussView(form_.Picture.Bars);
  truss_->setObjectName(QStringLiteral("TrussView"));
  truss_->setAccessibleName(QStringLiteral("Ферма с усилиями в стержнях"));
  truss_->Picked = [this](const MarkedBar& bar) { ShowBar(bar); };
  AddGroup<QVBoxLayout>(side.Column, QStringLiteral("Ферма"), 3)->addWidget(truss_);
  auto* row = new QHBoxLayout;
  side.Column->addLayout(row, 2);
  auto* chart = new UseChart(form_.Picture.Use);
  chart->setObjectName(QStringLiteral("UseChart"));
  chart->setAccessibleName(QStringLiteral("Наибольший коэффициент каждой группы"));
  AddGroup<QVBoxLayout>(row, QStringLiteral("Наибольший коэффициент группы"), 3)->addWidget(chart);
  AddGroup<QVBoxLayout>(row, ToQt(form_.framForces.Caption()), 4)->addWidget(MakeList(form_));
  return side.Widget;
}

QWidget* KoeffOfUseWindow::NewPages() {
  pages_ = new Tabs;
  pages_->setObjectName(QStringLiteral("Pages"));
  pages_->tabBar()->setAccessibleName(QStringLiteral("Объяснение и таблица стержней"));
  QWidget* explanation = NewExplanation();
  pages_->addTab(explanation, explanation_->accessibleName());
  barPage_ = new QWidget;
  new QVBoxLayout(barPage_);
  pages_->addTab(barPage_, QStringLiteral("Стержни"));
  QObject::connect(pages_, &QTabWidget::currentChanged, this, [this] {
    if (pages_->currentWidget() == barPage_) {
      Bars();
    }
  });
  return pages_;
}

BarTableView& KoeffOfUseWindow::Bars() {
  if (bars_ != nullptr) {
    return *bars_;
  }
  bars_ = new BarTableView(form_.Bars, form_.Locale);
  bars_->Chosen = [this](std::optional<MarkedBar> bar) {
    // One choice at a time: the mark is that of the last one.
    if (bar) {
      grid_->clearSelection();
    }
    truss_->Mark(bar);
  };
  barPage_->layout()->addWidget(bars_);
  // On a page that is shown already it would come with the next event only.
  barPage_->layout()->activate();
  bars_->show();
  QWidget::setTabOrder(explanation_, bars_);
  return *bars_;
}

QWidget* KoeffOfUseWindow::NewExplanation() {
  auto* page = new QWidget;
  auto* column = new QVBoxLayout(page);
  explanation_ = new ExplanationView(form_.Locale);
  explanation_->setObjectName(QStringLiteral("Explanation"));
  explanation_->setAccessibleName(QStringLiteral("Как получен коэффициент"));
  column->addWidget(explanation_);
  return page;
}

void KoeffOfUseWindow::AddButtons(QVBoxLayout* column) {
  auto* close = new QPushButton(ToQt(form_.cmdClose.Caption()));
  close->setObjectName(QStringLiteral("cmdClose"));
  QObject::connect(close, &QPushButton::clicked, this, [this] { form_.cmdClose_Click(); });
  auto* buttons = new QHBoxLayout;
  buttons->addStretch();
  buttons->addWidget(close);
  column->addLayout(buttons);
  // Only in its window is it the one that Enter presses wherever the focus is.
  close->setDefault(true);
  close->setFocus();
}

void KoeffOfUseWindow::ShowBar(const MarkedBar& bar) {
  pages_->setCurrentWidget(barPage_);
  Bars().Choose(bar);
}

void KoeffOfUseWindow::ShowRow(const ResultRow* row) {
  const SecondOpinion& opinion = form_.Opinion;
  if (row == nullptr || row->Checks.empty()) {
    truss_->Mark(std::nullopt);
    explanation_->Show(
        {QStringLiteral("Выберите строку с коэффициентом: здесь появится, как он получен в расчете "
                        "и по СНиП."),
         ToQt(opinionLimits)},
        {{.Told = opinion.FindExplanation(ExplanationSource::Told, std::nullopt, "Progib")}});
    return;
  }
  pages_->setCurrentWidget(explanation_->parentWidget());
  if (bars_ != nullptr) {
    bars_->clearSelection();
  }
  truss_->Mark(row->Bar ? std::optional(MarkedBar{OptionOf(row->Group), *row->Bar}) : std::nullopt);
  std::vector<ExplainedCheck> checks;
  for (const std::string& check : row->Checks) {
    checks.push_back(
        {.Told = opinion.FindExplanation(ExplanationSource::Told, row->Group, check),
         .Opinion = opinion.FindExplanation(ExplanationSource::Opinion, row->Group, check)});
  }
  // The one that rules comes first.
  std::stable_sort(checks.begin(), checks.end(), [](const auto& one, const auto& other) {
    return one.Greatest() > other.Greatest();
  });
  explanation_->Show({}, std::move(checks));
}

}  // namespace trelonit
