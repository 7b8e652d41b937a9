#pragma once

#include <QApplication>
#include <QTimer>
#include <functional>

namespace trelonit::test {

/// Waits for the modal window that opens next and acts on it. A window that the action leaves open
/// is rejected, so that no test hangs.
template <class Window>
class OnceModal {
 public:
  explicit OnceModal(std::function<void(Window&)> act) : act_(std::move(act)) {
    QObject::connect(&timer_, &QTimer::timeout, [this] { Look(); });
    timer_.start(1);
  }
  bool Acted() const { return acted_; }

 private:
  void Look() {
    auto* window = qobject_cast<Window*>(QApplication::activeModalWidget());
    if (window == nullptr) {
      return;
    }
    timer_.stop();
    acted_ = true;
    act_(*window);
    if (window->isVisible()) {
      window->reject();
    }
  }

  std::function<void(Window&)> act_;
  QTimer timer_;
  bool acted_ = false;
};

}  // namespace trelonit::test
