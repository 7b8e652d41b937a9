#include "windows/binding/PaintedFirst.h"

#include <QCoreApplication>
#include <QEvent>
#include <QWidget>

namespace trelonit {

namespace {

/// Until the display has what was painted, in milliseconds.
constexpr int frame = 16;
/// A window may come up minimised or on another desktop, where it is not painted at all.
constexpr int patience = 250;

}  // namespace

PaintedFirst::PaintedFirst(QWidget* above) : QObject(above) {
  above->installEventFilter(this);
  release_.setSingleShot(true);
  QObject::connect(&release_, &QTimer::timeout, this, [this] { Release(); });
}

PaintedFirst::~PaintedFirst() {
  Release();
}

bool PaintedFirst::eventFilter(QObject* object, QEvent* event) {
  if (object == below_) {
    if (event->type() == QEvent::UpdateRequest) {
      waits_ = true;
      return true;
    }
    return false;
  }
  const auto* above = static_cast<const QWidget*>(parent());
  if (event->type() == QEvent::Show && !event->spontaneous() && above->parentWidget() != nullptr) {
    Hold(above->parentWidget()->window());
  } else if (event->type() == QEvent::Paint && below_) {
    release_.start(frame);
  } else if (event->type() == QEvent::Hide) {
    Release();
  }
  return false;
}

void PaintedFirst::Hold(QWidget* below) {
  below_ = below;
  below_->installEventFilter(this);
  release_.start(patience);
}

void PaintedFirst::Release() {
  release_.stop();
  if (!below_) {
    return;
  }
  below_->removeEventFilter(this);
  if (waits_) {
    // As the toolkit sends it: behind all other events.
    QCoreApplication::postEvent(below_, new QEvent(QEvent::UpdateRequest), Qt::LowEventPriority);
  }
  waits_ = false;
  below_ = nullptr;
}

}  // namespace trelonit
