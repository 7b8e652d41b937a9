#pragma once

#include <QImage>
#include <QThreadPool>
#include <functional>
#include <future>

namespace trelonit {

/// Paints on a thread of its own, one picture after the other, while a window comes up: what is
/// going to be shown is there by the time it is asked for. Waits in the end for what it has begun.
class PaintingAside {
 public:
  PaintingAside() { painters_.setMaxThreadCount(1); }

  /// The routine must take nothing that changes while it runs. What it throws comes out of the
  /// future.
  std::future<QImage> Begin(std::function<QImage()> paint);

 private:
  QThreadPool painters_;
};

}  // namespace trelonit
