#include "windows/main/LoadPictureView.h"

#include <QMouseEvent>
#include <QPainter>

#include "windows/binding/Binding.h"
#include "windows/binding/Pictures.h"

namespace trelonit {

LoadPictureView::LoadPictureView(LoadEditor& editor, QWidget* parent)
    : QWidget(parent), editor_(editor) {
  setMinimumHeight(120);
  setObjectName(QStringLiteral("LoadPicture"));
  setAccessibleName(QStringLiteral("Вся ферма с нагрузками"));
}

LoadPicture LoadPictureView::Picture() const {
  const QFontMetricsF metrics(font());
  return editor_.Draw({.Width = static_cast<double>(width()),
                       .Height = static_cast<double>(height()),
                       .LineHeight = metrics.height(),
                       .WidthOf = [metrics](const std::string& text) {
                         return metrics.horizontalAdvance(ToQt(text));
                       }});
}

QColor LoadPictureView::ColorOf(LoadInk ink) const {
  switch (ink) {
    case LoadInk::Load:
      return LoadColor(palette());
    case LoadInk::OwnWeight:
      return QuietColor(palette());
    case LoadInk::Chosen:
      return WarningColor(palette());
    case LoadInk::Bar:
    case LoadInk::Support:
      break;
  }
  return palette().color(QPalette::Text);
}

void LoadPictureView::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.fillRect(rect(), palette().color(QPalette::Base));
  const LoadPicture picture = Picture();
  if (picture.Scale == 0) {
    painter.setPen(AsideColor(palette()));
    painter.drawText(rect(), Qt::AlignCenter, QStringLiteral("Размеры не дают фермы"));
    return;
  }
  for (const LoadBand& band : picture.Bands) {
    const QRectF place(band.X, band.Y, band.Width, band.Height);
    QColor fill = ColorOf(band.Ink);
    painter.setPen(QPen(fill, 1));
    fill.setAlphaF(0.3F);
    painter.fillRect(place, fill);
    painter.drawRect(place);
  }
  for (const LoadLine& line : picture.Lines) {
    const double width = line.Ink == LoadInk::Chosen ? 3 : line.Ink == LoadInk::Load ? 1.6 : 1.2;
    painter.setPen(QPen(ColorOf(line.Ink), width));
    painter.drawLine(QPointF(line.X1, line.Y1), QPointF(line.X2, line.Y2));
  }
  const QFontMetricsF metrics(font());
  for (const LoadText& text : picture.Texts) {
    const QString shown = ToQt(text.Text);
    const double half = metrics.horizontalAdvance(shown) / 2;
    painter.setPen(text.Ink == LoadInk::OwnWeight ? AsideColor(palette())
                                                  : palette().color(QPalette::Text));
    painter.save();
    painter.translate(text.X, text.Y);
    if (text.Upright) {
      painter.rotate(-90);
    }
    painter.drawText(QPointF(-half, (metrics.ascent() - metrics.descent()) / 2), shown);
    painter.restore();
  }
}

void LoadPictureView::mousePressEvent(QMouseEvent* event) {
  if (const auto spot = SpotAt(Picture(), event->position().x(), event->position().y())) {
    editor_.Pick(*spot);
  }
}

}  // namespace trelonit
