// Paints the program's picture as an icon of Windows. Runs in the build.

#include <QPainter>
#include <QSaveFile>
#include <cstdio>

#include "windows/binding/IconFile.h"
#include "windows/binding/PicturePainter.h"

namespace {

// What Windows asks for at scalings from 100 to 200 %.
constexpr int sides[] = {16, 20, 24, 32, 40, 48, 64, 256};

QImage Paint(const trelonit::CompiledPicture& picture, int side) {
  QImage image(side, side, QImage::Format_ARGB32);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  trelonit::PaintPicture(painter, image.rect(), picture, [](const trelonit::PictureColor& color) {
    return QColor::fromRgb(color.Rgb);
  });
  return image;
}

}  // namespace

int main(int argc, char** argv) {
  const trelonit::CompiledPicture* picture = trelonit::FindPicture("trelonit");
  if (argc != 2 || picture == nullptr) {
    std::fprintf(stderr, "usage: trelonit_make_icon RESULT\n");
    return 2;
  }
  QList<QImage> images;
  for (const int side : sides) {
    images.append(Paint(*picture, side));
  }
  QSaveFile file(QString::fromLocal8Bit(argv[1]));
  if (!file.open(QIODevice::WriteOnly) || file.write(trelonit::IconFile(images)) < 0 ||
      !file.commit()) {
    std::fprintf(stderr, "%s: the file cannot be written\n", argv[1]);
    return 1;
  }
  return 0;
}
