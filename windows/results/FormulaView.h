#pragma once

#include <QTextCursor>
#include <QTextEdit>
#include <string>

#include "platform/text/NumberText.h"

namespace trelonit {

/// A text to read with formulas set as formulas. What is selected and copied is plain text, its
/// formulas as FormulaInLine writes them; who hears the screen hears the same.
class FormulaView : public QTextEdit {
 public:
  explicit FormulaView(QWidget* parent = nullptr);

  /// Puts a formula (see Expression) there. Between the terms of a sum the line may break.
  static void InsertFormula(QTextCursor& cursor, const std::string& formula,
                            const NumberLocale& locale);
  /// The whole text.
  QString InLine() const;

 protected:
  QMimeData* createMimeDataFromSelection() const override;

 private:
  QString InLine(int from, int to) const;
};

}  // namespace trelonit
