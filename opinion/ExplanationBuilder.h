#pragma once

#include <iterator>
#include <string>
#include <utility>
#include <vector>

#include "opinion/Explanation.h"
#include "opinion/Expression.h"

namespace trelonit {

inline void AppendTo(std::vector<Explanation>& explanations, std::vector<Explanation> more) {
  explanations.insert(explanations.end(), std::make_move_iterator(more.begin()),
                      std::make_move_iterator(more.end()));
}

/// Gathers the steps of one explanation; the symbols of a step are known to those after it.
class ExplanationBuilder {
 public:
  explicit ExplanationBuilder(Explanation head) : explanation_(std::move(head)) {}

  /// A figure that is given.
  void Given(const std::string& symbol, double value, const std::string& unit = {},
             const std::string& note = {}) {
    symbols_[symbol] = value;
    explanation_.Steps.push_back({.Symbol = symbol, .Value = value, .Unit = unit, .Note = note});
  }

  /// A figure with its formula. The value is the calculation's own.
  void Step(const std::string& symbol, const std::string& formula, double value,
            const std::string& unit = {}, const std::string& note = {}) {
    explanation_.Steps.push_back({.Symbol = symbol,
                                  .Formula = formula,
                                  .Substitution = Substituted(ParseExpression(formula), symbols_),
                                  .Value = value,
                                  .Unit = unit,
                                  .Note = note});
    symbols_[symbol] = value;
  }

  void OwnRule(std::string sentence) { explanation_.OwnRules.push_back(std::move(sentence)); }

  /// The check itself.
  Explanation Finish(std::string clause, const std::string& formula, double value) {
    explanation_.Clause = std::move(clause);
    explanation_.Formula = formula;
    explanation_.Substitution = Substituted(ParseExpression(formula), symbols_);
    explanation_.Value = value;
    explanation_.Passed = value <= explanation_.Limit;
    return std::move(explanation_);
  }

 private:
  Explanation explanation_;
  SymbolValues symbols_;
};

}  // namespace trelonit
