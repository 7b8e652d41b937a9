#include "windows/main/TrussSketchView.h"

#include <QPainter>
#include <numbers>

#include "windows/binding/Binding.h"
#include "windows/binding/Pictures.h"

namespace trelonit {

namespace {

/// Colours and widths of what a drawing consists of.
QPen PenOfInk(SketchInk ink, const QPalette& palette) {
  const QColor text = palette.color(QPalette::Text);
  switch (ink) {
    case SketchInk::Chord:
      return QPen(text, 3, Qt::SolidLine, Qt::RoundCap);
    case SketchInk::Web:
      return QPen(text, 1.6, Qt::SolidLine, Qt::RoundCap);
    case SketchInk::Joint:
    case SketchInk::Text:
      return QPen(text, 1);
    case SketchInk::Support:
      return QPen(QuietColor(palette), 1.6);
    case SketchInk::Edge:
      return QPen(QuietColor(palette), 1, Qt::DashLine);
    case SketchInk::Dimension:
      return QPen(QuietColor(palette), 1);
    case SketchInk::Caution:
      return QPen(CautionColor(palette), 1);
    case SketchInk::Fault:
      return QPen(WarningColor(palette), 1);
  }
  return {};
}

QPointF PointOf(SketchPoint point) {
  return {point.X, point.Y};
}

void PaintText(QPainter& painter, const SketchText& text, const QPalette& palette) {
  painter.save();
  painter.setPen(PenOfInk(text.Of, palette));
  painter.translate(PointOf(text.Middle));
  if (text.Upright) {
    painter.rotate(-90);
  }
  const double line = QFontMetricsF(painter.font()).height();
  painter.drawText(QRectF(-text.Width / 2 - 1, -line / 2, text.Width + 2, line),
                   Qt::AlignCenter | Qt::TextDontClip, ToQt(text.Text));
  painter.restore();
}

void PaintList(QPainter& painter, const SketchList& picture, const QPalette& palette) {
  for (const SketchStroke& stroke : picture.Strokes) {
    painter.setPen(PenOfInk(stroke.Of, palette));
    painter.drawLine(PointOf(stroke.A), PointOf(stroke.B));
  }
  // Qt counts sixteenths of a degree, against the clock.
  constexpr double sixteenths = 16 * 180 / std::numbers::pi;
  for (const SketchArc& arc : picture.Arcs) {
    painter.setPen(PenOfInk(arc.Of, palette));
    const QRectF round(PointOf(arc.Centre) - QPointF(arc.Radius, arc.Radius),
                       QSizeF(2 * arc.Radius, 2 * arc.Radius));
    painter.drawArc(round, qRound(-arc.From * sixteenths),
                    qRound((arc.From - arc.To) * sixteenths));
  }
  painter.setPen(Qt::NoPen);
  for (const SketchShape& shape : picture.Shapes) {
    painter.setBrush(PenOfInk(shape.Of, palette).color());
    QPolygonF corners;
    for (const SketchPoint& corner : shape.Corners) {
      corners.append(PointOf(corner));
    }
    painter.drawPolygon(corners);
  }
  for (const SketchDisc& disc : picture.Discs) {
    painter.setBrush(PenOfInk(disc.Of, palette).color());
    painter.drawEllipse(PointOf(disc.Centre), disc.Radius, disc.Radius);
  }
  for (const SketchText& text : picture.Texts) {
    PaintText(painter, text, palette);
  }
}

}  // namespace

TrussSketchView::TrussSketchView(frmMain& form, QWidget* parent) : QWidget(parent), form_(form) {
  setMinimumSize(320, 110);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

TrussSketch TrussSketchView::Drawn() const {
  const QFontMetricsF metrics(font());
  return form_.SketchTruss({.Width = static_cast<double>(width()),
                            .Height = static_cast<double>(height()),
                            .LineHeight = metrics.height(),
                            .WidthOf = [&metrics](const std::string& text) {
                              return metrics.horizontalAdvance(ToQt(text));
                            }});
}

void TrussSketchView::Refresh() {
  setAccessibleDescription(ToQt(Drawn().Words));
  layer_.Forget();
  update();
}

void TrussSketchView::PaintAside(PaintingAside& aside) {
  const auto paint = [drawn = Drawn(), palette = palette()](QPainter& layer) {
    PaintList(layer, drawn, palette);
  };
  layer_.Begin(*this, paint, aside);
}

void TrussSketchView::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  layer_.Draw(painter, *this, [this](QPainter& layer) { PaintList(layer, Drawn(), palette()); });
}

}  // namespace trelonit
