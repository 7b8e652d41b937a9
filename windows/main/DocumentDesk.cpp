#include "windows/main/DocumentDesk.h"

#include <QAction>
#include <QApplication>
#include <QDropEvent>
#include <QFileInfo>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QUrl>
#include <algorithm>

#include "windows/binding/Binding.h"
#include "windows/main/HistoryDesk.h"
#include "windows/main/MainWindow.h"
#include "workstation/design/ProjectFile.h"

namespace trelonit {

namespace {

constexpr const char* documentSection = "Document";
constexpr const char* recoveryKey = "RecoverySeconds";
constexpr const char* usualRecoverySeconds = "60";

/// The project that is being dropped; empty for anything else.
QString DroppedProject(const QMimeData& content) {
  const QList<QUrl> urls = content.urls();
  if (urls.size() != 1 || !urls.front().isLocalFile()) {
    return {};
  }
  const QString file = urls.front().toLocalFile();
  return QFileInfo(file).suffix().compare(QLatin1String(projectExtension), Qt::CaseInsensitive) == 0
             ? file
             : QString();
}

QAction* NewEntry(QObject& parent, const char* name, const QString& caption,
                  const QKeySequence& key) {
  auto* action = new QAction(caption, &parent);
  action->setObjectName(QLatin1String(name));
  action->setShortcut(key);
  return action;
}

}  // namespace

DocumentDesk::DocumentDesk(ProjectDocument& document, MainWindow& window, SettingsService& settings)
    : QObject(&window), document_(document), window_(window) {
  AddEntries();
  document_.Changed = [this] { ShowDocument(); };
  window_.History().Noted = [this] { document_.Note(); };
  window_.setAcceptDrops(true);
  qApp->installEventFilter(this);
  const int seconds =
      ToQt(settings.Get(documentSection, recoveryKey, usualRecoverySeconds)).toInt();
  QObject::connect(&copies_, &QTimer::timeout, this, [this] { document_.KeepRecoveryCopy(); });
  copies_.start(std::max(seconds, 1) * 1000);
  document_.Note();
}

DocumentDesk::~DocumentDesk() {
  document_.Changed = nullptr;
}

void DocumentDesk::AddEntries() {
  auto* asksForName = window_.findChild<QAction*>(QStringLiteral("SaveParam"));
  auto* restore = window_.findChild<QAction*>(QStringLiteral("Restore"));
  auto* exit = window_.findChild<QAction*>(QStringLiteral("Exit"));
  auto* menu = window_.menuBar()->actions().front()->menu();
  // The key that everybody knows saves to the same file; the first entry asks for a name each time.
  asksForName->setShortcut({});
  QAction* save =
      NewEntry(window_, "mnuSave", QStringLiteral("Сохранить в тот же &файл"), QKeySequence::Save);
  QObject::connect(save, &QAction::triggered, this, [this] { document_.mnuSave_Click(); });
  QAction* saveAs = NewEntry(window_, "mnuSaveAs", QStringLiteral("Сохранить &как ..."),
                             QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S));
  QObject::connect(saveAs, &QAction::triggered, this, [this] { document_.mnuSaveAs_Click(); });
  menu->insertActions(restore, {save, saveAs});
  recent_ = new QMenu(QStringLiteral("&Последние файлы"), &window_);
  recent_->setObjectName(QStringLiteral("mnuRecent"));
  menu->insertMenu(exit, recent_);
  menu->insertSeparator(exit);
  QObject::connect(menu, &QMenu::aboutToShow, this, [this] { ShowRecent(); });
}

void DocumentDesk::ShowRecent() {
  recent_->clear();
  int number = 0;
  for (const std::string& name : document_.RecentNames()) {
    ++number;
    QString caption = ToQt(name);
    caption.replace(QLatin1Char('&'), QStringLiteral("&&"));
    QAction* entry = recent_->addAction(QStringLiteral("&%1  %2").arg(number).arg(caption));
    entry->setObjectName(QStringLiteral("mnuRecent%1").arg(number));
    // Once the menu is closed: opening shows the list anew.
    QObject::connect(
        entry, &QAction::triggered, this, [this, name] { document_.Open(name); },
        Qt::QueuedConnection);
  }
  recent_->menuAction()->setEnabled(number > 0);
}

void DocumentDesk::ShowDocument() {
  window_.SetDocument(ToQt(document_.Caption()), document_.IsModified());
  window_.setWindowFilePath(ToQt(document_.File()));
}

bool DocumentDesk::eventFilter(QObject* watched, QEvent* event) {
  const QEvent::Type type = event->type();
  if (type != QEvent::DragEnter && type != QEvent::DragMove && type != QEvent::Drop) {
    return false;
  }
  const auto* widget = qobject_cast<const QWidget*>(watched);
  auto& drop = static_cast<QDropEvent&>(*event);
  if (widget == nullptr || widget->window() != &window_ || drop.mimeData() == nullptr) {
    return false;
  }
  // Before the boxes of the window, which would take its name as text.
  const QString file = DroppedProject(*drop.mimeData());
  if (file.isEmpty()) {
    return false;
  }
  drop.setDropAction(Qt::CopyAction);
  drop.accept();
  if (type == QEvent::Drop) {
    // The other program waits for the end of the drop, the user may be asked something.
    QTimer::singleShot(0, this, [this, file] { document_.Open(FileFromQt(file)); });
  }
  return true;
}

}  // namespace trelonit
