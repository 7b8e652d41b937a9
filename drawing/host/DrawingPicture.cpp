#include "drawing/host/DrawingPicture.h"

#include <algorithm>
#include <optional>

#include "drawing/host/DimensionPicture.h"
#include "platform/text/Text.h"
#include "platform/values/Arithmetic.h"

namespace trelonit {

namespace {

EntityPicture PictureOfLine(const DrawingLine& line) {
  return {.Layer = line.Layer, .Strokes = {{line.Start, line.End}}, .Arrows = {}, .Texts = {}};
}

EntityPicture PictureOfText(const DrawingText& text) {
  const bool byInsertion = text.Alignment == TextAlignment::Left;
  return {.Layer = text.Layer,
          .Strokes = {},
          .Arrows = {},
          .Texts = {{.Text = text.Text,
                     .Point = byInsertion ? text.InsertionPoint : text.TextAlignmentPoint,
                     .Height = text.Height,
                     .Rotation = text.Rotation,
                     .Alignment = text.Alignment,
                     .Style = text.Style}}};
}

/// A point of the text's own frame, whose origin is the given one.
PlacePoint InFrameOf(const PictureText& text, const PlacePoint& origin, Real along, Real up) {
  const Real cosine = Cosine(text.Rotation);
  const Real sine = Sine(text.Rotation);
  return {Real(origin.X) + along * cosine - up * sine, Real(origin.Y) + along * sine + up * cosine,
          Finite(origin.Z)};
}

/// The part of the width that lies left of the alignment point.
double PartBefore(TextAlignment alignment) {
  switch (alignment) {
    case TextAlignment::Centre:
    case TextAlignment::Middle:
    case TextAlignment::TopCentre:
    case TextAlignment::MiddleCentre:
    case TextAlignment::BottomCentre:
      return 0.5;
    case TextAlignment::Right:
    case TextAlignment::TopRight:
    case TextAlignment::MiddleRight:
    case TextAlignment::BottomRight:
      return 1;
    default:
      return 0;
  }
}

/// How far the baseline lies over the alignment point, as a part of the height.
double BaselinePart(TextAlignment alignment) {
  switch (alignment) {
    case TextAlignment::TopLeft:
    case TextAlignment::TopCentre:
    case TextAlignment::TopRight:
      return -1;
    case TextAlignment::MiddleLeft:
    case TextAlignment::MiddleCentre:
    case TextAlignment::MiddleRight:
      return -0.5;
    case TextAlignment::Middle:
      return -(1 - descenderPart) / 2;
    case TextAlignment::BottomLeft:
    case TextAlignment::BottomCentre:
    case TextAlignment::BottomRight:
      return descenderPart;
    default:
      return 0;
  }
}

/// Grows with every point that it gets.
class Box {
 public:
  void Take(const PlacePoint& point) {
    const PlacePoint finite{Finite(point.X), Finite(point.Y), Finite(point.Z)};
    if (!box_) {
      box_ = DrawingBounds{finite, finite};
      return;
    }
    box_->Least = {std::min(box_->Least.X, finite.X), std::min(box_->Least.Y, finite.Y),
                   std::min(box_->Least.Z, finite.Z)};
    box_->Greatest = {std::max(box_->Greatest.X, finite.X), std::max(box_->Greatest.Y, finite.Y),
                      std::max(box_->Greatest.Z, finite.Z)};
  }
  DrawingBounds Bounds() const { return box_.value_or(DrawingBounds{{0, 0, 0}, {1, 1, 0}}); }

 private:
  std::optional<DrawingBounds> box_;
};

}  // namespace

EntityPicture PictureOf(const Drawing& drawing, const DrawingEntity& entity) {
  if (const auto* line = std::get_if<DrawingLine>(&entity)) {
    return PictureOfLine(*line);
  }
  if (const auto* text = std::get_if<DrawingText>(&entity)) {
    return PictureOfText(*text);
  }
  return PictureOfDimension(drawing, std::get<DrawingDimension>(entity));
}

double EstimatedWidth(const Drawing& drawing, const PictureText& text) {
  constexpr double letterWidth = 0.9;
  const DrawingTextStyle* style = FindTextStyle(drawing, text.Style);
  const Real factor = style == nullptr ? 1 : style->Width;
  return factor * letterWidth * text.Height * Characters(text.Text).size();
}

PlacePoint BaselineStart(const PictureText& text, double width) {
  return InFrameOf(text, text.Point, -(Real(width) * PartBefore(text.Alignment)),
                   Real(text.Height) * BaselinePart(text.Alignment));
}

std::array<PlacePoint, 4> TextOutline(const Drawing& drawing, const PictureText& text) {
  const Real width = EstimatedWidth(drawing, text);
  const PlacePoint start = BaselineStart(text, width);
  const Real under = -(Real(text.Height) * descenderPart);
  return {InFrameOf(text, start, 0, under), InFrameOf(text, start, width, under),
          InFrameOf(text, start, width, text.Height), InFrameOf(text, start, 0, text.Height)};
}

DrawingBounds BoundsOf(const Drawing& drawing) {
  Box box;
  for (const DrawingEntity& entity : drawing.ModelSpace) {
    if (!IsShown(drawing, LayerOf(entity))) {
      continue;
    }
    const EntityPicture picture = PictureOf(drawing, entity);
    for (const PictureStroke& stroke : picture.Strokes) {
      box.Take(stroke.Start);
      box.Take(stroke.End);
    }
    for (const PictureTriangle& arrow : picture.Arrows) {
      std::for_each(arrow.Corners.begin(), arrow.Corners.end(), [&](auto& p) { box.Take(p); });
    }
    for (const PictureText& text : picture.Texts) {
      for (const PlacePoint& corner : TextOutline(drawing, text)) {
        box.Take(corner);
      }
    }
  }
  return box.Bounds();
}

}  // namespace trelonit
