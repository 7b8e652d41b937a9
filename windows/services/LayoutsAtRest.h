#pragma once

#include <QObject>

namespace trelonit {

/// Lets the layouts of a window come to rest before the screen asks for it. What a layout asks of
/// the one around it goes up the tree by an event for each level; a window that is painted
/// meanwhile is painted once more for each of them.
class LayoutsAtRest : public QObject {
 public:
  using QObject::QObject;

  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool asked_ = false;
};

}  // namespace trelonit
