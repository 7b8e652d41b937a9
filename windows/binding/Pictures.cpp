#include "windows/binding/Pictures.h"

#include "windows/binding/PicturePainter.h"

namespace trelonit {

namespace {

QString File(const QString& name) {
  return QStringLiteral(":/pictures/") + name + QStringLiteral(".svg");
}

/// The name of a picture in that of its file.
std::string NameIn(const QString& file) {
  return file.section(QLatin1Char('/'), -1).section(QLatin1Char('.'), 0, 0).toStdString();
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

QColor ByTheme(const QPalette& palette, const char* light, const char* dark) {
  return QColor(QLatin1String(IsDark(palette) ? dark : light));
}

/// A colour of a picture in the theme. Only a dark one has others than the picture itself.
QColor ByRole(const PictureColor& color, const QPalette& palette, bool enabled) {
  switch (color.Role) {
    case PictureRole::Ink:
      return palette.color(enabled ? QPalette::Active : QPalette::Disabled, QPalette::Text);
    case PictureRole::Load:
      return LoadColor(palette);
    case PictureRole::Section:
      return SteelColor(palette);
    case PictureRole::Quiet:
      return QuietColor(palette);
    case PictureRole::Warning:
      return WarningColor(palette);
    case PictureRole::Caution:
      return CautionColor(palette);
    case PictureRole::None:
    case PictureRole::Own:
      break;
  }
  return QColor::fromRgb(color.Rgb);
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
  const CompiledPicture* picture = FindPicture(NameIn(file));
  if (picture == nullptr) {
    return;
  }
  const QSizeF size =
      QSizeF(picture->Width, picture->Height).scaled(place.size(), Qt::KeepAspectRatio);
  PaintPicture(painter, QRectF(place.center() - QPointF(size.width() / 2, size.height() / 2), size),
               *picture,
               [&](const PictureColor& color) { return ByRole(color, palette, enabled); });
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

QColor SteelColor(const QPalette& palette) {
  return ByTheme(palette, "#9db4cc", "#4d6a88");
}

QColor AsideColor(const QPalette& palette) {
  return ByTheme(palette, "#5a5a5a", "#b4b4b4");
}

QColor QuietColor(const QPalette& palette) {
  return ByTheme(palette, "#808080", "#9a9a9a");
}

}  // namespace trelonit
