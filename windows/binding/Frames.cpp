#include "windows/binding/Frames.h"

#include <QPixmap>
#include <QPixmapCache>
#include <QProxyStyle>
#include <QStyle>
#include <QStyleOption>
#include <QStylePainter>
#include <algorithm>

namespace trelonit {

namespace {

/// The toolkit shares out what has 96 rows, the two edges of an outline counted together.
constexpr int rowsAtOnce = 90;

/// A frame as the style paints it, of the least size in which every part of it occurs: four
/// corners, and between them edges and a middle that look the same all along.
struct FrameSample {
  QPixmap Picture;
  int Corner = 0;  ///< the side of a corner
  QColor Middle;
};

/// How a sample is divided.
struct Division {
  int Corner = 0;
  QSize Middle;  ///< between the corners
};

QString NameOf(const QStyle& style) {
  const auto* proxy = qobject_cast<const QProxyStyle*>(&style);
  return proxy != nullptr ? proxy->baseStyle()->name() : style.name();
}

/// Other styles leave their frames to the system and are quick, or have edges that vary.
bool HasUniformFrames(const QStylePainter& painter) {
  return NameOf(*painter.style()) == QLatin1String("fusion") &&
         painter.device()->devicePixelRatioF() == 1;
}

template <class Option>
QPixmap PaintSample(const QStylePainter& painter, QStyle::PrimitiveElement frame, Option option,
                    const Division& division, const QWidget* widget) {
  option.rect = QRect(QPoint(), division.Middle + 2 * QSize(division.Corner, division.Corner));
  QPixmap picture(option.rect.size());
  picture.fill(Qt::transparent);
  QPainter sample(&picture);
  sample.setRenderHints(painter.renderHints());
  painter.style()->drawPrimitive(frame, &option, &sample, widget);
  return picture;
}

template <class Option>
FrameSample SampleOf(const QStylePainter& painter, QStyle::PrimitiveElement frame,
                     const Option& option, const Division& division, const QWidget* widget) {
  FrameSample sample{.Corner = division.Corner};
  const QString key = QStringLiteral("frame %1 %2 %3 %4")
                          .arg(frame)
                          .arg(sample.Corner)
                          .arg(option.state.toInt())
                          .arg(option.palette.cacheKey());
  if (!QPixmapCache::find(key, &sample.Picture)) {
    sample.Picture = PaintSample(painter, frame, option, division, widget);
    QPixmapCache::insert(key, sample.Picture);
  }
  sample.Middle = sample.Picture.toImage().pixelColor(sample.Picture.rect().center());
  return sample;
}

/// Fills the target with copies of a part of the sample, side by side.
void Repeat(QPainter& painter, const QRect& target, const QPixmap& picture, const QRect& part) {
  for (int y = target.top(); y <= target.bottom(); y += part.height()) {
    for (int x = target.left(); x <= target.right(); x += part.width()) {
      const QSize left(target.right() + 1 - x, target.bottom() + 1 - y);
      painter.drawPixmap(QPoint(x, y), picture, QRect(part.topLeft(), part.size().boundedTo(left)));
    }
  }
}

void FillMiddle(QPainter& painter, const QRect& middle, const QColor& color) {
  for (int y = middle.top(); y <= middle.bottom(); y += rowsAtOnce) {
    const int rows = std::min(rowsAtOnce, middle.bottom() + 1 - y);
    painter.fillRect(QRect(middle.left(), y, middle.width(), rows), color);
  }
}

/// The bounds of the three parts of a frame along one direction.
struct Cuts {
  int Begin = 0;
  int First = 0;
  int Second = 0;
  int End = 0;
};

Cuts CutsOf(int begin, int length, int corner) {
  return {begin, begin + corner, begin + length - corner, begin + length};
}

void DrawSample(QPainter& painter, const QRect& target, const FrameSample& sample) {
  const Cuts x = CutsOf(target.left(), target.width(), sample.Corner);
  const Cuts y = CutsOf(target.top(), target.height(), sample.Corner);
  const Cuts u = CutsOf(0, sample.Picture.width(), sample.Corner);
  const Cuts v = CutsOf(0, sample.Picture.height(), sample.Corner);
  const auto between = [](int left, int top, int right, int bottom) {
    return QRect(QPoint(left, top), QSize(right - left, bottom - top));
  };
  const auto row = [&](int top, int bottom, int from, int to) {
    Repeat(painter, between(x.Begin, top, x.First, bottom), sample.Picture,
           between(u.Begin, from, u.First, to));
    Repeat(painter, between(x.Second, top, x.End, bottom), sample.Picture,
           between(u.Second, from, u.End, to));
  };
  row(y.Begin, y.First, v.Begin, v.First);
  row(y.First, y.Second, v.First, v.Second);
  row(y.Second, y.End, v.Second, v.End);
  Repeat(painter, between(x.First, y.Begin, x.Second, y.First), sample.Picture,
         between(u.First, v.Begin, u.Second, v.First));
  Repeat(painter, between(x.First, y.Second, x.Second, y.End), sample.Picture,
         between(u.First, v.Second, u.Second, v.End));
  FillMiddle(painter, between(x.First, y.First, x.Second, y.Second), sample.Middle);
}

template <class Option>
void DrawFrame(QStylePainter& painter, QStyle::PrimitiveElement frame, const Option& option,
               const Division& division, const QWidget* widget) {
  const int least = 2 * division.Corner;
  if (option.rect.width() < least || option.rect.height() < least) {
    painter.drawPrimitive(frame, option);
  } else {
    DrawSample(painter, option.rect, SampleOf(painter, frame, option, division, widget));
  }
}

}  // namespace

void Group::paintEvent(QPaintEvent* event) {
  QStylePainter painter(this);
  // Without a title the frame begins higher.
  if (title().isEmpty() || !HasUniformFrames(painter)) {
    painter.end();
    QGroupBox::paintEvent(event);
    return;
  }
  QStyleOptionGroupBox option;
  initStyleOption(&option);
  QStyleOptionFrame frame;
  frame.QStyleOption::operator=(option);
  frame.features = option.features;
  frame.lineWidth = option.lineWidth;
  frame.midLineWidth = option.midLineWidth;
  frame.rect =
      style()->subControlRect(QStyle::CC_GroupBox, &option, QStyle::SC_GroupBoxFrame, this);
  // It begins below the title, or the mark beside it.
  const int head =
      std::max(fontMetrics().height(), style()->pixelMetric(QStyle::PM_ExclusiveIndicatorHeight));
  DrawFrame(painter, QStyle::PE_FrameGroupBox, frame, {.Corner = head + 16, .Middle = {240, 40}},
            this);
  option.subControls &= ~QStyle::SC_GroupBoxFrame;
  painter.drawComplexControl(QStyle::CC_GroupBox, option);
}

void Tabs::paintEvent(QPaintEvent* event) {
  QStylePainter painter(this);
  if (documentMode() || !HasUniformFrames(painter)) {
    painter.end();
    QTabWidget::paintEvent(event);
    return;
  }
  QStyleOptionTabWidgetFrame option;
  initStyleOption(&option);
  option.rect = style()->subElementRect(QStyle::SE_TabWidgetTabPane, &option, this);
  DrawFrame(painter, QStyle::PE_FrameTabWidget, option, {.Corner = 6, .Middle = {240, 32}}, this);
}

}  // namespace trelonit
