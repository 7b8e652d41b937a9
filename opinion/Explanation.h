#pragma once

#include <optional>
#include <string>
#include <vector>

#include "opinion/Opinion.h"

namespace trelonit {

// How each figure came about: clause, formula, numbers, result, limit, verdict. One record for
// every check of the program's own calculation and of the opinion; windows, report and console show
// it in their own ways.

/// An intermediate figure.
struct ExplanationStep {
  std::string Symbol;
  std::string Formula;       ///< see Expression; empty for a figure that was given
  std::string Substitution;  ///< the formula with numbers
  double Value = 0;
  std::string Unit;
  std::string Note;  ///< where it comes from; empty where the formula says it all
};

enum class ExplanationSource { Told, Opinion };

struct Explanation {
  /// Nothing for a check of the whole truss.
  std::optional<ElementGroup> Group;
  std::string Check;      ///< for other programs: a key of memberChecks, "UserX", "UserY", "Progib"
  std::string CheckName;  ///< for the user
  ExplanationSource Source = ExplanationSource::Told;
  std::string Clause;
  std::string Formula;       ///< see Expression
  std::string Substitution;  ///< the formula with numbers; within 1e-4 it gives Value
  double Value = 0;          ///< utilisation
  double Limit = 1;
  bool Passed = false;
  std::vector<ExplanationStep> Steps;  ///< from what is given to what the formula uses
  /// Rules in it that are the program's own and not the norm's, a sentence each.
  std::vector<std::string> OwnRules;
  /// The bar that rules, as TrussBar::Number of its group; nothing where all bars share the figure.
  std::optional<Long> Bar;
};

/// The deflection of the program's own calculation and its limit, metres.
struct ToldDeflection {
  double Value = 0;
  double Limit = 0;
};

/// The checks of a group by the program's own calculation. Nothing that has no figure: a group
/// without compression has no stability.
std::vector<Explanation> ExplainToldGroup(const JudgedDesign& design, ElementGroup group);

/// The checks of the whole truss by the program's own calculation: its deflection, where that has a
/// limit.
std::vector<Explanation> ExplainToldTruss(const JudgedDesign& design,
                                          const std::optional<ToldDeflection>& deflection);

/// The checks of the program's own calculation, group after group, then those of the whole truss.
std::vector<Explanation> ExplainTold(const JudgedDesign& design,
                                     const std::optional<ToldDeflection>& deflection);

/// The checks of a group by the opinion, each by the bar that rules.
std::vector<Explanation> ExplainOpinionGroup(const JudgedDesign& design, const Opinion& opinion,
                                             ElementGroup group);

/// The checks of the opinion, group after group. Empty for a refusal.
std::vector<Explanation> ExplainOpinion(const JudgedDesign& design, const Opinion& opinion);

/// Both, the told ones first.
std::vector<Explanation> Explain(const JudgedDesign& design, const Opinion& opinion,
                                 const std::optional<ToldDeflection>& deflection);

}  // namespace trelonit
