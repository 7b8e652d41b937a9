#include "windows/editor/OtchetWindow.h"

#include <QAction>
#include <QCloseEvent>
#include <QEventLoop>
#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QScreen>
#include <QStatusBar>
#include <QToolBar>
#include <algorithm>
#include <cmath>

#include "windows/binding/Binding.h"
#include "windows/binding/PictureIcon.h"
#include "windows/binding/Units.h"
#include "windows/help/HelpKey.h"

namespace trelonit {

namespace {

constexpr int sidePanelWidth = 18;

/// What the window adds to an entry of the form.
struct EntryDress {
  const char* Picture = nullptr;  ///< its tool button's
  const char* Hint = nullptr;
  /// Keys of the window.
  QKeySequence Shortcut;
  /// Keys that the text takes by itself: the menu tells them.
  const char* OwnKeys = nullptr;
};

EntryDress DressOf(const std::string& name) {
  static const std::map<std::string, EntryDress> dresses{
      {"mnuFileNew", {"tool-new", "Новый документ", {}, nullptr}},
      {"mnuFileOpen", {"tool-open", "Открыть документ", QKeySequence::Open, nullptr}},
      {"mnuFileSave", {"tool-save", "Сохранить документ", QKeySequence::Save, nullptr}},
      {"mnuFileSaveAs",
       {nullptr, "Сохранить под другим именем", QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S),
        nullptr}},
      {"mnuFileAutoCAD", {"tool-drawing", "Вывести чертежи фермы", {}, nullptr}},
      {"mnuFilePdf", {nullptr, "Сохранить страницы отчета в PDF", {}, nullptr}},
      {"mnuFilePdfDrawings", {nullptr, "То же, за отчетом листы с чертежами фермы", {}, nullptr}},
      {"mnuFileProperties", {nullptr, "Сведения о документе", {}, nullptr}},
      {"mnuFileAssoc", {nullptr, "Какие файлы открывает эта программа", {}, nullptr}},
      {"mnuFilePageSetup", {nullptr, "Размер и поля страницы", {}, nullptr}},
      {"mnuFilePrintPreview",
       {"tool-preview", "Предварительный просмотр, сохранение в PDF", {}, nullptr}},
      {"mnuFilePrint", {"tool-print", "Печать", QKeySequence::Print, nullptr}},
      {"mnuFileExit", {nullptr, "Закрыть окно", {}, "Alt+F4"}},
      {"mnuEdit0", {"tool-undo", "Отменить", {}, "Ctrl+Z"}},
      {"mnuEdit1", {"tool-redo", "Вернуть", {}, "Ctrl+R"}},
      {"mnuEdit3", {"tool-cut", "Вырезать", {}, "Ctrl+X"}},
      {"mnuEdit4", {"tool-copy", "Копировать", {}, "Ctrl+C"}},
      {"mnuEdit5", {"tool-paste", "Вставить", {}, "Ctrl+V"}},
      {"mnuEdit6", {"tool-delete", "Удалить", {}, "Del"}},
      {"mnuEdit8", {nullptr, "Выделить всё", {}, "Ctrl+A"}},
      {"mnuEdit9", {nullptr, "Выделить от начала до курсора", {}, "Ctrl+T"}},
      {"mnuEdit10", {nullptr, "Выделить от курсора до конца", {}, "Ctrl+B"}},
      {"mnuEdit11", {"tool-date", "Вставить дату и время", QKeySequence(Qt::Key_F5), nullptr}},
      {"mnuEdit12", {"tool-find", "Найти и заменить", QKeySequence::Find, nullptr}},
      {"mnuFormatWordwrap", {nullptr, "Переносить строки по ширине окна", {}, nullptr}},
      {"mnuFormatFont", {nullptr, "Шрифт и цвет текста", {}, nullptr}},
      {"mnuFormatBackcolor", {nullptr, "Цвет фона", {}, nullptr}},
      {"mnuFormatStats", {nullptr, "Слова, знаки и строки", {}, nullptr}},
      {"mnuViewToolbar", {nullptr, "Показывать панель инструментов", {}, nullptr}},
      {"mnuViewStatusbar", {nullptr, "Показывать строку состояния", {}, nullptr}},
      {"mnuFileAbout", {nullptr, "О редакторе отчетов", {}, nullptr}},
  };
  const auto found = dresses.find(name);
  return found == dresses.end() ? EntryDress() : found->second;
}

}  // namespace

