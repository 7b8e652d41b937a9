#include "windows/main/SectionFigure.h"

#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <cmath>

#include "windows/binding/Binding.h"
#include "windows/binding/Pictures.h"

namespace trelonit {

namespace {

using Where = SectionDimension::Side;

constexpr double edgeSpace = 14;
/// From the section to the first dimension line, and from one to the next.
constexpr double dimensionStep = 24;
constexpr double tickLength = 4;
constexpr double beyondLine = 5;
constexpr double textGap = 3;
constexpr double axisOverhang = 12;

/// How many lines of dimensions stand on each side.
struct Sides {
  int Below = 0, Above = 0, Left = 0, Right = 0;

  explicit Sides(const std::vector<SectionDimension>& dimensions) {
    for (const SectionDimension& dimension : dimensions) {
      Below += dimension.At == Where::Below ? 1 : 0;
      Above += dimension.At == Where::Above ? 1 : 0;
      Left += dimension.At == Where::Left ? 1 : 0;
      Right += dimension.At == Where::Right || dimension.At == Where::Across ? 1 : 0;
    }
  }
};

QPointF PointOf(const OutlineVertex& vertex) {
  return {static_cast<double>(vertex.y), static_cast<double>(vertex.z)};
}

/// The outline with its arcs, in mm.
void AddOutline(QPainterPath& path, const Outline& outline) {
  const std::size_t count = outline.size();
  for (std::size_t place = 0; place < count; ++place) {
    const QPointF corner = PointOf(outline[place]);
    const QPointF before = PointOf(outline[(place + count - 1) % count]) - corner;
    const QPointF after = PointOf(outline[(place + 1) % count]) - corner;
    const double toBefore = std::hypot(before.x(), before.y());
    const double toAfter = std::hypot(after.x(), after.y());
    const double cosine = QPointF::dotProduct(before, after) / (toBefore * toAfter);
    // From the corner to where the arc touches its sides; the angle between them is halved.
    const double tangent = static_cast<double>(outline[place].Radius) *
                           std::sqrt((1 + cosine) / std::max(1 - cosine, 1e-9));
    const QPointF start = corner + before * (tangent / toBefore);
    const QPointF end = corner + after * (tangent / toAfter);
    place == 0 ? path.moveTo(start) : path.lineTo(start);
    if (tangent > 0) {
      // An arc of the sizes of a screen: a curve of the third degree is as good.
      const double turn = std::acos(std::clamp(-cosine, -1.0, 1.0));
      const double reach = 4.0 / 3.0 * std::tan(turn / 4) *
                           static_cast<double>(outline[place].Radius) / std::max(tangent, 1e-9);
      path.cubicTo(start + (corner - start) * reach, end + (corner - end) * reach, end);
    }
  }
  path.closeSubpath();
}

/// Paints a drawing into a rectangle of the widget.
class FigurePainter {
 public:
  FigurePainter(QPainter& painter, const SectionDrawing& drawing, const QRectF& place,
                const NumberLocale& locale, const QPalette& palette)
      : painter_(painter),
        drawing_(drawing),
        locale_(locale),
        palette_(palette),
        metrics_(painter.font()) {
    const Sides sides(drawing.Dimensions);
    const double text = metrics_.horizontalAdvance(QStringLiteral("000,0"));
    // On these two sides the text stands beyond the outermost line.
    const double line = metrics_.height();
    const QRectF room =
        place.adjusted(edgeSpace + sides.Left * dimensionStep + line,
                       edgeSpace + (sides.Above > 0 ? sides.Above * dimensionStep + line : 0),
                       -edgeSpace - (sides.Right > 0 ? text + dimensionStep : axisOverhang),
                       -edgeSpace - sides.Below * dimensionStep - beyondLine);
    const double wide = drawing.Right - drawing.Left;
    const double high = drawing.Top - drawing.Bottom;
    scale_ = std::max(0.01, std::min(room.width() / wide, room.height() / high));
    // The dimensions stand round the section; it stays in the middle of what they leave.
    origin_ = room.center() - QPointF(scale_ * (drawing.Left + drawing.Right) / 2,
                                      -scale_ * (drawing.Bottom + drawing.Top) / 2);
  }

  void Paint() {
    PaintProfiles();
    PaintAxes();
    Sides taken({});
    for (const SectionDimension& dimension : drawing_.Dimensions) {
      switch (dimension.At) {
        case Where::Below:
          PaintLevel(dimension, Place(0, drawing_.Bottom).y() + ++taken.Below * dimensionStep);
          break;
        case Where::Above:
          PaintLevel(dimension, Place(0, drawing_.Top).y() - ++taken.Above * dimensionStep);
          break;
        case Where::Left:
          PaintUpright(dimension, Place(drawing_.Left, 0).x() - ++taken.Left * dimensionStep);
          break;
        case Where::Right:
          PaintUpright(dimension,
                       Place(dimension.EdgeTo, 0).x() + ++taken.Right * dimensionStep / 2);
          break;
        case Where::Across:
          PaintAcross(dimension);
          break;
      }
    }
  }

 private:
  QPointF Place(double x, double y) const { return origin_ + QPointF(x, -y) * scale_; }

  void PaintProfiles() {
    QPainterPath path;
    path.setFillRule(Qt::OddEvenFill);
    for (const Outline& outline : drawing_.Profiles) {
      AddOutline(path, outline);
    }
    for (const Outline& outline : drawing_.Holes) {
      AddOutline(path, outline);
    }
    painter_.setPen(QPen(palette_.color(QPalette::Text), 1.4));
    painter_.setBrush(SteelColor(palette_));
    painter_.drawPath(QTransform(scale_, 0, 0, -scale_, origin_.x(), origin_.y()).map(path));
  }

