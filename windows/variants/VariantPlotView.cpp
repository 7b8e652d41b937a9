#include "windows/variants/VariantPlotView.h"

#include <QBuffer>
#include <QHelpEvent>
#include <QImage>
#include <QMouseEvent>
#include <QPainter>
#include <QSet>
#include <QToolTip>
#include <algorithm>
#include <cmath>

#include "platform/errors/RuntimeError.h"
#include "windows/binding/Binding.h"
#include "windows/binding/Pictures.h"

namespace trelonit {

namespace {

constexpr double leftMargin = 70;
constexpr double rightMargin = 120;
constexpr double topMargin = 30;
constexpr double bottomMargin = 44;
constexpr double pointRadius = 3;
constexpr double frontRadius = 6;
constexpr double chosenRadius = 8;
constexpr double reach = 9;

/// The same colours, lighter where the ground is dark.
QColor InkOf(std::size_t kind, const QPalette& palette) {
  constexpr int lighter = 135;
  const QColor ink(QLatin1String(PlotColour(kind)));
  return IsDark(palette) ? ink.lighter(lighter) : ink;
}

QPalette PaperPalette() {
  QPalette paper;
  paper.setColor(QPalette::Base, Qt::white);
  paper.setColor(QPalette::Text, Qt::black);
  return paper;
}

}  // namespace

class VariantPlotView::Painting {
 public:
  Painting(const VariantPlotView& view, QSizeF size, const QPalette& palette)
      : view_(view), size_(size), palette_(palette) {}

  QPointF Place(const PlotPoint& point) const {
    return {X(view_.across_.Share(point.Across)), Y(view_.up_.Share(point.Mass))};
  }

  void Draw(QPainter& painter) const {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillRect(QRectF({0, 0}, size_), palette_.color(QPalette::Base));
    painter.setPen(palette_.color(QPalette::Text));
    if (view_.points_.empty()) {
      painter.drawText(QRectF({0, 0}, size_), Qt::AlignCenter,
                       view_.form_.List().Held().empty()
                           ? QStringLiteral("Здесь появятся варианты, которые годятся")
                           : QStringLiteral("Ни один вариант не годится"));
      return;
    }
    DrawGrid(painter);
    DrawPoints(painter);
    painter.setPen(QPen(palette_.color(QPalette::Text), 1.5));
    painter.setBrush(Qt::NoBrush);
    for (const PlotPoint& point : view_.front_) {
      painter.drawEllipse(Place(point), frontRadius, frontRadius);
    }
    DrawLegend(painter);
  }

 private:
  double X(double share) const {
    return leftMargin + share * (size_.width() - leftMargin - rightMargin);
  }
  double Y(double share) const {
    return size_.height() - bottomMargin - share * (size_.height() - topMargin - bottomMargin);
  }
  QString NumberOf(const PlotAxis& axis, int step) const {
    return ToQt(FormatShown(axis.At(step), axis.Decimals(), view_.form_.Locale()));
  }

  void DrawGrid(QPainter& painter) const {
    QColor grid = palette_.color(QPalette::Text);
    constexpr int faint = 45;
    grid.setAlpha(faint);
    const QColor words = AsideColor(palette_);
    const PlotAxis& across = view_.across_;
    constexpr double wide = 100;
    constexpr double high = 20;
    for (int step = 0; step <= across.Steps; ++step) {
      const double x = X(static_cast<double>(step) / across.Steps);
      painter.setPen(grid);
      painter.drawLine(QPointF(x, Y(0)), QPointF(x, Y(1)));
      painter.setPen(words);
      painter.drawText(QRectF(x - wide / 2, Y(0) + 6, wide, high), Qt::AlignHCenter | Qt::AlignTop,
                       NumberOf(across, step));
    }
    const PlotAxis& up = view_.up_;
    for (int step = 0; step <= up.Steps; ++step) {
      const double y = Y(static_cast<double>(step) / up.Steps);
      painter.setPen(grid);
      painter.drawLine(QPointF(X(0), y), QPointF(X(1), y));
      painter.setPen(words);
      painter.drawText(QRectF(0, y - high / 2, leftMargin - 6, high),
                       Qt::AlignRight | Qt::AlignVCenter, NumberOf(up, step));
    }
    painter.setPen(palette_.color(QPalette::Text));
    painter.drawText(QRectF(X(0), size_.height() - high - 2, X(1) - X(0), high), Qt::AlignCenter,
                     ToQt(view_.labels_.Across));
    painter.drawText(QRectF(4, 4, wide + leftMargin, high), Qt::AlignLeft | Qt::AlignVCenter,
                     QStringLiteral("Масса, т"));
  }

