#include "drawing/host/DimensionPicture.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "platform/text/NumberText.h"
#include "platform/values/Arithmetic.h"

namespace trelonit {

namespace {

/// Angles nearer than this are the same: a quarter turn that was rounded up a little still reads
/// from the right.
constexpr double sameAngle = 1e-9;

/// The frame of a dimension: along its dimension line and across it.
class LineFrame {
 public:
  explicit LineFrame(const DrawingDimension& dimension)
      : along_{Cosine(dimension.Rotation), Sine(dimension.Rotation)}, level_(dimension.Location.Z) {
    line = Across(dimension.Location);
  }

  Real Along(const PlacePoint& point) const {
    return Real(point.X) * along_.X + Real(point.Y) * along_.Y;
  }
  Real Across(const PlacePoint& point) const {
    return Real(point.Y) * along_.X - Real(point.X) * along_.Y;
  }
  PlacePoint Place(Real along, Real across) const {
    return {along * along_.X - across * along_.Y, along * along_.Y + across * along_.X, level_};
  }
  /// On the dimension line.
  PlacePoint Place(Real along) const { return Place(along, line); }

  Real line;  ///< where the dimension line lies across

 private:
  struct Direction {
    Real X;
    Real Y;
  };
  Direction along_;
  double level_;
};

/// The sizes of a dimension's look in drawing units.
struct LookSizes {
  Real Arrow;
  Real Gap;
  Real TextHeight;
  Real Beyond;  ///< of an extension line over the dimension line
  Real Offset;  ///< of an extension line from its point
};

LookSizes SizesOf(const DrawingDimension& dimension) {
  const Real scale = dimension.ScaleFactor;
  // A gap below zero asks for a frame round the text, which is not drawn.
  return {.Arrow = scale * dimension.ArrowheadSize,
          .Gap = Magnitude(scale * dimension.TextGap),
          .TextHeight = scale * dimension.TextHeight,
          .Beyond = scale * dimension.Variables.DIMEXE,
          .Offset = scale * dimension.Variables.DIMEXO};
}

/// The rotation in which a text along the line is read from below or from the right.
Real ReadableRotation(double rotation) {
  const Real turned = std::remainder(Finite(rotation), std::numbers::pi);
  return turned < -std::numbers::pi / 2 + sameAngle ? turned + std::numbers::pi : turned;
}

class DimensionPainter {
 public:
  DimensionPainter(const Drawing& drawing, const DrawingDimension& dimension)
      : drawing_(drawing),
        dimension_(dimension),
        frame_(dimension),
        sizes_(SizesOf(dimension)),
        first_(frame_.Along(dimension.Point1)),
        second_(frame_.Along(dimension.Point2)),
        outward_(second_ < first_ ? -1 : 1) {}

  EntityPicture Paint() {
    picture_.Layer = dimension_.Layer;
    AddExtensionLine(dimension_.Point1, first_);
    AddExtensionLine(dimension_.Point2, second_);

    PictureText text = TextWithoutPlace();
    const Real width = EstimatedWidth(drawing_, text);
    const Real room = Magnitude(second_ - first_);
    const Real needed = 2 * sizes_.Arrow + width;
    // Rounding shall not decide where there is just room.
    constexpr double rounding = 1e-9;
    const bool fits = room >= needed - needed * rounding;
    if (fits || dimension_.TextInside) {
      PlaceInside(text, width, room);
    } else {
      PlaceOutside(text, width);
    }
    AddArrow(first_, fits ? outward_ : -outward_);
    AddArrow(second_, fits ? -outward_ : outward_);
    if (!fits) {
      AddTail(first_, -outward_);
      if (dimension_.TextInside) {
        AddTail(second_, outward_);
      }
    }
    picture_.Texts.push_back(std::move(text));
    return std::move(picture_);
  }

 private:
  void AddStroke(const PlacePoint& start, const PlacePoint& end) {
    picture_.Strokes.push_back({start, end});
  }

  /// From its offset to a little over the dimension line. A point on the dimension line has none.
  void AddExtensionLine(const PlacePoint& point, Real along) {
    const Real start = frame_.Across(point);
    const Real way = frame_.line - start;
    if (way == 0.0) {
      return;
    }
    const Real side = way < 0.0 ? -1 : 1;
    const Real offset = std::min<double>(sizes_.Offset, Magnitude(way));
    AddStroke(frame_.Place(along, start + side * offset),
              frame_.Place(along, frame_.line + side * sizes_.Beyond));
  }

