#include <cmath>
#include <gtest/gtest.h>
#include <numbers>

#include "platform/errors/RuntimeError.h"
#include "tests/drawinghost/HostDesk.h"
#include "tests/windows/drawing/DrawingSheets.h"
#include "windows/binding/Pictures.h"
#include "windows/drawing/DrawingPainter.h"

namespace trelonit::test {
namespace {

constexpr double pixel = 0.1;  ///< in drawing units, at ten pixels a unit

/// The ink of one text at the origin.
QRectF TextInk(const std::string& text, TextAlignment alignment, double rotation = 0,
               const std::string& style = "STANDARD") {
  return Ink(With({TextAt(text, {0, 0}, 10, alignment, rotation, style)}), 10);
}

QPalette Light() {
  QPalette palette;
  palette.setColor(QPalette::Base, Qt::white);
  palette.setColor(QPalette::Text, QColor(20, 20, 20));
  return palette;
}

QPalette Dark() {
  QPalette palette;
  palette.setColor(QPalette::Base, QColor(30, 30, 30));
  palette.setColor(QPalette::Text, QColor(240, 240, 240));
  return palette;
}

TEST(DrawingPainter, DrawsLinesWhereTheyLieWithYUpwards) {
  const QRectF ink = Ink(With({LineOn("Main", {-20, 5}, {30, 25})}), 10);
  EXPECT_NEAR(ink.left(), -20.25, 2 * pixel);
  EXPECT_NEAR(ink.right(), 30.25, 2 * pixel);
  EXPECT_NEAR(ink.top(), 4.75, 2 * pixel);
  EXPECT_NEAR(ink.bottom(), 25.25, 2 * pixel);
}

TEST(DrawingPainter, DrawsLinesAsWideAsTheirLayerTells) {
  for (const Long weight : {50, 100, 200}) {
    Drawing drawing = With({LineOn("Main", {-20, 0}, {20, 0})});
    drawing.Layers[1].Lineweight = weight;
    EXPECT_NEAR(Ink(drawing, 10).height(), weight / 100.0, 1.01 * pixel) << weight;
  }
}

TEST(DrawingPainter, KeepsTheWeightOfLinesAtEveryZoom) {
  const Drawing drawing = With({LineOn("Main", {-1, 0}, {1, 0})});
  for (const double zoom : {10.0, 100.0}) {
    QImage image(400, 400, QImage::Format_RGB32);
    image.fill(Qt::white);
    DrawingLook look;
    look.FromDrawing = QTransform(zoom, 0, 0, -zoom, 200, 200);
    look.UnitsPerMillimetre = 16;
    look.OnPaper = true;
    {
      QPainter painter(&image);
      DrawingPainter(drawing).Paint(painter, look);
    }
    EXPECT_NEAR(InkBox(image).height(), 8, 1) << zoom;
    look.UnitsPerMillimetre = 0.001;
    look.ThinnestLine = 4;
    image.fill(Qt::white);
    QPainter painter(&image);
    DrawingPainter(drawing).Paint(painter, look);
    painter.end();
    EXPECT_NEAR(InkBox(image).height(), 4, 1) << zoom;
  }
}

TEST(DrawingPainter, LeavesOutLayersThatAreOffOrFrozen) {
  Drawing drawing = With({LineOn("Main", {-20, 0}, {20, 0}), LineOn("Dimension", {0, -5}, {0, 5})});
  const QRectF both = Ink(drawing, 10);
  EXPECT_GT(both.width(), 39);
  EXPECT_GT(both.height(), 9);
  drawing.Layers[1].LayerOn = false;
  EXPECT_LT(Ink(drawing, 10).width(), 1);
  drawing.Layers[1].LayerOn = true;
  drawing.Layers[2].Freeze = true;
  EXPECT_LT(Ink(drawing, 10).height(), 1);
  drawing.Layers[1].Freeze = true;
  EXPECT_TRUE(Ink(drawing, 10).isNull());
}

/// How many pixels of the screen are of this colour.
int Pixels(const Drawing& drawing, const QPalette& palette, const QColor& color) {
  QImage image(200, 200, QImage::Format_RGB32);
  image.fill(palette.color(QPalette::Base));
  DrawingLook look;
  look.FromDrawing = QTransform(4, 0, 0, -4, 100, 100);
  look.UnitsPerMillimetre = 4;
  look.ThinnestLine = 3;
  look.Palette = palette;
  {
    QPainter painter(&image);
    DrawingPainter(drawing).Paint(painter, look);
  }
  int count = 0;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      count += image.pixelColor(x, y).rgb() == color.rgb() ? 1 : 0;
    }
  }
  return count;
}

