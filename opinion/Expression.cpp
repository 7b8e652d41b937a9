#include "opinion/Expression.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <utility>

#include "platform/errors/RuntimeError.h"
#include "platform/text/NumberText.h"
#include "platform/text/Text.h"
#include "platform/values/Arithmetic.h"

namespace trelonit {

namespace {

using Kind = Expression::Kind;

constexpr std::string_view rootName = "sqrt";

bool IsOfNumber(char character) {
  return (character >= '0' && character <= '9') || character == '.';
}

/// Letters of any alphabet: every byte of a longer character counts as one.
bool IsLetter(char character) {
  return IsLatinLetter(character) || static_cast<unsigned char>(character) >= 0x80;
}

/// Reads by the usual precedence, operations of one rank from the left.
class Parser {
 public:
  explicit Parser(std::string_view text) : text_(text) {}

  Expression Whole() {
    Expression expression = Sum();
    if (place_ != text_.size()) {
      Refuse();
    }
    return expression;
  }

 private:
  // Deeper brackets than any formula has would only exhaust the stack.
  static constexpr int deepest = 50;

  [[noreturn]] static void Refuse() { throw RuntimeError(ErrorNumber::InvalidProcedureCall); }

  bool Take(char character) {
    if (place_ < text_.size() && text_[place_] == character) {
      ++place_;
      return true;
    }
    return false;
  }

  template <class Belongs>
  std::string Run(Belongs belongs) {
    const std::size_t start = place_;
    while (place_ < text_.size() && belongs(text_[place_])) {
      ++place_;
    }
    return std::string(text_.substr(start, place_ - start));
  }

  static Expression Join(Kind kind, Expression left, Expression right) {
    Expression joined{.Is = kind};
    joined.Parts.push_back(std::move(left));
    joined.Parts.push_back(std::move(right));
    return joined;
  }

  static Expression Wrapped(Kind kind, Expression part) {
    Expression wrapped{.Is = kind};
    wrapped.Parts.push_back(std::move(part));
    return wrapped;
  }

  Expression Sum() {
    if (++depth_ > deepest) {
      Refuse();
    }
    Expression left = Take('-') ? Wrapped(Kind::Negation, Product()) : Product();
    for (;;) {
      if (Take('+')) {
        left = Join(Kind::Sum, std::move(left), Product());
      } else if (Take('-')) {
        left = Join(Kind::Difference, std::move(left), Product());
      } else {
        --depth_;
        return left;
      }
    }
  }

  Expression Product() {
    Expression left = Factor();
    for (;;) {
      if (Take('*')) {
        left = Join(Kind::Product, std::move(left), Factor());
      } else if (Take('/')) {
        left = Join(Kind::Quotient, std::move(left), Factor());
      } else {
        return left;
      }
    }
  }

  Expression Enclosed(Kind kind) {
    Expression enclosed = Wrapped(kind, Sum());
    if (!Take(')')) {
      Refuse();
    }
    return enclosed;
  }

  Expression Factor() {
    if (Take('(')) {
      return Enclosed(Kind::Brackets);
    }
    if (std::string number = Run(IsOfNumber); !number.empty()) {
      const auto points = std::count(number.begin(), number.end(), '.');
      if (points > 1 || number == ".") {
        Refuse();
      }
      return {.Is = Kind::Number, .Text = std::move(number)};
    }
    std::string name = Run(IsLetter);
    if (name == rootName && Take('(')) {
      return Enclosed(Kind::Root);
    }
    if (name.empty()) {
      Refuse();
    }
    return {.Is = Kind::Symbol, .Text = std::move(name)};
  }

  std::string_view text_;
  std::size_t place_ = 0;
  int depth_ = 0;
};

Real Value(const Expression& expression, const SymbolValues& symbols) {
  const auto part = [&](std::size_t index) { return Value(expression.Parts[index], symbols); };
  switch (expression.Is) {
    case Kind::Number:
      return TextToNumber(expression.Text, {});
    case Kind::Symbol: {
      const auto found = symbols.find(expression.Text);
      if (found == symbols.end()) {
        throw RuntimeError(ErrorNumber::InvalidProcedureCall);
      }
      return found->second;
    }
    case Kind::Negation:
      return -part(0);
    case Kind::Sum:
      return part(0) + part(1);
    case Kind::Difference:
      return part(0) - part(1);
    case Kind::Product:
      return part(0) * part(1);
    case Kind::Quotient:
      return part(0) / part(1);
    case Kind::Root:
      return SquareRoot(part(0));
    case Kind::Brackets:
      break;
  }
  return part(0);
}

/// Without an exponent, so that the text stays plain arithmetic for every reader.
std::string PlainNumber(double value, int digits) {
  // Of 0 the logarithm is infinite, which asks for the most decimals; they are cut off again.
  const double magnitude = std::floor(std::log10(std::abs(Finite(value))));
  const int decimals = static_cast<int>(std::clamp(digits - 1 - magnitude, 0.0, 300.0));
  std::string text(350 + static_cast<std::size_t>(decimals), '\0');
  const int length = std::snprintf(text.data(), text.size(), "%.*f", decimals, value);
  text.resize(static_cast<std::size_t>(length));
  if (text.find('.') != std::string::npos) {
    text.erase(text.find_last_not_of('0') + 1);
    if (text.back() == '.') {
      text.pop_back();
    }
  }
  return text.front() == '-' ? '(' + text + ')' : text;
}

}  // namespace

Expression ParseExpression(std::string_view text) {
  return Parser(text).Whole();
}

double ValueOf(const Expression& expression, const SymbolValues& symbols) {
  return Value(expression, symbols);
}

std::string WithNumbers(const Expression& expression, const SymbolValues& symbols, int digits) {
  const auto part = [&](std::size_t index) {
    return WithNumbers(expression.Parts[index], symbols, digits);
  };
  switch (expression.Is) {
    case Kind::Number:
      return expression.Text;
    case Kind::Symbol: {
      const auto found = symbols.find(expression.Text);
      return found == symbols.end() ? expression.Text : PlainNumber(found->second, digits);
    }
    case Kind::Negation:
      return '-' + part(0);
    case Kind::Sum:
      return part(0) + '+' + part(1);
    case Kind::Difference:
      return part(0) + '-' + part(1);
    case Kind::Product:
      return part(0) + '*' + part(1);
    case Kind::Quotient:
      return part(0) + '/' + part(1);
    case Kind::Root:
      return std::string(rootName) + '(' + part(0) + ')';
    case Kind::Brackets:
      break;
  }
  return '(' + part(0) + ')';
}

std::string Substituted(const Expression& expression, const SymbolValues& symbols) {
  constexpr int fewest = 5;
  constexpr int most = 17;
  const double value = ValueOf(expression, symbols);
  const double tolerance = 1e-5 * std::min(1.0, std::abs(value));
  std::string text;
  for (int digits = fewest; digits <= most; ++digits) {
    text = WithNumbers(expression, symbols, digits);
    if (std::abs(ValueOf(ParseExpression(text)) - value) <= tolerance) {
      break;
    }
  }
  return text;
}

}  // namespace trelonit
