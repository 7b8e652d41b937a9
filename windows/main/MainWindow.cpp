#include "windows/main/MainWindow.h"

#include <QApplication>
#include <QCloseEvent>
#include <QDateTime>
#include <QLocale>
#include <QMenuBar>
#include <QPushButton>
#include <QStatusBar>
#include <QVBoxLayout>

#include "windows/binding/Binding.h"
#include "windows/binding/Frames.h"
#include "windows/binding/Layouts.h"
#include "windows/help/HelpKey.h"
#include "windows/main/HistoryDesk.h"
#include "windows/main/LiveStrip.h"
#include "windows/main/LoadTab.h"
#include "windows/main/LockKeys.h"
#include "windows/main/NoticeViews.h"
#include "windows/main/SchemeTab.h"
#include "windows/main/SectionTab.h"

namespace trelonit {

namespace {

constexpr int statusInterval = 500;
/// After the first paint the desktop has a moment to show it.
constexpr int completionDelay = 60;
constexpr Long hoptPanel = 6;
constexpr const char* settingsSection = "Window";
constexpr const char* placeKey = "Geometry";

/// The keys that the captions leave to the desktop.
QKeySequence ShortcutOf(const std::string& item) {
  if (item == "SaveParam") {
    return QKeySequence::Save;
  }
  if (item == "Restore") {
    return QKeySequence::Open;
  }
  if (item == "Exit") {
    return QKeySequence(Qt::ALT | Qt::Key_F4);
  }
  if (item == "mnuCalc") {
    return QKeySequence(Qt::Key_F9);
  }
  if (item == "mnuSearch") {
    return QKeySequence(Qt::CTRL | Qt::Key_F9);
  }
  if (item == "mnuOtchet") {
    return QKeySequence(Qt::SHIFT | Qt::Key_F9);
  }
  if (item == "mnuVariants") {
    return QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_F9);
  }
  if (item == "UserHelp") {
    return QKeySequence::HelpContents;
  }
  return {};
}

}  // namespace

MainWindow::MainWindow(frmMain& form, SettingsService& settings)
    : form_(form), settings_(settings) {
  auto* body = new QWidget;
  auto* column = new QVBoxLayout(body);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(0);
  AddMenus();
  history_ = new HistoryDesk(form_, *this);
  column->addWidget(NewOwnWeightBanner());
  column->addWidget(history_->NewLoadsLostBanner());
  column->addWidget(NewTabs(), 1);
  auto* strip = new LiveStrip(form_);
  SetHelpPlace(*strip, help_place::LiveStrip);
  column->addWidget(strip);
  setCentralWidget(body);
  AddViewMenu(*menuBar(), *strip, settings_);
  AddStatusBar();

  Follow(form_.Form, this, [this] {
    ShowTitle();
    // Before the first show there is nothing to hide or to bring back.
    if (testAttribute(Qt::WA_WState_ExplicitShowHide)) {
      setVisible(form_.Form.Visible());
    }
  });
  QObject::connect(&caption_, &QTimer::timeout, this, [this] { form_.tmrRuningString_Timer(); });
  Bind(form_.tmrRuningString, &caption_);
  RestorePlace();
}

void MainWindow::ShowTitle() {
  const QString caption = ToQt(form_.Form.Caption());
  setWindowTitle(document_.isEmpty() ? caption : caption + QStringLiteral(" %1[*]").arg(document_));
}

void MainWindow::SetDocument(const QString& name, bool modified) {
  if (document_ != name) {
    document_ = name;
    ShowTitle();
  }
  setWindowModified(modified);
}

QWidget* MainWindow::NewOwnWeightBanner() {
  auto* banner = new NoticeFrame(Severity::Warning);
  banner->setObjectName(QStringLiteral("lblOwnWeightTwice"));
  banner->setAccessibleName(QStringLiteral("Собственный вес в нагрузках"));
  SetHelpPlace(*banner, FindingPlace(FindingCode::OwnWeightTwice));
  auto* column = new QVBoxLayout(banner);
  column->setContentsMargins(14, 6, 8, 6);
  auto* line = new NoticeLine(Severity::Warning);
  column->addWidget(line);
  const auto button = [&](const char* name, const QString& caption, const QString& hint,
                          void (frmMain::*click)()) {
    auto* push = new QPushButton(caption);
    push->setObjectName(QLatin1String(name));
    SetHint(push, hint);
    QObject::connect(push, &QPushButton::clicked, this, [this, click] { (form_.*click)(); });
    line->Row().addWidget(push);
  };
  button("cmdTakeOwnWeightOut", QStringLiteral("Вы&честь"),
         QStringLiteral("Убрать собственный вес из нагрузок проекта: расчет прибавит его сам"),
         &frmMain::cmdTakeOwnWeightOut_Click);
  button("cmdKeepOwnWeight", QStringLiteral("Остав&ить"),
         QStringLiteral("Это нагрузка пользователя: оставить ее как есть"),
         &frmMain::cmdKeepOwnWeight_Click);
  Follow(form_.lblOwnWeightTwice, banner, [this, banner, line] {
    line->Text().setText(ToQt(form_.lblOwnWeightTwice.Caption()));
    banner->setAccessibleDescription(line->Text().text());
    ShowCommon(form_.lblOwnWeightTwice, banner);
  });
  return banner;
}