TEST(DrawingPainter, PrintsNoLayerThatIsNotPlotted) {
  Drawing drawing = With({LineOn("Main", {-20, 0}, {20, 0})});
  drawing.Layers[1].Plottable = false;
  EXPECT_TRUE(Ink(drawing, 10).isNull());
  EXPECT_GT(Pixels(drawing, Light(), LayerColor("Main", Light())), 100);
  EXPECT_EQ(DrawingPainter(drawing).Bounds(true), QRectF(0, 0, 1, 1));
  EXPECT_EQ(DrawingPainter(drawing).Bounds(false), QRectF(-20, 0, 40, 0));
}

TEST(DrawingPainter, ColoursLayersOnScreenByTheTheme) {
  const Drawing drawing =
      With({LineOn("Main", {-20, 5}, {20, 5}), LineOn("Dimension", {-20, -5}, {20, -5})});
  for (const QPalette& palette : {Light(), Dark()}) {
    const QColor main = palette.color(QPalette::Text);
    const QColor dimension = LayerColor("Dimension", palette);
    EXPECT_NE(main, dimension);
    EXPECT_EQ(LayerColor("MAIN", palette), main);
    EXPECT_EQ(LayerColor("dimension", palette), dimension);
    EXPECT_GT(Pixels(drawing, palette, main), 100);
    EXPECT_GT(Pixels(drawing, palette, dimension), 100);
    // Readable: far from the ground that it stands on.
    EXPECT_GT(std::abs(dimension.lightness() - palette.color(QPalette::Base).lightness()), 100);
  }
}

TEST(DrawingPainter, PrintsEverythingBlack) {
  const QImage image =
      OnPaper(With({LineOn("Main", {-20, 5}, {20, 5}),
                    TextAt("Ферма", {0, -20}, 10, TextAlignment::BottomCentre, 0, "Dimensional")}),
              10);
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      const QRgb color = image.pixel(x, y);
      ASSERT_TRUE(qRed(color) == qGreen(color) && qGreen(color) == qBlue(color)) << x << "," << y;
    }
  }
}

TEST(DrawingPainter, MakesCapitalsAsHighAsTheTextTells) {
  for (const char* capital : {"H", "Н", "Ж", "1"}) {
    EXPECT_NEAR(TextInk(capital, TextAlignment::Left).height(), 10, 2.5 * pixel) << capital;
  }
}

TEST(DrawingPainter, PutsEveryAlignmentOnItsPoint) {
  struct Case {
    TextAlignment Alignment;
    double Before;    ///< part of the width left of the point
    double Baseline;  ///< over the point
  };
  constexpr double under = 10 * descenderPart;
  // Those at the top keep room for marks over capitals.
  for (const Case& c :
       {Case{TextAlignment::Left, 0, 0}, Case{TextAlignment::Centre, 0.5, 0},
        Case{TextAlignment::Right, 1, 0}, Case{TextAlignment::Middle, 0.5, -(10 - under) / 2},
        Case{TextAlignment::TopLeft, 0, -12}, Case{TextAlignment::TopCentre, 0.5, -12},
        Case{TextAlignment::TopRight, 1, -12}, Case{TextAlignment::MiddleLeft, 0, -5},
        Case{TextAlignment::MiddleCentre, 0.5, -5}, Case{TextAlignment::MiddleRight, 1, -5},
        Case{TextAlignment::BottomLeft, 0, under}, Case{TextAlignment::BottomCentre, 0.5, under},
        Case{TextAlignment::BottomRight, 1, under}}) {
    SCOPED_TRACE(static_cast<int>(c.Alignment));
    const QRectF ink = TextInk("HHHH", c.Alignment);
    EXPECT_NEAR(ink.top(), c.Baseline, 2 * pixel);
    EXPECT_NEAR(ink.bottom(), c.Baseline + 10, 2 * pixel);
    // Letters keep a little room at their sides.
    EXPECT_NEAR(ink.left(), -c.Before * ink.width(), 2);
    EXPECT_NEAR(ink.right(), (1 - c.Before) * ink.width(), 2);
  }
}

