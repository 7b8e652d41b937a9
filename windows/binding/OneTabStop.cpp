#include "windows/binding/OneTabStop.h"

#include <QEvent>
#include <QKeyEvent>
#include <algorithm>
#include <cstdlib>
#include <limits>
#include <utility>

namespace trelonit {

namespace {

bool CanStop(const QAbstractButton* button) {
  return button->isEnabled() && !button->isHidden();
}

QPoint MiddleOf(const QAbstractButton& button) {
  return button.mapTo(button.window(), button.rect().center());
}

/// The way of an arrow; nothing for another key.
QPoint WayOf(int key) {
  switch (key) {
    case Qt::Key_Left:
      return {-1, 0};
    case Qt::Key_Right:
      return {1, 0};
    case Qt::Key_Up:
      return {0, -1};
    case Qt::Key_Down:
      return {0, 1};
    default:
      return {};
  }
}

}  // namespace

OneTabStop::OneTabStop(QWidget* parent, std::vector<QAbstractButton*> buttons, Arrows arrows)
    : QObject(parent), buttons_(std::move(buttons)), arrows_(arrows) {
  for (QAbstractButton* button : buttons_) {
    button->installEventFilter(this);
    QObject::connect(button, &QAbstractButton::toggled, this, [this, button](bool chosen) {
      if (chosen) {
        Stop(button);
      }
    });
  }
  Refresh();
}

void OneTabStop::Stop(QAbstractButton* button) {
  stop_ = button;
  for (QAbstractButton* each : buttons_) {
    each->setFocusPolicy(each == stop_ ? Qt::StrongFocus : Qt::ClickFocus);
  }
}

void OneTabStop::Refresh() {
  if (stop_ != nullptr && CanStop(stop_)) {
    return;
  }
  const auto first = std::find_if(buttons_.begin(), buttons_.end(), CanStop);
  const auto chosen = std::find_if(first, buttons_.end(), [](const QAbstractButton* button) {
    return CanStop(button) && button->isChecked();
  });
  if (first != buttons_.end()) {
    Stop(chosen != buttons_.end() ? *chosen : *first);
  }
}

bool OneTabStop::eventFilter(QObject* watched, QEvent* event) {
  // Not before it is known what happens: a button that is going is none any more.
  const auto button = [watched] { return static_cast<QAbstractButton*>(watched); };
  switch (event->type()) {
    case QEvent::KeyPress: {
      const auto* press = static_cast<QKeyEvent*>(event);
      const bool plain = (press->modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
      return plain && TakeKey(*button(), press->key());
    }
    case QEvent::FocusIn:
      Stop(button());
      break;
    case QEvent::ShowToParent:
    case QEvent::HideToParent:
    case QEvent::EnabledChange:
      Refresh();
      break;
    default:
      break;
  }
  return false;
}

bool OneTabStop::TakeKey(const QAbstractButton& from, int key) {
  QAbstractButton* to = nullptr;
  if (key == Qt::Key_Home || key == Qt::Key_End) {
    const bool home = key == Qt::Key_Home;
    to = Next(home ? *buttons_.front() : *buttons_.back(), 0);
    to = to != nullptr ? to : Next(home ? *buttons_.front() : *buttons_.back(), home ? 1 : -1);
  } else if (WayOf(key).isNull()) {
    return false;
  } else {
    to = Beside(from, key);
  }
  if (to != nullptr && to != &from) {
    to->setFocus(Qt::TabFocusReason);
    if (arrows_ == Arrows::Choose) {
      to->click();
    }
  }
  // An arrow that leads nowhere stays in the group.
  return true;
}

QAbstractButton* OneTabStop::Beside(const QAbstractButton& from, int key) const {
  const QPoint way = WayOf(key);
  const QPoint start = MiddleOf(from);
  QAbstractButton* nearest = nullptr;
  int distance = std::numeric_limits<int>::max();
  for (QAbstractButton* button : buttons_) {
    const QPoint arm = MiddleOf(*button) - start;
    const int along = QPoint::dotProduct(arm, way);
    const int aside = std::abs(arm.x() * way.y()) + std::abs(arm.y() * way.x());
    // In the same row or column.
    const int across = way.x() != 0 ? from.height() : from.width();
    if (CanStop(button) && along > 0 && 2 * aside < across && along < distance) {
      distance = along;
      nearest = button;
    }
  }
  // Left and right go on from row to row.
  return nearest == nullptr && way.x() != 0 ? Next(from, way.x()) : nearest;
}

QAbstractButton* OneTabStop::Next(const QAbstractButton& from, int step) const {
  const auto place = std::find(buttons_.begin(), buttons_.end(), &from) - buttons_.begin();
  auto at = static_cast<std::ptrdiff_t>(place) + step;
  for (; at >= 0 && at < static_cast<std::ptrdiff_t>(buttons_.size()); at += step) {
    QAbstractButton* button = buttons_[static_cast<std::size_t>(at)];
    if (CanStop(button)) {
      return button;
    }
    if (step == 0) {
      break;
    }
  }
  return nullptr;
}

}  // namespace trelonit
