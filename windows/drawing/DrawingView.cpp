#include "windows/drawing/DrawingView.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>
#include <utility>

#include "platform/errors/RuntimeError.h"
#include "windows/binding/Units.h"

namespace trelonit {

namespace {

constexpr double zoomStep = 1.25;
/// Pixels between the drawing and the window's edge.
constexpr double edge = 16;
/// Pixels of a capital that can just be read, at the usual resolution.
constexpr double smallestLettersOnScreen = 7;
constexpr double usualDpi = 96;
/// The part of the window that an arrow key moves by.
constexpr double arrowStep = 0.1;
// Against the scale at which all is seen.
constexpr double farthest = 0.05;
constexpr double closest = 2000;

/// The key of Z with a Russian keyboard layout.
constexpr int russianZ = 0x042F;

}  // namespace

DrawingView::DrawingView(std::shared_ptr<Drawing> drawing, QWidget* parent)
    : QWidget(parent), drawing_(std::move(drawing)) {
  setMouseTracking(true);
  setFocusPolicy(Qt::StrongFocus);
  setAttribute(Qt::WA_OpaquePaintEvent);
  setAccessibleName(QStringLiteral("Чертеж"));
  ShowHand();
}

const DrawingPainter& DrawingView::Painter() const {
  if (!painter_) {
    painter_.emplace(*drawing_);
  }
  return *painter_;
}

void DrawingView::Renew() {
  painter_.reset();
  update();
}

QTransform DrawingView::FromDrawing() const {
  QTransform transform;
  transform.translate(width() / 2.0, height() / 2.0);
  transform.scale(scale_, -scale_);
  transform.translate(-middle_.x(), -middle_.y());
  return transform;
}

QPointF DrawingView::ToView(QPointF point) const {
  return FromDrawing().map(point);
}

QPointF DrawingView::ToDrawing(QPointF place) const {
  // The inverse by hand: the toolkit takes small scales for singular.
  return {middle_.x() + (place.x() - width() / 2.0) / scale_,
          middle_.y() - (place.y() - height() / 2.0) / scale_};
}

double DrawingView::ScaleOnScreen() const {
  return logicalDpiX() / millimetresPerInch / scale_;
}

double DrawingView::FittingScale() const {
  const QRectF box = Painter().Bounds(false);
  const double wide = std::max(1.0, width() - 2 * edge) / std::max(box.width(), 1.0);
  const double high = std::max(1.0, height() - 2 * edge) / std::max(box.height(), 1.0);
  return std::min(wide, high);
}

void DrawingView::Fit() {
  try {
    scale_ = FittingScale();
    middle_ = Painter().Bounds(false).center();
  } catch (const RuntimeError&) {
    // Nothing can be shown then, which the painting tells.
  }
}

void DrawingView::ZoomExtents() {
  fitted_ = true;
  Fit();
  Changed();
}

void DrawingView::ZoomBy(double factor) {
  ZoomBy(factor, rect().toRectF().center());
}

void DrawingView::ZoomBy(double factor, QPointF around) {
  double all = scale_;
  try {
    all = FittingScale();
  } catch (const RuntimeError&) {
    return;
  }
  const QPointF kept = ToDrawing(around);
  scale_ = std::clamp(scale_ * factor, all * farthest, all * closest);
  middle_ += kept - ToDrawing(around);
  fitted_ = false;
  Changed();
}

void DrawingView::MoveBy(QPoint pixels) {
  if (pixels.isNull()) {
    return;
  }
  middle_ -= QPointF(pixels.x() / scale_, -pixels.y() / scale_);
  fitted_ = false;
  if (devicePixelRatioF() == std::floor(devicePixelRatioF())) {
    // What stays in sight need not be painted again.
    scroll(pixels.x(), pixels.y());
  } else {
    update();
  }
  if (ViewChanged) {
    ViewChanged();
  }
}

void DrawingView::Changed() {
  update();
  if (ViewChanged) {
    ViewChanged();
  }
}

void DrawingView::paintEvent(QPaintEvent* event) {
  QPainter painter(this);
  for (const QRect& part : event->region()) {
    painter.setClipRect(part);
    PaintPart(painter, part);
  }
}

void DrawingView::PaintPart(QPainter& painter, const QRect& part) const {
  painter.fillRect(part, palette().color(QPalette::Base));
  DrawingLook look;
  look.FromDrawing = FromDrawing();
  look.UnitsPerMillimetre = logicalDpiX() / millimetresPerInch;
  look.ThinnestLine = 1;
  look.OnPixels = true;
  look.SmallestLetters = smallestLettersOnScreen * logicalDpiX() / usualDpi;
  look.Visible = QRectF(part).adjusted(-edge, -edge, edge, edge);
  look.Palette = palette();
  try {
    Painter().Paint(painter, look);
  } catch (const RuntimeError&) {
    painter.setPen(palette().color(QPalette::Text));
    painter.drawText(rect(), Qt::AlignCenter | Qt::TextWordWrap,
                     QStringLiteral("Чертеж нельзя показать: координаты слишком велики"));
  }
}

void DrawingView::resizeEvent(QResizeEvent*) {
  if (fitted_) {
    Fit();
  }
  Changed();
}

void DrawingView::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::PaletteChange) {
    update();
  }
}