  void PaintAxes() {
    painter_.setPen(QPen(QuietColor(palette_), 1, Qt::DashDotLine));
    const QPointF centre = Place(drawing_.CentroidX, drawing_.CentroidY);
    painter_.drawLine(QPointF(Place(drawing_.Left, 0).x() - axisOverhang, centre.y()),
                      QPointF(Place(drawing_.Right, 0).x() + axisOverhang, centre.y()));
    painter_.drawLine(QPointF(centre.x(), Place(0, drawing_.Top).y() - axisOverhang),
                      QPointF(centre.x(), Place(0, drawing_.Bottom).y() + axisOverhang));
  }

  QString TextOf(const SectionDimension& dimension) const {
    // Nothing of a section is known more closely than to a hundredth of a millimetre.
    constexpr int decimals = 2;
    const QString number = ToQt(NumberToText(RoundToDecimals(dimension.Value, decimals), locale_));
    return dimension.Diameter ? QStringLiteral("Ø") + number : number;
  }

  void Begin() { painter_.setPen(QPen(LoadColor(palette_), 1)); }

  void Tick(QPointF at) {
    const QPointF half(tickLength, -tickLength);
    painter_.drawLine(at - half, at + half);
  }

  void Write(QPointF centre, const QString& text) {
    const QSizeF size(metrics_.horizontalAdvance(text) + 2, metrics_.height());
    const QRectF box(centre - QPointF(size.width() / 2, size.height() / 2), size);
    painter_.setPen(palette_.color(QPalette::Text));
    painter_.drawText(box, Qt::AlignCenter, text);
  }

  /// Along X at this height of the widget.
  void PaintLevel(const SectionDimension& dimension, double y) {
    const QPointF from = Place(dimension.From, dimension.EdgeFrom);
    const QPointF to = Place(dimension.To, dimension.EdgeTo);
    const double beyond = y > from.y() ? beyondLine : -beyondLine;
    const QString text = TextOf(dimension);
    const double wide = metrics_.horizontalAdvance(text);
    const bool fits = to.x() - from.x() > wide + 2 * textGap;
    Begin();
    painter_.drawLine(QPointF(from.x(), from.y()), QPointF(from.x(), y + beyond));
    painter_.drawLine(QPointF(to.x(), to.y()), QPointF(to.x(), y + beyond));
    painter_.drawLine(
        QPointF(from.x() - 2 * tickLength, y),
        QPointF(to.x() + (fits ? 2 * tickLength : 2 * tickLength + wide + textGap), y));
    Tick({from.x(), y});
    Tick({to.x(), y});
    const double middle =
        fits ? (from.x() + to.x()) / 2 : to.x() + 2 * tickLength + textGap + wide / 2;
    Write({middle, y - metrics_.height() / 2 + 1}, text);
  }

  /// Along Y at this place of the widget. The text of a long one is turned, that of a short one
  /// stands beside it.
  void PaintUpright(const SectionDimension& dimension, double x) {
    const QPointF from = Place(dimension.EdgeFrom, dimension.From);
    const QPointF to = Place(dimension.EdgeTo, dimension.To);
    const double beyond = x > from.x() ? beyondLine : -beyondLine;
    const QString text = TextOf(dimension);
    Begin();
    painter_.drawLine(from, QPointF(x + beyond, from.y()));
    painter_.drawLine(to, QPointF(x + beyond, to.y()));
    painter_.drawLine(QPointF(x, from.y() + 2 * tickLength), QPointF(x, to.y() - 2 * tickLength));
    Tick({x, from.y()});
    Tick({x, to.y()});
    const double middle = (from.y() + to.y()) / 2;
    if (from.y() - to.y() > metrics_.horizontalAdvance(text) + 2 * textGap) {
      painter_.save();
      painter_.translate(x, middle);
      painter_.rotate(-90);
      Write({0, -metrics_.height() / 2 + 1}, text);
      painter_.restore();
    } else {
      Write({x + beyond + textGap + metrics_.horizontalAdvance(text) / 2, middle}, text);
    }
  }

  /// Arrows from both sides of a wall, the text on the right one.
  void PaintAcross(const SectionDimension& dimension) {
    const QPointF from = Place(dimension.From, dimension.EdgeFrom);
    const QPointF to = Place(dimension.To, dimension.EdgeTo);
    const QString text = TextOf(dimension);
    const double wide = metrics_.horizontalAdvance(text);
    Begin();
    painter_.drawLine(from - QPointF(3 * tickLength, 0),
                      to + QPointF(2 * tickLength + wide + textGap, 0));
    Tick(from);
    Tick(to);
    Write(to + QPointF(2 * tickLength + textGap + wide / 2, -metrics_.height() / 2 + 1), text);
  }

  QPainter& painter_;
  const SectionDrawing& drawing_;
  const NumberLocale& locale_;
  const QPalette& palette_;
  QFontMetricsF metrics_;
  double scale_ = 1;
  QPointF origin_;
};

}  // namespace

SectionFigure::SectionFigure(QWidget* parent) : QWidget(parent) {
  setMinimumSize(200, 170);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void SectionFigure::Show(std::optional<SectionDrawing> drawing, NumberLocale locale) {
  drawing_ = std::move(drawing);
  locale_ = std::move(locale);
  update();
}

void SectionFigure::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  if (!drawing_) {
    painter.setPen(palette().color(QPalette::Text));
    painter.drawText(rect(), Qt::AlignCenter | Qt::TextWordWrap,
                     QStringLiteral("По размерам этой записи сечение не построить"));
    return;
  }
  FigurePainter(painter, *drawing_, rect(), locale_, palette()).Paint();
}

}  // namespace trelonit
