#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <map>
#include <optional>
#include <rapidcheck/gtest.h>
#include <string>

#include "opinion/Expression.h"
#include "opinion/FormulaText.h"
#include "platform/errors/RuntimeError.h"
#include "tests/analysis/RandomDesigns.h"

namespace trelonit::test {

namespace {

double Evaluated(const std::string& text, const SymbolValues& symbols = {}) {
  return ValueOf(ParseExpression(text), symbols);
}

/// The number of the error that the text ends with, parsed alone or evaluated too.
std::optional<int> ErrorOfParsing(const std::string& text) {
  try {
    ParseExpression(text);
    return std::nullopt;
  } catch (const RuntimeError& error) {
    return error.Number();
  }
}
std::optional<int> ErrorOfEvaluating(const std::string& text) {
  try {
    Evaluated(text);
    return std::nullopt;
  } catch (const RuntimeError& error) {
    return error.Number();
  }
}

TEST(Expression, KeepsTheUsualPrecedence) {
  const std::map<std::string, double> known{
      {"2+3*4", 14},        {"2*3+4", 10},       {"8-3-2", 3},       {"16/4/2", 2},
      {"8/2*4", 16},        {"2*(3+4)", 14},     {"(2+3)*4", 20},    {"1/(2*4)", 0.125},
      {"10-2*3+1", 5},      {"sqrt(16)*2", 8},   {"2*sqrt(9)-1", 5}, {"sqrt(2*8)/4", 1},
      {"((7))", 7},         {"0.5*0.25", 0.125}, {"3.", 3},          {".5", 0.5},
      {"sqrt(sqrt(16))", 2}};
  for (const auto& [text, value] : known) {
    EXPECT_EQ(Evaluated(text), value) << text;
  }
}

TEST(Expression, HasAMinusAtTheBeginningAndInBrackets) {
  EXPECT_EQ(Evaluated("-3+5"), 2);
  EXPECT_EQ(Evaluated("-3*2"), -6);
  EXPECT_EQ(Evaluated("2*(-3)"), -6);
  EXPECT_EQ(Evaluated("4-(-3)"), 7);
  EXPECT_EQ(Evaluated("(-3-4)*2"), -14);
}

TEST(Expression, RefusesWhatIsNoFormula) {
  for (const char* text :
       {"",    " ",     "+",   "+1",   "1+",  "1*",  "*1",   "1//2", "1+*2", "(1",     "1)",
        "()",  "(1+2",  "1 2", "1+ 2", "2a",  "1e5", "--1",  "1--1", "2*-3", "sqrt()", "sqrt(4",
        "1,5", "1.2.3", ".",   "..",   "a=b", "a^2", "2(3)", "a(2)", "[1]",  "-"}) {
    EXPECT_EQ(ErrorOfParsing(text), 5) << text;
  }
}

TEST(Expression, KnowsSymbolsOfAnyAlphabet) {
  const SymbolValues symbols{{"N", 2}, {"γn", 3}, {"λ̄", 5}, {"Ry", 7}, {"sqrt", 11}, {"α", 0.5}};
  EXPECT_EQ(Evaluated("N*γn+λ̄/Ry", symbols), 6 + 5.0 / 7);
  EXPECT_EQ(Evaluated("180-60*α", symbols), 150);
  // This letter ends with the least byte that a longer character can have, 0x80.
  EXPECT_EQ(Evaluated("р+1", {{"р", 13}}), 14);
  // Without brackets behind it, it is a name like others.
  EXPECT_EQ(Evaluated("sqrt+1", symbols), 12);
}

TEST(Expression, RaisesWhatTheArithmeticRaises) {
  EXPECT_EQ(ErrorOfEvaluating("1+x"), 5);
  EXPECT_EQ(ErrorOfEvaluating("1/(2-2)"), 11);
  EXPECT_EQ(ErrorOfEvaluating("0/0"), 6);
  EXPECT_EQ(ErrorOfEvaluating("sqrt(1-2)"), 5);
  const std::string huge = "1" + std::string(200, '0');
  EXPECT_EQ(ErrorOfEvaluating(huge + "*" + huge), 6);
}

std::string Nested(const std::string& open, int depth) {
  std::string text;
  for (int i = 0; i < depth; ++i) {
    text += open;
  }
  return text + "1" + std::string(static_cast<std::size_t>(depth), ')');
}

TEST(Expression, RefusesBracketsBeyondAnyFormulaAndNotBeforeThat) {
  for (const std::string open : {"(", "sqrt(", "(-", "2*("}) {
    EXPECT_EQ(ErrorOfParsing(Nested(open, 49)), std::nullopt);
    EXPECT_EQ(ErrorOfParsing(Nested(open, 50)), 5);
    EXPECT_EQ(ErrorOfParsing(Nested(open, 100'000)), 5);
  }
  // Side by side they are no deeper than one.
  std::string row = "(1)";
  for (int i = 0; i < 200; ++i) {
    row += "+(1)";
  }
  EXPECT_EQ(Evaluated(row), 201);
}

/// A formula as text with its value, made by the rules of school.
struct Made {
  std::string Text;
  double Value = 0;
};

/// What has no value once has none in whatever it is part of.
double Sound(double value) {
  return std::isfinite(value) ? value : std::numeric_limits<double>::quiet_NaN();
}

Made MakeSum(int depth);

Made MakeFactor(int depth) {
  switch (depth > 0 ? *rc::gen::inRange(0, 5) : 0) {
    case 1: {
      const Made inner = MakeSum(depth - 1);
      return {"(" + inner.Text + ")", inner.Value};
    }
    case 2: {
      const Made inner = MakeSum(depth - 1);
      return {"(-(" + inner.Text + "))", -inner.Value};
    }
    case 3: {
      const int root = *rc::gen::inRange(0, 1000);
      return {"sqrt(" + std::to_string(root) + ")", std::sqrt(root)};
    }
    default: {
      // An even share of 8 has few digits.
      const int eighths = *rc::gen::inRange(0, 80001);
      std::string digits = std::to_string(eighths % 8 * 125);
      digits.insert(0, 3 - digits.size(), '0');
      return {std::to_string(eighths / 8) + "." + digits, eighths / 8.0};
    }
  }
}

Made MakeProduct(int depth) {
  Made made = MakeFactor(depth);
  const int more = *rc::gen::inRange(0, 3);
  for (int i = 0; i < more; ++i) {
    const Made next = MakeFactor(depth);
    const bool times = *rc::gen::arbitrary<bool>();
    made.Text += (times ? "*" : "/") + next.Text;
    made.Value = Sound(times ? made.Value * next.Value : made.Value / next.Value);
  }
  return made;
}

Made MakeSum(int depth) {
  Made made = MakeProduct(depth);
  const int more = *rc::gen::inRange(0, 3);
  for (int i = 0; i < more; ++i) {
    const Made next = MakeProduct(depth);
    const bool plus = *rc::gen::arbitrary<bool>();
    made.Text += (plus ? "+" : "-") + next.Text;
    made.Value = Sound(plus ? made.Value + next.Value : made.Value - next.Value);
  }
  return made;
}

RC_GTEST_PROP(Expression, OfAnyFormulaHasItsValueAndItsText, ()) {
  const Made made = MakeSum(3);
  const Expression parsed = ParseExpression(made.Text);
  RC_ASSERT(WithNumbers(parsed, {}, 17) == made.Text);
  if (std::isfinite(made.Value)) {
    RC_ASSERT(ValueOf(parsed) == made.Value);
  } else {
    RC_ASSERT(ErrorOfEvaluating(made.Text).has_value());
  }
}

TEST(WithNumbers, WritesPlainDigitsWithoutAnExponent) {
  const Expression x = ParseExpression("x");
  const auto written = [&](double value, int digits) {
    return WithNumbers(x, {{"x", value}}, digits);
  };
  EXPECT_EQ(written(12345.678, 5), "12346");
  EXPECT_EQ(written(12345.678, 7), "12345.68");
  EXPECT_EQ(written(0.000123456, 3), "0.000123");
  EXPECT_EQ(written(9.99999, 5), "10");
  EXPECT_EQ(written(1e20, 5), "100000000000000000000");
  EXPECT_EQ(written(1e-20, 5), "0.00000000000000000001");
  EXPECT_EQ(written(2.5, 5), "2.5");
  EXPECT_EQ(written(200, 5), "200");
  EXPECT_EQ(written(0, 5), "0");
  EXPECT_EQ(written(-0.25, 5), "(-0.25)");
}

TEST(WithNumbers, WritesUpToThreeHundredDecimals) {
  const Expression x = ParseExpression("x");
  const auto written = [&](double value) { return WithNumbers(x, {{"x", value}}, 5); };
  EXPECT_EQ(written(1e-200), "0." + std::string(199, '0') + "1");
  EXPECT_EQ(written(1e-300), "0." + std::string(299, '0') + "1");
  EXPECT_EQ(written(1e-301), "0");
}

TEST(WithNumbers, RefusesAValueThatIsNoNumber) {
  const Expression x = ParseExpression("180/x");
  for (const double value :
       {std::numeric_limits<double>::infinity(), -std::numeric_limits<double>::infinity(),
        std::numeric_limits<double>::quiet_NaN()}) {
    try {
      ADD_FAILURE() << WithNumbers(x, {{"x", value}}, 5);
    } catch (const RuntimeError& error) {
      EXPECT_EQ(error.Number(), 6);
    }
  }
}

TEST(WithNumbers, KeepsTheNumbersAndTheSymbolsThatItDoesNotKnow) {
  const Expression formula = ParseExpression("180-60*α/(0.50+y)");
  EXPECT_EQ(WithNumbers(formula, {{"α", 0.75}}, 5), "180-60*0.75/(0.50+y)");
}

RC_GTEST_PROP(Substituted, GivesTheValueWithinAHundredThousandth, ()) {
  const std::string formula = *rc::gen::elementOf(
      std::vector<std::string>{"N*γn*98.1/(φ*A*Ry*γc)", "100*lef/sqrt(J/A)", "180-60*α",
                               "1.47-13*q-(0.371-27.3*q)*x", "a-b", "-a/b", "sqrt(a*a+b*b)"});
  SymbolValues symbols;
  for (const char* name : {"N", "γn", "φ", "A", "Ry", "γc", "lef", "J", "α", "q", "x", "a", "b"}) {
    symbols[name] = std::exp(PickBetween(-15, 15));
  }
  // Without a difference that rounding swallows.
  symbols["b"] = symbols["a"] * PickBetween(1.001, 3);
  const Expression expression = ParseExpression(formula);
  const double value = ValueOf(expression, symbols);
  const double read = Evaluated(Substituted(expression, symbols));
  RC_ASSERT(std::abs(read - value) <= 1e-5 * std::min(1.0, std::abs(value)));
}

TEST(Substituted, TakesNoMoreDigitsThanItNeeds) {
  EXPECT_EQ(Substituted(ParseExpression("f/fu"), {{"f", 0.0416249}, {"fu", 0.096}}),
            "0.041625/0.096");
  // 180 - 60 / 3 = 160; five digits of the third bring 160.0002, six 160.00002.
  EXPECT_EQ(Substituted(ParseExpression("180-60*α"), {{"α", 1.0 / 3}}), "180-60*0.3333333");
}

TEST(Substituted, TakesTheFewestDigitsOfADifferenceThatIsZero) {
  EXPECT_EQ(Substituted(ParseExpression("a-b"), {{"a", 1.0 / 3}, {"b", 1.0 / 3}}),
            "0.33333-0.33333");
}

// With 17 digits every Double is itself; more of them help no number that has no place for its own.
TEST(Substituted, StopsAtSeventeenDigits) {
  EXPECT_EQ(Substituted(ParseExpression("a/b"), {{"a", 1e-305}, {"b", 1.0 / 3}}),
            "0/0.33333333333333331");
}

TEST(Substituted, ReadsBackANegativeNumber) {
  EXPECT_EQ(Substituted(ParseExpression("f/fu"), {{"f", -0.012}, {"fu", 0.1}}), "(-0.012)/0.1");
  EXPECT_EQ(Evaluated("(-0.012)/0.1"), -0.12);
}

TEST(FormulaInLine, IsWrittenAsPeopleWrite) {
  EXPECT_EQ(FormulaInLine("N*γn*98.1/(A*Ry*γc)", {.DecimalSeparator = ","}), "N·γn·98,1/(A·Ry·γc)");
  EXPECT_EQ(FormulaInLine("100*lef/sqrt(J/A)-0.5", {}), "100·lef/√(J/A)−0.5");
}

}  // namespace

}  // namespace trelonit::test
