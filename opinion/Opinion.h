#pragma once

#include <array>
#include <optional>
#include <string>
#include <vector>

#include "analysis/CheckRecord.h"
#include "analysis/Scheme.h"
#include "analysis/modDatatypes.h"
#include "catalogue/SectionRecord.h"
#include "checks/CheckNumbers.h"
#include "opinion/MemberCheck.h"
#include "opinion/Statics.h"

namespace trelonit {

// The second opinion: the design of the program's own calculation worked out anew, bar by bar, by
// statics and by the letter of SNiP II-23-81*. With that calculation it shares the inputs, the
// scheme's table and the composed sections, and none of its formulas. It changes nothing.

constexpr const char* normName = "СНиП II-23-81*";

/// A calculated design. References: it is read while the opinion is formed and not kept.
struct JudgedDesign {
  const TreloData& Data;  ///< with the loads that were calculated, own weight in them
  const TreloResult& Result;
  const CheckResult& Check;
  const SectionArray& Sections;
  const CheckNumbers& Numbers;
};

/// A bar in one plane. Lengths in metres.
struct PlaneJudgement {
  double Length = 0;
  double Slenderness = 0;
  double FlexBar = 0;    ///< conditional slenderness
  double Phi = 0;        ///< these three in a compressed bar only, otherwise 0
  int PhiFormula = 0;    ///< number of the norm's formula, 0 for none
  double Stability = 0;  ///< utilisation
  double Alpha = 0;      ///< of table 19*
  double Limit = 0;      ///< limit slenderness
  double Flex = 0;       ///< slenderness over its limit
};

struct BarJudgement {
  double Force = 0;  ///< tonnes, positive in tension
  /// A force below 1e-9 of the greatest of the truss is none.
  bool Compressed = false;
  double Strength = 0;
  PlaneJudgement X;
  PlaneJudgement Y;

  double Figure(MemberCheck check) const;
  /// The plane of a check; nothing for strength, which has none.
  const PlaneJudgement* PlaneOf(MemberCheck check) const;
};

struct GroupJudgement {
  ElementGroup Group = ElementGroup::UpPoyas;
  SectionProps Section;
  /// By MemberCheck: the greatest figure of the group's bars. 0 for stability without compression.
  std::array<double, memberCheckCount> Figures{};
  /// By MemberCheck: the place of the bar with that figure; nothing for stability without
  /// compression.
  std::array<std::optional<std::size_t>, memberCheckCount> Governing;

  double Figure(MemberCheck check) const { return Figures[static_cast<std::size_t>(check)]; }
  const std::optional<std::size_t>& GoverningBar(MemberCheck check) const {
    return Governing[static_cast<std::size_t>(check)];
  }
};

struct Opinion {
  /// Why there is no opinion, for the user; then all else is empty.
  std::string Refusal;
  Truss Model;
  Statics Forces;
  std::vector<BarJudgement> Bars;      ///< as in Model
  std::vector<GroupJudgement> Groups;  ///< in the order of the check record, those that exist
  double UpperHeld = 0;                ///< lengths of the chords out of the plane, metres
  double LowerHeld = 0;
  /// The forces and reactions of the program's own calculation with the loads as entered.
  Statics Told;
  std::vector<Residual> ToldResiduals;  ///< by joint of Model
  double GreatestForce = 0;             ///< of loads and forces, told and found: what noise is to

  /// Places of the joints that the told forces leave out of equilibrium.
  std::vector<std::size_t> UnbalancedJoints() const;
  /// The greatest of their residuals, tonnes; 0 where there is none.
  double GreatestResidual() const;
  /// Forces and loads below this are rounding, tonnes.
  double SmallestForce() const;

  bool HasRefused() const { return !Refusal.empty(); }
  /// Null for a group that the truss does not have.
  const GroupJudgement* FindGroup(ElementGroup group) const;
};

/// Forms the opinion. What cannot be judged (a reserved scheme, a failed or an old calculation,
/// sections or coefficients of 0, ...) gives a refusal; it never fails.
Opinion FormOpinion(const JudgedDesign& design);

/// The statics alone, for whoever tries sections under the same forces.
struct JudgedTruss {
  Truss Model;
  Statics Forces;
  double UpperHeld = 0;  ///< as in Opinion
  double LowerHeld = 0;  ///< as in Opinion
};
/// Raises 5 or 9 where the design is none, 11 or 6 where its geometry holds no forces.
JudgedTruss SolveTruss(const TreloData& data);

/// Judges the bars of one group with this section. Raises 5 for a section, a coefficient or a
/// buckling coefficient that is not positive, 11 or 6 beyond the range of Double.
GroupJudgement JudgeGroup(const JudgedTruss& truss, ElementGroup group, const SectionProps& section,
                          const CheckNumbers& numbers, std::vector<BarJudgement>& bars);

/// The greatest of a group's five figures.
double LargestFigure(const GroupJudgement& group);

}  // namespace trelonit
