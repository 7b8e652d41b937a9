#include <cmath>
#include <limits>
#include <numbers>
#include <rapidcheck/gtest.h>

#include "drawing/host/DrawingPicture.h"
#include "drawing/scheme/SchemeLayout.h"
#include "tests/drawinghost/HostDesk.h"
#include "tests/support/AnyNumber.h"

namespace trelonit::test {

namespace {

/// Millimetres: what is left of the digits ten metres away.
constexpr double exact = 1e-8;

void ExpectAt(const PlacePoint& point, double x, double y, double tolerance = exact) {
  EXPECT_NEAR(point.X, x, tolerance);
  EXPECT_NEAR(point.Y, y, tolerance);
}

void ExpectStroke(const EntityPicture& picture, std::size_t place, const PlacePoint& start,
                  const PlacePoint& end) {
  SCOPED_TRACE(place);
  ASSERT_LT(place, picture.Strokes.size());
  ExpectAt(picture.Strokes[place].Start, start.X, start.Y);
  ExpectAt(picture.Strokes[place].End, end.X, end.Y);
}

void ExpectArrow(const PictureTriangle& arrow, const PlacePoint& tip, const PlacePoint& back1,
                 const PlacePoint& back2) {
  ExpectAt(arrow.Corners[0], tip.X, tip.Y);
  ExpectAt(arrow.Corners[1], back1.X, back1.Y);
  ExpectAt(arrow.Corners[2], back2.X, back2.Y);
}

Drawing WithStyle() {
  Drawing drawing;
  drawing.TextStyles.push_back({.Name = "Dimensional", .ObliqueAngle = 0.262, .Width = 0.55});
  return drawing;
}

/// In the sizes of a truss 1.5 m high: text 150, arrows 120, gap, offset and overshoot 30.
DrawingDimension SchemeDimension(PlacePoint point1, PlacePoint point2, PlacePoint location,
                                 double rotation = 0) {
  return {.Point1 = point1,
          .Point2 = point2,
          .Location = location,
          .Rotation = rotation,
          .Layer = "Dimension",
          .TextStyle = "Dimensional",
          .ArrowheadSize = 4,
          .TextGap = 1,
          .TextHeight = 5,
          .ScaleFactor = 30,
          .TextInside = true,
          .PrimaryUnitsPrecision = 0,
          .Variables = {.DIMEXE = 1, .DIMEXO = 1}};
}

EntityPicture Picture(const DrawingDimension& dimension) {
  return PictureOf(WithStyle(), dimension);
}

TEST(DimensionPicture, OfAPanelHasExtensionLinesArrowsAndTheNumberAboveTheLine) {
  const EntityPicture picture = Picture(SchemeDimension({0, 0}, {3000, 0}, {1500, -500}));
  EXPECT_EQ(picture.Layer, "Dimension");
  ASSERT_EQ(picture.Strokes.size(), 3u);
  ExpectStroke(picture, 0, {0, -30}, {0, -530});
  ExpectStroke(picture, 1, {3000, -30}, {3000, -530});
  ExpectStroke(picture, 2, {0, -500}, {3000, -500});
  ASSERT_EQ(picture.Arrows.size(), 2u);
  ExpectArrow(picture.Arrows[0], {0, -500}, {120, -480}, {120, -520});
  ExpectArrow(picture.Arrows[1], {3000, -500}, {2880, -480}, {2880, -520});
  ASSERT_EQ(picture.Texts.size(), 1u);
  const PictureText& text = picture.Texts.front();
  EXPECT_EQ(text.Text, "3000");
  EXPECT_EQ(text.Height, 150);
  EXPECT_EQ(text.Rotation, 0);
  EXPECT_EQ(text.Alignment, TextAlignment::MiddleCentre);
  EXPECT_EQ(text.Style, "Dimensional");
  // Half a text and the gap over the line.
  ExpectAt(text.Point, 1500, -395);
}

TEST(DimensionPicture, ScalesEverySizeOfItsLook) {
  const EntityPicture picture = Picture({.Point2 = {1000, 0},
                                         .Location = {0, 100},
                                         .ArrowheadSize = 6,
                                         .TextGap = 3,
                                         .TextHeight = 7,
                                         .ScaleFactor = 2,
                                         .Variables = {.DIMEXE = 4, .DIMEXO = 5}});
  ASSERT_EQ(picture.Strokes.size(), 3u);
  ExpectStroke(picture, 0, {0, 10}, {0, 108});
  ExpectStroke(picture, 1, {1000, 10}, {1000, 108});
  ExpectStroke(picture, 2, {0, 100}, {1000, 100});
  ASSERT_EQ(picture.Arrows.size(), 2u);
  ExpectArrow(picture.Arrows[0], {0, 100}, {12, 102}, {12, 98});
  ExpectArrow(picture.Arrows[1], {1000, 100}, {988, 102}, {988, 98});
  ASSERT_EQ(picture.Texts.size(), 1u);
  EXPECT_EQ(picture.Texts[0].Height, 14);
  ExpectAt(picture.Texts[0].Point, 500, 113);
}

TEST(DimensionPicture, OfNoLengthHasItsNumberOnTheRight) {
  const EntityPicture picture = Picture({.Point2 = {0, 50}, .Location = {0, 100}});
  ASSERT_EQ(picture.Texts.size(), 1u);
  EXPECT_EQ(picture.Texts[0].Text, "0.00");
  // Behind two arrows and the gap stand four letters of 0.9 * 2.5; over the line by the gap and
  // half the height.
  ExpectAt(picture.Texts[0].Point, 5 + 0.625 + 4.5, 100 + 0.625 + 1.25);
}

TEST(DimensionPicture, OfAHeightReadsFromTheRight) {
  // The half turn of the schemes is a little too great, which must not turn the text round.
  const EntityPicture picture =
      Picture(SchemeDimension({8000, 1500}, {8000, 0}, {8375, -9000}, drawingPi / 2));
  ASSERT_EQ(picture.Strokes.size(), 3u);
  ExpectStroke(picture, 0, {8030, 1500}, {8405, 1500});
  ExpectStroke(picture, 1, {8030, 0}, {8405, 0});
  ExpectStroke(picture, 2, {8375, 1500}, {8375, 0});
  ExpectArrow(picture.Arrows[0], {8375, 1500}, {8355, 1380}, {8395, 1380});
  ExpectAt(picture.Texts.front().Point, 8270, 750);
  EXPECT_NEAR(picture.Texts.front().Rotation, std::numbers::pi / 2, exact);
  EXPECT_EQ(picture.Texts.front().Text, "1500");
}

TEST(DimensionPicture, MeasuresAlongItsLineOnly) {
  const DrawingDimension dimension = SchemeDimension({0, 1500}, {1000, 0}, {500, -375});
  EXPECT_EQ(MeasuredLength(dimension), 1000);
  const EntityPicture picture = Picture(dimension);
  ExpectStroke(picture, 0, {0, 1470}, {0, -405});
  ExpectStroke(picture, 1, {1000, -30}, {1000, -405});
}

TEST(DimensionPicture, OnASlopeFollowsIt) {
  DrawingDimension dimension =
      SchemeDimension({0, 0}, {1000, 1000}, {0, 200}, std::numbers::pi / 4);
  dimension.PrimaryUnitsPrecision = 2;
  EXPECT_NEAR(MeasuredLength(dimension), 1000 * std::numbers::sqrt2, exact);
  EXPECT_EQ(DimensionText(dimension), "1414.21");
  const EntityPicture picture = Picture(dimension);
  // The line lies 200 / root of 2 away, up and to the left.
  ExpectStroke(picture, 2, {-100, 100}, {900, 1100});
}

TEST(DimensionPicture, FromRightToLeftLooksTheSame) {
  const EntityPicture picture = Picture(SchemeDimension({3000, 0}, {0, 0}, {1500, -500}));
  ExpectArrow(picture.Arrows[0], {3000, -500}, {2880, -480}, {2880, -520});
  ExpectArrow(picture.Arrows[1], {0, -500}, {120, -480}, {120, -520});
  EXPECT_EQ(picture.Texts.front().Rotation, 0);
  ExpectAt(picture.Texts.front().Point, 1500, -395);
}

TEST(DimensionPicture, KeepsItsNumberUprightInEveryDirection) {
  const auto text = [](double rotation) {
    return Picture(SchemeDimension({0, 0}, {3000, 4000}, {1500, -500}, rotation)).Texts.front();
  };
  EXPECT_NEAR(text(std::numbers::pi).Rotation, 0, exact);
  ExpectAt(text(std::numbers::pi).Point, 1500, -395);
  EXPECT_NEAR(text(-std::numbers::pi / 2).Rotation, std::numbers::pi / 2, exact);
  EXPECT_NEAR(text(2.5).Rotation, 2.5 - std::numbers::pi, exact);
  EXPECT_NEAR(text(-0.4).Rotation, -0.4, exact);
  EXPECT_NEAR(text(2 * std::numbers::pi - 0.4).Rotation, -0.4, exact);
}

// The text "463" is 3 * 0.9 * 0.55 * 150 = 222.75 wide, two arrows are 240 long.
constexpr double justRoom = 462.75;

TEST(DimensionPicture, HasItsArrowsInsideWhereThereIsJustRoom) {
  const EntityPicture picture = Picture(SchemeDimension({0, 0}, {justRoom, 0}, {0, -500}));
  EXPECT_EQ(picture.Strokes.size(), 3u);
  ExpectArrow(picture.Arrows[0], {0, -500}, {120, -480}, {120, -520});
}

TEST(DimensionPicture, HasItsArrowsOutsideWhereThereIsNoRoom) {
  const EntityPicture picture = Picture(SchemeDimension({0, 0}, {justRoom - 0.01, 0}, {0, -500}));
  ASSERT_EQ(picture.Strokes.size(), 5u);
  ExpectStroke(picture, 2, {0, -500}, {justRoom - 0.01, -500});
  ExpectStroke(picture, 3, {0, -500}, {-240, -500});
  ExpectStroke(picture, 4, {justRoom - 0.01, -500}, {justRoom - 0.01 + 240, -500});
  ExpectArrow(picture.Arrows[0], {0, -500}, {-120, -480}, {-120, -520});
  ExpectArrow(picture.Arrows[1], {justRoom - 0.01, -500}, {justRoom - 0.01 + 120, -480},
              {justRoom - 0.01 + 120, -520});
  // The number stays between the extension lines.
  ExpectAt(picture.Texts.front().Point, (justRoom - 0.01) / 2, -395);
}

TEST(DimensionPicture, PutsANumberThatMayLeaveBehindTheSecondArrow) {
  DrawingDimension dimension = SchemeDimension({0, 0}, {300, 0}, {0, -500});
  dimension.TextInside = false;
  const EntityPicture picture = Picture(dimension);
  ASSERT_EQ(picture.Strokes.size(), 5u);
  ExpectStroke(picture, 2, {0, -500}, {300, -500});
  // Two arrows, the gap and the width of "300", over which the line goes on.
  ExpectStroke(picture, 3, {300, -500}, {300 + 240 + 30 + 222.75, -500});
  ExpectStroke(picture, 4, {0, -500}, {-240, -500});
  ExpectAt(picture.Texts.front().Point, 300 + 240 + 30 + 222.75 / 2, -395);
}

TEST(DimensionPicture, BreaksItsLineRoundANumberInIt) {
  DrawingDimension dimension = SchemeDimension({0, 0}, {3000, 0}, {0, -500});
  dimension.Variables.DIMTAD = 0;
  const EntityPicture picture = Picture(dimension);
  ASSERT_EQ(picture.Strokes.size(), 4u);
  // Half of "3000" is 148.5 wide, the gap is 30.
  ExpectStroke(picture, 2, {0, -500}, {1321.5, -500});
  ExpectStroke(picture, 3, {1678.5, -500}, {3000, -500});
  ExpectAt(picture.Texts.front().Point, 1500, -500);
}

TEST(DimensionPicture, BreaksItsLineWhereThereIsRoomBesideTheNumber) {
  const auto strokes = [](double length) {
    DrawingDimension dimension = SchemeDimension({0, 0}, {length, 0}, {0, -500});
    dimension.Variables.DIMTAD = 0;
    return Picture(dimension).Strokes.size();
  };
  // Extension lines, the tails of arrows outside, and the line beside 222.75 and twice the gap.
  EXPECT_EQ(strokes(283), 6u);
  EXPECT_EQ(strokes(282), 4u);
}

TEST(DimensionPicture, OfAHeightWithALevelNumberIsBrokenByItsHeight) {
  DrawingDimension dimension =
      SchemeDimension({8000, 1500}, {8000, 0}, {8375, 0}, std::numbers::pi / 2);
  dimension.TextInsideAlign = true;
  const EntityPicture picture = Picture(dimension);
  EXPECT_EQ(picture.Texts.front().Rotation, 0);
  ExpectAt(picture.Texts.front().Point, 8375, 750);
  ExpectStroke(picture, 2, {8375, 1500}, {8375, 855});
  ExpectStroke(picture, 3, {8375, 645}, {8375, 0});
}

TEST(DimensionPicture, HasNoExtensionLineFromAPointOnItsLine) {
  const EntityPicture picture = Picture(SchemeDimension({0, -500}, {3000, -480}, {0, -500}));
  ASSERT_EQ(picture.Strokes.size(), 2u);
  // A point nearer than the offset leaves the part over the line.
  ExpectStroke(picture, 0, {3000, -500}, {3000, -530});
  const EntityPicture below = Picture(SchemeDimension({0, -500}, {3000, -500.5}, {0, -500}));
  ExpectStroke(below, 0, {3000, -500}, {3000, -470});
}

TEST(DimensionPicture, WithoutASizeOfArrowsHasNone) {
  DrawingDimension dimension = SchemeDimension({0, 0}, {3000, 0}, {0, -500});
  dimension.ArrowheadSize = 0;
  EXPECT_TRUE(Picture(dimension).Arrows.empty());
}

TEST(DimensionPicture, RaisesForWhatIsNoNumber) {
  EXPECT_EQ(RaisedBy([&] { Picture(SchemeDimension({0, notANumber}, {1, 0}, {0, 1})); }), 6);
  EXPECT_EQ(RaisedBy([&] { Picture(SchemeDimension({0, 0}, {1, 0}, {0, 1}, notANumber)); }), 6);
  EXPECT_EQ(RaisedBy([&] { Picture(SchemeDimension({-1e308, 0}, {1e308, 0}, {0, 1})); }), 6);
}

TEST(DimensionText, HasTheDecimalsOfItsPrecision) {
  DrawingDimension dimension = SchemeDimension({0, 0}, {1234.5678, 0}, {0, 1});
  EXPECT_EQ(DimensionText(dimension), "1235");
  dimension.PrimaryUnitsPrecision = 3;
  EXPECT_EQ(DimensionText(dimension), "1234.568");
  dimension.Point2 = {2000, 0};
  EXPECT_EQ(DimensionText(dimension), "2000.000");
}

RC_GTEST_PROP(DimensionPicture, MovesWithItsPoints, ()) {
  const auto coordinate = [] { return *rc::gen::inRange(-50000, 50000) / 4.0; };
  const double x = coordinate();
  const double y = coordinate();
  const auto moved = [&](const PlacePoint& p) { return PlacePoint{p.X + x, p.Y + y, p.Z}; };
  DrawingDimension dimension =
      SchemeDimension({coordinate(), coordinate()}, {coordinate(), coordinate()},
                      {coordinate(), coordinate()}, *rc::gen::inRange(-7, 7) * 0.5);
  dimension.TextInside = *rc::gen::arbitrary<bool>();
  dimension.Variables.DIMTAD = *rc::gen::inRange(0, 2);
  const EntityPicture here = Picture(dimension);
  dimension.Point1 = moved(dimension.Point1);
  dimension.Point2 = moved(dimension.Point2);
  dimension.Location = moved(dimension.Location);
  const EntityPicture there = Picture(dimension);
  // A point within a hair of its dimension line may lose its extension line.
  RC_PRE(here.Strokes.size() == there.Strokes.size());
  const auto near = [&](const PlacePoint& a, const PlacePoint& b) {
    return std::hypot(a.X + x - b.X, a.Y + y - b.Y) < 1e-6;
  };
  for (std::size_t place = 0; place < here.Strokes.size(); ++place) {
    RC_ASSERT(near(here.Strokes[place].Start, there.Strokes[place].Start));
    RC_ASSERT(near(here.Strokes[place].End, there.Strokes[place].End));
  }
  RC_ASSERT(near(here.Texts.front().Point, there.Texts.front().Point));
  // Never upside down, and never on the arrows' side of the gap.
  RC_ASSERT(std::cos(there.Texts.front().Rotation) > -1e-6);
}

TEST(EntityPicture, OfALineIsOneStroke) {
  const EntityPicture picture =
      PictureOf({}, DrawingLine{.Start = {1, 2, 3}, .End = {4, 5, 6}, .Layer = "Main"});
  EXPECT_EQ(picture.Layer, "Main");
  ASSERT_EQ(picture.Strokes.size(), 1u);
  EXPECT_EQ(picture.Strokes[0].Start, (PlacePoint{1, 2, 3}));
  EXPECT_EQ(picture.Strokes[0].End, (PlacePoint{4, 5, 6}));
  EXPECT_TRUE(picture.Arrows.empty());
  EXPECT_TRUE(picture.Texts.empty());
}

TEST(EntityPicture, OfATextStandsAtTheInsertionPointOnlyWhenItIsLeftAligned) {
  DrawingText text{.Text = "L", .InsertionPoint = {1, 2}, .TextAlignmentPoint = {3, 4}};
  EXPECT_EQ(PictureOf({}, text).Texts.at(0).Point, (PlacePoint{1, 2}));
  text.Alignment = TextAlignment::TopCentre;
  EXPECT_EQ(PictureOf({}, text).Texts.at(0).Point, (PlacePoint{3, 4}));
}

TEST(TextPlace, FollowsTheAlignment) {
  PictureText text{.Text = "ab", .Point = {100, 200}, .Height = 10};
  const auto start = [&](TextAlignment alignment) {
    text.Alignment = alignment;
    return BaselineStart(text, 40);
  };
  ExpectAt(start(TextAlignment::Left), 100, 200);
  ExpectAt(start(TextAlignment::Centre), 80, 200);
  ExpectAt(start(TextAlignment::Right), 60, 200);
  ExpectAt(start(TextAlignment::Middle), 80, 196.5);
  ExpectAt(start(TextAlignment::TopLeft), 100, 190);
  ExpectAt(start(TextAlignment::TopCentre), 80, 190);
  ExpectAt(start(TextAlignment::MiddleCentre), 80, 195);
  ExpectAt(start(TextAlignment::MiddleRight), 60, 195);
  ExpectAt(start(TextAlignment::BottomLeft), 100, 203);
  ExpectAt(start(TextAlignment::BottomCentre), 80, 203);
  ExpectAt(start(TextAlignment::BottomRight), 60, 203);
  text.Rotation = std::numbers::pi / 2;
  ExpectAt(start(TextAlignment::BottomCentre), 97, 180);
}

TEST(TextPlace, IsEstimatedFromTheLettersAndTheWidthOfTheirStyle) {
  PictureText text{.Text = "Ферма", .Height = 10, .Style = "Dimensional"};
  EXPECT_DOUBLE_EQ(EstimatedWidth(WithStyle(), text), 5 * 0.9 * 10 * 0.55);
  // A style that is not there makes letters neither wide nor narrow.
  text.Style = "Absent";
  EXPECT_DOUBLE_EQ(EstimatedWidth(WithStyle(), text), 5 * 0.9 * 10);
}

TEST(TextPlace, OutlineHoldsTheLettersAndWhatReachesUnderTheLine) {
  const Drawing drawing = WithStyle();
  const PictureText text{.Text = "Ra = 45",
                         .Point = {0, 0},
                         .Height = 100,
                         .Alignment = TextAlignment::BottomCentre,
                         .Style = "Dimensional"};
  // Seven characters of 0.9 * 0.55 * 100.
  EXPECT_NEAR(EstimatedWidth(drawing, text), 346.5, exact);
  const auto outline = TextOutline(drawing, text);
  ExpectAt(outline[0], -173.25, 0);
  ExpectAt(outline[1], 173.25, 0);
  ExpectAt(outline[2], 173.25, 130);
  ExpectAt(outline[3], -173.25, 130);
}

TEST(Bounds, OfAnEmptyDrawingAreAUnitSquare) {
  const DrawingBounds bounds = BoundsOf({});
  EXPECT_EQ(bounds.Least, (PlacePoint{0, 0, 0}));
  EXPECT_EQ(bounds.Greatest, (PlacePoint{1, 1, 0}));
}

TEST(Bounds, HoldStrokesAndTextsOfShownLayers) {
  Drawing drawing = WithStyle();
  drawing.Layers.push_back({.Name = "Off", .LayerOn = false});
  drawing.Layers.push_back({.Name = "Frozen", .Freeze = true});
  drawing.ModelSpace = {
      DrawingLine{.Start = {10, 20}, .End = {30, 5}},
      DrawingLine{.Start = {0, 0}, .End = {900, 900}, .Layer = "OFF"},
      DrawingLine{.Start = {0, 0}, .End = {-900, 900}, .Layer = "Frozen"},
      DrawingText{.Text = "м", .InsertionPoint = {40, 10}, .Height = 10, .Style = "Dimensional"}};
  const DrawingBounds bounds = BoundsOf(drawing);
  ExpectAt(bounds.Least, 10, 5);
  ExpectAt(bounds.Greatest, 44.95, 20);
  drawing.ModelSpace.push_back(
      DrawingLine{.Start = {0, std::numeric_limits<double>::infinity()}, .End = {0, 0}});
  EXPECT_EQ(RaisedBy([&] { BoundsOf(drawing); }), 6);
}

TEST(Layers, TellWhatIsShownPlottedAndHowThick) {
  Drawing drawing;
  drawing.Layers = {{.Name = "0"},
                    {.Name = "Main", .Lineweight = 50},
                    {.Name = "Thin", .Lineweight = 0},
                    {.Name = "Off", .LayerOn = false},
                    {.Name = "Frozen", .Freeze = true},
                    {.Name = "Screen", .Plottable = false}};
  EXPECT_EQ(StrokeWidth(drawing, "main"), 0.5);
  EXPECT_EQ(StrokeWidth(drawing, "thin"), 0);
  EXPECT_EQ(StrokeWidth(drawing, "0"), 0.25);
  EXPECT_EQ(StrokeWidth(drawing, "absent"), 0.25);
  for (const char* hidden : {"Off", "Frozen"}) {
    EXPECT_FALSE(IsShown(drawing, hidden));
    EXPECT_FALSE(IsPlotted(drawing, hidden));
  }
  EXPECT_TRUE(IsShown(drawing, "Screen"));
  EXPECT_FALSE(IsPlotted(drawing, "Screen"));
  EXPECT_TRUE(IsPlotted(drawing, "Main"));
}

TEST(Names, AreComparedWithoutCase) {
  EXPECT_TRUE(SameName("NordDim", "NORDDIM"));
  EXPECT_TRUE(SameName("Ось ряда №1 ё", "ОСЬ РЯДА №1 Ё"));
  EXPECT_FALSE(SameName("Оси", "Осн"));
  EXPECT_FALSE(SameName("Main", "Main1"));
  EXPECT_EQ(FoldedName("абвгдеёжзийклмнопрстуфхцчшщъыьэюя"), "АБВГДЕЁЖЗИЙКЛМНОПРСТУФХЦЧШЩЪЫЬЭЮЯ");
  // Capitals stay, and so do letters that are not Russian.
  EXPECT_EQ(FoldedName("Бѐ"), "Бѐ");
  // A cut character is left as it is.
  EXPECT_EQ(FoldedName("a\xD0"), "A\xD0");
}

}  // namespace

}  // namespace trelonit::test
