#pragma once

#include <QWidget>

#include "workstation/loads/LoadEditor.h"

namespace trelonit {

/// The whole truss to scale with all its loads. A press chooses the joint or the panel that is
/// nearest.
class LoadPictureView : public QWidget {
 public:
  explicit LoadPictureView(LoadEditor& editor, QWidget* parent = nullptr);
  QSize sizeHint() const override { return {700, 180}; }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;

 private:
  LoadPicture Picture() const;
  QColor ColorOf(LoadInk ink) const;

  LoadEditor& editor_;
};

}  // namespace trelonit
