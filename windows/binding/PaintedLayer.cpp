#include "windows/binding/PaintedLayer.h"

#include <QPainter>

namespace trelonit {

void PaintedLayer::Draw(QPainter& painter, const QWidget& widget,
                        const std::function<void(QPainter&)>& paint) {
  const Look look{.Size = widget.size(),
                  .Ratio = painter.device()->devicePixelRatioF(),
                  .Palette = widget.palette().cacheKey(),
                  .Enabled = widget.isEnabled(),
                  .Font = widget.font()};
  if (painted_.isNull() || look != look_) {
    look_ = look;
    painted_ = QPixmap(look.Size * look.Ratio);
    painted_.setDevicePixelRatio(look.Ratio);
    painted_.fill(Qt::transparent);
    QPainter layer(&painted_);
    layer.setFont(look.Font);
    layer.setRenderHint(QPainter::Antialiasing);
    paint(layer);
  }
  painter.drawPixmap(0, 0, painted_);
}

}  // namespace trelonit
