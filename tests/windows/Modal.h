#pragma once

#include <QApplication>
#include <QElapsedTimer>
#include <QThread>
#include <QTimer>
#include <QWindow>
#include <exception>
#include <functional>
#include <gtest/gtest.h>

namespace trelonit::test {

/// Waits for the modal window that opens next and acts on it. A window that the action leaves open
/// is rejected or closed, also after an exception, so that no test hangs.
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
    auto* window = dynamic_cast<Window*>(QApplication::activeModalWidget());
    if (window == nullptr || !TakesActions(*window)) {
      return;
    }
    timer_.stop();
    acted_ = true;
    try {
      act_(*window);
    } catch (const std::exception& error) {
      ADD_FAILURE() << error.what();
    }
    if (window->isVisible()) {
      Leave(*window);
    }
  }

  /// Some systems deliver events while a window is still coming up. One that is closed then, before
  /// its own loop of events runs, would wait for ever; and keys would go to the window below.
  bool TakesActions(const QWidget& window) {
    if (QThread::currentThread()->loopLevel() <= level_ || window.windowHandle() == nullptr ||
        !window.windowHandle()->isExposed()) {
      return false;
    }
    if (!modal_.isValid()) {
      modal_.start();
    }
    constexpr int longest = 2000;
    return window.isActiveWindow() || modal_.hasExpired(longest);
  }

  static void Leave(Window& window) {
    if constexpr (requires { window.reject(); }) {
      window.reject();
    } else {
      window.close();
    }
  }

  std::function<void(Window&)> act_;
  QTimer timer_;
  QElapsedTimer modal_;
  const int level_ = QThread::currentThread()->loopLevel();
  bool acted_ = false;
};

}  // namespace trelonit::test
