#include "windows/main/LoadPreviewView.h"

#include <QMouseEvent>
#include <QPainter>
#include <algorithm>
#include <cmath>

#include "windows/binding/Binding.h"
#include "windows/binding/Pictures.h"

namespace trelonit {

namespace {

constexpr double sideMargin = 36;
constexpr double underChord = 34;
constexpr double longestArrow = 130;
constexpr double shortestArrow = 60;
constexpr double labelRoomUpright = 64;
constexpr double tickHalf = 6;
constexpr double barHeight = 14;
constexpr double barGap = 10;
constexpr double arrowBase = 4;
constexpr double headLength = 9;
constexpr double headHalf = 4;
constexpr double labelGap = 3;

QColor ColorOf(const PreviewMark& mark, const QPalette& palette) {
  return mark.BorderColor == colorRed ? WarningColor(palette) : palette.color(QPalette::Text);
}

/// Lines at 45 degrees, equally dense at every scaling of the desktop.
void DrawHatch(QPainter& painter, const QRectF& place) {
  constexpr double spacing = 7;
  painter.save();
  painter.setClipRect(place);
  for (double x = place.left() - place.height(); x < place.right(); x += spacing) {
    painter.drawLine(QPointF(x, place.bottom()), QPointF(x + place.height(), place.top()));
  }
  painter.restore();
}

}  // namespace

LoadPreviewView::LoadPreviewView(frmMain& form, QWidget* parent) : QWidget(parent), form_(form) {
  setMinimumHeight(130);
  form_.PreviewChanged = [this] { update(); };
}

LoadPreviewView::~LoadPreviewView() {
  form_.PreviewChanged = nullptr;
}

double LoadPreviewView::ToX(Long displayUnits) const {
  return sideMargin + static_cast<double>(displayUnits) * (width() - 2 * sideMargin) /
                          static_cast<double>(LoadPreview::totalWidth);
}

void LoadPreviewView::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.fillRect(rect(), palette().color(QPalette::Base));
  // In a tall window the schematic stands in the middle.
  const double spare = std::max(0.0, height() - underChord - longestArrow - labelRoomUpright);
  const double chord = height() - underChord - spare / 2;
  for (const ChordMarks* marks : {&form_.Preview.Up, &form_.Preview.Dwn}) {
    DrawPanelLoads(painter, *marks, chord);
    DrawJointLoads(painter, *marks, chord);
  }
  DrawChord(painter, chord);
}

void LoadPreviewView::DrawChord(QPainter& painter, double y) const {
  for (const PreviewMark& piece : form_.Preview.linPoyas) {
    if (piece.Visible) {
      painter.setPen(QPen(ColorOf(piece, palette()), 4, Qt::SolidLine, Qt::FlatCap));
      painter.drawLine(QPointF(ToX(piece.X1), y), QPointF(ToX(piece.X2), y));
    }
  }
  const QFontMetricsF metrics(font());
  double free = 0;
  Long number = 0;
  for (const PreviewMark& tick : form_.Preview.linStart) {
    if (tick.Visible) {
      const double x = ToX(tick.X1);
      painter.setPen(QPen(ColorOf(tick, palette()), tick.BorderColor == colorRed ? 3 : 2));
      painter.drawLine(QPointF(x, y - tickHalf), QPointF(x, y + tickHalf));
      // Joint numbers, as many as have room.
      const QString text = QString::number(number);
      const double half = metrics.horizontalAdvance(text) / 2;
      if (x - half >= free) {
        painter.drawText(QPointF(x - half, y + tickHalf + metrics.ascent() + 2), text);
        free = x + half + 4;
      }
    }
    ++number;
  }
}

