#include <algorithm>
#include <array>
#include <gtest/gtest.h>
#include <regex>

#include "tests/drawinghost/HostDesk.h"
#include "tests/windows/drawing/DrawingSheets.h"
#include "windows/drawing/DrawingPages.h"

namespace trelonit::test {
namespace {

/// A line and nothing else.
Drawing Line(double width, double height) {
  Drawing drawing = EmptySheet();
  drawing.ModelSpace = {LineOn("Main", {100, 50}, {100 + width, 50 + height})};
  return drawing;
}

QImage Png(const Drawing& drawing, std::optional<PaperFormat> paper = {}) {
  const std::string bytes = WriteDrawingPng(drawing, {paper});
  return QImage::fromData(QByteArray::fromStdString(bytes), "PNG");
}

constexpr double pointsPerMillimetre = 200 / 25.4;

/// A part of the page that is given in millimetres, cut out.
QImage PartOf(const QImage& page, QRectF millimetres) {
  return page.copy(
      QRectF(millimetres.topLeft() * pointsPerMillimetre, millimetres.size() * pointsPerMillimetre)
          .toAlignedRect());
}

TEST(DrawingPages, WritePicturesOfTheSizeOfTheSheet) {
  const QImage image = Png(*SmallDrawing(), PaperFormat::A4);
  EXPECT_NEAR(image.width(), 297 * pointsPerMillimetre, 1);
  EXPECT_NEAR(image.height(), 210 * pointsPerMillimetre, 1);
  EXPECT_NEAR(image.dotsPerMeterX(), 7874, 1);
  EXPECT_NEAR(image.dotsPerMeterY(), 7874, 1);
  EXPECT_EQ(image.text(QStringLiteral("Title")), QStringLiteral("Drawing1.dwg"));
}

TEST(DrawingPages, HaveAFrameWithAWideMarginForFiling) {
  const QRectF ink = InkBox(Png(*SmallDrawing(), PaperFormat::A4));
  EXPECT_NEAR(ink.left() / pointsPerMillimetre, 20, 0.5);
  EXPECT_NEAR(ink.top() / pointsPerMillimetre, 5, 0.5);
  EXPECT_NEAR(ink.right() / pointsPerMillimetre, 292, 0.5);
  EXPECT_NEAR(ink.bottom() / pointsPerMillimetre, 205, 0.5);
}

TEST(DrawingPages, TellTheScaleInTheLowerRightCorner) {
  const QImage page = Png(Line(5000, 0), PaperFormat::A4);
  const QRectF note = InkBox(PartOf(page, {250, 192, 41, 12}));
  EXPECT_NEAR(note.height() / pointsPerMillimetre, 5, 0.5);
  EXPECT_GT(note.width() / pointsPerMillimetre, 12);
  EXPECT_TRUE(InkBox(PartOf(page, {25, 192, 200, 12})).isNull());
}

TEST(DrawingPages, ShowTheDrawingToItsScaleInTheMiddleOfTheSheet) {
  for (const double length : {100.0, 5000.0, 24000.0}) {
    const Drawing drawing = Line(length, 0);
    const double scale = SheetOn(PlacedDrawing(drawing), PaperSize(PaperFormat::A4)).Scale;
    const QRectF ink = InkBox(PartOf(Png(drawing, PaperFormat::A4), {22, 10, 268, 175}));
    // Round ends stand half a line out.
    EXPECT_NEAR(ink.width() / pointsPerMillimetre, length / scale + 0.5, 0.3) << length;
    EXPECT_NEAR(22 + ink.center().x() / pointsPerMillimetre, (20 + 292) / 2.0, 0.3) << length;
  }
}

TEST(DrawingPages, WriteADocumentOfOnePageWithItsFont) {
  const std::string pdf = WriteDrawingPdf(*SmallDrawing(), {PaperFormat::A3});
  EXPECT_TRUE(pdf.starts_with("%PDF-"));
  EXPECT_NE(pdf.find("%%EOF"), std::string::npos);
  EXPECT_NE(pdf.find("/FontFile"), std::string::npos);
  EXPECT_NE(pdf.find("/Count 1"), std::string::npos);
  std::smatch box;
  ASSERT_TRUE(std::regex_search(pdf, box, std::regex("/MediaBox \\[0 0 ([0-9.]+) ([0-9.]+)\\]")));
  EXPECT_NEAR(std::stod(box[1]), 420 / 25.4 * 72, 1);
  EXPECT_NEAR(std::stod(box[2]), 297 / 25.4 * 72, 1);
}

TEST(DrawingPages, AreTheSameTwice) {
  const std::shared_ptr<Drawing> drawing = ExportedDrawing(2, 4);
  EXPECT_EQ(WriteDrawingPng(*drawing), WriteDrawingPng(*drawing));
}

TEST(DrawingPages, CanBeEmpty) {
  for (const Drawing& drawing : {Drawing(), EmptySheet()}) {
    EXPECT_TRUE(WriteDrawingPdf(drawing).starts_with("%PDF-"));
    EXPECT_FALSE(Png(drawing).isNull());
  }
}

TEST(DrawingPages, RaiseOverflowForADrawingBeyondAllNumbers) {
  const Drawing drawing = Line(1e308, 0);
  Drawing wide = drawing;
  wide.ModelSpace.push_back(LineOn("Main", {-1.7e308, 0}, {1.7e308, 0}));
  for (auto* write : {WriteDrawingPdf, WriteDrawingPng}) {
    EXPECT_EQ(RaisedBy([&] { write(wide, {}); }), 6);
  }
}

TEST(DrawingPages, HaveATitleBlockInTheirCornerWhereOneIsWanted) {
  const std::shared_ptr<Drawing> drawing = ExportedDrawing(1, 6);
  const TitleBlock block{.Author = "Иванов"};
  const QImage plain = Png(*drawing, PaperFormat::A2);
  const QImage page = QImage::fromData(
      QByteArray::fromStdString(WriteDrawingPng(*drawing, {PaperFormat::A2, block})), "PNG");
  ASSERT_EQ(page.size(), plain.size());
  // 185 by 55 in the corner of the frame, whose right and lower margins are 5.
  const QRectF corner(594 - 5 - 185, 420 - 5 - 55, 185, 55);
  const auto ink = [](const QImage& image) {
    int dark = 0;
    for (int y = 0; y < image.height(); ++y) {
      for (int x = 0; x < image.width(); ++x) {
        dark += qGray(image.pixel(x, y)) < 128 ? 1 : 0;
      }
    }
    return dark;
  };
  EXPECT_GT(ink(PartOf(page, corner)), 3 * ink(PartOf(plain, corner)));
}

}  // namespace
}  // namespace trelonit::test