OtchetWindow::OtchetWindow(frmOtchetMain& form, QtRichTextBox& box, QWidget* parent)
    : QMainWindow(parent, Qt::Window), form_(form), box_(box) {
  SetHelpPlace(*this, help_place::Otchet);
  AddMenus();
  AddToolBar();
  AddDocument();
  AddStatusBar();
  ConnectBox();
  Follow(form_.Form, this, [this] { setWindowTitle(ToQt(form_.Form.Caption())); });
  QObject::connect(&paste_, &QTimer::timeout, this, [this] { form_.PasteTimer_Timer(); });
  Bind(form_.PasteTimer, &paste_);
  form_.Unload = [this] { close(); };
  RestorePlace();
  if (QWidget* text = box_.Widget()) {
    text->setFocus();
  }
}

OtchetWindow::~OtchetWindow() {
  delete find_;
  form_.Unload = nullptr;
  box_.KeyDown = nullptr;
  box_.KeyTyped = nullptr;
  box_.ZoomAsked = nullptr;
  box_.SelChange = nullptr;
  box_.FileDropped = nullptr;
  box_.ContextMenu = nullptr;
  box_.TextCommitted = nullptr;
}

QAction* OtchetWindow::MakeAction(const frmOtchetMain::MenuItem& item) {
  const EntryDress dress = DressOf(item.Name);
  auto* action = new QAction(this);
  action->setObjectName(ToQt(item.Name));
  QString text = ToQt(item.Entry->Caption());
  if (dress.OwnKeys != nullptr) {
    text += QLatin1Char('\t') + QLatin1String(dress.OwnKeys);
  }
  action->setText(text);
  action->setShortcut(dress.Shortcut);
  if (dress.Hint != nullptr) {
    const QString keys = dress.OwnKeys != nullptr
                             ? QString::fromLatin1(dress.OwnKeys)
                             : dress.Shortcut.toString(QKeySequence::NativeText);
    action->setToolTip(QString::fromUtf8(dress.Hint) +
                       (keys.isEmpty() ? QString() : QStringLiteral(" (%1)").arg(keys)));
  }
  if (item.Entry == &form_.mnuFileAssoc && !form_.WhyNoAssoc().empty()) {
    action->setToolTip(ToQt(form_.WhyNoAssoc()));
    // Who goes through the menu by keys reads it in the status bar.
    action->setStatusTip(action->toolTip());
  }
  if (dress.Picture != nullptr) {
    action->setIcon(PictureIcon(QStringLiteral(":/pictures/%1.svg").arg(dress.Picture)));
    action->setIconVisibleInMenu(false);
  }
  action->setCheckable(item.Checkable);
  Bind(*item.Entry, action);
  // The handler sets the mark; a press alone must not.
  QObject::connect(action, &QAction::triggered, this, [entry = item.Entry, action, item] {
    item.Click();
    if (action->isCheckable()) {
      action->setChecked(entry->Checked());
    }
  });
  return action;
}

void OtchetWindow::AddMenus() {
  for (const frmOtchetMain::Menu& menu : form_.Menus()) {
    QMenu* shown = menuBar()->addMenu(ToQt(menu.Caption));
    shown->setToolTipsVisible(true);
    for (const frmOtchetMain::MenuItem& item : menu.Items) {
      if (item.Entry == nullptr) {
        shown->addSeparator();
        continue;
      }
      QAction* action = MakeAction(item);
      shown->addAction(action);
      actions_[item.Name] = action;
    }
    if (shown->actions().contains(actions_["mnuEdit0"])) {
      editMenu_ = shown;
    }
    if (shown->actions().contains(actions_["mnuViewToolbar"])) {
      AddZoom(*shown);
    }
  }
}

