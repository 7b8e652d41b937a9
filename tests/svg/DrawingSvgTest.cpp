// A drawing's SVG as another painter shows it, held against the page that the toolkit paints.

#include <QPainter>
#include <QSvgRenderer>
#include <gtest/gtest.h>

#include "drawing/sheet/SvgWriter.h"
#include "tests/drawinghost/HostDesk.h"
#include "tests/drawinghost/PlainDrawings.h"
#include "windows/drawing/DrawingPages.h"

namespace trelonit::test {
namespace {

TEST(DrawingSvg, ShowsTheSamePageAsPixels) {
  for (Long scheme = 1; scheme <= 4; ++scheme) {
    const std::shared_ptr<Drawing> drawing = ExportedDrawing(scheme, 4);
    const SheetChoice choice{PaperFormat::A4, TitleBlock{.Author = "Иванов"}};
    QSvgRenderer renderer(QByteArray::fromStdString(WriteDrawingSvg(*drawing, choice)));
    ASSERT_TRUE(renderer.isValid());
    EXPECT_EQ(renderer.viewBoxF(), QRectF(0, 0, 297, 210));
    const QImage expected =
        QImage::fromData(QByteArray::fromStdString(WriteDrawingPng(*drawing, choice)), "PNG")
            .convertToFormat(QImage::Format_RGB32);
    QImage painted(expected.size(), QImage::Format_RGB32);
    painted.fill(Qt::white);
    QPainter painter(&painted);
    painter.setRenderHint(QPainter::Antialiasing);
    renderer.render(&painter);
    painter.end();
    int different = 0;
    int ink = 0;
    for (int y = 0; y < expected.height(); ++y) {
      for (int x = 0; x < expected.width(); ++x) {
        const int there = qGray(expected.pixel(x, y));
        ink += there < 128 ? 1 : 0;
        different += std::abs(there - qGray(painted.pixel(x, y))) > 127 ? 1 : 0;
      }
    }
    EXPECT_GT(ink, 10000) << scheme;
    EXPECT_LT(different, ink / 20) << scheme;
  }
}

TEST(DrawingSvg, CanBeReadWhenItIsEmpty) {
  for (const Drawing& drawing : {Drawing(), EmptySheet()}) {
    EXPECT_TRUE(QSvgRenderer(QByteArray::fromStdString(WriteDrawingSvg(drawing))).isValid());
  }
}

}  // namespace
}  // namespace trelonit::test
