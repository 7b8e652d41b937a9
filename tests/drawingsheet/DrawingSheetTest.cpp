#include <array>
#include <gtest/gtest.h>

#include "drawing/sheet/DrawingSheet.h"
#include "tests/drawinghost/HostDesk.h"
#include "tests/drawinghost/PlainDrawings.h"

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
  return SheetOn(PlacedDrawing(drawing), PaperSize(format)).Scale;
}

DrawingSheet Chosen(const Drawing& drawing) {
  return SheetFor(PlacedDrawing(drawing));
}

TEST(DrawingSheet, LieAndHaveTheSizesOfTheStandard) {
  EXPECT_EQ(PaperSize(PaperFormat::A4), (PaperSides{297, 210}));
  EXPECT_EQ(PaperSize(PaperFormat::A3), (PaperSides{420, 297}));
  EXPECT_EQ(PaperSize(PaperFormat::A2), (PaperSides{594, 420}));
  EXPECT_EQ(PaperSize(PaperFormat::A1), (PaperSides{841, 594}));
  EXPECT_EQ(PaperSize(PaperFormat::A0), (PaperSides{1189, 841}));
}

TEST(DrawingSheet, TakeTheGreatestStandardScaleThatFits) {
  for (const PaperFormat format : formats) {
    const PaperSides paper = PaperSize(format);
    // Frame and room within it; under the drawing stands the scale.
    const double wide = paper.Width - 20 - 5 - 2 * 5;
    const double high = paper.Height - 2 * 5 - 2 * 5 - 10;
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

TEST(DrawingSheet, GoOnInDecadesBeyondTheStandardScales) {
  EXPECT_EQ(ScaleOn(Line(262.0 * 5.1e4, 0), PaperFormat::A4), 1e5);
  EXPECT_EQ(ScaleOn(Line(262.0 * 1.1e5, 0), PaperFormat::A4), 2e5);
  EXPECT_EQ(ScaleOn(Line(262.0 * 2.1e5, 0), PaperFormat::A4), 5e5);
  EXPECT_EQ(ScaleOn(Line(262.0 * 5.1e5, 0), PaperFormat::A4), 1e6);
  EXPECT_EQ(ScaleOn(Line(262.0 * 3e20, 0), PaperFormat::A4), 5e20);
}

TEST(DrawingSheet, EnlargeNothing) {
  EXPECT_EQ(ScaleOn(Line(1, 1), PaperFormat::A0), 1);
  EXPECT_EQ(ScaleOn(EmptySheet(), PaperFormat::A4), 1);
}

TEST(DrawingSheet, FindAScaleForPaperThatIsAllMargin) {
  EXPECT_EQ(SheetOn(PlacedDrawing(Line(100, 0)), PaperSides{10, 10}).Scale, 100);
}

TEST(DrawingSheet, WriteTheScaleAsOnDrawings) {
  const auto note = [](double scale) { return DrawingSheet{{297, 210}, scale}.ScaleNote(); };
  EXPECT_EQ(note(1), "М 1:1");
  EXPECT_EQ(note(2.5), "М 1:2,5");
  EXPECT_EQ(note(50), "М 1:50");
  EXPECT_EQ(note(25000), "М 1:25000");
}

TEST(DrawingSheet, TakeTheSmallestSheetOnWhichTextsCanBeRead) {
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

TEST(DrawingSheet, HoldEverySchemeWithinTheFrame) {
  for (Long scheme = 1; scheme <= 4; ++scheme) {
    for (const Long panels : {4, 30}) {
      const std::shared_ptr<Drawing> drawing = ExportedDrawing(scheme, panels);
      const PlacedDrawing placed(*drawing);
      for (const PaperFormat format : formats) {
        const DrawingSheet sheet = SheetOn(placed, PaperSize(format));
        EXPECT_LE(placed.Bounds(true).Width() / sheet.Scale, sheet.Paper.Width - 35);
        EXPECT_LE(placed.Bounds(true).Height() / sheet.Scale, sheet.Paper.Height - 30);
      }
    }
  }
}

TEST(DrawingSheet, MakeTextsAsHighAsTheTrussTells) {
  // The label of a bar is a tenth of the truss high.
  const std::shared_ptr<Drawing> drawing = ExportedDrawing(1, 4);
  EXPECT_NEAR(PlacedDrawing(*drawing).SmallestText(), 150, 1e-9);
  EXPECT_GE(150 / Chosen(*drawing).Scale, 2.5);
}

TEST(DrawingSheet, TakeALargerSheetWhereTextsAreCrowded) {
  const std::shared_ptr<Drawing> drawing = CrowdedDrawing(1);
  const PlacedDrawing placed(*drawing);
  const DrawingSheet small = SheetOn(placed, PaperSize(PaperFormat::A4));
  EXPECT_GT(TextsLeftOut(placed, small), 20U);
  const std::optional<DrawingSheet> large = SheetWithAllTexts(placed);
  ASSERT_TRUE(large);
  EXPECT_GT(large->Paper.Width, PaperSize(PaperFormat::A3).Width);
  EXPECT_EQ(TextsLeftOut(placed, *large), 0U);
  EXPECT_EQ(Chosen(*drawing).Paper, large->Paper);
}

TEST(DrawingSheet, LeaveNoTextOfAnOrdinaryTrussOut) {
  for (Long scheme = 1; scheme <= 4; ++scheme) {
    const std::shared_ptr<Drawing> drawing = ExportedDrawing(scheme, 6);
    EXPECT_EQ(TextsLeftOut(PlacedDrawing(*drawing), Chosen(*drawing)), 0U) << scheme;
  }
}

TEST(DrawingSheet, HaveNoTitleBlockWhereThePaperHasNoRoom) {
  const std::shared_ptr<Drawing> drawing = ExportedDrawing(1, 6);
  const PlacedDrawing placed(*drawing);
  EXPECT_FALSE(SheetOn(placed, PaperSides{148, 105}, TitleBlock()).Title);
  EXPECT_TRUE(SheetOn(placed, PaperSize(PaperFormat::A4), TitleBlock()).Title);
}

TEST(DrawingSheet, KeepsTheDrawingOffItsTitleBlock) {
  const std::shared_ptr<Drawing> drawing = ExportedDrawing(1, 6);
  const PlacedDrawing placed(*drawing);
  const DrawingSheet sheet = SheetOn(placed, PaperSize(PaperFormat::A2), TitleBlock());
  ASSERT_TRUE(sheet.Title);
  EXPECT_LE(placed.Bounds(true).Height() / sheet.Scale, 420 - 2 * 5 - 2 * 5 - 55);
  const PlaneTransform toPaper = DrawingOnPaper(placed, sheet);
  EXPECT_LE(toPaper(placed.Bounds(true).Least).Y, 420 - 5 - 55 - 5 + 1e-9);
  EXPECT_GE(toPaper(placed.Bounds(true).Greatest).Y, 5 + 5 - 1e-9);
}

}  // namespace
}  // namespace trelonit::test
