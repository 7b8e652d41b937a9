#include "windows/binding/PicturePainter.h"

#include <QFont>
#include <QPainterPath>
#include <algorithm>

namespace trelonit {

namespace {

using PaintColor = std::function<QColor(const PictureColor&)>;

QPainterPath LinesOf(const PictureShape& shape) {
  QPainterPath path;
  const double* number = shape.Numbers.begin();
  const auto point = [&number] {
    const double x = *number++;
    return QPointF(x, *number++);
  };
  for (const char verb : shape.Verbs) {
    switch (verb) {
      case 'M':
        path.moveTo(point());
        break;
      case 'L':
        path.lineTo(point());
        break;
      case 'C': {
        const QPointF first = point();
        const QPointF second = point();
        path.cubicTo(first, second, point());
        break;
      }
      default:
        path.closeSubpath();
    }
  }
  return path;
}

/// Letters as an outline: sharp at every scaling, with no font of a certain size to be found.
QPainterPath LettersOf(const PictureShape& shape) {
  constexpr int precise = 100;
  QFont font(QStringLiteral("sans-serif"));
  font.setItalic(true);
  font.setPixelSize(precise);
  font.setHintingPreference(QFont::PreferNoHinting);
  const QString text =
      QString::fromUtf8(shape.Letters.data(), static_cast<qsizetype>(shape.Letters.size()));
  QPainterPath path;
  path.addText(-QFontMetricsF(font).horizontalAdvance(text) / 2, 0, font, text);
  const double scale = shape.Numbers[2] / precise;
  return QTransform(scale, 0, 0, scale, shape.Numbers[0], shape.Numbers[1]).map(path);
}

QPainterPath OutlineOf(const PictureShape& shape) {
  const auto& numbers = shape.Numbers;
  QPainterPath path;
  switch (shape.Is) {
    case PictureShape::Kind::Path:
      path = LinesOf(shape);
      break;
    case PictureShape::Kind::Circle:
      path.addEllipse(QPointF(numbers[0], numbers[1]), numbers[2], numbers[2]);
      break;
    case PictureShape::Kind::Box:
      path.addRoundedRect(QRectF(numbers[0], numbers[1], numbers[2], numbers[3]), numbers[4],
                          numbers[4]);
      break;
    case PictureShape::Kind::Letters:
      path = LettersOf(shape);
      break;
  }
  path.setFillRule(shape.EvenOdd ? Qt::OddEvenFill : Qt::WindingFill);
  return path;
}

QPen PenOfShape(const PictureShape& shape, const PaintColor& colorOf) {
  if (shape.Stroke.Role == PictureRole::None) {
    return QPen(Qt::NoPen);
  }
  QPen pen(colorOf(shape.Stroke), shape.StrokeWidth, Qt::SolidLine,
           shape.RoundCaps ? Qt::RoundCap : Qt::FlatCap,
           shape.RoundJoins ? Qt::RoundJoin : Qt::SvgMiterJoin);
  constexpr double sharpest = 4;
  pen.setMiterLimit(sharpest);
  if (shape.Dashes.size() > 0) {
    QList<qreal> dashes;
    for (const double dash : shape.Dashes) {
      dashes.append(dash / shape.StrokeWidth);
    }
    pen.setDashPattern(dashes);
  }
  return pen;
}

}  // namespace

const CompiledPicture* FindPicture(std::string_view name) {
  const Carried<CompiledPicture> pictures = CompiledPictures();
  const auto* found = std::lower_bound(pictures.begin(), pictures.end(), name,
                                       [](const CompiledPicture& picture, std::string_view sought) {
                                         return picture.Name < sought;
                                       });
  return found != pictures.end() && found->Name == name ? found : nullptr;
}

void PaintPicture(QPainter& painter, const QRectF& place, const CompiledPicture& picture,
                  const PaintColor& colorOf) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.translate(place.topLeft());
  painter.scale(place.width() / picture.Width, place.height() / picture.Height);
  painter.translate(-picture.Left, -picture.Top);
  for (const PictureShape& shape : picture.Shapes) {
    painter.setPen(PenOfShape(shape, colorOf));
    painter.setBrush(shape.Fill.Role == PictureRole::None ? QBrush(Qt::NoBrush)
                                                          : QBrush(colorOf(shape.Fill)));
    painter.drawPath(OutlineOf(shape));
  }
  painter.restore();
}

}  // namespace trelonit
