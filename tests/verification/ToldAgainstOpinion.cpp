#include "tests/verification/ToldAgainstOpinion.h"

#include <algorithm>
#include <stdexcept>

#include "checks/ElementGroups.h"
#include "tests/verification/RandomRoofs.h"
#include "workstation/CalculationChain.h"
#include "workstation/Selection.h"
#include "workstation/SilentMessages.h"
#include "workstation/modHelper.h"

namespace trelonit::verification {

namespace {

/// Selects once and calculates with what was selected.
void SelectAndCalculate(RandomRoof& roof) {
  SilentMessages silent;
  AnalyseAndCheck(roof.Model, roof.Numbers, silent);
  roof.Model.ElementSection = SelectSections(roof.Model, roof.Numbers, silent).Sections;
  AnalyseAndCheck(roof.Model, roof.Numbers, silent);
}

bool PassesAsTold(const DesignModel& model) {
  return std::all_of(elementGroups.begin(), elementGroups.end(), [&](const ElementGroupRow& row) {
    const GroupCheck& group = model.CheckData.*row.Block;
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
    RandomRoof roof = AnyRoof(chance);
    SelectAndCalculate(roof);
    if (!PassesAsTold(roof.Model)) {
      continue;
    }
    const Opinion opinion = FormOpinion({.Data = roof.Model.TreloData,
                                         .Result = roof.Model.TreloResult,
                                         .Check = roof.Model.CheckData,
                                         .Sections = roof.Model.ElementSection,
                                         .Numbers = roof.Numbers});
    if (opinion.HasRefused()) {
      throw std::runtime_error("no opinion: " + opinion.Refusal);
    }
    Count(tally, opinion, roof.Model.TreloData);
  }
  return tally;
}

}  // namespace trelonit::verification
