#pragma once

#include <QApplication>
#include <functional>

#include "platform/errors/RuntimeError.h"

namespace trelonit {

/// The application in which no failure ends the program: whatever a handler, a timer or a slot
/// throws is told, and the next event is served.
class GuardedApplication : public QApplication {
 public:
  using QApplication::QApplication;

  bool notify(QObject* receiver, QEvent* event) override;

  /// Shows the failure in a box under the program's name. What it throws itself, where even memory
  /// for a box is gone, ends on standard error.
  std::function<void(const RuntimeError&)> Tell;
};

}  // namespace trelonit