QTabWidget* MainWindow::NewTabs() {
  auto* tabs = new Tabs;
  tabs->setObjectName(QStringLiteral("tabMain"));
  // The first page is shown as soon as the tabs have it: filled, it would be laid out there, before
  // its controls have their fonts and the window its size, and then again.
  QWidget* schemePage = AddPage(tabs, QStringLiteral("Параметры фермы"));
  schemePage->layout()->addWidget(new SchemeTab(form_));
  sectionPage_ = AddPage(tabs, QStringLiteral("Сечение элементов"));
  loadPage_ = AddPage(tabs, QStringLiteral("Вычислить"));
  SetHelpPlace(*schemePage, help_place::Scheme);
  SetHelpPlace(*sectionPage_, help_place::Sections);
  SetHelpPlace(*loadPage_, help_place::Loads);
  QObject::connect(tabs, &QTabWidget::currentChanged, this, [this] { CompleteTabs(); });
  Bind(form_.tabMain, tabs);
  return tabs;
}

QWidget* MainWindow::AddPage(QTabWidget* tabs, const QString& caption) {
  auto* page = new QWidget;
  auto* layout = new QVBoxLayout(page);
  layout->setContentsMargins(0, 0, 0, 0);
  tabs->addTab(page, caption);
  return page;
}

void MainWindow::CompleteTabs() {
  if (sectionPage_->layout()->isEmpty()) {
    sectionPage_->layout()->addWidget(new SectionTab(form_));
    loadPage_->layout()->addWidget(new LoadTab(form_));
  }
}

void MainWindow::paintEvent(QPaintEvent* event) {
  QMainWindow::paintEvent(event);
  if (sectionPage_->layout()->isEmpty()) {
    QTimer::singleShot(completionDelay, this, [this] { CompleteTabs(); });
  }
}

void MainWindow::AddMenus() {
  for (const frmMain::MenuItem& menu : form_.Menus()) {
    AddMenu(menuBar()->addMenu(ToQt(menu.Caption)), menu.Items);
  }
}

void MainWindow::AddMenu(QMenu* menu, const std::vector<frmMain::MenuItem>& items) {
  for (const frmMain::MenuItem& item : items) {
    QAction* action = menu->addAction(ToQt(item.Caption));
    action->setObjectName(ToQt(item.Name));
    action->setEnabled(item.Enabled);
    action->setShortcut(ShortcutOf(item.Name));
    if (item.Name == "Exit") {
      // The caption names its key already.
      action->setShortcutVisibleInContextMenu(false);
      action->setText(ToQt(item.Caption).replace(QLatin1Char(' '), QLatin1Char('\t')));
    }
    if (item.Name == "Exit") {
      // The same way as every other that closes the window.
      QObject::connect(action, &QAction::triggered, this, &QWidget::close);
    } else {
      QObject::connect(action, &QAction::triggered, this, item.Click);
    }
  }
}

void MainWindow::AddStatusBar() {
  const auto panel = [this](const QString& name, const QString& text = {}) {
    auto* label = new QLabel(text);
    label->setAccessibleName(name);
    statusBar()->addPermanentWidget(label);
    return label;
  };
  auto* hopt = new QLabel;
  hopt->setObjectName(QStringLiteral("Hopt"));
  hopt->setToolTip(QStringLiteral("Отображает оптимальную высоту фермы"));
  hopt->setAccessibleDescription(hopt->toolTip());
  Bind(form_.StatusBarMain[hoptPanel], hopt);
  statusBar()->addWidget(hopt);
  time_ = panel(QStringLiteral("Время"));
  date_ = panel(QStringLiteral("Дата"));
  num_ = panel(QStringLiteral("Num Lock"), QStringLiteral("NUM"));
  caps_ = panel(QStringLiteral("Caps Lock"), QStringLiteral("CAPS"));
  scroll_ = panel(QStringLiteral("Scroll Lock"), QStringLiteral("SCRL"));
  QObject::connect(&status_, &QTimer::timeout, this, [this] { ShowStatus(); });
  status_.start(statusInterval);
  ShowStatus();
}

void MainWindow::ShowStatus() {
  const QDateTime now = QDateTime::currentDateTime();
  const QLocale locale;
  time_->setText(locale.toString(now.time(), QStringLiteral("HH:mm")));
  date_->setText(locale.toString(now.date(), QLocale::ShortFormat));
  const LockKeys keys = ReadLockKeys();
  num_->setEnabled(keys.Num);
  caps_->setEnabled(keys.Caps);
  scroll_->setEnabled(keys.Scroll);
}

void MainWindow::RestorePlace() {
  resize(1180, 700);
  const std::string stored = settings_.Get(settingsSection, placeKey, "");
  restoreGeometry(QByteArray::fromBase64(QByteArray::fromStdString(stored)));
}

void MainWindow::StorePlace() {
  settings_.Set(settingsSection, placeKey, saveGeometry().toBase64().toStdString());
}

MainWindow::~MainWindow() {
  StorePlace();
}

void MainWindow::closeEvent(QCloseEvent* event) {
  if (form_.Keeper.MayLeave && !form_.Keeper.MayLeave()) {
    event->ignore();
    return;
  }
  StorePlace();
  event->accept();
  form_.Exit_Click();
}

}  // namespace trelonit
