#include "workstation/design/SelectionComparison.h"

#include "analysis/Scheme.h"
#include "checks/ElementGroups.h"
#include "checks/modCheckueStress.h"
#include "workstation/design/modHelper.h"

namespace trelonit {

namespace {

std::optional<double> UseOf(const GroupCheck& check) {
  return check.Area > 0 ? std::optional(LargestUse(check)) : std::nullopt;
}

}  // namespace

SelectionComparison CompareSelection(const Calculation& before, const SelectionProposal& proposal) {
  const CheckResult after = proposal.Settled ? proposal.Settled->CheckData
                                             : CheckueStress(before.TreloData, before.TreloResult,
                                                             before.Numbers, proposal.Sections)
                                                   .Value;
  SelectionComparison comparison{.MassBefore = before.CheckData.Mass, .MassAfter = after.Mass};
  for (Long option = 1; option <= groupCount; ++option) {
    if (option == optionStoyka && !HasVerticals(before.TreloData.TreloType)) {
      continue;
    }
    const ElementGroupRow& row = RowOf(GroupOfOption(option));
    comparison.Groups.push_back({static_cast<GroupOption>(option),
                                 before.ElementSection[row.Place].Profile.Name.Trimmed(),
                                 proposal.Sections[row.Place].Profile.Name.Trimmed(),
                                 UseOf(before.CheckData.*row.Block), UseOf(after.*row.Block)});
  }
  return comparison;
}

}  // namespace trelonit
