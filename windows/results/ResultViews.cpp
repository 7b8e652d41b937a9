#include "windows/results/ResultViews.h"

#include <QHelpEvent>
#include <QLocale>
#include <QMouseEvent>
#include <QPainter>
#include <QToolTip>
#include <algorithm>
#include <cmath>
#include <utility>

#include "windows/binding/Binding.h"
#include "windows/binding/Pictures.h"

namespace trelonit {

namespace {

constexpr double margin = 16;
constexpr double legendHeight = 22;
/// For the name of the marked bar, over the truss.
constexpr double titleHeight = 20;
constexpr double markMargin = 7;
constexpr double thinnest = 1.2;
constexpr double thickest = 7;
constexpr double jointRadius = 2.5;
constexpr double hintDistance = 8;
constexpr int forceDecimals = 2;
constexpr int useDecimals = 3;

double DistanceToBar(QPointF point, QPointF a, QPointF b) {
  const QPointF along = b - a;
  const double square = QPointF::dotProduct(along, along);
  const double share =
      square > 0 ? std::clamp(QPointF::dotProduct(point - a, along) / square, 0.0, 1.0) : 0;
  const QPointF away = point - (a + share * along);
  return std::hypot(away.x(), away.y());
}

/// Where the bars meet, each place once: drawn bar by bar, a joint would cost as often as bars end
/// in it, and its edge would grow darker each time.
std::vector<QPointF> JointsOf(const std::vector<PictureBar>& bars) {
  std::vector<QPointF> joints;
  for (const PictureBar& bar : bars) {
    joints.emplace_back(bar.X1, bar.Y1);
    joints.emplace_back(bar.X2, bar.Y2);
  }
  std::sort(joints.begin(), joints.end(), [](QPointF one, QPointF other) {
    return std::pair(one.x(), one.y()) < std::pair(other.x(), other.y());
  });
  joints.erase(std::unique(joints.begin(), joints.end()), joints.end());
  return joints;
}

QString BarHint(const PictureBar& bar) {
  return QStringLiteral("%1, стержень %2: %3 т")
      .arg(ToQt(GroupName(bar.Group)))
      .arg(bar.Number)
      .arg(QLocale().toString(bar.Force, 'f', forceDecimals));
}

}  // namespace

TrussView::TrussView(std::vector<PictureBar> bars, QWidget* parent)
    : QWidget(parent), bars_(std::move(bars)), joints_(JointsOf(bars_)) {
  setMinimumSize(320, 90);
  setMouseTracking(true);
  double left = 0;
  double right = 0;
  double top = 0;
  for (const PictureBar& bar : bars_) {
    left = std::min({left, bar.X1, bar.X2});
    right = std::max({right, bar.X1, bar.X2});
    top = std::max({top, bar.Y1, bar.Y2});
    greatest_ = std::max(greatest_, std::abs(bar.Force));
  }
  bounds_ = QRectF(left, 0, right - left, top);
}

QTransform TrussView::Placing() const {
  const double across = width() - 2 * margin;
  const double down = height() - 2 * margin - legendHeight - titleHeight;
  const double scale =
      std::min(across / std::max(bounds_.width(), 1e-9), down / std::max(bounds_.height(), 1e-9));
  const double x = (width() - bounds_.width() * scale) / 2 - bounds_.left() * scale;
  const double y = margin + titleHeight + (down + bounds_.height() * scale) / 2;
  return QTransform(scale, 0, 0, -scale, x, y);
}

void TrussView::Mark(std::optional<MarkedBar> bar) {
  marked_ = bar;
  const PictureBar* marked = FindMarked();
  setAccessibleDescription(marked == nullptr ? QString()
                                             : QStringLiteral("Отмечен: ") + BarHint(*marked));
  update();
}

const PictureBar* TrussView::FindMarked() const {
  const auto found = std::find_if(bars_.begin(), bars_.end(), [this](const PictureBar& bar) {
    return marked_ == MarkedBar{bar.Group, bar.Number};
  });
  return found == bars_.end() ? nullptr : &*found;
}

void TrussView::DrawMark(QPainter& painter, const QTransform& place) const {
  const PictureBar* bar = FindMarked();
  if (bar == nullptr) {
    return;
  }
  // In a small picture it must not hide the bars beside it.
  const double high = bounds_.height() * std::abs(place.m22());
  const double wide = std::clamp(high / 2, thickest + markMargin, thickest + 2 * markMargin);
  painter.setPen(QPen(MarkColor(palette()), wide, Qt::SolidLine, Qt::RoundCap));
  painter.drawLine(place.map(QPointF(bar->X1, bar->Y1)), place.map(QPointF(bar->X2, bar->Y2)));
  painter.setPen(palette().color(QPalette::Text));
  painter.drawText(QRectF(margin, 6, width() - 2 * margin, titleHeight), Qt::AlignCenter,
                   BarHint(*bar));
}

void TrussView::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.fillRect(rect(), palette().color(QPalette::Base));
  if (bars_.empty()) {
    painter.drawText(rect(), Qt::AlignCenter, QStringLiteral("Нет усилий для показа"));
    return;
  }
  const QTransform place = Placing();
  DrawMark(painter, place);
  for (const PictureBar& bar : bars_) {
    const double share = greatest_ > 0 ? std::abs(bar.Force) / greatest_ : 0;
    const double wide = thinnest + share * (thickest - thinnest);
    // The joints hide the ends of thin bars; rounded ones take several times as long to paint.
    QPen pen(bar.Force > 0   ? TensionColor(palette())
             : bar.Force < 0 ? CompressionColor(palette())
                             : QuietColor(palette()),
             wide, Qt::SolidLine,
             bar.Force != 0 && wide < 2 * jointRadius ? Qt::FlatCap : Qt::RoundCap);
    if (bar.Force == 0) {
      pen.setStyle(Qt::DashLine);
    }
    painter.setPen(pen);
    painter.drawLine(place.map(QPointF(bar.X1, bar.Y1)), place.map(QPointF(bar.X2, bar.Y2)));
  }
  painter.setPen(QPen(palette().color(QPalette::Text), 1));
  painter.setBrush(palette().color(QPalette::Base));
  for (const QPointF joint : joints_) {
    painter.drawEllipse(place.map(joint), jointRadius, jointRadius);
  }
  DrawLegend(painter);
}

