#pragma once

#include <QWidget>
#include <optional>
#include <vector>

#include "workstation/results/ResultPicture.h"

namespace trelonit {

/// A bar by the numbers of the picture.
struct MarkedBar {
  GroupOption Group = optionUpPoyas;
  Long Number = 0;

  friend bool operator==(const MarkedBar&, const MarkedBar&) = default;
};

/// The truss with bars coloured by the sign of their force and as thick as it is large. A hint over
/// a bar tells its name and force.
class TrussView : public QWidget {
 public:
  explicit TrussView(std::vector<PictureBar> bars, QWidget* parent = nullptr);
  QSize sizeHint() const override { return {560, 220}; }

  /// Puts a mark behind this bar and its name over the truss; nothing takes the mark away.
  void Mark(std::optional<MarkedBar> bar);
  const std::optional<MarkedBar>& Marked() const { return marked_; }

 protected:
  void paintEvent(QPaintEvent* event) override;
  bool event(QEvent* event) override;

 private:
  /// From metres to the place on the widget.
  QTransform Placing() const;
  void DrawMark(QPainter& painter, const QTransform& place) const;
  void DrawLegend(QPainter& painter) const;
  const PictureBar* FindMarked() const;

  std::vector<PictureBar> bars_;
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
