#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace trelonit {

/// A formula in plain arithmetic, as a tree: numbers with a point, symbols, + - * /, brackets and
/// sqrt(...). A minus may stand before the first term, of the whole or in brackets. A symbol is a
/// run of letters; what follows its first letter is its index ("Ry", "γn").
struct Expression {
  enum class Kind { Number, Symbol, Negation, Sum, Difference, Product, Quotient, Root, Brackets };
  Kind Is = Kind::Number;
  std::string Text;               ///< of a number or a symbol
  std::vector<Expression> Parts;  ///< two of an operation, one of a negation, a root or brackets
};

using SymbolValues = std::map<std::string, double, std::less<>>;

/// Raises 5 for a text that is no formula.
Expression ParseExpression(std::string_view text);

/// The value of a formula; raises 5 for a symbol without a value, 11, 6 and 5 as the arithmetic
/// does.
double ValueOf(const Expression& expression, const SymbolValues& symbols = {});

/// The formula as text again, with a number of this many significant digits in the place of each
/// symbol. Raises 6 for a value that is not finite.
std::string WithNumbers(const Expression& expression, const SymbolValues& symbols, int digits);

/// The same with as few digits as give the formula's value within 1e-5, and within 1e-5 of it.
std::string Substituted(const Expression& expression, const SymbolValues& symbols);

}  // namespace trelonit
