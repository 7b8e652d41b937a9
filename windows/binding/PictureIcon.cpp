#include "windows/binding/PictureIcon.h"

#include <QGuiApplication>
#include <QIconEngine>
#include <QPixmap>
#include <QPixmapCache>

#include "windows/binding/Pictures.h"

namespace trelonit {

namespace {

class PictureIconEngine : public QIconEngine {
 public:
  explicit PictureIconEngine(QString file) : file_(std::move(file)) {}

  void paint(QPainter* painter, const QRect& place, QIcon::Mode mode, QIcon::State) override {
    DrawPicture(*painter, place, file_, QGuiApplication::palette(), mode != QIcon::Disabled);
  }
  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
    // The window system asks for the icon of a window in several sizes, and more than once.
    const QString key = QStringLiteral("%1 %2x%3 %4 %5")
                            .arg(file_)
                            .arg(size.width())
                            .arg(size.height())
                            .arg(mode)
                            .arg(QGuiApplication::palette().cacheKey());
    QPixmap pixmap;
    if (!QPixmapCache::find(key, &pixmap)) {
      pixmap = QPixmap(size);
      pixmap.fill(Qt::transparent);
      QPainter painter(&pixmap);
      paint(&painter, QRect(QPoint(), size), mode, state);
      painter.end();
      QPixmapCache::insert(key, pixmap);
    }
    return pixmap;
  }
  QIconEngine* clone() const override { return new PictureIconEngine(file_); }

 private:
  QString file_;
};

}  // namespace

QIcon PictureIcon(const QString& file) {
  return QIcon(new PictureIconEngine(file));
}

}  // namespace trelonit
