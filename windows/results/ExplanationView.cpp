#include "windows/results/ExplanationView.h"

#include <QScrollBar>
#include <QTextTable>

#include "checks/ElementGroups.h"
#include "opinion/FormulaText.h"
#include "opinion/Opinion.h"
#include "windows/binding/Binding.h"
#include "windows/binding/Pictures.h"

namespace trelonit {

namespace {

constexpr int figureDecimals = 5;
constexpr int columnPadding = 6;
/// Letters that two columns need beside each other.
constexpr int wideLetters = 96;

const QChar nbsp(QChar::Nbsp);

/// Writes explanations into a text.
class Writer {
 public:
  Writer(QTextDocument& document, const QPalette& palette, const NumberLocale& locale)
      : cursor_(&document), palette_(palette), locale_(locale) {}

  void Remark(const QString& text) {
    NewParagraph();
    cursor_.insertText(text, Plain());
  }

  void Check(const ExplainedCheck& check, bool wide) {
    const Explanation* any = check.Told ? &*check.Told : check.Opinion ? &*check.Opinion : nullptr;
    if (any == nullptr) {
      return;
    }
    NewParagraph();
    const QString name = ToQt(any->CheckName);
    cursor_.insertText(any->Group ? ToQt(RowOf(*any->Group).Name) + QStringLiteral(", ") + name
                                  : QStringLiteral("Ферма, ") + name,
                       Bold());
    if (!check.Told || !check.Opinion) {
      Write(*any);
      NewParagraph();
      cursor_.insertText(check.Told ? QStringLiteral("Второго мнения об этой проверке нет.")
                                    : QStringLiteral("В расчете такой проверки нет."),
                         Quiet());
      return;
    }
    if (!wide) {
      Write(*check.Told);
      Write(*check.Opinion);
      return;
    }
    WriteBeside(*check.Told, *check.Opinion);
  }

 private:
  QTextCharFormat Plain() const {
    QTextCharFormat format;
    format.setForeground(palette_.color(QPalette::Text));
    return format;
  }
  QTextCharFormat Bold() const {
    QTextCharFormat format = Plain();
    format.setFontWeight(QFont::Bold);
    return format;
  }
  QTextCharFormat Quiet() const {
    QTextCharFormat format;
    format.setForeground(AsideColor(palette_));
    return format;
  }
  QTextCharFormat Verdict(const Explanation& explanation) const {
    QTextCharFormat format = Bold();
    format.setForeground(explanation.Passed ? PassedColor(palette_) : WarningColor(palette_));
    return format;
  }

  void NewParagraph(double above = 4) {
    QTextBlockFormat format;
    format.setTopMargin(above);
    if (cursor_.block().text().isEmpty()) {
      cursor_.setBlockFormat(format);
    } else {
      cursor_.insertBlock(format);
    }
  }

  void Formula(const std::string& formula, const QTextCharFormat& format) {
    cursor_.setCharFormat(format);
    FormulaView::InsertFormula(cursor_, formula, locale_);
  }

  /// The sign stays with what follows it.
  void Equals() { cursor_.insertText(QStringLiteral(" =") + nbsp, Plain()); }

  QString Number(double value) const {
    return ToQt(NumberToText(RoundToDecimals(value, figureDecimals), locale_));
  }

  void WriteBeside(const Explanation& told, const Explanation& opinion) {
    QTextTableFormat format;
    format.setBorder(0);
    format.setCellSpacing(0);
    format.setCellPadding(columnPadding);
    format.setWidth(QTextLength(QTextLength::PercentageLength, 100));
    format.setColumnWidthConstraints({QTextLength(QTextLength::PercentageLength, 50),
                                      QTextLength(QTextLength::PercentageLength, 50)});
    QTextTable* table = cursor_.insertTable(1, 2, format);
    cursor_ = table->cellAt(0, 0).firstCursorPosition();
    Write(told);
    cursor_ = table->cellAt(0, 1).firstCursorPosition();
    Write(opinion);
    cursor_ = table->lastCursorPosition();
    cursor_.movePosition(QTextCursor::NextBlock);
  }

  void Write(const Explanation& explanation) {
    WriteHead(explanation);
    WriteResult(explanation);
    WriteGiven(explanation);
    for (const ExplanationStep& step : explanation.Steps) {
      if (!step.Formula.empty()) {
        WriteStep(step);
      }
    }
    for (const std::string& rule : explanation.OwnRules) {
      NewParagraph();
      cursor_.insertText(QStringLiteral("Правило программы. "), Bold());
      cursor_.insertText(ToQt(rule), Plain());
    }
  }

