#include <QImage>
#include <gtest/gtest.h>

#include "tests/support/TestServices.h"
#include "windows/binding/Binding.h"
#include "windows/results/FormulaBox.h"

namespace trelonit::test {
namespace {

FormulaBox Set(const std::string& formula, const NumberLocale& locale = PointLocale(),
               const QFont& font = {}) {
  return SetFormula(ParseExpression(formula), font, locale);
}

/// The letters with this text. None fails the test.
const FormulaBox::Letters& LettersOf(const FormulaBox& box, const std::string& text) {
  for (const FormulaBox::Letters& letters : box.Texts) {
    if (FromQt(letters.Text) == text) {
      return letters;
    }
  }
  throw std::logic_error("not in the formula: " + text);
}

/// The letters from the first to the last set.
std::string TextsIn(const FormulaBox& box) {
  std::string texts;
  for (const FormulaBox::Letters& letters : box.Texts) {
    texts += (texts.empty() ? "" : " ") + FromQt(letters.Text);
  }
  return texts;
}

TEST(FormulaBoxFraction, HasItsPartsOverAndUnderABarThatCoversThem) {
  const FormulaBox box = Set("N/A");
  ASSERT_EQ(box.FractionBars.size(), 1U);
  const QLineF& bar = box.FractionBars[0];
  const QRectF above = LettersOf(box, "N").Ink;
  const QRectF below = LettersOf(box, "A").Ink;
  EXPECT_LT(above.bottom(), bar.y1());
  EXPECT_GT(below.top(), bar.y1());
  EXPECT_EQ(bar.y1(), bar.y2());
  // Some systems tell in whole pixels what letters cover.
  constexpr double rounding = 0.5;
  for (const QRectF& part : {above, below}) {
    EXPECT_LE(bar.x1(), part.left() + rounding);
    EXPECT_GE(bar.x2(), part.right() - rounding);
  }
}

TEST(FormulaBoxFraction, HasTheNarrowPartOverTheMiddleOfTheWideOne) {
  const FormulaBox box = Set("1/(100000*1000)");
  const QLineF& bar = box.FractionBars.at(0);
  EXPECT_NEAR(LettersOf(box, "1").Ink.center().x(), bar.center().x(), 1.5);
}

TEST(FormulaBoxFraction, NeedsNoBracketsRoundItsParts) {
  const FormulaBox box = Set("(N+1)/(A*Ry*γc)");
  EXPECT_TRUE(box.Strokes.empty());
  EXPECT_EQ(TextsIn(box), "N + 1 A · R y · γ c");
}

TEST(FormulaBoxFraction, WithinAFractionIsSmaller) {
  const FormulaBox box = Set("N/(1-5/A)");
  ASSERT_EQ(box.FractionBars.size(), 2U);
  EXPECT_LT(LettersOf(box, "A").Font.pointSizeF(), LettersOf(box, "N").Font.pointSizeF());
}

TEST(FormulaBoxFraction, StandsBesideWhatIsMultipliedWithIt) {
  const FormulaBox box = Set("27.3*Ry/E*B");
  ASSERT_EQ(box.FractionBars.size(), 1U);
  const QRectF factor = LettersOf(box, "B").Ink;
  const QLineF& bar = box.FractionBars[0];
  EXPECT_GT(factor.left(), bar.x2());
  // The bar stands at the middle of small letters, so the letter beside it reaches over it.
  EXPECT_LT(factor.top(), bar.y1());
  EXPECT_GT(factor.bottom(), bar.y1());
}

TEST(FormulaBoxSymbol, HasItsIndexLowerSmallerAndUpright) {
  const FormulaBox box = Set("Ry");
  ASSERT_EQ(TextsIn(box), "R y");
  const FormulaBox::Letters& letter = LettersOf(box, "R");
  const FormulaBox::Letters& index = LettersOf(box, "y");
  EXPECT_GT(index.Place.y(), letter.Place.y());
  EXPECT_GE(index.Place.x(), letter.Place.x() + letter.Ink.width() / 2);
  EXPECT_LT(index.Font.pointSizeF(), letter.Font.pointSizeF());
  EXPECT_TRUE(letter.Font.italic());
  EXPECT_FALSE(index.Font.italic());
}

TEST(FormulaBoxSymbol, OfSeveralLettersHasTheirRestAsItsIndex) {
  EXPECT_EQ(TextsIn(Set("lef")), "l ef");
  EXPECT_EQ(TextsIn(Set("γn")), "γ n");
  EXPECT_FALSE(LettersOf(Set("γn"), "γ").Font.italic()) << "Greek letters stand upright";
}

TEST(FormulaBoxSymbol, KeepsTheMarkOverItsLetter) {
  EXPECT_EQ(TextsIn(Set("λ̄")), "λ̄");
}

TEST(FormulaBoxNumber, TakesTheSeparatorOfTheLocale) {
  EXPECT_EQ(TextsIn(Set("0.073", CommaLocale())), "0,073");
  EXPECT_EQ(TextsIn(Set("0.073", PointLocale())), "0.073");
}

TEST(FormulaBoxOperation, HasADotForTheProductAndAMinusForTheDifference) {
  const FormulaBox box = Set("5*A-7+B");
  EXPECT_EQ(TextsIn(box), "5 · A − 7 + B");
  double end = 0;
  for (const FormulaBox::Letters& letters : box.Texts) {
    EXPECT_GE(letters.Place.x(), end) << FromQt(letters.Text);
    EXPECT_EQ(letters.Place.y(), 0) << FromQt(letters.Text);
    end = letters.Place.x() + letters.Ink.width();
  }
}

TEST(FormulaBoxNegation, HasItsSignNearerThanADifference) {
  const FormulaBox negation = Set("-5*A");
  EXPECT_EQ(TextsIn(negation), "− 5 · A");
  const FormulaBox difference = Set("A-5");
  EXPECT_LT(LettersOf(negation, "5").Place.x() - LettersOf(negation, "−").Place.x(),
            LettersOf(difference, "5").Place.x() - LettersOf(difference, "−").Place.x());
}

TEST(FormulaBoxRoot, CoversWhatIsUnderIt) {
  const FormulaBox box = Set("sqrt(J/A)");
  ASSERT_EQ(box.Strokes.size(), 1U);
  const QRectF sign = box.Strokes[0].boundingRect();
  for (const char* name : {"J", "A"}) {
    const QRectF ink = LettersOf(box, name).Ink;
    EXPECT_LT(sign.top(), ink.top()) << name;
    EXPECT_GT(sign.bottom(), ink.bottom()) << name;
    EXPECT_GT(ink.left(), sign.left()) << name;
    EXPECT_GE(sign.right(), ink.right()) << name;
  }
}

TEST(FormulaBoxBrackets, AreAsHighAsWhatIsInThem) {
  const FormulaBox flat = Set("(A+B)*C");
  const FormulaBox high = Set("(A/B+C)*D");
  ASSERT_EQ(flat.Strokes.size(), 2U);
  ASSERT_EQ(high.Strokes.size(), 2U);
  const QRectF left = high.Strokes[0].boundingRect();
  EXPECT_GT(left.height(), flat.Strokes[0].boundingRect().height() * 1.5);
  EXPECT_LE(left.top(), LettersOf(high, "A").Ink.top());
  EXPECT_GE(left.bottom(), LettersOf(high, "B").Ink.bottom());
  EXPECT_LT(left.right(), LettersOf(high, "A").Ink.left());
  EXPECT_GT(high.Strokes[1].boundingRect().left(), LettersOf(high, "C").Ink.right());
}

TEST(FormulaBoxTerm, HasItsSignInFront) {
  const FormulaBox box =
      SetFormula(ParseExpression("13*A"), QFont(), PointLocale(), QStringLiteral("−"));
  EXPECT_EQ(TextsIn(box), "− 13 · A");
}

const std::vector<std::string> realFormulas{
    "N*γn*98.1/(φ*A*Ry*γc)", "1.47-13*Ry/E-(0.371-27.3*Ry/E)*λ̄+(0.0275-5.53*Ry/E)*λ̄*λ̄",
    "332/(λ̄*λ̄*(51-λ̄))",      "100*lef/sqrt(J/A)",
    "λ*sqrt(Ry/E)",          "1-(0.073-5.53*Ry/E)*λ̄*sqrt(λ̄)"};

TEST(FormulaBoxExtent, HoldsAllThatIsDrawn) {
  for (const std::string& formula : realFormulas) {
    const FormulaBox box = Set(formula);
    const QRectF whole(-1, -box.Ascent - 1, box.Width + 2, box.Ascent + box.Descent + 2);
    for (const FormulaBox::Letters& letters : box.Texts) {
      EXPECT_TRUE(whole.contains(letters.Ink)) << formula << ": " << FromQt(letters.Text);
    }
    for (const QPainterPath& stroke : box.Strokes) {
      EXPECT_TRUE(whole.contains(stroke.boundingRect())) << formula;
    }
    for (const QLineF& bar : box.FractionBars) {
      EXPECT_TRUE(whole.contains(bar.p1()) && whole.contains(bar.p2())) << formula;
    }
  }
}

TEST(FormulaBoxExtent, KeepsTheLettersApart) {
  for (const std::string& formula : realFormulas) {
    const FormulaBox box = Set(formula);
    for (std::size_t one = 0; one < box.Texts.size(); ++one) {
      for (std::size_t other = one + 1; other < box.Texts.size(); ++other) {
        // A slanted letter may lean over its index.
        const QRectF shared = box.Texts[one].Ink & box.Texts[other].Ink;
        EXPECT_LE(std::min(shared.width(), shared.height()), 2)
            << formula << ": " << FromQt(box.Texts[one].Text) << " and "
            << FromQt(box.Texts[other].Text);
      }
    }
  }
}

TEST(FormulaBoxExtent, FollowsTheFont) {
  QFont font;
  font.setPointSizeF(10);
  QFont large = font;
  large.setPointSizeF(20);
  const FormulaBox small = Set(realFormulas[0], PointLocale(), font);
  const FormulaBox twice = Set(realFormulas[0], PointLocale(), large);
  EXPECT_NEAR(twice.Width / small.Width, 2, 0.15);
  EXPECT_NEAR((twice.Ascent + twice.Descent) / (small.Ascent + small.Descent), 2, 0.25);
  font.setPixelSize(13);
  large.setPixelSize(26);
  EXPECT_NEAR(Set("1/Ry", PointLocale(), large).Width / Set("1/Ry", PointLocale(), font).Width, 2,
              0.15);
}

/// How many pixels a painted formula darkens at this scaling of the screen.
int PaintedPixels(const std::string& formula, double scale, const QColor& color) {
  const FormulaBox box = Set(formula);
  QImage image((QSizeF(box.Width, box.Ascent + box.Descent) * scale).toSize() + QSize(4, 4),
               QImage::Format_RGB32);
  image.setDevicePixelRatio(scale);
  image.fill(Qt::white);
  QPainter painter(&image);
  PaintFormula(painter, box, QPointF(1, box.Ascent + 1), color);
  painter.end();
  int count = 0;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      count += image.pixelColor(x, y) == color ? 1 : 0;
    }
  }
  return count;
}

TEST(FormulaBoxPainting, IsInTheColourAndSharpOnAFineScreen) {
  for (const std::string& formula : realFormulas) {
    const int usual = PaintedPixels(formula, 1, QColor(Qt::blue));
    // Smoothed letters have few pixels of the very colour.
    EXPECT_GT(usual, 0) << formula;
    EXPECT_GT(PaintedPixels(formula, 3, QColor(Qt::blue)), usual * 5) << formula;
  }
}

}  // namespace
}  // namespace trelonit::test
