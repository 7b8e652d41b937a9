#include <gtest/gtest.h>
#include <numbers>

#include "drawing/sheet/PlacedDrawing.h"
#include "tests/drawinghost/HostDesk.h"
#include "tests/drawinghost/PlainDrawings.h"

namespace trelonit::test {
namespace {

/// The box round the letters of one text at the origin, 10 high.
PlaneBox BoxOfText(const std::string& text, TextAlignment alignment, double rotation = 0,
                   const std::string& style = "STANDARD") {
  return PlacedDrawing(With({TextAt(text, {0, 0}, 10, alignment, rotation, style)})).Bounds(true);
}

TEST(PlacedDrawing, MakesCapitalsAsHighAsTheTextTells) {
  const PlaneBox box = BoxOfText("Н", TextAlignment::Left);
  EXPECT_NEAR(box.Least.Y, 0, 1e-9);
  EXPECT_NEAR(box.Greatest.Y, 10, 1e-9);
}

TEST(PlacedDrawing, TurnsTextsRoundTheirPoint) {
  const PlaneBox level = BoxOfText("Н", TextAlignment::Left);
  const PlaneBox upright = BoxOfText("Н", TextAlignment::Left, std::numbers::pi / 2);
  EXPECT_NEAR(upright.Least.X, -level.Greatest.Y, 1e-9);
  EXPECT_NEAR(upright.Greatest.Y, level.Greatest.X, 1e-9);
}

TEST(PlacedDrawing, NarrowsAndLeansLettersByTheirStyle) {
  const PlaneBox plain = BoxOfText("Н", TextAlignment::Left);
  const PlaneBox styled = BoxOfText("Н", TextAlignment::Left, 0, "Dimensional");
  // 0.55 times as wide, and the top leans by the tangent of 0.262 (15 degrees).
  EXPECT_NEAR(styled.Width(), 0.55 * plain.Width() + 10 * std::tan(0.262), 1e-9);
  EXPECT_NEAR(styled.Height(), 10, 1e-9);
}

TEST(PlacedDrawing, TakesBlanksRoundATextForNothing) {
  EXPECT_EQ(BoxOfText("  Н ", TextAlignment::Centre), BoxOfText("Н", TextAlignment::Centre));
  const PlaneBox nothing = BoxOfText("   ", TextAlignment::Left);
  EXPECT_EQ(nothing, (PlaneBox{{0, 0}, {0, 0}}));
}

TEST(PlacedDrawing, TellsTheSmallestTextOnPaper) {
  Drawing drawing = With({LineOn("Main", {0, 0}, {1, 1})});
  EXPECT_EQ(PlacedDrawing(drawing).SmallestText(), 0);
  drawing.ModelSpace.push_back(TextAt("a", {0, 0}, 7, TextAlignment::Left));
  drawing.ModelSpace.push_back(TextAt("b", {0, 0}, 5, TextAlignment::Left));
  EXPECT_EQ(PlacedDrawing(drawing).SmallestText(), 5);
  drawing.Layers[2].LayerOn = false;
  EXPECT_EQ(PlacedDrawing(drawing).SmallestText(), 0);
}

TEST(PlacedDrawing, RaisesOverflowForADrawingBeyondAllNumbers) {
  for (const DrawingEntity& entity :
       {DrawingEntity(LineOn("Main", {0, 0}, {std::numeric_limits<double>::infinity(), 0})),
        DrawingEntity(TextAt("Н", {0, 0}, 1e308, TextAlignment::Left, 0))}) {
    Drawing drawing = With({entity});
    drawing.TextStyles.front().Width = 1e10;
    EXPECT_EQ(RaisedBy([&] { PlacedDrawing{drawing}; }), 6);
  }
}

TEST(PlacedDrawing, LeavesTextsOutOnTheScreenThatWouldStandOnBars) {
  // A bar through the middle of a text, which no smaller size takes away from it.
  const Drawing drawing =
      With({LineOn("Main", {-100, 5}, {100, 5}), TextAt("Н", {0, 0}, 10, TextAlignment::Left)});
  const PlacedDrawing placed(drawing);
  EXPECT_EQ(placed.Fit(10, true).LeftOut, 0U);
  EXPECT_EQ(placed.Fit(10, false).LeftOut, 1U);
  // A bar that is not shown is in nobody's way.
  Drawing hidden = drawing;
  for (DrawingLayer& layer : hidden.Layers) {
    layer.LayerOn = layer.Name != "Main";
  }
  EXPECT_EQ(PlacedDrawing(hidden).Fit(10, false).LeftOut, 0U);
}

TEST(PlacedDrawing, KeepsRoomOverTextsThatHangFromTheirPoint) {
  // A fifth of the height.
  for (const TextAlignment alignment :
       {TextAlignment::TopLeft, TextAlignment::TopCentre, TextAlignment::TopRight}) {
    EXPECT_NEAR(BoxOfText("Н", alignment).Greatest.Y, -2, 1e-9);
  }
  for (const TextAlignment alignment :
       {TextAlignment::MiddleLeft, TextAlignment::MiddleCentre, TextAlignment::MiddleRight}) {
    EXPECT_NEAR(BoxOfText("Н", alignment).Greatest.Y, 5, 1e-9);
  }
}

}  // namespace
}  // namespace trelonit::test
