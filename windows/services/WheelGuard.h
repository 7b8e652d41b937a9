#pragma once

#include <QObject>

namespace trelonit {

/// Keeps the wheel from changing what the user has not gone to: a list, a number, a slider or a
/// choice of tabs without the focus leaves it to what lies under it, which may scroll.
class WheelGuard : public QObject {
 public:
  using QObject::QObject;

  bool eventFilter(QObject* watched, QEvent* event) override;
};

}  // namespace trelonit
