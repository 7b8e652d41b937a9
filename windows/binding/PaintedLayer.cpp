#include "windows/binding/PaintedLayer.h"

#include <QPainter>
#include <utility>

#include "windows/binding/PaintingAside.h"

namespace trelonit {

void PaintedLayer::Forget() {
  painted_ = {};
  begun_ = {};
}

PaintedLayer::Look PaintedLayer::LookOf(const QWidget& widget, qreal ratio) {
  return {.Size = widget.size(),
          .Ratio = ratio,
          .Palette = widget.palette().cacheKey(),
          .Enabled = widget.isEnabled(),
          .Font = widget.font()};
}

QImage PaintedLayer::Painted(const Look& look, const Painting& paint) {
  QImage painted(look.Size * look.Ratio, QImage::Format_ARGB32_Premultiplied);
  painted.setDevicePixelRatio(look.Ratio);
  painted.fill(Qt::transparent);
  QPainter layer(&painted);
  layer.setFont(look.Font);
  layer.setRenderHint(QPainter::Antialiasing);
  paint(layer);
  return painted;
}

void PaintedLayer::Begin(const QWidget& widget, Painting paint, PaintingAside& aside) {
  if (widget.size().isEmpty()) {
    return;
  }
  begunLook_ = LookOf(widget, widget.devicePixelRatioF());
  begun_ =
      aside.Begin([look = begunLook_, paint = std::move(paint)] { return Painted(look, paint); });
}

void PaintedLayer::Draw(QPainter& painter, const QWidget& widget, const Painting& paint) {
  const Look look = LookOf(widget, painter.device()->devicePixelRatioF());
  if (painted_.isNull() || look != look_) {
    look_ = look;
    const bool isBegun = begun_.valid() && look == begunLook_;
    painted_ = QPixmap::fromImage(isBegun ? begun_.get() : Painted(look, paint));
    begun_ = {};
  }
  painter.drawPixmap(0, 0, painted_);
}

}  // namespace trelonit
