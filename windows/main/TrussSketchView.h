#pragma once

#include <QWidget>

#include "windows/binding/PaintedLayer.h"
#include "workstation/main/frmMain.h"

namespace trelonit {

/// The truss of the boxes to scale. It follows every key.
class TrussSketchView : public QWidget {
 public:
  explicit TrussSketchView(frmMain& form, QWidget* parent = nullptr);
  QSize sizeHint() const override { return {640, 260}; }

  /// The drawing as it is painted at present.
  TrussSketch Drawn() const;
  /// What has been entered is another truss.
  void Refresh();
  /// Has the drawing painted before it is asked for.
  void PaintAside(PaintingAside& aside);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  frmMain& form_;
  PaintedLayer layer_;
};

}  // namespace trelonit
