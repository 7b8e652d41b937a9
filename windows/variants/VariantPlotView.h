#pragma once

#include <QPixmap>
#include <QWidget>
#include <map>
#include <optional>

#include "variants/PlotAxis.h"
#include "variants/frmVariants.h"

namespace trelonit {

/// Mass over height or deflection: a point for each variant that passes, the front and the chosen
/// one marked. A hint over a point tells of it, a press chooses it.
class VariantPlotView : public QWidget {
 public:
  explicit VariantPlotView(frmVariants& form, QWidget* parent = nullptr);
  QSize sizeHint() const override { return {640, 320}; }

  /// Shows what the form has now.
  void Refresh();
  void ShowChosen();
  /// The bytes of a PNG file, dark on white whatever the desktop's colours are. Raises 57 where it
  /// cannot be made.
  std::string Png() const;
  /// Where a variant's point is; nothing where it has none.
  std::optional<QPointF> PlaceOf(std::uint64_t number) const;

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  bool event(QEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  /// Paints on a field of this size.
  class Painting;

  const PlotPoint* PointAt(QPointF place) const;
  QString HintOf(const PlotPoint& point) const;

  frmVariants& form_;
  std::vector<PlotPoint> points_;
  std::vector<PlotPoint> front_;
  PlotLabels labels_;
  std::map<Long, std::size_t> kinds_;
  PlotAxis across_{0, 1};
  PlotAxis up_{0, 1};
  // Of all points; painting hundreds of thousands takes its time.
  QPixmap painted_;
};

}  // namespace trelonit
