#pragma once

#include <QFont>
#include <QFontMetricsF>
#include <QHash>
#include <QPainterPath>

namespace trelonit {

/// The letters of drawings: a plain upright font with Cyrillic, which the text style of a drawing
/// makes narrow and oblique. All lengths are pixels of the font, which is large, so that no size is
/// rounded; nothing depends on the resolution of a device. Needs an application with fonts.
class DrawingLetters {
 public:
  DrawingLetters();

  const QFont& Font() const { return font_; }
  double CapitalHeight() const { return capitalHeight_; }
  /// From the start to where a next letter would stand.
  double Width(const QString& text) const { return metrics_.horizontalAdvance(text); }
  /// The outlines of a text whose baseline begins at (0, 0), Y downwards.
  const QPainterPath& Outline(const QString& text);

 private:
  QFont font_;
  QFontMetricsF metrics_;
  double capitalHeight_;
  QHash<QString, QPainterPath> outlines_;
};

}  // namespace trelonit
