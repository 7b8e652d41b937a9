#pragma once

#include <QFont>
#include <QImage>
#include <QPixmap>
#include <QWidget>
#include <functional>
#include <future>

namespace trelonit {

class PaintingAside;

/// What a widget has painted last, kept: another window over it or a mark on it is no reason to
/// draw everything again.
class PaintedLayer {
 public:
  using Painting = std::function<void(QPainter&)>;

  /// There is something else to be painted.
  void Forget();

  /// Paints the layer of the widget, over its whole rectangle. The routine runs only after Forget
  /// and where the widget has come to look otherwise.
  void Draw(QPainter& painter, const QWidget& widget, const Painting& paint);

  /// Has the layer painted on another thread until Draw asks for it. The routine takes nothing of
  /// the widget itself.
  void Begin(const QWidget& widget, Painting paint, PaintingAside& aside);

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

  static Look LookOf(const QWidget& widget, qreal ratio);
  static QImage Painted(const Look& look, const Painting& paint);

  Look look_;
  QPixmap painted_;
  Look begunLook_;
  std::future<QImage> begun_;
};

}  // namespace trelonit
