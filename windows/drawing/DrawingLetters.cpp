#include "windows/drawing/DrawingLetters.h"

namespace trelonit {

namespace {

constexpr int fontPixels = 128;

QFont LettersFont() {
  QFont font;
  // The first is what the drawing format asks for, the second has its widths.
  font.setFamilies({QStringLiteral("Arial"), QStringLiteral("Liberation Sans"),
                    QStringLiteral("DejaVu Sans"), QStringLiteral("sans-serif")});
  font.setPixelSize(fontPixels);
  font.setHintingPreference(QFont::PreferNoHinting);
  return font;
}

/// The font may tell none, or one that its capitals do not have.
double HeightOfCapitals(const QFont& font) {
  QPainterPath capital;
  capital.addText(QPointF(0, 0), font, QStringLiteral("H"));
  const double height = -capital.boundingRect().top();
  return height > 0 ? height : fontPixels;
}

}  // namespace

DrawingLetters::DrawingLetters()
    : font_(LettersFont()), metrics_(font_), capitalHeight_(HeightOfCapitals(font_)) {}

const QPainterPath& DrawingLetters::Outline(const QString& text) {
  auto found = outlines_.find(text);
  if (found == outlines_.end()) {
    QPainterPath outline;
    outline.setFillRule(Qt::WindingFill);
    outline.addText(QPointF(0, 0), font_, text);
    found = outlines_.insert(text, outline);
  }
  return found.value();
}

}  // namespace trelonit
