#pragma once

#include <QWidget>
#include <functional>
#include <optional>
#include <vector>

#include "workstation/results/ResultPicture.h"

namespace trelonit {

/// The truss with bars coloured by the sign of their force and as thick as it is large. A hint over
/// a bar tells its name and force, a press on it picks it.
class TrussView : public QWidget {
 public:
  explicit TrussView(std::vector<PictureBar> bars, QWidget* parent = nullptr);
  QSize sizeHint() const override { return {560, 220}; }

  /// Puts a mark behind this bar and its name over the truss; nothing takes the mark away.
  void Mark(std::optional<MarkedBar> bar);
  const std::optional<MarkedBar>& Marked() const { return marked_; }

  /// Called with the bar that the user presses.
  std::function<void(const MarkedBar&)> Picked;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  bool event(QEvent* event) override;

 private:
  /// From metres to the place on the widget.
  QTransform Placing() const;
  void DrawMark(QPainter& painter, const QTransform& place) const;
  void DrawLegend(QPainter& painter) const;
  const PictureBar* FindMarked() const;
  /// The bar that a place on the widget means; null away from all of them.
  const PictureBar* BarAt(QPointF place) const;

  std::vector<PictureBar> bars_;
  std::vector<QPointF> joints_;
  QRectF bounds_;
  double greatest_ = 0;
  std::optional<MarkedBar> marked_;
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
