#include "windows/drawing/DrawingPainter.h"

#include <QFont>
#include <QFontMetricsF>
#include <algorithm>
#include <cmath>

#include "windows/binding/Binding.h"
#include "windows/binding/Pictures.h"

namespace trelonit {

namespace {

QPointF AsQt(PlanePoint point) {
  return {point.X, point.Y};
}

QLineF AsQt(const PlaneLine& line) {
  return {AsQt(line.Start), AsQt(line.End)};
}

QPainterPath AsQt(const LetterOutline& outline) {
  QPainterPath path;
  path.setFillRule(Qt::WindingFill);
  ForEachStep(outline, [&](char verb, const PlanePoint* points) {
    switch (verb) {
      case 'M':
        path.moveTo(AsQt(points[0]));
        break;
      case 'L':
        path.lineTo(AsQt(points[0]));
        break;
      case 'Q':
        path.quadTo(AsQt(points[0]), AsQt(points[1]));
        break;
      default:
        path.closeSubpath();
        break;
    }
  });
  return path;
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

/// Whether a box, flat or not, has a part in the visible one.
bool Meets(const QRectF& box, const QRectF& visible) {
  return visible.isNull() || (box.left() <= visible.right() && box.right() >= visible.left() &&
                              box.top() <= visible.bottom() && box.bottom() >= visible.top());
}

QTransform Shrunk(const PlacedText& text, double factor) {
  return AsQt(ScaledAt(text.Room.Anchor, factor));
}

/// Letters that can be read out of a page: those of a font, stretched to the room of ours.
class PageLetters {
 public:
  PageLetters() {
    // The first is what the drawing format asks for, the second has its widths.
    font_.setFamilies({QStringLiteral("Arial"), QStringLiteral("Liberation Sans"),
                       QStringLiteral("DejaVu Sans"), QStringLiteral("sans-serif")});
    // So large that no width is rounded.
    font_.setPixelSize(128);
    font_.setHintingPreference(QFont::PreferNoHinting);
  }

  const QFont& Font() const { return font_; }

  /// From the font's pixels, Y downwards, to the units of our letters.
  QTransform ToLetters(const QString& text, std::string_view letters) const {
    const QFontMetricsF metrics(font_);
    const double width = metrics.horizontalAdvance(text);
    const double height = metrics.capHeight();
    const double wider = width > 0 ? LettersWidth(letters) / width : 1;
    const double higher = height > 0 ? LettersCapitalHeight() / height : wider;
    return QTransform::fromScale(wider, -higher);
  }

 private:
  QFont font_;
};

}  // namespace

QTransform AsQt(const PlaneTransform& transform) {
  return {transform.XX, transform.YX,      transform.XY,
          transform.YY, transform.Shift.X, transform.Shift.Y};
}

QRectF AsQt(const PlaneBox& box) {
  return {AsQt(box.Least), AsQt(box.Greatest)};
}

QColor LayerColor(std::string_view layer, const QPalette& palette) {
  if (SameName(layer, "Dimension")) {
    return QColor(QLatin1String(IsDark(palette) ? "#6fc3c9" : "#0f6674"));
  }
  return palette.color(QPalette::Text);
}

DrawingPainter::DrawingPainter(const Drawing& drawing) : placed_(drawing) {
  for (const PlacedLayer& layer : placed_.Layers()) {
    std::vector<QPainterPath>& outlines = outlines_.emplace_back();
    for (const PlacedText& text : layer.Texts) {
      outlines.push_back(AsQt(text.Outline));
    }
  }
}

const double* DrawingPainter::FactorsFor(const DrawingLook& look) const {
  if (look.SmallestLetters <= 0) {
    return nullptr;
  }
  const double scale = std::sqrt(std::abs(look.FromDrawing.determinant()));
  return placed_.Fit(look.SmallestLetters / scale, look.OnPaper).Factors.data();
}

std::vector<QPolygonF> DrawingPainter::TextRooms(const DrawingLook& look) const {
  const double* factors = FactorsFor(look);
  std::vector<QPolygonF> rooms;
  for (const PlacedLayer& layer : placed_.Layers()) {
    if (!placed_.IsPainted(layer, look.OnPaper)) {
      continue;
    }
    for (const PlacedText& text : layer.Texts) {
      const double factor = factors == nullptr ? 1 : *factors++;
      if (factor > 0) {
        QPolygonF corners;
        for (const PlanePoint& corner : text.Room.Corners) {
          corners.append(AsQt(corner));
        }
        rooms.push_back(Shrunk(text, factor).map(corners));
      }
    }
  }
  return rooms;
}

void DrawingPainter::Paint(QPainter& painter, const DrawingLook& look) const {
  const double* factors = FactorsFor(look);
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  for (std::size_t place = 0; place < placed_.Layers().size(); ++place) {
    const PlacedLayer& layer = placed_.Layers()[place];
    if (!placed_.IsPainted(layer, look.OnPaper)) {
      continue;
    }
    const QColor color = look.OnPaper ? QColor(Qt::black) : LayerColor(layer.Name, look.Palette);
    const double weight = StrokeWidth(placed_.Source(), layer.Name) * look.UnitsPerMillimetre;
    const double width = std::max(weight, look.ThinnestLine);
    // The toolkit paints round ends several times slower; at so few pixels they look the same.
    painter.setPen(look.OnPixels ? QPen(color, std::max(1.0, std::round(width)), Qt::SolidLine,
                                        Qt::SquareCap, Qt::MiterJoin)
                                 : QPen(color, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    PaintStrokes(painter, layer, look);
    painter.setBrush(color);
    PaintTexts(painter, layer, outlines_[place], look, factors);
    factors = factors == nullptr ? nullptr : factors + layer.Texts.size();
    painter.setPen(Qt::NoPen);
    PaintArrows(painter, layer, look);
    painter.setBrush(Qt::NoBrush);
  }
  painter.restore();
}

void DrawingPainter::PaintStrokes(QPainter& painter, const PlacedLayer& layer,
                                  const DrawingLook& look) {
  QVector<QLineF> lines;
  lines.reserve(static_cast<qsizetype>(layer.Strokes.size()));
  for (const PlaneLine& stroke : layer.Strokes) {
    QLineF line = look.FromDrawing.map(AsQt(stroke));
    if (look.OnPixels) {
      line = OnPixels(line, painter.pen().widthF());
    }
    if (Meets(BoxOf(line), look.Visible)) {
      lines.append(line);
    }
  }
  painter.drawLines(lines);
}

void DrawingPainter::PaintArrows(QPainter& painter, const PlacedLayer& layer,
                                 const DrawingLook& look) {
  for (const std::array<PlanePoint, 3>& arrow : layer.Arrows) {
    const QPolygonF corners =
        look.FromDrawing.map(QPolygonF({AsQt(arrow[0]), AsQt(arrow[1]), AsQt(arrow[2])}));
    if (Meets(corners.boundingRect(), look.Visible)) {
      painter.drawConvexPolygon(corners);
    }
  }
}

void DrawingPainter::PaintTexts(QPainter& painter, const PlacedLayer& layer,
                                const std::vector<QPainterPath>& outlines, const DrawingLook& look,
                                const double* factors) {
  const QTransform base = painter.transform();
  std::optional<PageLetters> letters;
  if (look.RealLetters) {
    letters.emplace();
    painter.setFont(letters->Font());
  }
  for (std::size_t place = 0; place < layer.Texts.size(); ++place) {
    const PlacedText& text = layer.Texts[place];
    const double factor = factors == nullptr ? 1 : factors[place];
    if (factor <= 0 || !Meets(look.FromDrawing.mapRect(AsQt(text.Box)), look.Visible)) {
      continue;
    }
    const QTransform toPainter = AsQt(text.Place) * Shrunk(text, factor) * look.FromDrawing * base;
    if (letters) {
      const QString shown = ToQt(text.Letters);
      painter.setTransform(letters->ToLetters(shown, text.Letters) * toPainter);
      painter.drawText(QPointF(0, 0), shown);
    } else {
      painter.setTransform(toPainter);
      painter.fillPath(outlines[place], painter.brush());
    }
  }
  painter.setTransform(base);
}

}  // namespace trelonit