void OtchetWindow::AddZoom(QMenu& menu) {
  menu.addSeparator();
  const auto add = [&](const char* name, const QString& text, const QString& hint,
                       const QList<QKeySequence>& keys, int steps) {
    QAction* action = menu.addAction(text);
    action->setObjectName(QLatin1String(name));
    action->setShortcuts(keys);
    action->setToolTip(hint);
    QObject::connect(action, &QAction::triggered, this,
                     [this, steps] { ZoomBy(steps != 0 ? steps : -zoomSteps_); });
  };
  add("ZoomIn", QStringLiteral("Увеличить"), QStringLiteral("Крупнее на экране (Ctrl++)"),
      {QKeySequence(Qt::CTRL | Qt::Key_Plus), QKeySequence(Qt::CTRL | Qt::Key_Equal)}, 1);
  add("ZoomOut", QStringLiteral("Уменьшить"), QStringLiteral("Мельче на экране (Ctrl+-)"),
      {QKeySequence(Qt::CTRL | Qt::Key_Minus)}, -1);
  add("ZoomUsual", QStringLiteral("Обычный размер"), QStringLiteral("Как на бумаге (Ctrl+0)"),
      {QKeySequence(Qt::CTRL | Qt::Key_0)}, 0);
}

void OtchetWindow::ZoomBy(int steps) {
  constexpr int smallest = -6;
  constexpr int largest = 14;
  constexpr double step = 1.1;
  zoomSteps_ = std::clamp(zoomSteps_ + steps, smallest, largest);
  box_.SetZoom(std::pow(step, zoomSteps_));
  zoom_->setText(QStringLiteral("%1 %").arg(std::lround(100 * box_.Zoom())));
  zoom_->setVisible(zoomSteps_ != 0);
}

void OtchetWindow::AddToolBar() {
  auto* bar = new QToolBar(QStringLiteral("Панель инструментов"));
  bar->setObjectName(QStringLiteral("TB"));
  bar->setMovable(false);
  bar->setIconSize({toolSize, toolSize});
  bar->setContextMenuPolicy(Qt::PreventContextMenu);
  for (const frmOtchetMain::MenuItem& item : form_.ToolButtons()) {
    if (item.Entry == nullptr) {
      bar->addSeparator();
    } else {
      // The button is the menu's entry, so that both are always in one state.
      bar->addAction(actions_.at(item.Name));
    }
  }
  addToolBar(bar);
  setContextMenuPolicy(Qt::NoContextMenu);
  Follow(form_.TB, bar, [this, bar] { bar->setVisible(form_.TB.Visible()); });
}

void OtchetWindow::AddDocument() {
  auto* page = new QWidget;
  auto* row = new QHBoxLayout(page);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(0);
  auto* side = new QFrame;
  side->setObjectName(QStringLiteral("PicLeft"));
  side->setFixedWidth(sidePanelWidth);
  side->setAutoFillBackground(true);
  side->setBackgroundRole(QPalette::Midlight);
  row->addWidget(side);
  if (QTextEdit* text = box_.Widget()) {
    text->setObjectName(QStringLiteral("RTF"));
    text->setAccessibleName(QStringLiteral("Текст документа"));
    text->setFrameShape(QFrame::NoFrame);
    row->addWidget(text, 1);
    text->show();
  }
  setCentralWidget(page);
}

void OtchetWindow::AddStatusBar() {
  for (Long panel = frmOtchetMain::messagePanel; panel <= frmOtchetMain::sizePanel; ++panel) {
    auto* label = new QLabel;
    label->setObjectName(QStringLiteral("SB%1").arg(panel));
    label->setTextFormat(Qt::PlainText);
    Bind(form_.SBPanels[panel], label);
    if (panel == frmOtchetMain::messagePanel) {
      // A long name gives way to the other panels.
      label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
      statusBar()->addWidget(label, 1);
    } else {
      statusBar()->addPermanentWidget(label);
    }
  }
  zoom_ = new QLabel;
  zoom_->setObjectName(QStringLiteral("Zoom"));
  zoom_->setAccessibleName(QStringLiteral("Размер на экране"));
  zoom_->hide();
  statusBar()->addPermanentWidget(zoom_);
  Follow(form_.SB, statusBar(), [this] { statusBar()->setVisible(form_.SB.Visible()); });
}