  void WriteHead(const Explanation& explanation) {
    NewParagraph(0);
    cursor_.insertText(explanation.Source == ExplanationSource::Told ? QStringLiteral("Расчет")
                                                                     : QString::fromUtf8(normName),
                       Bold());
    cursor_.insertText(QStringLiteral(": "), Bold());
    cursor_.insertText(
        ToQt(FormatShown(explanation.Value, figureDecimals, locale_)) +
            (explanation.Passed ? QStringLiteral(", проходит") : QStringLiteral(", не проходит")),
        Verdict(explanation));
    QString source = ToQt(explanation.Clause);
    if (explanation.Bar) {
      source += QStringLiteral("; стержень %1").arg(*explanation.Bar);
    }
    NewParagraph(0);
    cursor_.insertText(source, Quiet());
  }

  void WriteResult(const Explanation& explanation) {
    NewParagraph();
    Formula(explanation.Formula, Plain());
    Equals();
    Formula(explanation.Substitution, Plain());
    Equals();
    cursor_.insertText(ToQt(FormatShown(explanation.Value, figureDecimals, locale_)) +
                           (explanation.Passed ? QStringLiteral(" ≤ ") : QStringLiteral(" > "))
                               .replace(QLatin1Char(' '), nbsp) +
                           ToQt(NumberToText(explanation.Limit, locale_)),
                       Verdict(explanation));
  }

  /// The figures that are not computed here, in one paragraph.
  void WriteGiven(const Explanation& explanation) {
    bool first = true;
    for (const ExplanationStep& step : explanation.Steps) {
      if (!step.Formula.empty()) {
        continue;
      }
      if (first) {
        NewParagraph();
        cursor_.insertText(QStringLiteral("Дано: "), Quiet());
      } else {
        cursor_.insertText(QStringLiteral("; "), Plain());
      }
      first = false;
      Formula(step.Symbol, Plain());
      cursor_.insertText(nbsp + QStringLiteral("=") + nbsp, Plain());
      WriteValue(step);
    }
  }

  void WriteStep(const ExplanationStep& step) {
    NewParagraph();
    Formula(step.Symbol, Plain());
    Equals();
    Formula(step.Formula, Plain());
    Equals();
    Formula(step.Substitution, Plain());
    Equals();
    WriteValue(step);
  }

  void WriteValue(const ExplanationStep& step) {
    cursor_.insertText(
        Number(step.Value) + (step.Unit.empty() ? QString() : nbsp + ToQt(step.Unit)), Plain());
    if (!step.Note.empty()) {
      cursor_.insertText(QStringLiteral(" — ") + ToQt(step.Note), Quiet());
    }
  }

  QTextCursor cursor_;
  const QPalette& palette_;
  const NumberLocale& locale_;
};

}  // namespace

ExplanationView::ExplanationView(NumberLocale locale, QWidget* parent)
    : FormulaView(parent), locale_(std::move(locale)), build_([this] { Build(); }) {}

void ExplanationView::Show(QStringList remarks, std::vector<ExplainedCheck> checks) {
  remarks_ = std::move(remarks);
  checks_ = std::move(checks);
  builtWide_.reset();
  if (isVisible()) {
    Build();
  }
}

void ExplanationView::Build() {
  if (!builtWide_ && isVisible()) {
    Rebuild();
    moveCursor(QTextCursor::Start);
  }
}

bool ExplanationView::IsWide() const {
  return viewport()->width() >= wideLetters * fontMetrics().averageCharWidth();
}

void ExplanationView::Rebuild() {
  const bool wide = IsWide();
  builtWide_ = wide;
  const int place = verticalScrollBar()->value();
  clear();
  QTextCursor edit(document());
  edit.beginEditBlock();
  Writer writer(*document(), palette(), locale_);
  for (const QString& remark : remarks_) {
    writer.Remark(remark);
  }
  for (const ExplainedCheck& check : checks_) {
    writer.Check(check, wide);
  }
  edit.endEditBlock();
  verticalScrollBar()->setValue(place);
}

void ExplanationView::showEvent(QShowEvent* event) {
  FormulaView::showEvent(event);
  build_.Ask();
}

void ExplanationView::resizeEvent(QResizeEvent* event) {
  FormulaView::resizeEvent(event);
  if (builtWide_ && *builtWide_ != IsWide()) {
    Rebuild();
  }
}

void ExplanationView::changeEvent(QEvent* event) {
  FormulaView::changeEvent(event);
  const bool looksOtherwise =
      event->type() == QEvent::PaletteChange || event->type() == QEvent::FontChange;
  if (builtWide_ && looksOtherwise) {
    Rebuild();
  }
}

}  // namespace trelonit
