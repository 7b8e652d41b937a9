#include "windows/results/FormulaBox.h"

#include <QFontMetricsF>
#include <algorithm>

#include "windows/binding/Binding.h"

namespace trelonit {

namespace {

using Kind = Expression::Kind;

// Sizes of letters beside those of the formula, and lengths as shares of the width of a figure.
constexpr double indexSize = 0.72;
constexpr double innerFractionSize = 0.85;
constexpr double indexDrop = 0.35;
constexpr double productGap = 0.2;
constexpr double sumGap = 0.35;
constexpr double fractionGap = 0.28;
constexpr double fractionMargin = 0.2;
constexpr double bracketWidth = 0.45;
constexpr double bracketGap = 0.12;
constexpr double radicalWidth = 0.95;
constexpr double radicalGap = 0.25;
constexpr double lineWidth = 0.1;

QFont Scaled(QFont font, double share) {
  if (font.pointSizeF() > 0) {
    font.setPointSizeF(font.pointSizeF() * share);
  } else {
    font.setPixelSize(std::max(1, qRound(font.pixelSize() * share)));
  }
  return font;
}

/// Puts a box to the right of another one, on the same baseline or lower.
void Append(FormulaBox& box, const FormulaBox& next, double gap = 0, double drop = 0) {
  const QPointF place(box.Width + gap, drop);
  for (FormulaBox::Letters letters : next.Texts) {
    letters.Place += place;
    letters.Ink.translate(place);
    box.Texts.push_back(std::move(letters));
  }
  for (const QLineF& bar : next.FractionBars) {
    box.FractionBars.push_back(bar.translated(place));
  }
  for (const QPainterPath& stroke : next.Strokes) {
    box.Strokes.push_back(stroke.translated(place));
  }
  box.Width += gap + next.Width;
  box.Ascent = std::max(box.Ascent, next.Ascent - drop);
  box.Descent = std::max(box.Descent, next.Descent + drop);
}

/// The brackets round a part of a fraction or under a root say nothing.
const Expression& WithoutBrackets(const Expression& expression) {
  return expression.Is == Kind::Brackets ? WithoutBrackets(expression.Parts[0]) : expression;
}

/// Sets formulas in one size of letters.
class Typesetter {
 public:
  Typesetter(const QFont& font, const NumberLocale& locale, bool inFraction = false)
      : font_(font),
        metrics_(font),
        locale_(locale),
        inFraction_(inFraction),
        unit_(metrics_.horizontalAdvance(QLatin1Char('0'))),
        axis_(metrics_.xHeight() / 2) {}

  FormulaBox Set(const Expression& expression) const {
    switch (expression.Is) {
      case Kind::Number:
        return Text(ToQt(expression.Text).replace(QLatin1Char('.'), ToQt(locale_.DecimalSeparator)),
                    font_);
      case Kind::Symbol:
        return Symbol(ToQt(expression.Text));
      case Kind::Negation:
        return Negated(expression.Parts[0]);
      case Kind::Sum:
        return Operation(expression, QStringLiteral("+"), sumGap);
      case Kind::Difference:
        return Operation(expression, QStringLiteral("−"), sumGap);
      case Kind::Product:
        return Operation(expression, QStringLiteral("·"), productGap);
      case Kind::Quotient:
        return Fraction(expression);
      case Kind::Root:
        return Root(Set(WithoutBrackets(expression.Parts[0])));
      case Kind::Brackets:
        return Brackets(Set(expression.Parts[0]));
    }
    return {};
  }

  FormulaBox Term(const QString& sign, const Expression& term) const {
    if (sign.isEmpty()) {
      return Set(term);
    }
    FormulaBox box = New();
    Append(box, Text(sign, font_), sumGap * unit_);
    Append(box, Set(term), sumGap * unit_);
    return box;
  }

 private:
  FormulaBox New() const { return {.LineWidth = std::max(1.0, lineWidth * unit_)}; }

  FormulaBox Text(const QString& text, const QFont& font) const {
    const QFontMetricsF metrics(font);
    const QRectF ink = metrics.tightBoundingRect(text);
    FormulaBox box = New();
    box.Width = metrics.horizontalAdvance(text);
    box.Ascent = std::max(0.0, -ink.top());
    box.Descent = std::max(0.0, ink.bottom());
    box.Texts.push_back({text, font, {}, ink});
    return box;
  }

  /// A sign stands nearer to what it turns round than one between two terms.
  FormulaBox Negated(const Expression& term) const {
    FormulaBox box = Text(QStringLiteral("−"), font_);
    Append(box, Set(term), productGap * unit_);
    return box;
  }

  FormulaBox Symbol(const QString& name) const {
    const SymbolParts parts = PartsOfSymbol(name);
    QFont letterFont = font_;
    letterFont.setItalic(parts.Slanted);
    FormulaBox box = Text(parts.Letter, letterFont);
    if (!parts.Index.isEmpty()) {
      Append(box, Text(parts.Index, Scaled(font_, indexSize)), 0, indexDrop * unit_);
    }
    return box;
  }

