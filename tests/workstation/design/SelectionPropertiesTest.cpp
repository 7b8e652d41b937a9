#include <gtest/gtest.h>
#include <map>
#include <rapidcheck/gtest.h>

#include "checks/ElementGroups.h"
#include "checks/modCheckueStress.h"
#include "tests/checks/Checks.h"
#include "tests/workstation/design/AnyDesign.h"
#include "workstation/design/Selection.h"
#include "workstation/design/modHelper.h"

namespace trelonit::test {
namespace {

Calculation PickCalculation() {
  const Pick pick = [](Long low, Long high) { return *rc::gen::inRange<Long>(low, high + 1); };
  std::vector<Long> layouts(sectionCount);
  for (Long& layout : layouts) {
    layout = pick(1, sectionLayoutCount);
  }
  CheckNumbers numbers = StartNumbers();
  numbers.Ry = static_cast<double>(pick(150, 500));
  numbers.LimitUser = static_cast<double>(pick(60, 400));
  return Calculate(AnyDesign(pick, PickScheme(), layouts), numbers).Value;
}

/// The greatest coefficient of a group with a size of its standard, everything else as calculated.
double UseWith(const Calculation& calculation, const ElementGroupRow& row, Long size, double gap) {
  SectionArray sections = calculation.ElementSection;
  SectionRec& section = sections[row.Place];
  section.SizeIdx = size;
  section.Profile = Catalogue()[section.TypeIdx].Rec[size];
  section.Gdist = gap;
  const CheckResult check =
      CheckueStress(calculation.TreloData, calculation.TreloResult, calculation.Numbers, sections)
          .Value;
  return LargestUse(check.*row.Block);
}

/// The gap after trying the sizes from one to another, both included, one by one.
double GapAfter(const SectionRec& section, Long from, Long to) {
  double gap = section.Gdist;
  const Long step = to < from ? -1 : 1;
  for (Long size = from; section.Paired && size != to + step; size += step) {
    gap = GapForThickness(gap, Catalogue()[section.TypeIdx].Rec[size].s);
  }
  return gap;
}

/// One group's end of the search, by what it promises.
void RequirePromises(const Calculation& calculation, const SelectionProposal& proposal,
                     const ElementGroupRow& row) {
  const SectionRec& before = calculation.ElementSection[row.Place];
  const SectionRec& after = proposal.Sections[row.Place];
  const Long last = Catalogue()[before.TypeIdx].Rec.UpperBound();
  const double entry = LargestUse(calculation.CheckData.*row.Block);
  const auto use = [&](Long size, double gap) { return UseWith(calculation, row, size, gap); };

  RC_ASSERT(after.TypeIdx == before.TypeIdx);
  RC_ASSERT(after.Layout == before.Layout);
  RC_ASSERT(after.Profile == Catalogue()[after.TypeIdx].Rec[after.SizeIdx]);
  if (entry > 1) {
    RC_ASSERT(after.SizeIdx >= before.SizeIdx);
    const bool passes = after.SizeIdx > before.SizeIdx && use(after.SizeIdx, after.Gdist) <= 1;
    RC_ASSERT(proposal.Impossible.contains(OptionOf(row.Group)) == !passes);
    RC_ASSERT(passes || after.SizeIdx == last);
    // No smaller size on the way would have done.
    for (Long size = before.SizeIdx + 1; size < after.SizeIdx; ++size) {
      RC_ASSERT(use(size, GapAfter(before, before.SizeIdx + 1, size)) > 1);
    }
  } else if (entry < 1 && before.SizeIdx > 1) {
    RC_ASSERT(after.SizeIdx <= before.SizeIdx);
    RC_ASSERT(!proposal.Impossible.contains(OptionOf(row.Group)));
    // Every size on the way down to the result passes with room to spare; the next one did not, or
    // there is none.
    for (Long size = before.SizeIdx - 1; size >= after.SizeIdx && size > 1; --size) {
      RC_ASSERT(use(size, GapAfter(before, before.SizeIdx - 1, size)) < 1);
    }
    if (after.SizeIdx > 1) {
      const Long failed = after.SizeIdx - 1;
      RC_ASSERT(use(failed, GapAfter(before, before.SizeIdx - 1, failed)) >= 1);
    }
  }
}

RC_GTEST_PROP(SelectionOfAnyDesign, StopsAtTheFirstSizeThatPassesOrTheLastThatDoes, ()) {
  const Calculation calculation = PickCalculation();
  Messages told;
  const SelectionProposal proposal = SelectSections(calculation, Catalogue(), told);
  for (const ElementGroupRow& row : elementGroups) {
    if (row.Group == ElementGroup::Stoyka && calculation.TreloData.TreloType == 3) {
      RC_ASSERT(proposal.Sections[row.Place] == calculation.ElementSection[row.Place]);
    } else {
      RequirePromises(calculation, proposal, row);
    }
  }
}

RC_GTEST_PROP(SelectionOfAnyDesign, TellsNothingTwice, ()) {
  Messages told;
  SelectSections(PickCalculation(), Catalogue(), told);
  for (const Message& message : told) {
    RC_ASSERT(std::count(told.begin(), told.end(), message) == 1);
  }
}

}  // namespace
}  // namespace trelonit::test
