#include "windows/results/FormulaView.h"

#include <QAbstractTextDocumentLayout>
#include <QMimeData>
#include <QPalette>
#include <QTextBlock>
#include <QTextObjectInterface>
#include <algorithm>
#include <cstring>
#include <vector>

#include "opinion/Expression.h"
#include "opinion/FormulaText.h"
#include "windows/binding/Binding.h"
#include "windows/results/FormulaBox.h"

namespace trelonit {

namespace {

constexpr int formulaObject = QTextFormat::UserObject + 1;
constexpr int formulaProperty = QTextFormat::UserProperty + 1;
constexpr int signProperty = QTextFormat::UserProperty + 2;
constexpr int separatorProperty = QTextFormat::UserProperty + 3;

/// Where a line may break without a blank.
const QChar breakPlace(0x200B);

NumberLocale LocaleOf(const QTextFormat& format) {
  return {.DecimalSeparator = FromQt(format.stringProperty(separatorProperty))};
}

FormulaBox BoxOf(const QTextFormat& format) {
  return SetFormula(ParseExpression(FromQt(format.stringProperty(formulaProperty))),
                    format.toCharFormat().font(), LocaleOf(format),
                    format.stringProperty(signProperty));
}

/// How far over the baseline the layout puts the middle of a line's objects: a quarter of the
/// height of a small letter.
double RiseOfMiddle(const QTextFormat& format) {
  return QFontMetrics(format.toCharFormat().font()).xHeight() / 4.0;
}

/// Draws the formulas of a text. The layout puts the middles of all objects of a line at one
/// height, so each is made as high above that as below.
class FormulaObject : public QObject, public QTextObjectInterface {
 public:
  using QObject::QObject;

  QSizeF intrinsicSize(QTextDocument*, int, const QTextFormat& format) override {
    const FormulaBox& box = Box(format);
    const QFontMetricsF letters(format.toCharFormat().font());
    const double rise = RiseOfMiddle(format);
    // The letters beside it must not move the middle either.
    const double above = std::max(box.Ascent, letters.ascent()) - rise;
    const double below = std::max(box.Descent, letters.descent()) + rise;
    return {box.Width, 2 * std::max(above, below)};
  }

  void drawObject(QPainter* painter, const QRectF& place, QTextDocument*, int,
                  const QTextFormat& format) override {
    const QBrush ink = format.foreground();
    const QPointF baseline(place.left(), place.center().y() + RiseOfMiddle(format));
    PaintFormula(*painter, Box(format), baseline,
                 ink.style() == Qt::NoBrush ? painter->pen().color() : ink.color());
  }

  /// The layout asks for the interface by its name, as the meta-object compiler would answer it.
  void* qt_metacast(const char* name) override {
    return std::strcmp(name, qobject_interface_iid<QTextObjectInterface*>()) == 0
               ? static_cast<QTextObjectInterface*>(this)
               : QObject::qt_metacast(name);
  }

 private:
  /// The layout asks for a formula's size more than once before it is painted.
  const FormulaBox& Box(const QTextFormat& format) {
    const QFont font = format.toCharFormat().font();
    const auto found = std::find_if(set_.begin(), set_.end(), [&](const SetOnce& set) {
      return set.Format == format && set.Font == font;
    });
    if (found != set_.end()) {
      return found->Box;
    }
    constexpr std::size_t most = 200;
    if (set_.size() == most) {
      set_.clear();
    }
    set_.push_back({format, font, BoxOf(format)});
    return set_.back().Box;
  }

