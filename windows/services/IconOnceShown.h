#pragma once

#include <QObject>

namespace trelonit {

/// Gives the application its icon, and with it every window that there is or will be, behind the
/// first paint of the first window: the icon is painted in many sizes and sent to the display,
/// which the user need not wait for.
class IconOnceShown : public QObject {
 public:
  using QObject::QObject;

  bool eventFilter(QObject* watched, QEvent* event) override;
};

}  // namespace trelonit
