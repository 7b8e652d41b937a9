#include "windows/binding/PaintingAside.h"

#include <QThread>
#include <memory>
#include <utility>

namespace trelonit {

std::future<QImage> PaintingAside::Begin(std::function<QImage()> paint) {
  // The pool copies what it runs.
  auto task = std::make_shared<std::packaged_task<QImage()>>(std::move(paint));
  std::future<QImage> painted = task->get_future();
  painters_.start([task] {
    (*task)();
    // The display and the thread that hears it may be waiting for this processor, and the window
    // for them.
    QThread::yieldCurrentThread();
  });
  return painted;
}

}  // namespace trelonit