void TrussView::DrawLegend(QPainter& painter) const {
  const QFontMetricsF metrics(font());
  double x = margin;
  const double y = height() - legendHeight / 2;
  const auto entry = [&](const QColor& color, const QString& text) {
    painter.setPen(QPen(color, 4, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(QPointF(x, y), QPointF(x + 22, y));
    painter.setPen(palette().color(QPalette::Text));
    painter.drawText(QPointF(x + 30, y + metrics.ascent() / 2 - 1), text);
    x += 30 + metrics.horizontalAdvance(text) + 22;
  };
  entry(TensionColor(palette()), QStringLiteral("растяжение"));
  entry(CompressionColor(palette()), QStringLiteral("сжатие"));
  painter.drawText(QPointF(x, y + metrics.ascent() / 2 - 1),
                   QStringLiteral("наибольшее усилие %1 т")
                       .arg(QLocale().toString(greatest_, 'f', forceDecimals)));
}

const PictureBar* TrussView::BarAt(QPointF point) const {
  const QTransform place = Placing();
  const PictureBar* nearest = nullptr;
  double distance = hintDistance;
  for (const PictureBar& bar : bars_) {
    const double away = DistanceToBar(point, place.map(QPointF(bar.X1, bar.Y1)),
                                      place.map(QPointF(bar.X2, bar.Y2)));
    if (away < distance) {
      distance = away;
      nearest = &bar;
    }
  }
  return nearest;
}

void TrussView::mousePressEvent(QMouseEvent* event) {
  const PictureBar* bar = BarAt(event->position());
  if (event->button() != Qt::LeftButton || bar == nullptr || !Picked) {
    QWidget::mousePressEvent(event);
    return;
  }
  Picked({bar->Group, bar->Number});
}

void TrussView::mouseMoveEvent(QMouseEvent* event) {
  setCursor(Picked && BarAt(event->position()) != nullptr ? Qt::PointingHandCursor
                                                          : Qt::ArrowCursor);
}

bool TrussView::event(QEvent* event) {
  if (event->type() != QEvent::ToolTip) {
    return QWidget::event(event);
  }
  const auto* help = static_cast<QHelpEvent*>(event);
  if (const PictureBar* bar = BarAt(help->pos())) {
    QToolTip::showText(help->globalPos(), BarHint(*bar), this);
  } else {
    QToolTip::hideText();
  }
  return true;
}

UseChart::UseChart(std::vector<GroupUse> use, QWidget* parent)
    : QWidget(parent), use_(std::move(use)) {
  setMinimumSize(300, static_cast<int>(use_.size()) * 16 + 26);
}

QSize UseChart::sizeHint() const {
  return {420, static_cast<int>(use_.size()) * 26 + 30};
}

void UseChart::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.fillRect(rect(), palette().color(QPalette::Base));
  const QFontMetricsF metrics(font());
  double names = 0;
  double greatest = 1.15;
  for (const GroupUse& group : use_) {
    names = std::max(names, metrics.horizontalAdvance(ToQt(GroupName(group.Group))));
    greatest = std::max(greatest, group.Value);
  }
  const double values = metrics.horizontalAdvance(QStringLiteral("0000,000"));
  const double left = names + 20;
  const double full = std::max(width() - left - values - 16, 40.0);
  const double row = (height() - 26.0) / static_cast<double>(std::max<std::size_t>(1, use_.size()));
  double y = 6;
  for (const GroupUse& group : use_) {
    const bool exceeded = group.Value > 1;
    const double middle = y + row / 2;
    painter.setPen(palette().color(QPalette::Text));
    painter.drawText(QRectF(8, y, names + 4, row), Qt::AlignVCenter | Qt::AlignLeft,
                     ToQt(GroupName(group.Group)));
    const double length = full * std::max(0.0, group.Value) / greatest;
    painter.setPen(Qt::NoPen);
    painter.setBrush(exceeded ? WarningColor(palette()) : PassedColor(palette()));
    painter.drawRoundedRect(QRectF(left, middle - 7, length, 14), 2, 2);
    painter.setPen(exceeded ? WarningColor(palette()) : palette().color(QPalette::Text));
    painter.drawText(QRectF(left + std::max(length, full / greatest) + 6, y, values, row),
                     Qt::AlignVCenter | Qt::AlignLeft,
                     QLocale().toString(group.Value, 'f', useDecimals));
    y += row;
  }
  const double limit = left + full / greatest;
  painter.setPen(QPen(palette().color(QPalette::Text), 1.5, Qt::DashLine));
  painter.drawLine(QPointF(limit, 2), QPointF(limit, height() - 20));
  painter.drawText(QRectF(limit - 60, height() - 20, 120, 18), Qt::AlignCenter,
                   QStringLiteral("предел 1"));
}

}  // namespace trelonit
