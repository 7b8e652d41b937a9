#pragma once

#include <QObject>
#include <functional>
#include <utility>

namespace trelonit {

/// Runs a routine once after a row of changes. While a window comes up its parts take several sizes
/// one after the other; what is costly to lay out waits for the last of them. That is before the
/// next paint, which the toolkit puts behind all other events.
class OnceSettled : public QObject {
 public:
  explicit OnceSettled(std::function<void()> run) : run_(std::move(run)) {}

  void Ask() {
    if (!asked_) {
      asked_ = true;
      QMetaObject::invokeMethod(
          this,
          [this] {
            asked_ = false;
            run_();
          },
          Qt::QueuedConnection);
    }
  }

 private:
  std::function<void()> run_;
  bool asked_ = false;
};

}  // namespace trelonit