  FormulaBox Operation(const Expression& expression, const QString& sign, double gap) const {
    FormulaBox box = Set(expression.Parts[0]);
    Append(box, Text(sign, font_), gap * unit_);
    Append(box, Set(expression.Parts[1]), gap * unit_);
    return box;
  }

  FormulaBox Fraction(const Expression& expression) const {
    const Typesetter inner(inFraction_ ? Scaled(font_, innerFractionSize) : font_, locale_, true);
    const FormulaBox above = inner.Set(WithoutBrackets(expression.Parts[0]));
    const FormulaBox below = inner.Set(WithoutBrackets(expression.Parts[1]));
    const double margin = fractionMargin * unit_;
    const double width = std::max(above.Width, below.Width) + 2 * margin;
    const double gap = fractionGap * unit_ + New().LineWidth / 2;
    const auto centred = [&](const FormulaBox& part, double drop) {
      FormulaBox row = New();
      Append(row, part, (width - part.Width) / 2, drop);
      row.Width = 0;
      return row;
    };
    FormulaBox box = New();
    Append(box, centred(above, -axis_ - gap - above.Descent));
    Append(box, centred(below, -axis_ + gap + below.Ascent));
    box.FractionBars.emplace_back(margin / 2, -axis_, width - margin / 2, -axis_);
    box.Width = width;
    return box;
  }

  FormulaBox Root(const FormulaBox& inner) const {
    const double roof = -inner.Ascent - radicalGap * unit_;
    const double foot = inner.Descent + radicalGap * unit_ / 2;
    const double width = radicalWidth * unit_;
    FormulaBox box = New();
    box.Width = width;
    Append(box, inner, bracketGap * unit_);
    box.Width += bracketGap * unit_;
    QPainterPath sign(QPointF(0.05 * width, foot - (foot - roof) * 0.42));
    sign.lineTo(0.25 * width, foot - (foot - roof) * 0.5);
    sign.lineTo(0.58 * width, foot);
    sign.lineTo(width, roof);
    sign.lineTo(box.Width, roof);
    box.Strokes.push_back(sign);
    box.Ascent = -roof + box.LineWidth;
    box.Descent = foot + box.LineWidth;
    return box;
  }

  FormulaBox Brackets(const FormulaBox& inner) const {
    const double over = bracketGap * unit_;
    const double top = -std::max(inner.Ascent, metrics_.capHeight()) - over;
    const double bottom = std::max(inner.Descent, 0.0) + 2 * over;
    const double width = bracketWidth * unit_;
    FormulaBox box = New();
    box.Width = width;
    Append(box, inner, over);
    box.Width += over + width;
    const auto bracket = [&](double from, double to) {
      QPainterPath path(QPointF(from, top));
      path.quadTo(QPointF(to, top + (bottom - top) * 0.22), QPointF(to, (top + bottom) / 2));
      path.quadTo(QPointF(to, bottom - (bottom - top) * 0.22), QPointF(from, bottom));
      box.Strokes.push_back(path);
    };
    bracket(width, width * 0.25);
    bracket(box.Width - width, box.Width - width * 0.25);
    box.Ascent = -top + box.LineWidth;
    box.Descent = bottom + box.LineWidth;
    return box;
  }

  QFont font_;
  QFontMetricsF metrics_;
  const NumberLocale& locale_;
  bool inFraction_;
  double unit_;
  /// How far over the baseline fraction bars stand.
  double axis_;
};

}  // namespace

SymbolParts PartsOfSymbol(const QString& symbol) {
  qsizetype end = std::min<qsizetype>(1, symbol.size());
  while (end < symbol.size() && symbol[end].isMark()) {
    ++end;
  }
  return {.Letter = symbol.left(end),
          .Index = symbol.mid(end),
          .Slanted = end > 0 && symbol[0].script() == QChar::Script_Latin};
}

FormulaBox SetFormula(const Expression& formula, const QFont& font, const NumberLocale& locale,
                      const QString& sign) {
  return Typesetter(font, locale).Term(sign, formula);
}

void PaintFormula(QPainter& painter, const FormulaBox& box, QPointF baseline, const QColor& color) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.translate(baseline);
  painter.setPen(QPen(color, box.LineWidth, Qt::SolidLine, Qt::FlatCap, Qt::RoundJoin));
  painter.setBrush(Qt::NoBrush);
  for (const FormulaBox::Letters& letters : box.Texts) {
    painter.setFont(letters.Font);
    painter.drawText(letters.Place, letters.Text);
  }
  for (const QLineF& bar : box.FractionBars) {
    painter.drawLine(bar);
  }
  for (const QPainterPath& stroke : box.Strokes) {
    painter.drawPath(stroke);
  }
  painter.restore();
}

}  // namespace trelonit
