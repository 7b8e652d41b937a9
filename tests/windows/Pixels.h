#pragma once

#include <QImage>
#include <QWidget>
#include <set>

namespace trelonit::test {

/// How many pixels of the painted widget have exactly this colour.
inline int CountPixels(QWidget& widget, const QColor& color) {
  const QImage image = widget.grab().toImage();
  int count = 0;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      count += image.pixelColor(x, y).rgb() == color.rgb() ? 1 : 0;
    }
  }
  return count;
}

/// How many colours the painted widget has; a blank one has one.
inline std::size_t CountColors(QWidget& widget) {
  const QImage image = widget.grab().toImage();
  std::set<QRgb> colors;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      colors.insert(image.pixel(x, y));
    }
  }
  return colors.size();
}

}  // namespace trelonit::test
