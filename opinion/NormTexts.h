#pragma once

#include <string>

#include "opinion/Opinion.h"

namespace trelonit {

// Clauses and formulas that both kinds of explanation name.

constexpr const char* clauseStrength = "СНиП II-23-81*, п. 5.1, формула (5)";
constexpr const char* clauseStability = "СНиП II-23-81*, п. 5.3, формула (7)";

constexpr const char* clauseFlexCompressed = "СНиП II-23-81*, п. 6.15*, табл. 19*";
constexpr const char* clauseFlexTension = "СНиП II-23-81*, п. 6.16*, табл. 20*";

constexpr const char* formulaStrength = "N*γn*98.1/(A*Ry*γc)";
constexpr const char* formulaStability = "N*γn*98.1/(φ*A*Ry*γc)";
constexpr const char* formulaSlenderness = "100*lef/sqrt(J/A)";
constexpr const char* formulaConditional = "λ*sqrt(Ry/E)";
constexpr const char* formulaFlex = "λ/λu";

constexpr const char* ownRuleOfPhi =
    "При условной гибкости больше 35 у норм нет формулы: φ = 0,017 — правило программы.";

struct PhiText {
  std::string Formula;  ///< of λ̄
  std::string Clause;
};

/// The formula of the buckling coefficient with this number in the norm; 0 for the program's own
/// figure.
PhiText TextOfPhi(int formula);

/// The caption of a bracing option, 1 to 4; empty for another number.
std::string BracingCaption(Long bracing);

}  // namespace trelonit
