#pragma once

#include <QFont>
#include <QPixmap>
#include <QWidget>
#include <functional>

namespace trelonit {

/// What a widget has painted last, kept: another window over it or a mark on it is no reason to
/// draw everything again.
class PaintedLayer {
 public:
  /// There is something else to be painted.
  void Forget() { painted_ = {}; }

  /// Paints the layer of the widget, over its whole rectangle. The routine runs only after Forget
  /// and where the widget has come to look otherwise.
  void Draw(QPainter& painter, const QWidget& widget, const std::function<void(QPainter&)>& paint);

 private:
  /// All that a drawing of a widget depends on besides its own content.
  struct Look {
    QSize Size;
    qreal Ratio = 0;
    qint64 Palette = 0;
    bool Enabled = false;
    QFont Font;

    friend bool operator==(const Look&, const Look&) = default;
  };

  Look look_;
  QPixmap painted_;
};

}  // namespace trelonit
