#include "windows/services/IconOnceShown.h"

#include <QApplication>
#include <QEvent>
#include <QTimer>

#include "windows/binding/PictureIcon.h"

namespace trelonit {

namespace {

/// Until the display has what was painted, in milliseconds.
constexpr int frame = 16;

}  // namespace

bool IconOnceShown::eventFilter(QObject*, QEvent* event) {
  if (event->type() == QEvent::Expose) {
    qApp->removeEventFilter(this);
    // The window is about to be painted.
    QTimer::singleShot(frame, qApp, [] {
      QApplication::setWindowIcon(PictureIcon(QStringLiteral(":/pictures/trelonit.svg")));
    });
  }
  return false;
}

}  // namespace trelonit
