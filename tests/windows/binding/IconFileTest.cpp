#include <QBuffer>
#include <QImageReader>
#include <gtest/gtest.h>

#include "windows/binding/IconFile.h"

namespace trelonit::test {
namespace {

/// Half red, the more seen through the lower, half nothing. A full red: the reader multiplies
/// colours with their opacity, which loses others.
QImage Sample(int side) {
  QImage image(side, side, QImage::Format_ARGB32);
  image.fill(Qt::transparent);
  for (int row = 0; row < side; ++row) {
    for (int column = 0; column < side / 2; ++column) {
      image.setPixel(column, row, qRgba(255, 0, 0, 255 - row / 2));
    }
  }
  return image;
}

TEST(IconFile, ReadsBackAsThePicturesThatWentIn) {
  const QList<QImage> pictures{Sample(16), Sample(20), Sample(48), Sample(256)};
  QByteArray bytes = IconFile(pictures);
  QBuffer buffer(&bytes);
  QImageReader reader(&buffer, "ico");
  ASSERT_EQ(reader.imageCount(), pictures.size()) << reader.errorString().toStdString();
  for (int place = 0; place < pictures.size(); ++place) {
    ASSERT_TRUE(reader.jumpToImage(place));
    EXPECT_EQ(reader.read().convertToFormat(QImage::Format_ARGB32), pictures[place]) << place;
  }
}

TEST(IconFile, TellsTheLargestSideAsZero) {
  const QByteArray bytes = IconFile({Sample(256)});
  EXPECT_EQ(bytes.left(8), QByteArray("\0\0\1\0\1\0\0\0", 8));
}

}  // namespace
}  // namespace trelonit::test
