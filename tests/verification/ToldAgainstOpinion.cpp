#include "tests/verification/ToldAgainstOpinion.h"

#include <algorithm>
#include <stdexcept>

#include "checks/ElementGroups.h"
#include "tests/verification/RandomRoofs.h"
#include "tests/workstation/design/AnyDesign.h"
#include "workstation/design/SecondOpinion.h"
#include "workstation/design/Selection.h"
#include "workstation/design/modHelper.h"

namespace trelonit::verification {

namespace {

/// Selects once and calculates with what was selected.
Calculation SelectAndCalculate(RandomRoof roof) {
  const Calculation before = Calculate(roof.Inputs, roof.Numbers).Value;
  Messages told;
  roof.Inputs.ElementSection = SelectSections(before, test::Catalogue(), told).Sections;
  return Calculate(roof.Inputs, roof.Numbers).Value;
}

bool PassesAsTold(const Calculation& calculation) {
  return std::all_of(elementGroups.begin(), elementGroups.end(), [&](const ElementGroupRow& row) {
    const GroupCheck& group = calculation.CheckData.*row.Block;
    return group.Area > 0 && LargestUse(group) <= 1;
  });
}

bool IsOutOfPlane(MemberCheck check) {
  return check == MemberCheck::StabY || check == MemberCheck::FlexY;
}

void Count(Tally& tally, const Opinion& opinion, const TreloData& data) {
  bool refused = false;
  bool inOther = false;
  bool inPlane = false;
  for (const GroupJudgement& group : opinion.Groups) {
    for (const MemberCheckRow& row : memberChecks) {
      if (group.Figure(row.Check) <= 1) {
        continue;
      }
      ++tally.ByCheck[group.Group][static_cast<std::size_t>(row.Check)];
      refused = true;
      const bool outOfPlane = IsOutOfPlane(row.Check);
      inOther = inOther || !outOfPlane || group.Group != ElementGroup::UpPoyas;
      inPlane = inPlane || !outOfPlane ||
                (group.Group != ElementGroup::UpPoyas && group.Group != ElementGroup::DwnPoyas);
    }
  }
  const auto upper = static_cast<std::size_t>(data.UpPoyasBrace - 1);
  const auto lower = static_cast<std::size_t>(data.DownPoyasBrace - 1);
  ++tally.Passing;
  ++tally.PassingByUpper[upper];
  ++tally.PassingByLower[lower];
  tally.RefusedByUpper[upper] += refused ? 1 : 0;
  tally.RefusedByLower[lower] += inOther ? 1 : 0;
  tally.Refused += refused ? 1 : 0;
  tally.RefusedInOther += inOther ? 1 : 0;
  tally.RefusedInPlane += inPlane ? 1 : 0;
}

}  // namespace

Tally CompareToldWithOpinion(Chance chance, int count) {
  Tally tally;
  for (; tally.Drawn < count; ++tally.Drawn) {
    const Calculation calculation = SelectAndCalculate(AnyRoof(chance));
    if (!PassesAsTold(calculation)) {
      continue;
    }
    const Opinion opinion = FormOpinion(Judged(calculation));
    if (opinion.HasRefused()) {
      throw std::runtime_error("no opinion: " + opinion.Refusal);
    }
    Count(tally, opinion, calculation.TreloData);
  }
  return tally;
}

}  // namespace trelonit::verification
