#pragma once

#include <array>
#include <string>
#include <vector>

#include "drawing/host/Drawing.h"

namespace trelonit {

// What is to be seen of an entity: strokes, filled arrows and texts, whoever draws them (the
// screen, a PDF, the block of a dimension in the drawing format). Millimetres and radians. All
// routines raise 6 for coordinates that are no numbers or lead beyond the range of Double.

struct PictureStroke {
  PlacePoint Start;
  PlacePoint End;
};

/// A filled arrowhead; its point comes first.
struct PictureTriangle {
  std::array<PlacePoint, 3> Corners;
};

/// A line of text: the point is where its alignment puts it.
struct PictureText {
  std::string Text;
  PlacePoint Point;
  double Height = 1;  ///< of capital letters
  double Rotation = 0;
  TextAlignment Alignment = TextAlignment::Left;
  std::string Style;
};

struct EntityPicture {
  std::string Layer;
  std::vector<PictureStroke> Strokes;
  std::vector<PictureTriangle> Arrows;
  std::vector<PictureText> Texts;
};

/// A dimension comes apart into extension lines, dimension line, two arrows and its number: text
/// above the line in the given precision; where there is no room between the extension lines, the
/// arrows stand outside and point inwards.
EntityPicture PictureOf(const Drawing& drawing, const DrawingEntity& entity);

/// The length that a dimension measures along its dimension line.
double MeasuredLength(const DrawingDimension& dimension);
/// As its text: decimals by its precision, the point of the drawing format, no sign.
std::string DimensionText(const DrawingDimension& dimension);

/// About how wide a text is, in its own units: the estimate of the drawing's own letters (a letter
/// is 0.9 of its height wide, times the style's width factor).
double EstimatedWidth(const Drawing& drawing, const PictureText& text);

/// How far letters reach under the baseline, as a part of the height. A text that is aligned by its
/// bottom keeps this room, so that a label does not touch the bar under it.
constexpr double descenderPart = 0.3;

/// Where the baseline of a text begins, for letters that make it so wide.
PlacePoint BaselineStart(const PictureText& text, double width);

/// The corners of the box round a text of the estimated width: lower left, lower right, upper
/// right, upper left in the text's own frame.
std::array<PlacePoint, 4> TextOutline(const Drawing& drawing, const PictureText& text);

struct DrawingBounds {
  PlacePoint Least;
  PlacePoint Greatest;
};

/// The box round all that is to be seen of the shown layers; a unit square for an empty drawing.
DrawingBounds BoundsOf(const Drawing& drawing);

}  // namespace trelonit
