#include "windows/services/LayoutsAtRest.h"

#include <QCoreApplication>
#include <QEvent>

namespace trelonit {

bool LayoutsAtRest::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::LayoutRequest) {
    asked_ = true;
  } else if (event->type() == QEvent::Expose && watched->isWindowType()) {
    // More levels than any window has: layouts that never rest are painted as they are.
    constexpr int levels = 30;
    asked_ = true;
    for (int round = 0; asked_ && round < levels; ++round) {
      asked_ = false;
      QCoreApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    }
  }
  return false;
}

}  // namespace trelonit