  struct SetOnce {
    QTextFormat Format;
    QFont Font;
    FormulaBox Box;
  };
  std::vector<SetOnce> set_;
};

/// Whether a paragraph, a cell or a table ends (or begins) there.
bool IsEnd(QChar character) {
  return character == QChar::ParagraphSeparator || character == QChar::LineSeparator ||
         character == QChar(0xFDD0) || character == QChar(0xFDD1);
}

/// The format of a letter. A cursor would lay the text out on its way there.
QTextCharFormat FormatAt(const QTextDocument& document, int place) {
  const QTextBlock block = document.findBlock(place);
  for (auto piece = block.begin(); !piece.atEnd(); ++piece) {
    if (piece.fragment().contains(place)) {
      return piece.fragment().charFormat();
    }
  }
  return {};
}

struct Term {
  QString Sign;
  const Expression* Formula;
};

void AddTerms(const Expression& formula, const QString& sign, std::vector<Term>& terms) {
  const bool sum = formula.Is == Expression::Kind::Sum;
  if (sum || formula.Is == Expression::Kind::Difference) {
    AddTerms(formula.Parts[0], sign, terms);
    AddTerms(formula.Parts[1], sum ? QStringLiteral("+") : QStringLiteral("−"), terms);
  } else {
    terms.push_back({sign, &formula});
  }
}

/// Words can set a symbol that stands alone.
void InsertSymbol(QTextCursor& cursor, const SymbolParts& symbol, const QTextCharFormat& plain) {
  QTextCharFormat format = plain;
  format.setFontItalic(symbol.Slanted);
  cursor.insertText(symbol.Letter, format);
  format = plain;
  format.setVerticalAlignment(QTextCharFormat::AlignSubScript);
  cursor.insertText(symbol.Index, format);
  cursor.setCharFormat(plain);
}

}  // namespace

FormulaView::FormulaView(QWidget* parent) : QTextEdit(parent) {
  setReadOnly(true);
  setUndoRedoEnabled(false);
  setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  setTabChangesFocus(true);
  document()->documentLayout()->registerHandler(formulaObject, new FormulaObject(this));
  QObject::connect(document(), &QTextDocument::contentsChanged, this,
                   [this] { setAccessibleDescription(InLine()); });
}

void FormulaView::InsertFormula(QTextCursor& cursor, const std::string& formula,
                                const NumberLocale& locale) {
  const Expression whole = ParseExpression(formula);
  const QTextCharFormat plain = cursor.charFormat();
  if (whole.Is == Expression::Kind::Symbol) {
    InsertSymbol(cursor, PartsOfSymbol(ToQt(whole.Text)), plain);
    return;
  }
  std::vector<Term> terms;
  AddTerms(whole, {}, terms);
  for (const Term& term : terms) {
    if (!term.Sign.isEmpty()) {
      cursor.insertText(QString(breakPlace), plain);
    }
    QTextCharFormat format = plain;
    format.setObjectType(formulaObject);
    format.setVerticalAlignment(QTextCharFormat::AlignMiddle);
    format.setProperty(formulaProperty, ToQt(WithNumbers(*term.Formula, {}, 1)));
    format.setProperty(signProperty, term.Sign);
    format.setProperty(separatorProperty, ToQt(locale.DecimalSeparator));
    cursor.insertText(QString(QChar::ObjectReplacementCharacter), format);
  }
  cursor.setCharFormat(plain);
}

QString FormulaView::InLine() const {
  return InLine(0, document()->characterCount() - 1);
}

QString FormulaView::InLine(int from, int to) const {
  QString text;
  // Asking the document for one letter after the other would look for its place each time.
  const QString letters = document()->toRawText();
  for (int place = from; place < to; ++place) {
    const QChar character = letters[place];
    if (character == QChar::ObjectReplacementCharacter) {
      const QTextCharFormat format = FormatAt(*document(), place);
      text += format.stringProperty(signProperty) +
              ToQt(FormulaInLine(FromQt(format.stringProperty(formulaProperty)), LocaleOf(format)));
    } else if (character == QChar::Nbsp) {
      text += QLatin1Char(' ');
    } else if (!IsEnd(character)) {
      text += character == breakPlace ? QString() : QString(character);
    } else if (!text.isEmpty() && !text.endsWith(QLatin1Char('\n'))) {
      text += QLatin1Char('\n');
    }
  }
  while (text.endsWith(QLatin1Char('\n'))) {
    text.chop(1);
  }
  return text;
}

QMimeData* FormulaView::createMimeDataFromSelection() const {
  auto* copied = new QMimeData;
  copied->setText(InLine(textCursor().selectionStart(), textCursor().selectionEnd()));
  return copied;
}

}  // namespace trelonit
