#include <QGuiApplication>
#include <QPalette>
#include <QPixmapCache>
#include <gtest/gtest.h>

#include "windows/binding/PaintingAside.h"
#include "windows/binding/PictureIcon.h"

namespace trelonit::test {
namespace {

const QString file = QStringLiteral(":/pictures/trelonit.svg");

/// The icon at a size, whatever was painted before.
QImage Painted(const QIcon& icon, int side, QIcon::Mode mode = QIcon::Normal) {
  QPixmapCache::clear();
  return icon.pixmap(QSize(side, side), 1, mode).toImage();
}

TEST(WindowPictureIcon, LooksAsTheIconThatIsPaintedWhenItIsAskedFor) {
  PaintingAside aside;
  const QIcon plain = PictureIcon(file);
  const QIcon begun = WindowPictureIcon(file, aside);
  for (const int side : {16, 20, 32, 64, 128, 200}) {
    const QImage expected = Painted(plain, side);
    ASSERT_EQ(expected.width(), side);
    EXPECT_EQ(Painted(begun, side), expected) << side;
    // A second window asks when what was begun has been taken.
    EXPECT_EQ(Painted(begun, side), expected) << side;
  }
  EXPECT_EQ(Painted(begun, 32, QIcon::Disabled), Painted(plain, 32, QIcon::Disabled));
}

TEST(WindowPictureIcon, ThatWasBegunInOtherColoursIsPaintedAnew) {
  const QPalette before = QGuiApplication::palette();
  QIcon begun;
  {
    PaintingAside aside;
    begun = WindowPictureIcon(file, aside);
  }
  QGuiApplication::setPalette(QPalette(QColor(49, 54, 59), QColor(42, 46, 50)));
  EXPECT_EQ(Painted(begun, 32), Painted(PictureIcon(file), 32));
  QGuiApplication::setPalette(before);
}

}  // namespace
}  // namespace trelonit::test
