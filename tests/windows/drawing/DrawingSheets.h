#pragma once

#include <QImage>
#include <QRectF>
#include <algorithm>

#include "tests/drawinghost/PlainDrawings.h"
#include "windows/drawing/DrawingPainter.h"

namespace trelonit::test {

/// What is not of the background's colour: the box round it; null for none. Pixels count as dark
/// from half of the ink on.
inline QRectF InkBox(const QImage& image, QColor paper = Qt::white) {
  int left = image.width();
  int top = image.height();
  int right = -1;
  int bottom = -1;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      if (std::abs(qGray(image.pixel(x, y)) - qGray(paper.rgb())) > 127) {
        left = std::min(left, x);
        right = std::max(right, x);
        top = std::min(top, y);
        bottom = std::max(bottom, y);
      }
    }
  }
  return right < 0 ? QRectF() : QRectF(left, top, right - left + 1, bottom - top + 1);
}

/// The drawing on paper, with (0, 0) in the middle of a square image of this size.
inline QImage OnPaper(const Drawing& drawing, double pixelsPerUnit, int size = 800,
                      bool realLetters = false) {
  QImage image(size, size, QImage::Format_RGB32);
  image.fill(Qt::white);
  DrawingLook look;
  look.FromDrawing.translate(size / 2.0, size / 2.0);
  look.FromDrawing.scale(pixelsPerUnit, -pixelsPerUnit);
  look.UnitsPerMillimetre = pixelsPerUnit;
  look.OnPaper = true;
  look.RealLetters = realLetters;
  QPainter painter(&image);
  DrawingPainter(drawing).Paint(painter, look);
  return image;
}

/// The same, as a box of ink in drawing units, Y upwards.
inline QRectF Ink(const Drawing& drawing, double pixelsPerUnit, int size = 800,
                  bool realLetters = false) {
  const QRectF box = InkBox(OnPaper(drawing, pixelsPerUnit, size, realLetters));
  if (box.isNull()) {
    return {};
  }
  const double middle = size / 2.0;
  return QRectF(
      QPointF((box.left() - middle) / pixelsPerUnit, (middle - box.bottom()) / pixelsPerUnit),
      box.size() / pixelsPerUnit);
}

}  // namespace trelonit::test