void LoadPreviewView::DrawPanelLoads(QPainter& painter, const ChordMarks& marks, double y) const {
  const bool upright = NeedsUprightLabels(marks.lblQ);
  Long panel = marks.lblQ.IsAllocated() ? marks.lblQ.LowerBound() : 0;
  const QColor color = LoadColor(palette());
  for (const PreviewMark& bar : marks.linQ) {
    if (bar.Visible) {
      const QRectF place(ToX(bar.X1), y - barGap - barHeight, ToX(bar.X2) - ToX(bar.X1), barHeight);
      painter.setPen(QPen(color, 1));
      DrawHatch(painter, place);
      painter.drawRect(place);
    }
    if (marks.lblQ[panel].Visible) {
      DrawLabel(painter, marks.lblQ[panel], y - barGap - barHeight - labelGap, upright);
    }
    ++panel;
  }
}

void LoadPreviewView::DrawJointLoads(QPainter& painter, const ChordMarks& marks, double y) const {
  if (!marks.lblP.IsAllocated()) {
    return;
  }
  const bool upright = NeedsUprightLabels(marks.lblP);
  const QFontMetricsF metrics(font());
  const double labelRoom = upright ? labelRoomUpright : metrics.height();
  const double top = std::clamp(labelRoom + labelGap, y - longestArrow, y - shortestArrow);
  const double foot = y - arrowBase;
  const QColor color = LoadColor(palette());
  painter.setPen(QPen(color, 2));
  for (Long joint = marks.lblP.LowerBound(); joint <= marks.lblP.UpperBound(); ++joint) {
    const double x = ToX(marks.lblP[joint].X);
    const auto line = [&](Long number, QPointF a, QPointF b) {
      if (marks.linP[number][joint].Visible) {
        painter.setPen(QPen(color, 2));
        painter.drawLine(a, b);
      }
    };
    line(1, {x, top}, {x, foot});
    line(2, {x, foot}, {x - headHalf, foot - headLength});
    line(3, {x, foot}, {x + headHalf, foot - headLength});
    line(4, {x, top}, {x - headHalf, top + headLength});
    line(5, {x, top}, {x + headHalf, top + headLength});
    if (marks.lblP[joint].Visible) {
      DrawLabel(painter, marks.lblP[joint], top - labelGap, upright);
    }
  }
}

bool LoadPreviewView::NeedsUprightLabels(const ChordMarks::Labels& labels) const {
  const QFontMetricsF metrics(font());
  double end = 0;
  for (const PreviewLabel& label : labels) {
    if (label.Visible) {
      const double half = metrics.horizontalAdvance(ToQt(label.Caption)) / 2;
      if (end > 0 && ToX(label.X) - half < end) {
        return true;
      }
      end = ToX(label.X) + half + 3;
    }
  }
  return false;
}

void LoadPreviewView::DrawLabel(QPainter& painter, const PreviewLabel& label, double y,
                                bool upright) const {
  const QFontMetricsF metrics(font());
  const QString text = ToQt(label.Caption);
  painter.save();
  painter.setPen(palette().color(QPalette::Text));
  if (upright) {
    painter.translate(ToX(label.X) + metrics.ascent() / 2 - 1, y);
    painter.rotate(-90);
    painter.drawText(QPointF(0, 0), text);
  } else {
    painter.drawText(
        QPointF(ToX(label.X) - metrics.horizontalAdvance(text) / 2, y - metrics.descent() + 1),
        text);
  }
  painter.restore();
}

void LoadPreviewView::mousePressEvent(QMouseEvent* event) {
  // The entry of the list whose mark is nearest: joints by their tick, panels by their middle.
  const auto& entries = form_.cmbKnotNum.List();
  const bool joints = form_.imgPForce.Marked();
  const ChordMarks::Marks& marks = joints ? form_.Preview.linStart : form_.Preview.linPoyas;
  Long nearest = ComboBox::noSelection;
  double distance = width();
  Long number = 0;
  for (const PreviewMark& mark : marks) {
    const double away = std::abs((ToX(mark.X1) + ToX(mark.X2)) / 2 - event->position().x());
    if (away < distance && number < static_cast<Long>(entries.size())) {
      distance = away;
      nearest = number;
    }
    ++number;
  }
  if (nearest != ComboBox::noSelection) {
    form_.cmbKnotNum.Select(nearest);
  }
}

}  // namespace trelonit
