#pragma once

#include <QApplication>
#include <QEvent>
#include <QTimer>
#include <QWidget>
#include <cstdio>
#include <fstream>
#include <functional>
#include <string>
#include <utility>

namespace trelonit::bench {

/// Calls back once a window that passes the test has been painted and the display has it all.
class FirstPaint : public QObject {
 public:
  FirstPaint(std::function<bool(const QWidget&)> isMeant, std::function<void(QWidget&)> painted)
      : isMeant_(std::move(isMeant)), painted_(std::move(painted)) {
    qApp->installEventFilter(this);
  }

  bool eventFilter(QObject* object, QEvent* event) override {
    if (event->type() != QEvent::Paint || !object->isWidgetType() || done_) {
      return false;
    }
    auto* widget = static_cast<QWidget*>(object);
    if (widget->isWindow() && isMeant_(*widget)) {
      done_ = true;
      // The children are painted in the same go, so the queue comes next when all are.
      QTimer::singleShot(0, widget, [this, widget] {
        QGuiApplication::sync();
        painted_(*widget);
      });
    }
    return false;
  }

 private:
  std::function<bool(const QWidget&)> isMeant_;
  std::function<void(QWidget&)> painted_;
  bool done_ = false;
};

/// A line for the measuring process: what happened, and a figure.
inline void Tell(const std::string& what, double figure) {
  std::printf("%s %.3f\n", what.c_str(), figure);
  std::fflush(stdout);
}

/// Resident memory of this process in megabytes.
inline double ResidentMegabytes() {
  std::ifstream status("/proc/self/status");
  for (std::string word; status >> word;) {
    if (word == "VmRSS:") {
      double kilobytes = 0;
      status >> kilobytes;
      return kilobytes / 1024;
    }
  }
  return 0;
}

}  // namespace trelonit::bench
