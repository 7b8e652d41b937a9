#include "windows/main/HistoryDesk.h"

#include <QApplication>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QVBoxLayout>

#include "windows/binding/Binding.h"
#include "windows/binding/Layouts.h"
#include "windows/main/NoticeViews.h"

namespace trelonit {

namespace {

constexpr int lookAgainInterval = 500;

bool MayChangeTheDesign(QEvent::Type type) {
  switch (type) {
    case QEvent::KeyPress:
    case QEvent::InputMethod:
    case QEvent::Shortcut:
    case QEvent::MouseButtonRelease:
    case QEvent::Wheel:
    case QEvent::Drop:
    case QEvent::FocusOut:
      return true;
    default:
      return false;
  }
}

bool IsUndoOrRedo(const QKeyEvent& key) {
  return key.matches(QKeySequence::Undo) || key.matches(QKeySequence::Redo);
}

}  // namespace

HistoryDesk::HistoryDesk(frmMain& form, QMainWindow& window)
    : QObject(&window), window_(window), steps_(form) {
  AddMenu();
  settled_.setSingleShot(true);
  QObject::connect(&settled_, &QTimer::timeout, this, [this] { Note(); });
  QObject::connect(&lookAgain_, &QTimer::timeout, this, [this] { Note(); });
  lookAgain_.start(lookAgainInterval);
  qApp->installEventFilter(this);
}

HistoryDesk::~HistoryDesk() {
  delete banner_;
  delete undo_;
  delete redo_;
}

void HistoryDesk::AddMenu() {
  auto* menu = new QMenu(QStringLiteral("&Правка"), &window_);
  menu->setObjectName(QStringLiteral("Edit"));
  undo_ = NewAction(steps_.mnuUndo, "mnuUndo", {QKeySequence(Qt::CTRL | Qt::Key_Z)},
                    &DesignSteps::mnuUndo_Click);
  redo_ = NewAction(
      steps_.mnuRedo, "mnuRedo",
      {QKeySequence(Qt::CTRL | Qt::Key_Y), QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_Z)},
      &DesignSteps::mnuRedo_Click);
  menu->addActions({undo_, redo_});
  window_.menuBar()->insertMenu(window_.menuBar()->actions().value(1), menu);
}

QAction* HistoryDesk::NewAction(MenuEntry& state, const char* name, const QList<QKeySequence>& keys,
                                void (DesignSteps::*click)()) {
  auto* action = new QAction(&window_);
  action->setObjectName(QLatin1String(name));
  action->setShortcuts(keys);
  Follow(state, action, [&state, action] {
    action->setText(ToQt(state.Caption()));
    action->setEnabled(state.Enabled());
  });
  QObject::connect(action, &QAction::triggered, this, [this, click] {
    (steps_.*click)();
    if (Noted) {
      Noted();
    }
  });
  return action;
}

QWidget* HistoryDesk::NewLoadsLostBanner() {
  auto* banner = new NoticeFrame(Severity::Warning);
  banner_ = banner;
  banner->setObjectName(QStringLiteral("lblLoadsLost"));
  banner->setAccessibleName(QStringLiteral("Потерянные нагрузки"));
  auto* column = new QVBoxLayout(banner);
  column->setContentsMargins(14, 6, 8, 6);
  auto* line = new NoticeLine(Severity::Warning);
  column->addWidget(line);
  auto* undo = new QPushButton(QStringLiteral("Отменить"));
  undo->setObjectName(QStringLiteral("cmdUndoLoss"));
  SetHint(undo, QStringLiteral("Вернуть нагрузки: отменить последнее изменение"));
  QObject::connect(undo, &QPushButton::clicked, undo_, &QAction::trigger);
  line->Row().addWidget(undo);
  Label& state = steps_.lblLoadsLost;
  Follow(state, banner, [&state, banner, line] {
    line->Text().setText(ToQt(state.Caption()));
    banner->setAccessibleDescription(line->Text().text());
    ShowCommon(state, banner);
  });
  return banner;
}

void HistoryDesk::Note() {
  // A handler that shows a window has not come to its end.
  if (QApplication::activeModalWidget() != nullptr) {
    return;
  }
  QLineEdit* box = TypedBox();
  const bool step = steps_.Note(box != nullptr ? FromQt(box->objectName()) : std::string());
  if (auto* edit = qobject_cast<QLineEdit*>(QApplication::focusWidget()); step && edit != nullptr) {
    // What stands in it has gone into the design: from here on the design takes it back.
    edit->setModified(false);
  }
  if (Noted) {
    Noted();
  }
}

QLineEdit* HistoryDesk::TypedBox() const {
  auto* edit = qobject_cast<QLineEdit*>(QApplication::focusWidget());
  const bool counts = edit != nullptr && edit->window() == &window_ &&
                      qobject_cast<QComboBox*>(edit->parentWidget()) == nullptr;
  return counts ? edit : nullptr;
}

bool HistoryDesk::IsOfBox(const QLineEdit& box, const QKeyEvent& key) {
  if (key.matches(QKeySequence::Undo)) {
    return box.isModified() && box.isUndoAvailable();
  }
  return !steps_.mnuRedo.Enabled() && box.isRedoAvailable();
}

bool HistoryDesk::eventFilter(QObject* watched, QEvent* event) {
  const QEvent::Type type = event->type();
  if (type == QEvent::ShortcutOverride) {
    // Boxes take these keys for themselves, whether or not they have anything to undo.
    const auto* box = qobject_cast<const QLineEdit*>(watched);
    auto& key = static_cast<QKeyEvent&>(*event);
    if (box != nullptr && box->window() == &window_ && IsUndoOrRedo(key) && !IsOfBox(*box, key)) {
      event->ignore();
      return true;
    }
  } else if (MayChangeTheDesign(type)) {
    if (type == QEvent::FocusOut) {
      auto* box = qobject_cast<QLineEdit*>(watched);
      // What was typed and left is no longer being edited.
      if (box != nullptr && box->window() == &window_) {
        box->setModified(false);
      }
    }
    settled_.start(0);
  }
  return false;
}

}  // namespace trelonit