TEST(DrawingPainter, CentresATextByWhatIsToBeSeenOfIt) {
  const QRectF bare = TextInk("L80x7", TextAlignment::BottomCentre);
  for (const char* padded : {"L80x7          ", "  L80x7", " L80x7 "}) {
    EXPECT_EQ(TextInk(padded, TextAlignment::BottomCentre), bare) << padded;
  }
}

TEST(DrawingPainter, KeepsATurnedTextUnderItsBarOffIt) {
  const QRectF upright = TextInk("HHHH", TextAlignment::TopCentre, std::numbers::pi / 2);
  EXPECT_NEAR(upright.left(), 2, 2 * pixel);
  EXPECT_NEAR(upright.right(), 12, 2 * pixel);
}

TEST(DrawingPainter, NarrowsAndLeansLettersAsTheStyleTells) {
  Drawing drawing = With({TextAt("HHHH", {-30, 0}, 10, TextAlignment::Left, 0, "narrow")});
  drawing.TextStyles.push_back({.Name = "narrow", .Width = 0.5});
  const double plain = TextInk("HHHH", TextAlignment::Left).width();
  EXPECT_NEAR(Ink(drawing, 10).width(), plain / 2, 1);
  drawing.TextStyles.back() = {.Name = "NARROW", .ObliqueAngle = 0.262, .Width = 0.5};
  const QRectF leaning = Ink(drawing, 10);
  // Narrow letters lean as far as wide ones of their height.
  EXPECT_NEAR(leaning.width(), plain / 2 + 10 * std::tan(0.262), 0.5);
  EXPECT_NEAR(leaning.height(), 10, 3 * pixel);
}

TEST(DrawingPainter, TurnsTextsRoundTheirPoint) {
  const QRectF level = TextInk("HHHH", TextAlignment::BottomCentre);
  const QRectF upright = TextInk("HHHH", TextAlignment::BottomCentre, std::numbers::pi / 2);
  EXPECT_NEAR(upright.left(), -level.bottom(), 2 * pixel);
  EXPECT_NEAR(upright.right(), -level.top(), 2 * pixel);
  EXPECT_NEAR(upright.top(), level.left(), 2 * pixel);
  EXPECT_NEAR(upright.bottom(), level.right(), 2 * pixel);
  // The letter begins below: an L has its foot on the right of the line that it stands on.
  const QRectF letter = TextInk("L", TextAlignment::Left, std::numbers::pi / 2);
  EXPECT_NEAR(letter.left(), -10, 3 * pixel);
  EXPECT_GT(letter.top(), -pixel);
}

TEST(DrawingPainter, KnowsRussianLetters) {
  const auto image = [](const char* text) {
    return OnPaper(With({TextAt(text, {0, 0}, 20, TextAlignment::MiddleCentre)}), 10);
  };
  // Letters that a font has not would all be the same box.
  EXPECT_NE(image("Ж"), image("Д"));
  EXPECT_NE(image("м"), image("ы"));
  EXPECT_EQ(image("Н"), image("H"));
}

TEST(DrawingPainter, MakesTheSameTextOfLettersAndOfOutlines) {
  const Drawing drawing =
      With({TextAt("Схема усилий", {0, 0}, 8, TextAlignment::MiddleCentre, 0.3, "Dimensional")});
  const QRectF outlines = Ink(drawing, 10);
  const QRectF letters = Ink(drawing, 10, 800, true);
  EXPECT_NEAR(letters.left(), outlines.left(), 0.4);
  EXPECT_NEAR(letters.right(), outlines.right(), 0.4);
  EXPECT_NEAR(letters.top(), outlines.top(), 0.4);
  EXPECT_NEAR(letters.bottom(), outlines.bottom(), 0.4);
}

TEST(DrawingPainter, FillsTheArrowsOfDimensions) {
  Drawing drawing = With({DrawingDimension{.Point1 = {-30, 0},
                                           .Point2 = {30, 0},
                                           .Location = {0, -10},
                                           .Layer = "Dimension",
                                           .ArrowheadSize = 9,
                                           .TextHeight = 3}});
  const QImage image = OnPaper(drawing, 10);
  // Two thirds of the way from the point, near the upper side.
  EXPECT_LT(qGray(image.pixel(400 - 300 + 60, 400 + 100 - 8)), 128);
  EXPECT_LT(qGray(image.pixel(400 + 300 - 60, 400 + 100 + 8)), 128);
  EXPECT_GT(qGray(image.pixel(400 - 300 + 20, 400 + 100 - 8)), 128);
}

