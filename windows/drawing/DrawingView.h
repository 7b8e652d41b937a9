#pragma once

#include <QWidget>
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "windows/drawing/DrawingPainter.h"

namespace trelonit {

/// Shows a drawing. Dragging with the left or the middle button moves it, and so does every move of
/// the mouse while Space is held; arrows move it in steps. The wheel zooms round the pointer, + and
/// - round the middle. Home, Z and a double click of the middle button show all of it; that stays
/// so at a change of the window's size until the user chooses another part.
class DrawingView : public QWidget {
 public:
  explicit DrawingView(std::shared_ptr<Drawing> drawing, QWidget* parent = nullptr);

  const std::shared_ptr<Drawing>& Shown() const { return drawing_; }

  /// The drawing was changed: it is looked at anew with the next painting.
  void Renew();
  void ZoomExtents();
  /// Larger for a factor above 1, round the middle or the given place.
  void ZoomBy(double factor);
  void ZoomBy(double factor, QPointF around);

  // Places in the widget and in the drawing, whose Y goes upwards.
  QPointF ToDrawing(QPointF place) const;
  QPointF ToView(QPointF point) const;

  /// Drawing units (mm) to a millimetre of the screen.
  double ScaleOnScreen() const;

  /// Raises 6 like the painter.
  const DrawingPainter& Painter() const;

  /// Where in the drawing the pointer is; nothing when it leaves.
  std::function<void(std::optional<QPointF>)> PointerMoved;
  /// Another part or another scale is shown.
  std::function<void()> ViewChanged;

  QSize sizeHint() const override { return {900, 600}; }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void changeEvent(QEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;
  void leaveEvent(QEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  QTransform FromDrawing() const;
  /// Pixels for a drawing unit at which all is seen.
  double FittingScale() const;
  void Fit();
  /// By whole pixels, so that what is painted can be moved along.
  void MoveBy(QPoint pixels);
  void PaintPart(QPainter& painter, const QRect& part) const;
  void Changed();
  void ShowHand();
  void TellPointer(QPointF place);

  std::shared_ptr<Drawing> drawing_;
  mutable std::optional<DrawingPainter> painter_;
  double scale_ = 1;  ///< pixels for a drawing unit
  QPointF middle_;    ///< of the view, in the drawing
  bool fitted_ = true;
  /// The last place of the mouse while it moves the drawing.
  std::optional<QPoint> dragged_;
  /// The button that does, if any.
  Qt::MouseButton dragging_ = Qt::NoButton;
  bool space_ = false;
};

}  // namespace trelonit
