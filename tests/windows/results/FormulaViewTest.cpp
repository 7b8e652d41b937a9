#include <QScrollBar>

#include "opinion/FormulaText.h"
#include "tests/support/TestServices.h"
#include "tests/windows/Hands.h"
#include "tests/windows/Pixels.h"
#include "windows/results/FormulaView.h"

namespace trelonit::test {
namespace {

const std::string longSum = "1.47-13*Ry/E-(0.371-27.3*Ry/E)*λ̄+(0.0275-5.53*Ry/E)*λ̄*λ̄";

/// A shown view with a text and a formula.
struct FormulaScreen {
  explicit FormulaScreen(const std::string& text, const std::string& formula, int width = 700,
                         const NumberLocale& locale = CommaLocale()) {
    View.resize(width, 200);
    QTextCursor cursor(View.document());
    cursor.insertText(ToQt(text));
    if (!formula.empty()) {
      FormulaView::InsertFormula(cursor, formula, locale);
    }
    View.show();
  }
  std::string Copied() {
    QApplication::clipboard()->clear();
    View.copy();
    return FromQt(QApplication::clipboard()->text());
  }
  double Height() { return View.document()->size().height(); }

  FormulaView View;
};

TEST(FormulaViewCopy, TakesTheFormulaAsItIsWrittenInALine) {
  FormulaScreen screen("φ = ", longSum);
  QTest::keyClick(&screen.View, Qt::Key_A, Qt::ControlModifier);
  EXPECT_EQ(screen.Copied(), "φ = " + FormulaInLine(longSum, CommaLocale()));
  EXPECT_EQ(screen.Copied(), "φ = 1,47−13·Ry/E−(0,371−27,3·Ry/E)·λ̄+(0,0275−5,53·Ry/E)·λ̄·λ̄");
}

TEST(FormulaViewCopy, TakesOnlyWhatIsChosen) {
  FormulaScreen screen("λ = ", "100*lef/sqrt(J/A)");
  QTextCursor cursor = screen.View.textCursor();
  cursor.setPosition(2);
  cursor.setPosition(5, QTextCursor::KeepAnchor);
  screen.View.setTextCursor(cursor);
  EXPECT_EQ(screen.Copied(), "= 100·lef/√(J/A)");
  cursor.setPosition(0);
  cursor.setPosition(1, QTextCursor::KeepAnchor);
  screen.View.setTextCursor(cursor);
  EXPECT_EQ(screen.Copied(), "λ");
}

TEST(FormulaViewCopy, IsOnTheKeys) {
  FormulaScreen screen("", "N/A");
  screen.View.selectAll();
  QApplication::clipboard()->clear();
  QTest::keyClick(&screen.View, Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(FromQt(QApplication::clipboard()->text()), "N/A");
}

TEST(FormulaView, IsReadAloudWithItsFormulas) {
  FormulaScreen screen("Итого ", "N/(φ*A)");
  EXPECT_EQ(FromQt(screen.View.accessibleDescription()), "Итого N/(φ·A)");
}

TEST(FormulaView, CannotBeTypedInto) {
  FormulaScreen screen("слово ", "N/A");
  QTest::keyClicks(&screen.View, "1");
  QTest::keyClick(&screen.View, Qt::Key_Delete);
  EXPECT_EQ(FromQt(screen.View.InLine()), "слово N/A");
}

TEST(FormulaView, GivesTabOnToTheNextWidget) {
  FormulaScreen screen("", "N/A");
  EXPECT_TRUE(screen.View.tabChangesFocus());
}

TEST(FormulaViewNarrow, BreaksBetweenTheTermsOfASum) {
  FormulaScreen wide("", longSum, 900);
  FormulaScreen narrow("", longSum, 220);
  EXPECT_GT(narrow.Height(), wide.Height() * 1.5);
  EXPECT_EQ(narrow.View.horizontalScrollBar()->maximum(), 0);
  EXPECT_EQ(wide.View.horizontalScrollBar()->maximum(), 0);
}

TEST(FormulaViewNarrow, ScrollsWhereOneTermIsTooWide) {
  FormulaScreen screen("", "1111111*2222222*3333333*4444444*5555555", 140);
  EXPECT_GT(screen.View.horizontalScrollBar()->maximum(), 50);
}

/// Where the ink of the first glyphs ends below, in pixels of a grabbed view.
int FootOfFirstGlyph(FormulaView& view) {
  const QImage image = view.viewport()->grab().toImage();
  const QColor paper = view.palette().color(QPalette::Base);
  const int right = qRound(view.document()->documentMargin()) +
                    view.fontMetrics().horizontalAdvance(QLatin1Char('4'));
  for (int y = image.height() - 1; y >= 0; --y) {
    for (int x = 0; x < right; ++x) {
      if (image.pixelColor(x, y).lightness() < paper.lightness() / 2) {
        return y;
      }
    }
  }
  return -1;
}

TEST(FormulaViewLine, HasTheBaselineOfItsWords) {
  // The same figure as a word and as a formula, before the same fraction.
  for (const char* fraction : {"1/7", "1/sqrt(7/2)", "5"}) {
    FormulaScreen word("4", fraction);
    FormulaScreen formula("", "4");
    QTextCursor cursor(formula.View.document());
    cursor.movePosition(QTextCursor::End);
    FormulaView::InsertFormula(cursor, fraction, CommaLocale());
    const int foot = FootOfFirstGlyph(word.View);
    EXPECT_GT(foot, 5) << fraction;
    EXPECT_NEAR(FootOfFirstGlyph(formula.View), foot, 1) << fraction;
  }
}

TEST(FormulaViewLine, HasRoomForAHighFormula) {
  FormulaScreen word("4", "");
  FormulaScreen high("4", "N/sqrt(J/A)");
  EXPECT_GT(high.Height(), word.Height() + word.View.fontMetrics().height());
}

TEST(FormulaViewLook, FollowsFontAndPalette) {
  FormulaScreen screen("", "N/A");
  const double before = screen.Height();
  QFont font = screen.View.font();
  font.setPointSizeF(font.pointSizeF() * 2);
  screen.View.setFont(font);
  EXPECT_GT(screen.Height(), before * 1.5);

  QPalette dark = screen.View.palette();
  dark.setColor(QPalette::Base, Qt::black);
  dark.setColor(QPalette::Text, Qt::green);
  screen.View.setPalette(dark);
  EXPECT_GT(CountPixels(*screen.View.viewport(), QColor(Qt::green)), 10);
}

}  // namespace
}  // namespace trelonit::test