  /// Its point at the place, its body towards the side.
  void AddArrow(Real along, Real side) {
    if (sizes_.Arrow == 0.0) {
      return;
    }
    const Real back = along + side * sizes_.Arrow;
    const Real half = sizes_.Arrow / 6;
    picture_.Arrows.push_back({{frame_.Place(along), frame_.Place(back, frame_.line + half),
                                frame_.Place(back, frame_.line - half)}});
  }

  /// The short line behind an arrow that stands outside.
  void AddTail(Real along, Real side) {
    AddStroke(frame_.Place(along), frame_.Place(along + side * 2 * sizes_.Arrow));
  }

  PictureText TextWithoutPlace() const {
    return {
        .Text = DimensionText(dimension_),
        .Point = {},
        .Height = sizes_.TextHeight,
        .Rotation = dimension_.TextInsideAlign ? Real(0) : ReadableRotation(dimension_.Rotation),
        .Alignment = TextAlignment::MiddleCentre,
        .Style = dimension_.TextStyle};
  }

  /// Whether the text stands over its line: a text across the line would be crossed by it.
  bool IsAbove(const PictureText& text) const {
    const Real turn = std::remainder(text.Rotation - dimension_.Rotation, std::numbers::pi);
    return dimension_.Variables.DIMTAD != 0 && Magnitude(turn) < sameAngle;
  }

  PlacePoint Lifted(const PlacePoint& point, const PictureText& text) const {
    const Real rise = sizes_.Gap + sizes_.TextHeight / 2;
    return {point.X - rise * Sine(text.Rotation), point.Y + rise * Cosine(text.Rotation), point.Z};
  }

  void PlaceInside(PictureText& text, Real width, Real room) {
    const Real middle = first_ + (second_ - first_) / 2;
    text.Point = frame_.Place(middle);
    if (IsAbove(text)) {
      text.Point = Lifted(text.Point, text);
      AddStroke(frame_.Place(first_), frame_.Place(second_));
      return;
    }
    // The line is broken where the text stands in it.
    const Real turn = text.Rotation - dimension_.Rotation;
    const Real half = width / 2 * Magnitude(Cosine(turn)) +
                      sizes_.TextHeight / 2 * Magnitude(Sine(turn)) + sizes_.Gap;
    if (2 * half < room) {
      AddStroke(frame_.Place(first_), frame_.Place(middle - outward_ * half));
      AddStroke(frame_.Place(middle + outward_ * half), frame_.Place(second_));
    }
  }

  /// Behind the second arrow, over a longer line or at the end of a short one.
  void PlaceOutside(PictureText& text, Real width) {
    // Outside the extension lines a text always follows its line.
    text.Rotation = ReadableRotation(dimension_.Rotation);
    const Real tail = second_ + outward_ * 2 * sizes_.Arrow;
    const Real start = tail + outward_ * sizes_.Gap;
    text.Point = frame_.Place(start + outward_ * width / 2);
    Real end = tail;
    if (IsAbove(text)) {
      text.Point = Lifted(text.Point, text);
      end = start + outward_ * width;
    }
    AddStroke(frame_.Place(first_), frame_.Place(second_));
    AddStroke(frame_.Place(second_), frame_.Place(end));
  }

  const Drawing& drawing_;
  const DrawingDimension& dimension_;
  LineFrame frame_;
  LookSizes sizes_;
  Real first_;
  Real second_;
  Real outward_;  ///< the side on which the second point lies, seen from the first: 1 or -1
  EntityPicture picture_;
};

}  // namespace

EntityPicture PictureOfDimension(const Drawing& drawing, const DrawingDimension& dimension) {
  return DimensionPainter(drawing, dimension).Paint();
}

PlacePoint SecondFoot(const DrawingDimension& dimension) {
  const LineFrame frame(dimension);
  return frame.Place(frame.Along(dimension.Point2));
}

double MeasuredLength(const DrawingDimension& dimension) {
  const LineFrame frame(dimension);
  return Magnitude(frame.Along(dimension.Point2) - frame.Along(dimension.Point1));
}

std::string DimensionText(const DrawingDimension& dimension) {
  return FormatPlain(MeasuredLength(dimension), dimension.PrimaryUnitsPrecision, NumberLocale{});
}

}  // namespace trelonit
