#include "windows/binding/IconFile.h"

#include <QBuffer>
#include <QDataStream>

namespace trelonit {

namespace {

constexpr int largest = 256;

QByteArray Compressed(const QImage& picture) {
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  picture.save(&buffer, "PNG");
  return bytes;
}

/// A bit map without the head of a file: colours with their opacity from the bottom up, behind them
/// a mask for programs that know no opacity.
QByteArray BitMap(const QImage& picture) {
  const QImage image = picture.convertToFormat(QImage::Format_ARGB32);
  const int side = image.width();
  constexpr quint32 headSize = 40;
  constexpr quint16 planes = 1;
  constexpr quint16 bitsPerPixel = 32;
  QByteArray bytes;
  QDataStream stream(&bytes, QIODevice::WriteOnly);
  stream.setByteOrder(QDataStream::LittleEndian);
  // Colours and mask count as one picture of twice the height.
  stream << headSize << qint32(side) << qint32(2 * side) << planes << bitsPerPixel;
  constexpr int restOfHead = 24;
  stream.writeRawData(QByteArray(restOfHead, 0).constData(), restOfHead);
  for (int row = side - 1; row >= 0; --row) {
    for (int column = 0; column < side; ++column) {
      stream << image.pixel(column, row);
    }
  }
  constexpr int bitsOfWord = 32;
  const int words = (side + bitsOfWord - 1) / bitsOfWord;
  for (int row = side - 1; row >= 0; --row) {
    QByteArray mask(words * 4, 0);
    for (int column = 0; column < side; ++column) {
      if (qAlpha(image.pixel(column, row)) == 0) {
        mask[column / 8] = static_cast<char>(mask[column / 8] | (0x80 >> (column % 8)));
      }
    }
    stream.writeRawData(mask.constData(), static_cast<int>(mask.size()));
  }
  return bytes;
}

}  // namespace

QByteArray IconFile(const QList<QImage>& pictures) {
  constexpr quint16 kindIcon = 1;
  constexpr qsizetype headSize = 6;
  constexpr qsizetype entrySize = 16;
  QByteArray bytes;
  QByteArray contents;
  QDataStream stream(&bytes, QIODevice::WriteOnly);
  stream.setByteOrder(QDataStream::LittleEndian);
  stream << quint16(0) << kindIcon << static_cast<quint16>(pictures.size());
  for (const QImage& picture : pictures) {
    const QByteArray content = picture.width() < largest ? BitMap(picture) : Compressed(picture);
    // 256 does not fit into a byte and is told as 0.
    const auto side = static_cast<quint8>(picture.width() % largest);
    stream << side << side << quint16(0) << quint16(1) << quint16(32)
           << static_cast<quint32>(content.size())
           << static_cast<quint32>(headSize + entrySize * pictures.size() + contents.size());
    contents += content;
  }
  return bytes + contents;
}

}  // namespace trelonit