  void DrawPoints(QPainter& painter) const {
    painter.setPen(Qt::NoPen);
    // Points that would cover each other are painted once.
    QSet<qint64> taken;
    for (const PlotPoint& point : view_.points_) {
      const QPointF place = Place(point);
      const std::size_t kind = view_.kinds_.at(point.Kind);
      constexpr qint64 most = 100'000;
      const qint64 cell =
          (std::llround(place.x() * 2) * most + std::llround(place.y() * 2)) * most +
          static_cast<qint64>(kind);
      if (!taken.contains(cell)) {
        taken.insert(cell);
        painter.setBrush(InkOf(kind, palette_));
        painter.drawEllipse(place, pointRadius, pointRadius);
      }
    }
  }

  void DrawLegend(QPainter& painter) const {
    constexpr double spacing = 20;
    const double x = size_.width() - rightMargin + 16;
    double y = topMargin;
    const auto words = [&](double left, const QString& text) {
      painter.setPen(palette_.color(QPalette::Text));
      painter.drawText(QRectF(left, y - spacing / 2, size_.width() - left, spacing),
                       Qt::AlignLeft | Qt::AlignVCenter, text);
    };
    words(x - 6, ToQt(view_.labels_.Kind));
    for (const auto& [kind, place] : view_.kinds_) {
      y += spacing;
      painter.setPen(Qt::NoPen);
      painter.setBrush(InkOf(place, palette_));
      painter.drawEllipse(QPointF(x, y), 4, 4);
      words(x + 12, QString::number(kind));
    }
    if (!view_.front_.empty()) {
      y += spacing;
      painter.setPen(QPen(palette_.color(QPalette::Text), 1.5));
      painter.setBrush(Qt::NoBrush);
      painter.drawEllipse(QPointF(x, y), frontRadius, frontRadius);
      words(x + 12, QStringLiteral("фронт"));
    }
  }