void DrawingView::wheelEvent(QWheelEvent* event) {
  constexpr double unitsOfStep = 120;
  const double steps = event->angleDelta().y() / unitsOfStep;
  if (steps != 0) {
    ZoomBy(std::pow(zoomStep, steps), event->position());
    TellPointer(event->position());
  }
  event->accept();
}

void DrawingView::mousePressEvent(QMouseEvent* event) {
  const bool drags = event->button() == Qt::LeftButton || event->button() == Qt::MiddleButton;
  if (drags && dragging_ == Qt::NoButton) {
    dragging_ = event->button();
    dragged_ = event->position().toPoint();
    ShowHand();
  }
}

void DrawingView::mouseMoveEvent(QMouseEvent* event) {
  if (dragging_ != Qt::NoButton || space_) {
    if (dragged_) {
      MoveBy(event->position().toPoint() - *dragged_);
    }
    dragged_ = event->position().toPoint();
  }
  TellPointer(event->position());
}

void DrawingView::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() == dragging_) {
    dragging_ = Qt::NoButton;
    dragged_.reset();
    ShowHand();
  }
}

void DrawingView::mouseDoubleClickEvent(QMouseEvent* event) {
  if (event->button() == Qt::MiddleButton) {
    ZoomExtents();
  } else {
    // The second press of two quick drags.
    mousePressEvent(event);
  }
}

void DrawingView::keyPressEvent(QKeyEvent* event) {
  const QSize step = size() * arrowStep;
  switch (event->key()) {
    case Qt::Key_Left:
      return MoveBy({step.width(), 0});
    case Qt::Key_Right:
      return MoveBy({-step.width(), 0});
    case Qt::Key_Up:
      return MoveBy({0, step.height()});
    case Qt::Key_Down:
      return MoveBy({0, -step.height()});
    case Qt::Key_Plus:
    case Qt::Key_Equal:
      return ZoomBy(zoomStep);
    case Qt::Key_Minus:
      return ZoomBy(1 / zoomStep);
    case Qt::Key_Home:
    case Qt::Key_Z:
    case russianZ:
      return ZoomExtents();
    case Qt::Key_Space:
      if (!event->isAutoRepeat()) {
        space_ = true;
        dragged_.reset();
        ShowHand();
      }
      return;
    default:
      QWidget::keyPressEvent(event);
  }
}

void DrawingView::keyReleaseEvent(QKeyEvent* event) {
  if (event->key() != Qt::Key_Space) {
    QWidget::keyReleaseEvent(event);
  } else if (!event->isAutoRepeat()) {
    space_ = false;
    if (dragging_ == Qt::NoButton) {
      dragged_.reset();
    }
    ShowHand();
  }
}

void DrawingView::leaveEvent(QEvent*) {
  if (PointerMoved) {
    PointerMoved(std::nullopt);
  }
}

void DrawingView::focusOutEvent(QFocusEvent* event) {
  QWidget::focusOutEvent(event);
  // The release of the key goes to another window.
  space_ = false;
  ShowHand();
}

void DrawingView::ShowHand() {
  setCursor(dragging_ != Qt::NoButton ? Qt::ClosedHandCursor
            : space_                  ? Qt::OpenHandCursor
                                      : Qt::CrossCursor);
}

void DrawingView::TellPointer(QPointF place) {
  if (PointerMoved) {
    PointerMoved(ToDrawing(place));
  }
}

}  // namespace trelonit