TEST(DrawingPainter, TellsTheBoxRoundItsInk) {
  for (const DrawingEntity& entity :
       {DrawingEntity(LineOn("Main", {-12, 3}, {14, 3})),
        DrawingEntity(TextAt("Ферма", {3, 4}, 6, TextAlignment::TopRight, 1, "Dimensional")),
        DrawingEntity(DrawingDimension{
            .Point1 = {-20, 0}, .Point2 = {20, 0}, .Location = {0, -12}, .Layer = "Dimension"})}) {
    const Drawing drawing = With({entity});
    const QRectF bounds = DrawingPainter(drawing).Bounds(true);
    const QRectF ink = Ink(drawing, 10);
    EXPECT_NEAR(bounds.left(), ink.left(), 0.5);
    EXPECT_NEAR(bounds.right(), ink.right(), 0.5);
    EXPECT_NEAR(bounds.top(), ink.top(), 0.5);
    EXPECT_NEAR(bounds.bottom(), ink.bottom(), 0.5);
  }
  EXPECT_EQ(DrawingPainter(EmptySheet()).Bounds(true), QRectF(0, 0, 1, 1));
}

TEST(DrawingPainter, LeavesOutWhatIsNotVisible) {
  const Drawing drawing = With({LineOn("Main", {-20, 0}, {20, 0}), LineOn("Main", {0, 30}, {0, 35}),
                                TextAt("Н", {0, -30}, 5, TextAlignment::Left)});
  QImage image(800, 800, QImage::Format_RGB32);
  image.fill(Qt::white);
  DrawingLook look;
  look.FromDrawing = QTransform(10, 0, 0, -10, 400, 400);
  look.ThinnestLine = 2;
  look.OnPaper = true;
  look.Visible = QRectF(0, 350, 800, 100);
  {
    QPainter painter(&image);
    DrawingPainter(drawing).Paint(painter, look);
  }
  const QRectF ink = InkBox(image);
  EXPECT_GT(ink.width(), 390);
  EXPECT_LT(ink.height(), 5);
}

TEST(DrawingPainter, LeavesThePainterAsItWas) {
  QImage image(100, 100, QImage::Format_RGB32);
  QPainter painter(&image);
  painter.setPen(QPen(Qt::red, 7));
  painter.translate(3, 4);
  DrawingPainter(*SmallDrawing()).Paint(painter, {});
  EXPECT_EQ(painter.pen(), QPen(Qt::red, 7));
  EXPECT_EQ(painter.transform(), QTransform::fromTranslate(3, 4));
}

TEST(DrawingPainter, RaisesOverflowForADrawingBeyondAllNumbers) {
  constexpr double huge = 1e308;
  const double endless = std::numeric_limits<double>::infinity();
  for (const DrawingEntity& entity :
       {DrawingEntity(LineOn("Main", {0, endless}, {0, 0})),
        DrawingEntity(TextAt("Ферма", {huge, 0}, huge, TextAlignment::Left))}) {
    const Drawing drawing = With({entity});
    EXPECT_EQ(RaisedBy([&] { DrawingPainter{drawing}; }), 6);
  }
}

TEST(DrawingPainter, KeepsAllOfAnExportedDrawingWithinItsBounds) {
  for (Long scheme = 1; scheme <= 4; ++scheme) {
    const std::shared_ptr<Drawing> drawing = ExportedDrawing(scheme, 6);
    const QRectF bounds = DrawingPainter(*drawing).Bounds(true);
    const DrawingBounds estimated = BoundsOf(*drawing);
    // The letters are about as wide as the drawing format takes them to be.
    EXPECT_GE(bounds.left(), estimated.Least.X - 1) << scheme;
    EXPECT_LE(bounds.right(), estimated.Greatest.X + 1) << scheme;
    EXPECT_GT(bounds.width(), 0.9 * (estimated.Greatest.X - estimated.Least.X)) << scheme;
    EXPECT_NEAR(bounds.bottom(), estimated.Greatest.Y, bounds.height() / 20) << scheme;
  }
}

/// The drawing at so many painter's units a metre, letters no smaller than 7 of them.
DrawingLook CloseLook(double unitsPerMetre) {
  DrawingLook look;
  look.FromDrawing.scale(unitsPerMetre / 1000, -unitsPerMetre / 1000);
  look.SmallestLetters = 7;
  return look;
}

