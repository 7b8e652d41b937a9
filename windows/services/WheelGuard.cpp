#include "windows/services/WheelGuard.h"

#include <QAbstractSlider>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QEvent>
#include <QScrollBar>
#include <QTabBar>

namespace trelonit {

namespace {

/// Whether the wheel would choose something in it.
bool IsChanged(const QWidget& widget) {
  return qobject_cast<const QComboBox*>(&widget) != nullptr ||
         qobject_cast<const QAbstractSpinBox*>(&widget) != nullptr ||
         qobject_cast<const QTabBar*>(&widget) != nullptr ||
         (qobject_cast<const QAbstractSlider*>(&widget) != nullptr &&
          qobject_cast<const QScrollBar*>(&widget) == nullptr);
}

bool HasFocus(const QWidget& widget) {
  const QWidget* focus = widget.window()->focusWidget();
  return widget.isActiveWindow() && focus != nullptr &&
         (focus == &widget || widget.isAncestorOf(focus));
}

}  // namespace

bool WheelGuard::eventFilter(QObject* watched, QEvent* event) {
  const QEvent::Type type = event->type();
  if (type != QEvent::Wheel && type != QEvent::Polish) {
    return false;
  }
  auto* widget = qobject_cast<QWidget*>(watched);
  if (widget == nullptr || !IsChanged(*widget)) {
    return false;
  }
  if (type == QEvent::Polish) {
    // The wheel would bring the focus along.
    if (widget->focusPolicy() == Qt::WheelFocus) {
      widget->setFocusPolicy(Qt::StrongFocus);
    }
    return false;
  }
  if (HasFocus(*widget)) {
    return false;
  }
  // Not taken, so that it goes on to the parent.
  event->ignore();
  return true;
}

}  // namespace trelonit
