#pragma once

#include <QFont>
#include <QPainter>
#include <QPainterPath>
#include <QString>
#include <vector>

#include "opinion/Expression.h"
#include "platform/text/NumberText.h"

namespace trelonit {

/// A formula as it stands on paper: letters, fraction bars, brackets and radicals. Lengths in
/// pixels from the left end of its baseline, Y downward.
struct FormulaBox {
  struct Letters {
    QString Text;
    QFont Font;
    QPointF Place;  ///< the left end of their baseline
    QRectF Ink;     ///< what they cover
  };
  double Width = 0;
  double Ascent = 0;
  double Descent = 0;
  double LineWidth = 1;
  std::vector<Letters> Texts;
  std::vector<QLineF> FractionBars;
  /// Brackets and radicals.
  std::vector<QPainterPath> Strokes;
};

/// A symbol: its letter with the marks over it, and its index, which may be empty.
struct SymbolParts {
  QString Letter;
  QString Index;
  bool Slanted = false;  ///< Latin letters are, Greek ones stand upright
};
SymbolParts PartsOfSymbol(const QString& symbol);

/// Sets a formula. The first letter of a symbol is the symbol, the rest its index; a fraction needs
/// no brackets round its parts; numbers take the locale's decimal separator. A sign stands in front
/// of a term of a sum that is set by itself.
FormulaBox SetFormula(const Expression& formula, const QFont& font, const NumberLocale& locale,
                      const QString& sign = {});

void PaintFormula(QPainter& painter, const FormulaBox& box, QPointF baseline, const QColor& color);

}  // namespace trelonit