/// How many of these boxes cover each other.
int CountCovered(const std::vector<QPolygonF>& rooms) {
  int covered = 0;
  for (std::size_t one = 0; one < rooms.size(); ++one) {
    for (std::size_t other = one + 1; other < rooms.size(); ++other) {
      const QRectF common = rooms[one].boundingRect().intersected(rooms[other].boundingRect());
      if (!common.isEmpty()) {
        const QRectF meet = rooms[one].intersected(rooms[other]).boundingRect();
        covered += meet.width() > 1 && meet.height() > 1 ? 1 : 0;
      }
    }
  }
  return covered;
}

TEST(DrawingPainter, KeepsTheTextsOfNarrowPanelsApartAtEveryZoom) {
  for (Long scheme = 1; scheme <= 4; ++scheme) {
    const std::shared_ptr<Drawing> drawing = CrowdedDrawing(scheme);
    const DrawingPainter painter(*drawing);
    const std::size_t all = painter.TextRooms({}).size();
    EXPECT_GT(CountCovered(painter.TextRooms({})), 30) << "as it is told, scheme " << scheme;
    std::size_t shown = 0;
    for (const double unitsPerMetre : {10.0, 30.0, 60.0, 120.0, 400.0}) {
      const std::vector<QPolygonF> rooms = painter.TextRooms(CloseLook(unitsPerMetre));
      EXPECT_EQ(CountCovered(rooms), 0) << scheme << ", " << unitsPerMetre;
      EXPECT_GE(rooms.size(), shown) << scheme << ", " << unitsPerMetre;
      shown = rooms.size();
    }
    // Near enough, all of them are there.
    EXPECT_EQ(shown, all) << scheme;
  }
}

TEST(DrawingPainter, KeepsALengthOffTheDimensionUnderIt) {
  // At the ordinary size nothing is left out, and nothing touches.
  const std::shared_ptr<Drawing> drawing = ExportedDrawing(1, 8);
  const DrawingPainter painter(*drawing);
  const std::vector<QPolygonF> told = painter.TextRooms({});
  const std::vector<QPolygonF> rooms = painter.TextRooms(CloseLook(100));
  EXPECT_EQ(rooms.size(), told.size());
  const auto nearest = [](const std::vector<QPolygonF>& shown) {
    double gap = std::numeric_limits<double>::infinity();
    for (std::size_t one = 0; one < shown.size(); ++one) {
      const QRectF box = shown[one].boundingRect();
      for (std::size_t other = 0; other < shown.size(); ++other) {
        const QRectF below = shown[other].boundingRect();
        const bool level = box.width() > box.height() && below.width() > below.height();
        const bool under = std::abs(box.center().x() - below.center().x()) < 1 &&
                           below.center().y() < box.center().y();
        if (level && under) {
          gap = std::min(gap, box.top() - below.bottom());
        }
      }
    }
    return gap;
  };
  // The height of the texts is 150 mm.
  EXPECT_LT(nearest(told), 0.15 * 150);
  EXPECT_GT(nearest(rooms), 0.15 * 130);
}

TEST(DrawingPainter, PaintsTheTextsWhereItTellsTheirRoom) {
  const Drawing drawing = With({TextAt("HHHHHHHH", {0, 0}, 10, TextAlignment::BottomCentre),
                                TextAt("HHHHHHHH", {40, 0}, 10, TextAlignment::BottomCentre)});
  DrawingLook look;
  look.FromDrawing = QTransform(5, 0, 0, -5, 300, 400);
  look.SmallestLetters = 20;
  look.OnPaper = true;
  const DrawingPainter painter(drawing);
  const std::vector<QPolygonF> rooms = painter.TextRooms(look);
  ASSERT_EQ(rooms.size(), 2U);
  QImage image(800, 800, QImage::Format_RGB32);
  image.fill(Qt::white);
  {
    QPainter device(&image);
    painter.Paint(device, look);
  }
  const QRectF ink = InkBox(image);
  const QRectF told =
      look.FromDrawing.mapRect(rooms[0].boundingRect().united(rooms[1].boundingRect()));
  EXPECT_NEAR(ink.left(), told.left(), 2);
  EXPECT_NEAR(ink.right(), told.right(), 2);
  EXPECT_NEAR(ink.top(), told.top(), 2);
  EXPECT_NEAR(ink.bottom(), told.bottom(), 2);
}

}  // namespace
}  // namespace trelonit::test
