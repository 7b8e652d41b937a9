#include "windows/binding/PictureIcon.h"

#include <QGuiApplication>
#include <QIconEngine>
#include <QPixmap>
#include <QPixmapCache>
#include <algorithm>
#include <memory>
#include <vector>

#include "windows/binding/PaintingAside.h"
#include "windows/binding/Pictures.h"

namespace trelonit {

namespace {

QImage Painted(QSize size, const QString& file, const QPalette& palette, bool enabled) {
  QImage painted(size, QImage::Format_ARGB32_Premultiplied);
  painted.fill(Qt::transparent);
  QPainter painter(&painted);
  DrawPicture(painter, QRect(QPoint(), size), file, palette, enabled);
  return painted;
}

/// The enabled icon, painted on another thread.
struct BegunPicture {
  QSize Size;
  qint64 Palette = 0;
  std::future<QImage> Image;
};

/// Whoever asks first takes it; after that it is in the cache.
using BegunPictures = std::vector<BegunPicture>;

class PictureIconEngine : public QIconEngine {
 public:
  explicit PictureIconEngine(QString file, std::shared_ptr<BegunPictures> begun = {})
      : file_(std::move(file)), begun_(std::move(begun)) {}

  void paint(QPainter* painter, const QRect& place, QIcon::Mode mode, QIcon::State) override {
    DrawPicture(*painter, place, file_, QGuiApplication::palette(), mode != QIcon::Disabled);
  }
  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State) override {
    const QPalette palette = QGuiApplication::palette();
    // The window system asks for the icon of a window in several sizes, and more than once.
    const QString key = QStringLiteral("%1 %2x%3 %4 %5")
                            .arg(file_)
                            .arg(size.width())
                            .arg(size.height())
                            .arg(mode)
                            .arg(palette.cacheKey());
    QPixmap pixmap;
    if (!QPixmapCache::find(key, &pixmap)) {
      BegunPicture* begun = mode == QIcon::Disabled ? nullptr : Begun(size, palette);
      pixmap = QPixmap::fromImage(begun != nullptr
                                      ? begun->Image.get()
                                      : Painted(size, file_, palette, mode != QIcon::Disabled));
      QPixmapCache::insert(key, pixmap);
    }
    return pixmap;
  }
  QIconEngine* clone() const override { return new PictureIconEngine(file_, begun_); }

 private:
  BegunPicture* Begun(QSize size, const QPalette& palette) {
    if (!begun_) {
      return nullptr;
    }
    const auto found =
        std::find_if(begun_->begin(), begun_->end(), [&](const BegunPicture& picture) {
          return picture.Size == size && picture.Palette == palette.cacheKey() &&
                 picture.Image.valid();
        });
    return found == begun_->end() ? nullptr : &*found;
  }

  QString file_;
  std::shared_ptr<BegunPictures> begun_;
};

}  // namespace

QIcon PictureIcon(const QString& file) {
  return QIcon(new PictureIconEngine(file));
}

QIcon WindowPictureIcon(const QString& file, PaintingAside& aside) {
  const QPalette palette = QGuiApplication::palette();
  auto begun = std::make_shared<BegunPictures>();
  for (const int side : {16, 32, 64, 128}) {
    const QSize size(side, side);
    begun->push_back({size, palette.cacheKey(),
                      aside.Begin([=] { return Painted(size, file, palette, true); })});
  }
  return QIcon(new PictureIconEngine(file, std::move(begun)));
}

}  // namespace trelonit