  const VariantPlotView& view_;
  QSizeF size_;
  const QPalette& palette_;
};

VariantPlotView::VariantPlotView(frmVariants& form, QWidget* parent)
    : QWidget(parent), form_(form) {
  setObjectName(QStringLiteral("VariantPlot"));
  setAccessibleName(QStringLiteral("График вариантов"));
  setMinimumSize(360, 160);
  Refresh();
}

void VariantPlotView::Refresh() {
  points_ = form_.Points();
  front_ = form_.Front();
  labels_ = form_.Labels();
  kinds_.clear();
  for (const PlotPoint& point : points_) {
    kinds_[point.Kind] = 0;
  }
  std::size_t place = 0;
  for (auto& kind : kinds_) {
    kind.second = place++;
  }
  const auto axis = [this](double PlotPoint::*value) {
    const auto [least, greatest] = std::minmax_element(
        points_.begin(), points_.end(),
        [value](const PlotPoint& a, const PlotPoint& b) { return a.*value < b.*value; });
    return points_.empty() ? PlotAxis(0, 1) : PlotAxis((*least).*value, (*greatest).*value);
  };
  across_ = axis(&PlotPoint::Across);
  up_ = axis(&PlotPoint::Mass);
  // One of the front may lie beyond those that are held.
  std::erase_if(front_, [this](const PlotPoint& point) {
    const auto outside = [](double share) { return share < 0 || share > 1; };
    return outside(across_.Share(point.Across)) || outside(up_.Share(point.Mass));
  });
  painted_ = {};
  ShowChosen();
}

void VariantPlotView::ShowChosen() {
  setAccessibleDescription(ToQt(form_.lblChosen.Caption()));
  update();
}

std::optional<QPointF> VariantPlotView::PlaceOf(std::uint64_t number) const {
  // In the order of their numbers.
  const auto found =
      std::lower_bound(points_.begin(), points_.end(), number,
                       [](const PlotPoint& point, std::uint64_t n) { return point.Number < n; });
  if (found == points_.end() || found->Number != number) {
    return std::nullopt;
  }
  return Painting(*this, size(), palette()).Place(*found);
}

void VariantPlotView::paintEvent(QPaintEvent*) {
  const double ratio = devicePixelRatioF();
  if (painted_.size() != size() * ratio) {
    painted_ = QPixmap(size() * ratio);
    painted_.setDevicePixelRatio(ratio);
    QPainter layer(&painted_);
    layer.setFont(font());
    Painting(*this, size(), palette()).Draw(layer);
  }
  QPainter painter(this);
  painter.drawPixmap(0, 0, painted_);
  if (const std::optional<std::uint64_t> chosen = form_.Chosen()) {
    if (const std::optional<QPointF> place = PlaceOf(*chosen)) {
      painter.setRenderHint(QPainter::Antialiasing);
      painter.setBrush(Qt::NoBrush);
      painter.setPen(QPen(MarkColor(palette()), 4));
      painter.drawEllipse(*place, chosenRadius, chosenRadius);
      painter.setPen(QPen(palette().color(QPalette::Text), 1));
      painter.drawEllipse(*place, chosenRadius + 2, chosenRadius + 2);
    }
  }
}

const PlotPoint* VariantPlotView::PointAt(QPointF place) const {
  const Painting painting(*this, size(), palette());
  const PlotPoint* nearest = nullptr;
  double least = reach;
  for (const PlotPoint& point : points_) {
    const QPointF away = painting.Place(point) - place;
    if (const double distance = std::hypot(away.x(), away.y()); distance < least) {
      least = distance;
      nearest = &point;
    }
  }
  return nearest;
}

QString VariantPlotView::HintOf(const PlotPoint& point) const {
  const VariantRow* row = form_.List().Find(point.Number);
  return row == nullptr ? QString() : ToQt(form_.Describe(*row));
}

void VariantPlotView::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) {
    return;
  }
  if (const PlotPoint* point = PointAt(event->position())) {
    form_.Choose(point->Number);
  }
}

bool VariantPlotView::event(QEvent* event) {
  if (event->type() == QEvent::ToolTip) {
    const auto* help = static_cast<QHelpEvent*>(event);
    const PlotPoint* point = PointAt(help->pos());
    if (point == nullptr) {
      QToolTip::hideText();
      event->ignore();
    } else {
      QToolTip::showText(help->globalPos(), HintOf(*point), this);
    }
    return true;
  }
  return QWidget::event(event);
}

void VariantPlotView::changeEvent(QEvent* event) {
  if (event->type() == QEvent::PaletteChange || event->type() == QEvent::FontChange) {
    painted_ = {};
  }
  QWidget::changeEvent(event);
}

std::string VariantPlotView::Png() const {
  constexpr QSize size(900, 560);
  constexpr int scale = 2;
  QImage image(size * scale, QImage::Format_RGB32);
  image.setDevicePixelRatio(scale);
  {
    QPainter painter(&image);
    painter.setFont(font());
    const QPalette paper = PaperPalette();
    Painting(*this, size, paper).Draw(painter);
  }
  QBuffer bytes;
  bytes.open(QIODevice::WriteOnly);
  if (!image.save(&bytes, "PNG")) {
    throw RuntimeError(ErrorNumber::DeviceIoError);
  }
  return bytes.data().toStdString();
}

}  // namespace trelonit
