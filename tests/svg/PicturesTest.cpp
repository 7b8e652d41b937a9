// The compiled pictures are those of the files: held against another painter of SVG, pixel by
// pixel.

#include <QDir>
#include <QFile>
#include <QSvgRenderer>
#include <cmath>
#include <gtest/gtest.h>

#include "windows/binding/PictureIcon.h"
#include "windows/binding/PicturePainter.h"
#include "windows/binding/Pictures.h"

namespace trelonit::test {
namespace {

const QString sourceFolder = QStringLiteral(PICTURES_FOLDER);

QPalette LightTheme() {
  QPalette palette;
  palette.setColor(QPalette::Base, Qt::white);
  palette.setColor(QPalette::Text, QColor(QStringLiteral("#202428")));
  palette.setColor(QPalette::Disabled, QPalette::Text, QColor(QStringLiteral("#a0a4a8")));
  return palette;
}

QPalette DarkTheme() {
  QPalette palette;
  palette.setColor(QPalette::Base, QColor(QStringLiteral("#1b1e20")));
  palette.setColor(QPalette::Text, QColor(QStringLiteral("#fcfcfc")));
  return palette;
}

QImage BlankPaper(int side, const QPalette& palette) {
  QImage paper(side, side, QImage::Format_RGB32);
  paper.fill(palette.color(QPalette::Base));
  return paper;
}

/// The file in the colours of the theme, by the toolkit's own painter.
QImage Reference(const QString& name, int side, const QPalette& palette,
                 const std::vector<std::pair<const char*, QColor>>& colors) {
  QFile file(sourceFolder + QLatin1Char('/') + name + QStringLiteral(".svg"));
  if (!file.open(QIODevice::ReadOnly)) {
    return {};
  }
  QByteArray svg = file.readAll();
  for (const auto& [drawn, shown] : colors) {
    svg.replace(drawn, shown.name().toLatin1());
  }
  QSvgRenderer renderer(svg);
  QImage paper = BlankPaper(side, palette);
  QPainter painter(&paper);
  const QSizeF size = renderer.viewBoxF().size().scaled(side, side, Qt::KeepAspectRatio);
  renderer.render(&painter, QRectF((side - size.width()) / 2, (side - size.height()) / 2,
                                   size.width(), size.height()));
  return paper;
}

QImage Compiled(const QString& name, int side, const QPalette& palette, bool enabled = true) {
  QImage paper = BlankPaper(side, palette);
  QPainter painter(&paper);
  DrawPicture(painter, QRectF(0, 0, side, side), name, palette, enabled);
  return paper;
}

/// The greatest difference of a channel, and the mean one.
struct Difference {
  int Greatest = 0;
  double Mean = 0;
};

Difference Compare(const QImage& a, const QImage& b) {
  Difference difference;
  for (int y = 0; y < a.height(); ++y) {
    for (int x = 0; x < a.width(); ++x) {
      const QColor one = a.pixelColor(x, y);
      const QColor other = b.pixelColor(x, y);
      for (const int away :
           {one.red() - other.red(), one.green() - other.green(), one.blue() - other.blue()}) {
        difference.Greatest = std::max(difference.Greatest, std::abs(away));
        difference.Mean += std::abs(away) / 3.0 / (a.width() * a.height());
      }
    }
  }
  return difference;
}

bool HasLetters(const QString& name) {
  QFile file(sourceFolder + QLatin1Char('/') + name + QStringLiteral(".svg"));
  return file.open(QIODevice::ReadOnly) && file.readAll().contains("<text");
}

QStringList PictureNames() {
  QStringList names;
  for (const QString& file : QDir(sourceFolder).entryList({QStringLiteral("*.svg")})) {
    names.append(file.chopped(4));
  }
  return names;
}

void ExpectSamePixels(const QPalette& palette,
                      const std::vector<std::pair<const char*, QColor>>& colors) {
  const QStringList names = PictureNames();
  ASSERT_GT(names.size(), 50);
  for (const QString& name : names) {
    for (const int side : {24, 160}) {
      const QImage reference = Reference(name, side, palette, colors);
      const Difference difference = Compare(Compiled(name, side, palette), reference);
      // Letters are painted as outlines here and as glyphs there; the other painter rounds the
      // radius of a corner to whole percents.
      const bool letters = HasLetters(name);
      EXPECT_LE(difference.Mean, letters ? 1.5 : 0.2) << name.toStdString() << " at " << side;
      EXPECT_LE(difference.Greatest, letters ? 255 : 24) << name.toStdString() << " at " << side;
      EXPECT_GT(Compare(reference, BlankPaper(side, palette)).Greatest, 60) << name.toStdString();
    }
  }
}

TEST(CompiledPictures, LookLikeTheirFilesOnALightDesktop) {
  ExpectSamePixels(LightTheme(), {{"#000000", LightTheme().color(QPalette::Text)}});
}

TEST(CompiledPictures, LookLikeTheirFilesOnADarkDesktop) {
  const QPalette dark = DarkTheme();
  ExpectSamePixels(dark, {{"#000000", dark.color(QPalette::Text)},
                          {"#c04000", LoadColor(dark)},
                          {"#9db4cc", QColor(QStringLiteral("#4d6a88"))},
                          {"#808080", QuietColor(dark)},
                          {"#d00000", WarningColor(dark)},
                          {"#a85a00", CautionColor(dark)}});
}

TEST(CompiledPictures, ArePaleWhereTheirWidgetIsDisabled) {
  const QPalette light = LightTheme();
  const QString name = QStringLiteral("tool-save");
  const Difference difference = Compare(
      Compiled(name, 48, light, false),
      Reference(name, 48, light, {{"#000000", light.color(QPalette::Disabled, QPalette::Text)}}));
  EXPECT_LE(difference.Greatest, 24);
}

TEST(CompiledPictures, AreFoundByTheNameOfTheirFile) {
  for (const QString& name : PictureNames()) {
    const CompiledPicture* picture = FindPicture(name.toStdString());
    ASSERT_NE(picture, nullptr) << name.toStdString();
    EXPECT_EQ(std::string(picture->Name), name.toStdString());
  }
  EXPECT_EQ(FindPicture("nothing"), nullptr);
  EXPECT_EQ(FindPicture(""), nullptr);
  EXPECT_EQ(FindPicture("zzz"), nullptr);
}

TEST(CompiledPictures, ThatDoNotExistPaintNothing) {
  const QPalette light = LightTheme();
  EXPECT_EQ(Compiled(QStringLiteral("nothing"), 16, light), BlankPaper(16, light));
  EXPECT_EQ(Compiled(QString(), 16, light), BlankPaper(16, light));
}

TEST(PictureIcons, ArePaintedAtEverySize) {
  const QIcon icon = PictureIcon(QStringLiteral("trelonit"));
  for (const int side : {16, 32, 128}) {
    const QImage picture = icon.pixmap(side, side).toImage();
    EXPECT_EQ(picture.width(), side);
    EXPECT_EQ(picture.pixelColor(side / 2, side / 12).name().toStdString(), "#1d4f78");
  }
}

}  // namespace
}  // namespace trelonit::test
