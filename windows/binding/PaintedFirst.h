#pragma once

#include <QObject>
#include <QPointer>
#include <QTimer>

class QWidget;

namespace trelonit {

/// Lets a window that opens over another one be painted first: what there is to be painted again
/// below it, where it is hidden, waits. Belongs to the window above.
class PaintedFirst : public QObject {
 public:
  explicit PaintedFirst(QWidget* above);
  ~PaintedFirst() override;
  PaintedFirst(const PaintedFirst&) = delete;
  PaintedFirst& operator=(const PaintedFirst&) = delete;

  bool eventFilter(QObject* object, QEvent* event) override;

 private:
  void Hold(QWidget* below);
  void Release();

  QPointer<QWidget> below_;
  bool waits_ = false;
  QTimer release_;
};

}  // namespace trelonit
