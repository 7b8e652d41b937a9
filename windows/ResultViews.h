#pragma once

#include <QWidget>
#include <vector>

#include "workstation/ResultPicture.h"

namespace trelonit {

/// The truss with bars coloured by the sign of their force and as thick as it is large. A hint over
/// a bar tells its name and force.
class TrussView : public QWidget {
 public:
  explicit TrussView(std::vector<PictureBar> bars, QWidget* parent = nullptr);
  QSize sizeHint() const override { return {560, 220}; }

 protected:
  void paintEvent(QPaintEvent* event) override;
  bool event(QEvent* event) override;

 private:
  /// From metres to the place on the widget.
  QTransform Placing() const;
  void DrawLegend(QPainter& painter) const;

  std::vector<PictureBar> bars_;
  QRectF bounds_;
  double greatest_ = 0;
};

/// The largest coefficient of each group as a bar, with the limit 1 as a line.
class UseChart : public QWidget {
 public:
  explicit UseChart(std::vector<GroupUse> use, QWidget* parent = nullptr);
  QSize sizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  std::vector<GroupUse> use_;
};

}  // namespace trelonit
