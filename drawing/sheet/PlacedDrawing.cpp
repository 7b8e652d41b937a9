#include "drawing/sheet/PlacedDrawing.h"

#include <algorithm>
#include <cmath>

#include "platform/text/Text.h"
#include "platform/values/Arithmetic.h"

namespace trelonit {

namespace {

PlanePoint AsPoint(const PlacePoint& point) {
  return {Finite(point.X), Finite(point.Y)};
}

/// A text that is aligned by its top keeps room for marks over capitals, as one that is aligned by
/// its bottom does for letters that reach under the line: it does not touch the bar over it.
PictureText WithRoomOnTop(PictureText text) {
  constexpr double roomPart = 0.2;
  switch (text.Alignment) {
    case TextAlignment::TopLeft:
    case TextAlignment::TopCentre:
    case TextAlignment::TopRight: {
      const Real room = Real(text.Height) * roomPart;
      text.Point.X = text.Point.X + room * Sine(text.Rotation);
      text.Point.Y = text.Point.Y - room * Cosine(text.Rotation);
      return text;
    }
    default:
      return text;
  }
}

/// Which texts give way first: the lengths under bars, then the numbers of dimensions, then what is
/// told of the bars themselves.
int KindOf(TextAlignment alignment) {
  switch (alignment) {
    case TextAlignment::TopLeft:
    case TextAlignment::TopCentre:
    case TextAlignment::TopRight:
      return 2;
    case TextAlignment::MiddleLeft:
    case TextAlignment::MiddleCentre:
    case TextAlignment::MiddleRight:
      return 1;
    default:
      return 0;
  }
}

std::array<PlanePoint, 4> CornersOf(const PlaneBox& box) {
  return {box.Least, PlanePoint{box.Greatest.X, box.Least.Y}, box.Greatest,
          PlanePoint{box.Least.X, box.Greatest.Y}};
}

}  // namespace

PlacedDrawing::PlacedDrawing(const Drawing& drawing) : drawing_(drawing) {
  for (const DrawingEntity& entity : drawing.ModelSpace) {
    Add(PictureOf(drawing, entity));
  }
}

PlacedLayer& PlacedDrawing::LayerNamed(const std::string& name) {
  const auto found = std::find_if(layers_.begin(), layers_.end(), [&](const PlacedLayer& layer) {
    return SameName(layer.Name, name);
  });
  if (found != layers_.end()) {
    return *found;
  }
  layers_.push_back({.Name = name});
  return layers_.back();
}

void PlacedDrawing::Add(const EntityPicture& picture) {
  PlacedLayer& layer = LayerNamed(picture.Layer);
  for (const PictureStroke& stroke : picture.Strokes) {
    const PlaneLine& line =
        layer.Strokes.emplace_back(PlaneLine{AsPoint(stroke.Start), AsPoint(stroke.End)});
    Take(layer.Box, line.Start);
    Take(layer.Box, line.End);
  }
  for (const PictureTriangle& arrow : picture.Arrows) {
    std::array<PlanePoint, 3> corners;
    std::transform(arrow.Corners.begin(), arrow.Corners.end(), corners.begin(), AsPoint);
    for (const PlanePoint& corner : corners) {
      Take(layer.Box, corner);
    }
    layer.Arrows.push_back(corners);
  }
  for (const PictureText& text : picture.Texts) {
    layer.Texts.push_back(Placed(text));
    Take(layer.Box, layer.Texts.back().Box);
  }
}

PlacedText PlacedDrawing::Placed(const PictureText& text) const {
  const DrawingTextStyle* style = FindTextStyle(drawing_, text.Style);
  const double factor = style == nullptr ? 1 : style->Width;
  const double oblique = style == nullptr ? 0 : style->ObliqueAngle;
  const double scale = text.Height / LettersCapitalHeight();

  PlacedText placed;
  // Names are padded with blanks: a label stands in the middle of its bar by what is to be seen.
  placed.Letters = Trim(text.Text);
  placed.Outline = LettersOutline(placed.Letters);
  const double width = LettersWidth(placed.Letters) * factor * scale;
  const PlanePoint start = AsPoint(BaselineStart(WithRoomOnTop(text), Finite(width)));
  // The style leans the letters by their height, however narrow.
  const PlaneTransform lean{scale * factor, scale * std::tan(oblique), 0, scale};
  const double sine = Sine(text.Rotation);
  const double cosine = Cosine(text.Rotation);
  placed.Place = lean.Then({cosine, -sine, sine, cosine, start});
  placed.Box = BoxOf(placed.Outline, placed.Place).value_or(PlaneBox{start, start});
  const std::array<PlanePoint, 4> corners = CornersOf(BoxOf(placed.Outline).value_or(PlaneBox()));
  std::transform(corners.begin(), corners.end(), placed.Room.Corners.begin(), placed.Place);
  placed.Room.Anchor = AsPoint(text.Point);
  placed.Room.Height = text.Height;
  placed.Room.Kind = KindOf(text.Alignment);
  Finite(placed.Box.Least.X + placed.Box.Least.Y + placed.Box.Greatest.X + placed.Box.Greatest.Y);
  return placed;
}

bool PlacedDrawing::IsPainted(const PlacedLayer& layer, bool onPaper) const {
  return onPaper ? IsPlotted(drawing_, layer.Name) : IsShown(drawing_, layer.Name);
}

PlaneBox PlacedDrawing::Bounds(bool onPaper) const {
  std::optional<PlaneBox> box;
  for (const PlacedLayer& layer : layers_) {
    if (layer.Box && IsPainted(layer, onPaper)) {
      Take(box, *layer.Box);
    }
  }
  return box.value_or(PlaneBox{{0, 0}, {1, 1}});
}

double PlacedDrawing::SmallestText() const {
  double smallest = 0;
  for (const PlacedLayer& layer : layers_) {
    if (!IsPainted(layer, true)) {
      continue;
    }
    for (const PlacedText& text : layer.Texts) {
      smallest = smallest == 0 ? text.Room.Height : std::min(smallest, text.Room.Height);
    }
  }
  return smallest;
}

const TextFit& PlacedDrawing::Fit(double smallest, bool onPaper) const {
  std::vector<bool> painted;
  for (const PlacedLayer& layer : layers_) {
    painted.push_back(IsPainted(layer, onPaper));
  }
  if (!fit_ || fit_->Smallest != smallest || fit_->OnPaper != onPaper || fit_->Layers != painted) {
    std::vector<TextRoom> rooms;
    for (std::size_t layer = 0; layer < layers_.size(); ++layer) {
      if (painted[layer]) {
        for (const PlacedText& text : layers_[layer].Texts) {
          rooms.push_back(text.Room);
        }
      }
    }
    // On paper a text upon a bar is better than none; on screen a closer look brings it.
    fit_ = {smallest, onPaper, painted,
            FitTexts(rooms, smallest, onPaper ? std::vector<PlaneLine>() : Bars())};
  }
  return fit_->Fit;
}

std::vector<PlaneLine> PlacedDrawing::Bars() const {
  std::vector<PlaneLine> bars;
  for (const DrawingEntity& entity : drawing_.ModelSpace) {
    const auto* line = std::get_if<DrawingLine>(&entity);
    if (line != nullptr && IsShown(drawing_, line->Layer)) {
      bars.push_back({AsPoint(line->Start), AsPoint(line->End)});
    }
  }
  return bars;
}

}  // namespace trelonit
