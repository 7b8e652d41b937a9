#include <QBuffer>
#include <QSvgRenderer>
#include <algorithm>
#include <array>
#include <gtest/gtest.h>
#include <regex>

#include "tests/drawinghost/HostDesk.h"
#include "tests/windows/drawing/DrawingSheets.h"
#include "windows/drawing/DrawingPages.h"

namespace trelonit::test {
namespace {

constexpr std::array formats{PaperFormat::A4, PaperFormat::A3, PaperFormat::A2, PaperFormat::A1,
                             PaperFormat::A0};

/// The scales of GOST 2.302 that do not enlarge.
constexpr std::array standardScales{1.0,   2.0,  2.5,  4.0,  5.0,   10.0,  15.0,  20.0,
                                    25.0,  40.0, 50.0, 75.0, 100.0, 200.0, 400.0, 500.0,
                                    800.0, 1e3,  2e3,  5e3,  1e4,   2e4,   2.5e4, 5e4};

/// A line and nothing else.
Drawing Line(double width, double height) {
  Drawing drawing = EmptySheet();
  drawing.ModelSpace = {LineOn("Main", {100, 50}, {100 + width, 50 + height})};
  return drawing;
}

/// A chord with a label on it.
Drawing Labelled(double width, double letters) {
  Drawing drawing = Line(width, 0);
  drawing.ModelSpace.push_back(
      TextAt("Н", {100 + width / 2, 50}, letters, TextAlignment::BottomCentre, 0, "Dimensional"));
  return drawing;
}

double ScaleOn(const Drawing& drawing, PaperFormat format) {
  return SheetOn(DrawingPainter(drawing), PaperSize(format)).Scale;
}

DrawingSheet Chosen(const Drawing& drawing) {
  return SheetFor(DrawingPainter(drawing));
}

TEST(DrawingPages, LieAndHaveTheSizesOfTheStandard) {
  EXPECT_EQ(PaperSize(PaperFormat::A4), QSizeF(297, 210));
  EXPECT_EQ(PaperSize(PaperFormat::A3), QSizeF(420, 297));
  EXPECT_EQ(PaperSize(PaperFormat::A2), QSizeF(594, 420));
  EXPECT_EQ(PaperSize(PaperFormat::A1), QSizeF(841, 594));
  EXPECT_EQ(PaperSize(PaperFormat::A0), QSizeF(1189, 841));
}

TEST(DrawingPages, TakeTheGreatestStandardScaleThatFits) {
  for (const PaperFormat format : formats) {
    const QSizeF paper = PaperSize(format);
    // Frame and room within it; under the drawing stands the scale.
    const double wide = paper.width() - 20 - 5 - 2 * 5;
    const double high = paper.height() - 2 * 5 - 2 * 5 - 10;
    for (std::size_t place = 0; place < standardScales.size(); ++place) {
      const double scale = standardScales.at(place);
      EXPECT_EQ(ScaleOn(Line(wide * scale, 0), format), scale);
      EXPECT_EQ(ScaleOn(Line(0, high * scale), format), scale);
      if (place + 1 < standardScales.size()) {
        EXPECT_EQ(ScaleOn(Line(wide * scale * 1.001, 1), format), standardScales.at(place + 1));
        EXPECT_EQ(ScaleOn(Line(1, high * scale * 1.001), format), standardScales.at(place + 1));
      }
    }
  }
}

TEST(DrawingPages, GoOnInDecadesBeyondTheStandardScales) {
  EXPECT_EQ(ScaleOn(Line(262.0 * 5.1e4, 0), PaperFormat::A4), 1e5);
  EXPECT_EQ(ScaleOn(Line(262.0 * 1.1e5, 0), PaperFormat::A4), 2e5);
  EXPECT_EQ(ScaleOn(Line(262.0 * 2.1e5, 0), PaperFormat::A4), 5e5);
  EXPECT_EQ(ScaleOn(Line(262.0 * 5.1e5, 0), PaperFormat::A4), 1e6);
  EXPECT_EQ(ScaleOn(Line(262.0 * 3e20, 0), PaperFormat::A4), 5e20);
}

TEST(DrawingPages, EnlargeNothing) {
  EXPECT_EQ(ScaleOn(Line(1, 1), PaperFormat::A0), 1);
  EXPECT_EQ(ScaleOn(EmptySheet(), PaperFormat::A4), 1);
}

TEST(DrawingPages, FindAScaleForPaperThatIsAllMargin) {
  EXPECT_EQ(SheetOn(DrawingPainter(Line(100, 0)), QSizeF(10, 10)).Scale, 100);
}

TEST(DrawingPages, WriteTheScaleAsOnDrawings) {
  const auto note = [](double scale) { return DrawingSheet{{297, 210}, scale}.ScaleNote(); };
  EXPECT_EQ(note(1), "М 1:1");
  EXPECT_EQ(note(2.5), "М 1:2,5");
  EXPECT_EQ(note(50), "М 1:50");
  EXPECT_EQ(note(25000), "М 1:25000");
}

TEST(DrawingPages, TakeTheSmallestSheetOnWhichTextsCanBeRead) {
  // 25 m: 1:100 on A4, 1:75 on A3, 1:50 on A2, 1:40 on A1.
  constexpr double span = 25000;
  EXPECT_EQ(Chosen(Labelled(span, 250)).Paper, PaperSize(PaperFormat::A4));
  EXPECT_EQ(Chosen(Labelled(span, 249)).Paper, PaperSize(PaperFormat::A3));
  EXPECT_EQ(Chosen(Labelled(span, 187)).Paper, PaperSize(PaperFormat::A2));
  EXPECT_EQ(Chosen(Labelled(span, 124)).Paper, PaperSize(PaperFormat::A1));
  EXPECT_EQ(Chosen(Labelled(span, 124)).Scale, 40);
  // No sheet makes these readable.
  EXPECT_EQ(Chosen(Labelled(span, 50)).Paper, PaperSize(PaperFormat::A3));
  EXPECT_EQ(Chosen(Labelled(span, 50)).Scale, 75);
  // Without texts any sheet will do.
  EXPECT_EQ(Chosen(Line(span, 0)).Paper, PaperSize(PaperFormat::A4));
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
    const double scale = ScaleOn(drawing, PaperFormat::A4);
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

TEST(DrawingPages, WriteTheSamePageAsVectors) {
  const std::shared_ptr<Drawing> drawing = ExportedDrawing(1, 4);
  const QByteArray svg = QByteArray::fromStdString(WriteDrawingSvg(*drawing, {PaperFormat::A4}));
  EXPECT_TRUE(svg.contains("width=\"297mm\" height=\"210mm\""));
  EXPECT_TRUE(svg.contains("<title>Drawing1.dwg</title>"));
  // Outlines only, so that no font can be missed.
  EXPECT_FALSE(svg.contains("<text"));
  QSvgRenderer renderer(svg);
  ASSERT_TRUE(renderer.isValid());
  EXPECT_EQ(renderer.viewBoxF(), QRectF(0, 0, 29700, 21000));
  const QImage expected = Png(*drawing, PaperFormat::A4).convertToFormat(QImage::Format_RGB32);
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
  EXPECT_GT(ink, 10000);
  EXPECT_LT(different, ink / 20);
}

TEST(DrawingPages, HoldEverySchemeWithinTheFrame) {
  for (Long scheme = 1; scheme <= 4; ++scheme) {
    for (const Long panels : {4, 30}) {
      const std::shared_ptr<Drawing> drawing = ExportedDrawing(scheme, panels);
      const DrawingPainter painter(*drawing);
      for (const PaperFormat format : formats) {
        const DrawingSheet sheet = SheetOn(painter, PaperSize(format));
        EXPECT_LE(painter.Bounds(true).width() / sheet.Scale, sheet.Paper.width() - 35);
        EXPECT_LE(painter.Bounds(true).height() / sheet.Scale, sheet.Paper.height() - 30);
      }
    }
  }
}

TEST(DrawingPages, MakeTextsAsHighAsTheTrussTells) {
  // The label of a bar is a tenth of the truss high.
  const std::shared_ptr<Drawing> drawing = ExportedDrawing(1, 4);
  EXPECT_NEAR(DrawingPainter(*drawing).SmallestText(), 150, 1e-9);
  EXPECT_GE(150 / Chosen(*drawing).Scale, 2.5);
}

TEST(DrawingPages, AreTheSameTwice) {
  const std::shared_ptr<Drawing> drawing = ExportedDrawing(2, 4);
  EXPECT_EQ(WriteDrawingSvg(*drawing), WriteDrawingSvg(*drawing));
  EXPECT_EQ(WriteDrawingPng(*drawing), WriteDrawingPng(*drawing));
}

TEST(DrawingPages, CanBeEmpty) {
  for (const Drawing& drawing : {Drawing(), EmptySheet()}) {
    EXPECT_TRUE(WriteDrawingPdf(drawing).starts_with("%PDF-"));
    EXPECT_TRUE(QSvgRenderer(QByteArray::fromStdString(WriteDrawingSvg(drawing))).isValid());
    EXPECT_FALSE(Png(drawing).isNull());
  }
}

TEST(DrawingPages, RaiseOverflowForADrawingBeyondAllNumbers) {
  const Drawing drawing = Line(1e308, 0);
  Drawing wide = drawing;
  wide.ModelSpace.push_back(LineOn("Main", {-1.7e308, 0}, {1.7e308, 0}));
  for (auto* write : {WriteDrawingPdf, WriteDrawingSvg, WriteDrawingPng}) {
    EXPECT_EQ(RaisedBy([&] { write(wide, {}); }), 6);
  }
}

TEST(DrawingPages, TakeALargerSheetWhereTextsAreCrowded) {
  const std::shared_ptr<Drawing> drawing = CrowdedDrawing(1);
  const DrawingPainter painter(*drawing);
  const DrawingSheet small = SheetOn(painter, PaperSize(PaperFormat::A4));
  EXPECT_GT(TextsLeftOut(painter, small), 20U);
  const std::optional<DrawingSheet> large = SheetWithAllTexts(painter);
  ASSERT_TRUE(large);
  EXPECT_GT(large->Paper.width(), PaperSize(PaperFormat::A3).width());
  EXPECT_EQ(TextsLeftOut(painter, *large), 0U);
  EXPECT_EQ(Chosen(*drawing).Paper, large->Paper);
}

TEST(DrawingPages, LeaveNoTextOfAnOrdinaryTrussOut) {
  for (Long scheme = 1; scheme <= 4; ++scheme) {
    const std::shared_ptr<Drawing> drawing = ExportedDrawing(scheme, 6);
    EXPECT_EQ(TextsLeftOut(DrawingPainter(*drawing), Chosen(*drawing)), 0U) << scheme;
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
  // Over it the sheet is free: the drawing keeps off.
  const DrawingPainter painter(*drawing);
  const DrawingSheet sheet = SheetOn(painter, PaperSize(PaperFormat::A2), block);
  ASSERT_TRUE(sheet.Title);
  EXPECT_LE(painter.Bounds(true).height() / sheet.Scale, 420 - 2 * 5 - 2 * 5 - 55);
}

TEST(DrawingPages, HaveNoTitleBlockWhereThePaperHasNoRoom) {
  const std::shared_ptr<Drawing> drawing = ExportedDrawing(1, 6);
  const DrawingPainter painter(*drawing);
  EXPECT_FALSE(SheetOn(painter, QSizeF(148, 105), TitleBlock()).Title);
  EXPECT_TRUE(SheetOn(painter, PaperSize(PaperFormat::A4), TitleBlock()).Title);
}

}  // namespace
}  // namespace trelonit::test