void OtchetWindow::ConnectBox() {
  box_.KeyDown = [this](Integer& key, Integer shift) { form_.RTF_KeyDown(key, shift); };
  box_.KeyTyped = [this](const std::string& text) { form_.RTF_Typed(text); };
  box_.ZoomAsked = [this](int steps) { ZoomBy(steps); };
  box_.SelChange = [this] { form_.RTF_SelChange(); };
  box_.FileDropped = [this](const std::string& name) { form_.RTF_FileDropped(name); };
  box_.ContextMenu = [this](const QPoint& place) { editMenu_->popup(place); };
  box_.TextCommitted = [this](const std::string& text) { form_.RTF_TextCommitted(text); };
}

void OtchetWindow::RestorePlace() {
  const auto pixels = [](double twips) { return static_cast<int>(twips / twipsPerPixel); };
  QRect place(pixels(form_.Left), pixels(form_.Top), pixels(form_.Width), pixels(form_.Height));
  if (const QScreen* nearest = screen()) {
    // A place of a screen that is no more there would hide the window.
    const QRect room = nearest->availableVirtualGeometry();
    place.setSize(place.size().boundedTo(room.size()));
    place.moveLeft(std::clamp(place.left(), room.left(), room.right() - place.width() + 1));
    place.moveTop(std::clamp(place.top(), room.top(), room.bottom() - place.height() + 1));
  }
  move(place.topLeft());
  resize(place.size());
  if (form_.Maximized) {
    setWindowState(windowState() | Qt::WindowMaximized);
  }
}

void OtchetWindow::ShowModal() {
  setWindowModality(Qt::ApplicationModal);
  QEventLoop loop;
  closed_ = [&loop] { loop.quit(); };
  show();
  activateWindow();
  loop.exec();
  closed_ = nullptr;
}

void OtchetWindow::ShowFind(frmFind& form) {
  if (find_ == nullptr) {
    find_ = new FindWindow(form, this);
    find_->setAttribute(Qt::WA_DeleteOnClose);
    SetHelpPlace(*find_, help_place::Find);
    PlaceBeside(*find_);
  }
  find_->show();
  find_->raise();
  find_->activateWindow();
}

void OtchetWindow::PlaceBeside(QWidget& window) const {
  // What is found is to be seen: beside the text if there is room, else at its lower end.
  window.adjustSize();
  const QRect room = screen()->availableGeometry();
  const QRect here = frameGeometry();
  if (here.right() + window.width() < room.right()) {
    window.move(here.right() + 1, here.top());
  } else {
    const int top = std::min(here.bottom() + 1, room.bottom() - window.frameGeometry().height());
    window.move(std::max(room.left(), here.right() - window.width()), top);
  }
}

void OtchetWindow::showEvent(QShowEvent* event) {
  QMainWindow::showEvent(event);
  // Once the window stands, so that a message of the loading has it behind.
  QTimer::singleShot(0, this, [this] { form_.Form_Activate(); });
}

void OtchetWindow::closeEvent(QCloseEvent* event) {
  if (form_.Find.Replacing()) {
    // The replacing lets events in: it has to end first.
    form_.Find.cmdCancel_Click();
    event->ignore();
    return;
  }
  const bool usual = !isMaximized() && !isFullScreen();
  // The place counts with the frame, as it is restored; the toolkit keeps the usual one without.
  const QRect place =
      usual ? QRect(pos(), size()) : normalGeometry().translated(pos() - geometry().topLeft());
  form_.Left = place.x() * twipsPerPixel;
  form_.Top = place.y() * twipsPerPixel;
  form_.Width = place.width() * twipsPerPixel;
  form_.Height = place.height() * twipsPerPixel;
  form_.Maximized = isMaximized();
  if (!form_.Form_QueryUnload()) {
    event->ignore();
    return;
  }
  delete find_;
  event->accept();
  if (closed_) {
    closed_();
  }
}

}  // namespace trelonit
