#include "windows/drawing/DrawingPainter.h"

#include <algorithm>
#include <cmath>

#include "platform/values/Arithmetic.h"
#include "windows/binding/Binding.h"
#include "windows/binding/Pictures.h"

namespace trelonit {

namespace {

QPointF AsPoint(const PlacePoint& point) {
  return {Finite(point.X), Finite(point.Y)};
}

/// Grows the box to hold the other one, which may be flat: the toolkit's own union leaves out what
/// has no area.
void Take(QRectF& box, const QRectF& other) {
  if (box.isNull()) {
    box = other;
    return;
  }
  box =
      QRectF(QPointF(std::min(box.left(), other.left()), std::min(box.top(), other.top())),
             QPointF(std::max(box.right(), other.right()), std::max(box.bottom(), other.bottom())));
}

QRectF BoxOf(const QLineF& line) {
  return QRectF(line.p1(), line.p2()).normalized();
}

/// A level or upright line moved by less than a pixel, so that both its edges lie between pixels.
QLineF OnPixels(QLineF line, double width) {
  constexpr double straight = 1e-6;
  const double half = width / 2;
  const auto sharp = [&](double place) { return std::round(place - half) + half; };
  if (std::abs(line.dy()) < straight) {
    const double y = sharp(line.y1());
    return {line.x1(), y, line.x2(), y};
  }
  if (std::abs(line.dx()) < straight) {
    const double x = sharp(line.x1());
    return {x, line.y1(), x, line.y2()};
  }
  return line;
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

QTransform ShrunkTo(QPointF anchor, double factor) {
  return {factor, 0, 0, factor, anchor.x() * (1 - factor), anchor.y() * (1 - factor)};
}

/// Whether a box, flat or not, has a part in the visible one.
bool Meets(const QRectF& box, const QRectF& visible) {
  return visible.isNull() || (box.left() <= visible.right() && box.right() >= visible.left() &&
                              box.top() <= visible.bottom() && box.bottom() >= visible.top());
}

}  // namespace

QColor LayerColor(std::string_view layer, const QPalette& palette) {
  if (SameName(layer, "Dimension")) {
    return QColor(QLatin1String(IsDark(palette) ? "#6fc3c9" : "#0f6674"));
  }
  return palette.color(QPalette::Text);
}

DrawingPainter::DrawingPainter(const Drawing& drawing) : drawing_(drawing) {
  DrawingLetters letters;
  font_ = letters.Font();
  for (const DrawingEntity& entity : drawing.ModelSpace) {
    Add(PictureOf(drawing, entity), letters);
  }
}

DrawingPainter::Layer& DrawingPainter::LayerNamed(const std::string& name) {
  const auto found = std::find_if(layers_.begin(), layers_.end(),
                                  [&](const Layer& layer) { return SameName(layer.Name, name); });
  if (found != layers_.end()) {
    return *found;
  }
  layers_.push_back({.Name = name});
  return layers_.back();
}

void DrawingPainter::Add(const EntityPicture& picture, DrawingLetters& letters) {
  Layer& layer = LayerNamed(picture.Layer);
  for (const PictureStroke& stroke : picture.Strokes) {
    layer.Strokes.emplace_back(AsPoint(stroke.Start), AsPoint(stroke.End));
    Take(layer.Box, BoxOf(layer.Strokes.back()));
  }
  for (const PictureTriangle& arrow : picture.Arrows) {
    QPolygonF corners;
    for (const PlacePoint& corner : arrow.Corners) {
      corners.append(AsPoint(corner));
    }
    layer.Arrows.push_back(corners);
    Take(layer.Box, corners.boundingRect());
  }
  for (const PictureText& text : picture.Texts) {
    layer.Texts.push_back(Placed(text, letters));
    Take(layer.Box, layer.Texts.back().Box);
  }
}

DrawingPainter::Text DrawingPainter::Placed(const PictureText& text,
                                            DrawingLetters& letters) const {
  const DrawingTextStyle* style = FindTextStyle(drawing_, text.Style);
  const double factor = style == nullptr ? 1 : style->Width;
  const double oblique = style == nullptr ? 0 : style->ObliqueAngle;
  const double scale = text.Height / letters.CapitalHeight();

  Text placed;
  // Names are padded with blanks: a label stands in the middle of its bar by what is to be seen.
  placed.Letters = ToQt(text.Text).trimmed();
  placed.Outline = letters.Outline(placed.Letters);
  const double width = letters.Width(placed.Letters) * factor * scale;
  const QPointF start = AsPoint(BaselineStart(WithRoomOnTop(text), Finite(width)));
  // Y of the outline goes down. The style leans the letters by their height, however narrow.
  const QTransform lean(scale * factor, 0, -scale * std::tan(oblique), -scale, 0, 0);
  QTransform place;
  place.translate(start.x(), start.y());
  place.rotateRadians(text.Rotation);
  placed.Place = lean * place;
  placed.Box = placed.Place.map(placed.Outline).boundingRect();
  if (placed.Outline.isEmpty()) {
    placed.Box = QRectF(start, start);
  }
  const QPolygonF corners = placed.Place.map(QPolygonF(placed.Outline.boundingRect()));
  std::copy_n(corners.begin(), placed.Room.Corners.size(), placed.Room.Corners.begin());
  placed.Room.Anchor = AsPoint(text.Point);
  placed.Room.Height = text.Height;
  placed.Room.Kind = KindOf(text.Alignment);
  Finite(placed.Box.left() + placed.Box.right() + placed.Box.top() + placed.Box.bottom());
  return placed;
}

bool DrawingPainter::IsPainted(const Layer& layer, bool onPaper) const {
  return onPaper ? IsPlotted(drawing_, layer.Name) : IsShown(drawing_, layer.Name);
}

QRectF DrawingPainter::Bounds(bool onPaper) const {
  QRectF box;
  for (const Layer& layer : layers_) {
    if (IsPainted(layer, onPaper)) {
      Take(box, layer.Box);
    }
  }
  return box.isNull() ? QRectF(0, 0, 1, 1) : box;
}

double DrawingPainter::SmallestText() const {
  double smallest = 0;
  for (const Layer& layer : layers_) {
    if (!IsPainted(layer, true)) {
      continue;
    }
    for (const Text& text : layer.Texts) {
      smallest = smallest == 0 ? text.Room.Height : std::min(smallest, text.Room.Height);
    }
  }
  return smallest;
}

const TextFit& DrawingPainter::Fit(double smallest, bool onPaper) const {
  std::vector<bool> painted;
  std::vector<TextRoom> rooms;
  for (const Layer& layer : layers_) {
    painted.push_back(IsPainted(layer, onPaper));
  }
  if (!fit_ || fit_->Smallest != smallest || fit_->OnPaper != onPaper || fit_->Layers != painted) {
    for (std::size_t layer = 0; layer < layers_.size(); ++layer) {
      if (painted[layer]) {
        for (const Text& text : layers_[layer].Texts) {
          rooms.push_back(text.Room);
        }
      }
    }
    // On paper a text upon a bar is better than none; on screen a closer look brings it.
    fit_ = {smallest, onPaper, painted,
            FitTexts(rooms, smallest, onPaper ? std::vector<QLineF>() : Bars())};
  }
  return fit_->Fit;
}

std::vector<QLineF> DrawingPainter::Bars() const {
  std::vector<QLineF> bars;
  for (const DrawingEntity& entity : drawing_.ModelSpace) {
    const auto* line = std::get_if<DrawingLine>(&entity);
    if (line != nullptr && IsShown(drawing_, line->Layer)) {
      bars.emplace_back(AsPoint(line->Start), AsPoint(line->End));
    }
  }
  return bars;
}

const double* DrawingPainter::FactorsFor(const DrawingLook& look) const {
  if (look.SmallestLetters <= 0) {
    return nullptr;
  }
  const double scale = std::sqrt(std::abs(look.FromDrawing.determinant()));
  return Fit(look.SmallestLetters / scale, look.OnPaper).Factors.data();
}

std::vector<QPolygonF> DrawingPainter::TextRooms(const DrawingLook& look) const {
  const double* factors = FactorsFor(look);
  std::vector<QPolygonF> rooms;
  for (const Layer& layer : layers_) {
    if (!IsPainted(layer, look.OnPaper)) {
      continue;
    }
    for (const Text& text : layer.Texts) {
      const double factor = factors == nullptr ? 1 : *factors++;
      if (factor > 0) {
        const QPolygonF corners(text.Room.Corners.begin(), text.Room.Corners.end());
        rooms.push_back(ShrunkTo(text.Room.Anchor, factor).map(corners));
      }
    }
  }
  return rooms;
}

void DrawingPainter::Paint(QPainter& painter, const DrawingLook& look) const {
  const double* factors = FactorsFor(look);
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  for (const Layer& layer : layers_) {
    if (!IsPainted(layer, look.OnPaper)) {
      continue;
    }
    const QColor color = look.OnPaper ? QColor(Qt::black) : LayerColor(layer.Name, look.Palette);
    const double weight = StrokeWidth(drawing_, layer.Name) * look.UnitsPerMillimetre;
    const double width = std::max(weight, look.ThinnestLine);
    // The toolkit paints round ends several times slower; at so few pixels they look the same.
    painter.setPen(look.OnPixels ? QPen(color, std::max(1.0, std::round(width)), Qt::SolidLine,
                                        Qt::SquareCap, Qt::MiterJoin)
                                 : QPen(color, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    PaintStrokes(painter, layer, look);
    painter.setBrush(color);
    PaintTexts(painter, layer, look, factors);
    factors = factors == nullptr ? nullptr : factors + layer.Texts.size();
    painter.setPen(Qt::NoPen);
    PaintArrows(painter, layer, look);
    painter.setBrush(Qt::NoBrush);
  }
  painter.restore();
}

void DrawingPainter::PaintStrokes(QPainter& painter, const Layer& layer, const DrawingLook& look) {
  QVector<QLineF> lines;
  lines.reserve(static_cast<qsizetype>(layer.Strokes.size()));
  for (const QLineF& stroke : layer.Strokes) {
    QLineF line = look.FromDrawing.map(stroke);
    if (look.OnPixels) {
      line = OnPixels(line, painter.pen().widthF());
    }
    if (Meets(BoxOf(line), look.Visible)) {
      lines.append(line);
    }
  }
  painter.drawLines(lines);
}

void DrawingPainter::PaintArrows(QPainter& painter, const Layer& layer, const DrawingLook& look) {
  for (const QPolygonF& arrow : layer.Arrows) {
    const QPolygonF corners = look.FromDrawing.map(arrow);
    if (Meets(corners.boundingRect(), look.Visible)) {
      painter.drawConvexPolygon(corners);
    }
  }
}

void DrawingPainter::PaintTexts(QPainter& painter, const Layer& layer, const DrawingLook& look,
                                const double* factors) const {
  const QTransform base = painter.transform();
  painter.setFont(font_);
  for (const Text& text : layer.Texts) {
    const double factor = factors == nullptr ? 1 : *factors++;
    if (factor <= 0 || !Meets(look.FromDrawing.mapRect(text.Box), look.Visible)) {
      continue;
    }
    painter.setTransform(text.Place * ShrunkTo(text.Room.Anchor, factor) * look.FromDrawing * base);
    if (look.RealLetters) {
      painter.drawText(QPointF(0, 0), text.Letters);
    } else {
      painter.fillPath(text.Outline, painter.brush());
    }
  }
  painter.setTransform(base);
}

}  // namespace trelonit
