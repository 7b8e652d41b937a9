#pragma once

#include <QAction>
#include <QKeySequence>
#include <QWidget>
#include <functional>

namespace trelonit {

/// Ctrl+C while the widget has the focus, and the entry of its menu for it.
inline void AddCopy(QWidget* widget, std::function<void()> copy) {
  auto* action = new QAction(QStringLiteral("&Копировать"), widget);
  action->setShortcut(QKeySequence::Copy);
  action->setShortcutContext(Qt::WidgetShortcut);
  widget->addAction(action);
  widget->setContextMenuPolicy(Qt::ActionsContextMenu);
  QObject::connect(action, &QAction::triggered, widget, std::move(copy));
}

}  // namespace trelonit
