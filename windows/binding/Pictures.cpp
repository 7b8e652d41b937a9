#include "windows/binding/Pictures.h"

#include <QFile>
#include <QSvgRenderer>

namespace trelonit {

namespace {

QString File(const QString& name) {
  return QStringLiteral(":/pictures/") + name + QStringLiteral(".svg");
}

QString BitmapName(Integer number) {
  switch (number) {
    case 205:
      return QStringLiteral("pair-2");
    case 206:
      return QStringLiteral("pair-3");
    case 207:
      return QStringLiteral("pair-4");
    case 208:
      return QStringLiteral("pair-8");
    case 309:
      return QStringLiteral("preview-nodal");
    case 310:
      return QStringLiteral("preview-distributed");
    default:
      return QStringLiteral("scheme-%1").arg(number - 100);
  }
}

/// The bytes of the drawing in the colours of the theme.
QByteArray Themed(const QString& file, const QPalette& palette, bool enabled) {
  QFile source(file);
  if (!source.open(QIODevice::ReadOnly)) {
    return {};
  }
  QByteArray svg = source.readAll();
  const auto group = enabled ? QPalette::Active : QPalette::Disabled;
  svg.replace("#000000", palette.color(group, QPalette::Text).name().toLatin1());
  if (IsDark(palette)) {
    svg.replace("#c04000", LoadColor(palette).name().toLatin1());
    svg.replace("#9db4cc", "#4d6a88");
    svg.replace("#808080", QuietColor(palette).name().toLatin1());
    svg.replace("#d00000", WarningColor(palette).name().toLatin1());
    svg.replace("#a85a00", CautionColor(palette).name().toLatin1());
  }
  return svg;
}

QColor ByTheme(const QPalette& palette, const char* light, const char* dark) {
  return QColor(QLatin1String(IsDark(palette) ? dark : light));
}

}  // namespace

QString PictureFile(const Picture& picture) {
  switch (picture.From) {
    case Picture::Source::None:
      return {};
    case Picture::Source::Bitmap:
      return File(BitmapName(picture.Number));
    case Picture::Source::Icon:
      return File(picture.Number == 102 ? QStringLiteral("load-nodal")
                                        : QStringLiteral("load-distributed"));
    case Picture::Source::SectionLayout:
      return File(QStringLiteral("layout-%1").arg(picture.Number));
  }
  return {};
}

QString SchemePictureFile(Long scheme) {
  return File(QStringLiteral("scheme-%1").arg(scheme));
}

void DrawPicture(QPainter& painter, const QRectF& place, const QString& file,
                 const QPalette& palette, bool enabled) {
  if (file.isEmpty()) {
    return;
  }
  QSvgRenderer drawing(Themed(file, palette, enabled));
  if (!drawing.isValid()) {
    return;
  }
  const QSizeF size = drawing.viewBoxF().size().scaled(place.size(), Qt::KeepAspectRatio);
  drawing.render(&painter,
                 QRectF(place.center() - QPointF(size.width() / 2, size.height() / 2), size));
}

bool IsDark(const QPalette& palette) {
  return palette.color(QPalette::Base).lightness() < palette.color(QPalette::Text).lightness();
}

QColor WarningColor(const QPalette& palette) {
  return ByTheme(palette, "#d00000", "#ff6b6b");
}

QColor CautionColor(const QPalette& palette) {
  return ByTheme(palette, "#a85a00", "#ffb74d");
}

QColor MarkColor(const QPalette& palette) {
  return ByTheme(palette, "#ffc107", "#b8860b");
}

QColor TensionColor(const QPalette& palette) {
  return ByTheme(palette, "#1565c0", "#64b5f6");
}

QColor CompressionColor(const QPalette& palette) {
  return ByTheme(palette, "#c62828", "#ff8a80");
}

QColor LoadColor(const QPalette& palette) {
  return ByTheme(palette, "#c04000", "#ff8a4c");
}

QColor PassedColor(const QPalette& palette) {
  return ByTheme(palette, "#2e7d32", "#66bb6a");
}

QColor AsideColor(const QPalette& palette) {
  return ByTheme(palette, "#5a5a5a", "#b4b4b4");
}

QColor QuietColor(const QPalette& palette) {
  return ByTheme(palette, "#808080", "#9a9a9a");
}

}  // namespace trelonit
