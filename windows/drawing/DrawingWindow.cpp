#include "windows/drawing/DrawingWindow.h"

#include <QActionGroup>
#include <QCloseEvent>
#include <QDockWidget>
#include <QEventLoop>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QPageSize>
#include <QPrinter>
#include <QStatusBar>
#include <QTabBar>
#include <QTabWidget>
#include <QToolBar>
#include <array>

#include "platform/console/ConsoleServices.h"
#include "platform/errors/RuntimeError.h"
#include "windows/binding/Binding.h"
#include "windows/binding/Frames.h"
#include "windows/binding/Layouts.h"
#include "windows/binding/PictureIcon.h"
#include "windows/binding/Units.h"
#include "windows/drawing/DrawingLayers.h"
#include "windows/drawing/TitleBlockWindow.h"
#include "windows/help/HelpKey.h"

namespace trelonit {

namespace {

constexpr int layersWidth = 200;

QString NameOfPaper(const DrawingSheet& sheet) {
  return QPageSize(AsQt(sheet.Paper).transposed(), QPageSize::Millimeter).name();
}

}  // namespace

DrawingWindow::DrawingWindow(QWidget* parent, SettingsService* settings)
    : QMainWindow(parent, Qt::Window), settings_(settings) {
  MemorySettings nothing;
  title_ = LoadTitleBlock(settings_ != nullptr ? *settings_ : nothing);
  setContextMenuPolicy(Qt::NoContextMenu);
  SetHelpPlace(*this, help_place::Drawing);
  AddTabs();
  AddLayers();
  AddMenus();
  AddToolBar();
  AddStatusBar();
  renewal_.setSingleShot(true);
  renewal_.setInterval(0);
  QObject::connect(&renewal_, &QTimer::timeout, this, [this] { ShowPresent(); });
  ResizeWithinScreen(*this, {1100, 760});
  ShowPresent();
}

DrawingWindow::~DrawingWindow() {
  // The tabs go with the window; what they tell on the way is no news.
  QObject::disconnect(tabs_, nullptr, this, nullptr);
}

QAction* DrawingWindow::NewAction(const char* name, const char* text, const char* picture) {
  auto* action = new QAction(QString::fromUtf8(text), this);
  action->setObjectName(QLatin1String(name));
  if (picture != nullptr) {
    action->setIcon(PictureIcon(QStringLiteral(":/pictures/%1.svg").arg(QLatin1String(picture))));
    action->setIconVisibleInMenu(false);
  }
  actions_[name] = action;
  return action;
}

void DrawingWindow::AddMenus() {
  constexpr std::array pictures{"tool-save", "tool-svg", "tool-pdf", "tool-png"};
  QMenu* file = menuBar()->addMenu(QStringLiteral("&Файл"));
  for (std::size_t place = 0; place < pictures.size(); ++place) {
    const DrawingFileKind& kind = DrawingFileKinds().at(place);
    QAction* action =
        NewAction(kind.Name, (std::string(kind.Caption) + "...").c_str(), pictures.at(place));
    QObject::connect(action, &QAction::triggered, this, [this, &kind] { Save(kind); });
    file->addAction(action);
  }
  actions_["SaveDxf"]->setShortcut(QKeySequence::Save);
  file->addSeparator();
  AddPaperMenu(*file->addMenu(QStringLiteral("Формат &листа")));
  QAction* title = NewAction("TitleBlock", "&Основная надпись...", nullptr);
  QObject::connect(title, &QAction::triggered, this, [this] { AskForTitleBlock(); });
  file->addAction(title);
  QAction* print = NewAction("Print", "&Печать...", "tool-print");
  print->setShortcut(QKeySequence::Print);
  QObject::connect(print, &QAction::triggered, this, [this] { Print(); });
  file->addAction(print);
  file->addSeparator();
  QAction* close = NewAction("Close", "&Закрыть", nullptr);
  close->setShortcut(QKeySequence(Qt::CTRL | Qt::Key_W));
  QObject::connect(close, &QAction::triggered, this, [this] {
    if (Present() != nullptr) {
      AskToClose(tabs_->currentIndex());
    } else {
      QWidget::close();
    }
  });
  file->addAction(close);

  QMenu* view = menuBar()->addMenu(QStringLiteral("&Вид"));
  const auto add = [&](const char* name, const char* text, const char* picture, const char* hint,
                       void (*act)(DrawingView&)) {
    QAction* action = NewAction(name, text, picture);
    action->setToolTip(QString::fromUtf8(hint));
    QObject::connect(action, &QAction::triggered, this, [this, act] {
      if (DrawingView* present = Present()) {
        act(*present);
      }
    });
    view->addAction(action);
  };
  constexpr double step = 1.25;
  // The view takes these keys by itself: the menu tells them.
  add("ShowAll", "Показать &всё\tHome", "tool-extents", "Показать всё (Home)",
      [](DrawingView& shown) { shown.ZoomExtents(); });
  add("ZoomIn", "У&величить\t+", "tool-zoom-in", "Увеличить (+)",
      [](DrawingView& shown) { shown.ZoomBy(step); });
  add("ZoomOut", "У&меньшить\t-", "tool-zoom-out", "Уменьшить (-)",
      [](DrawingView& shown) { shown.ZoomBy(1 / step); });
}

void DrawingWindow::AddPaperMenu(QMenu& menu) {
  using Entry = std::pair<const char*, std::optional<PaperFormat>>;
  const std::array entries{Entry{"Подобрать", std::nullopt}, Entry{"A4", PaperFormat::A4},
                           Entry{"A3", PaperFormat::A3},     Entry{"A2", PaperFormat::A2},
                           Entry{"A1", PaperFormat::A1},     Entry{"A0", PaperFormat::A0}};
  auto* group = new QActionGroup(this);
  for (const auto& [text, paper] : entries) {
    QAction* action =
        NewAction((std::string("Paper") + (paper ? text : "")).c_str(), text, nullptr);
    action->setCheckable(true);
    action->setChecked(!paper);
    group->addAction(action);
    menu.addAction(action);
    QObject::connect(action, &QAction::triggered, this, [this, chosen = paper] {
      paper_ = chosen;
      ShowSheet();
    });
  }
}

void DrawingWindow::AddToolBar() {
  auto* bar = new QToolBar(QStringLiteral("Панель инструментов"));
  bar->setMovable(false);
  bar->setIconSize({toolSize, toolSize});
  bar->setContextMenuPolicy(Qt::PreventContextMenu);
  constexpr std::array names{"SaveDxf", "SaveSvg", "SavePdf", "SavePng", "Print",
                             "",        "ShowAll", "ZoomIn",  "ZoomOut"};
  for (const std::string name : names) {
    if (name.empty()) {
      bar->addSeparator();
    } else {
      bar->addAction(actions_.at(name));
    }
  }
  addToolBar(bar);
}

void DrawingWindow::AddTabs() {
  tabs_ = new Tabs;
  tabs_->setObjectName(QStringLiteral("Drawings"));
  tabs_->setDocumentMode(true);
  tabs_->setTabsClosable(true);
  tabs_->setMovable(true);
  tabs_->tabBar()->setAccessibleName(QStringLiteral("Чертежи"));
  QObject::connect(tabs_, &QTabWidget::tabCloseRequested, this,
                   [this](int tab) { AskToClose(tab); });
  QObject::connect(tabs_, &QTabWidget::currentChanged, this, [this] {
    ShowPresent();
    if (Present() != nullptr && Activated) {
      Activated(Present()->Shown());
    }
  });
  setCentralWidget(tabs_);
}

void DrawingWindow::AddLayers() {
  layers_ = new DrawingLayers;
  layers_->setObjectName(QStringLiteral("Layers"));
  layers_->Switched = [this] {
    if (DrawingView* view = Present()) {
      view->update();
    }
    ShowSheet();
  };
  auto* dock = new QDockWidget(QStringLiteral("Слои"));
  dock->setFeatures(QDockWidget::NoDockWidgetFeatures);
  dock->setWidget(layers_);
  addDockWidget(Qt::RightDockWidgetArea, dock);
  resizeDocks({dock}, {layersWidth}, Qt::Horizontal);
}

void DrawingWindow::AddStatusBar() {
  const auto panel = [](const char* name) {
    auto* label = new QLabel;
    label->setObjectName(QLatin1String(name));
    label->setTextFormat(Qt::PlainText);
    return label;
  };
  pointer_ = panel("Pointer");
  scale_ = panel("Scale");
  sheet_ = panel("Sheet");
  crowded_ = panel("Crowded");
  statusBar()->addWidget(pointer_, 1);
  statusBar()->addPermanentWidget(crowded_);
  statusBar()->addPermanentWidget(scale_);
  statusBar()->addPermanentWidget(sheet_);
}

DrawingView* DrawingWindow::View(int tab) const {
  return dynamic_cast<DrawingView*>(tabs_->widget(tab));
}

DrawingView* DrawingWindow::Present() const {
  return View(tabs_->currentIndex());
}

int DrawingWindow::TabOf(const DrawingPtr& drawing) const {
  for (int tab = 0; tab < tabs_->count(); ++tab) {
    if (View(tab)->Shown() == drawing) {
      return tab;
    }
  }
  return -1;
}

void DrawingWindow::Add(const DrawingPtr& drawing) {
  if (drawing == nullptr || TabOf(drawing) >= 0) {
    return;
  }
  auto* view = new DrawingView(drawing);
  view->PointerMoved = [this](std::optional<QPointF> point) { ShowPointer(point); };
  view->ViewChanged = [this] { ShowScale(); };
  tabs_->setCurrentIndex(tabs_->addTab(view, ToQt(drawing->Name)));
  view->setFocus();
}

void DrawingWindow::Remove(const DrawingPtr& drawing) {
  const int tab = TabOf(drawing);
  if (tab < 0) {
    return;
  }
  DrawingView* view = View(tab);
  tabs_->removeTab(tab);
  view->deleteLater();
  if (tabs_->count() == 0) {
    close();
  }
}

void DrawingWindow::Activate(const DrawingPtr& drawing) {
  if (const int tab = TabOf(drawing); tab >= 0) {
    tabs_->setCurrentIndex(tab);
  }
}

void DrawingWindow::Renew(const DrawingPtr& drawing) {
  const int tab = TabOf(drawing);
  if (tab < 0) {
    return;
  }
  View(tab)->Renew();
  if (tab == tabs_->currentIndex()) {
    renewal_.start();
  }
}

void DrawingWindow::ZoomExtents(const DrawingPtr& drawing) {
  if (const int tab = TabOf(drawing); tab >= 0) {
    View(tab)->ZoomExtents();
  }
}

void DrawingWindow::AskToClose(int tab) {
  const DrawingPtr drawing = View(tab)->Shown();
  if (CloseAsked) {
    CloseAsked(drawing);
  } else {
    Remove(drawing);
  }
}

void DrawingWindow::Save(const DrawingFileKind& kind) {
  if (const DrawingView* view = Present()) {
    QString name = folder_ + ToQt(view->Shown()->Name);
    if (SaveDrawing(*view->Shown(), kind, Choice(), name, this)) {
      folder_ = name.left(name.lastIndexOf(QLatin1Char('/')) + 1);
      statusBar()->showMessage(QStringLiteral("Записан файл «%1»").arg(name), 5000);
    }
  }
}

void DrawingWindow::Print() {
  if (const DrawingView* view = Present()) {
    if (printer_ == nullptr) {
      // Looking for printers takes a while: it is done when one is needed.
      printer_ = std::make_unique<QPrinter>(QPrinter::HighResolution);
    }
    PrintDrawing(*view->Shown(), Choice(), *printer_, this);
  }
}

void DrawingWindow::AskForTitleBlock() {
  TitleBlockWindow window(title_, this);
  if (window.exec() != QDialog::Accepted) {
    return;
  }
  title_ = window.Chosen();
  if (settings_ != nullptr) {
    StoreTitleBlock(*settings_, title_);
  }
  ShowSheet();
}

SheetChoice DrawingWindow::Choice() const {
  return {paper_, title_.Shown ? std::optional(title_.Block) : std::nullopt};
}

void DrawingWindow::ShowPresent() {
  const DrawingView* view = Present();
  for (const auto& [name, action] : actions_) {
    action->setEnabled(view != nullptr || name == "Close");
  }
  setWindowTitle(view == nullptr ? QStringLiteral("Чертеж")
                                 : QStringLiteral("Чертеж - %1").arg(ToQt(view->Shown()->Name)));
  layers_->Show(view == nullptr ? nullptr : view->Shown());
  ShowScale();
  ShowSheet();
  ShowPointer(std::nullopt);
}

void DrawingWindow::ShowScale() {
  const DrawingView* view = Present();
  scale_->setText(view == nullptr ? QString()
                                  : QStringLiteral("На экране 1:%1")
                                        .arg(RussianNumber(view->ScaleOnScreen(),
                                                           view->ScaleOnScreen() < 10 ? 1 : 0)));
}

void DrawingWindow::ShowSheet() {
  sheet_->clear();
  crowded_->clear();
  const DrawingView* view = Present();
  if (view == nullptr) {
    return;
  }
  try {
    const PlacedDrawing& drawing = view->Painter().Placed();
    const DrawingSheet sheet = ChosenSheet(drawing, Choice());
    sheet_->setText(QStringLiteral("Лист %1, %2").arg(NameOfPaper(sheet), ToQt(sheet.ScaleNote())));
    if (const std::size_t leftOut = TextsLeftOut(drawing, sheet)) {
      const std::optional<DrawingSheet> larger = SheetWithAllTexts(drawing, Choice().Title);
      crowded_->setText(QStringLiteral("Не поместилось надписей: %1").arg(leftOut) +
                        (larger ? QStringLiteral(", все помещаются на %1").arg(NameOfPaper(*larger))
                                : QString()));
    }
  } catch (const RuntimeError&) {
    // The view tells it.
  }
}

void DrawingWindow::ShowPointer(std::optional<QPointF> point) {
  pointer_->setText(point ? QStringLiteral("X = %1 мм   Y = %2 мм")
                                .arg(RussianNumber(point->x(), 0), RussianNumber(point->y(), 0))
                          : QString());
}

void DrawingWindow::ShowModal() {
  setWindowModality(Qt::ApplicationModal);
  QEventLoop loop;
  closed_ = [&loop] { loop.quit(); };
  show();
  raise();
  activateWindow();
  loop.exec();
  closed_ = nullptr;
}

void DrawingWindow::closeEvent(QCloseEvent* event) {
  event->accept();
  if (closed_) {
    closed_();
  }
}

}  // namespace trelonit
