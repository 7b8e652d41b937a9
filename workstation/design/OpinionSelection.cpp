#include "workstation/design/OpinionSelection.h"

#include <optional>
#include <vector>

#include "catalogue/SectionComposition.h"
#include "checks/ElementGroups.h"
#include "checks/modCheckueStress.h"
#include "opinion/Opinion.h"
#include "platform/errors/Guard.h"
#include "workstation/design/modHelper.h"

namespace trelonit {

namespace {

/// From this round on no group becomes smaller: sizes of the catalogue are not in the order of
/// their weight, and two of them could take turns for ever.
constexpr int lastFreeRound = 10;

class SearchByBoth {
 public:
  SearchByBoth(const Design& design, const ProfileTypeArray& catalogue, const CheckNumbers& numbers,
               bool ownWeight)
      : catalogue_(catalogue),
        numbers_(numbers),
        ownWeight_(ownWeight),
        given_(design.ElementSection),
        calculation_{design} {}

  SelectionProposal Run() {
    SelectionProposal proposal;
    do {
      ++proposal.Rounds;
      Calculate();
      proposal.Impossible.clear();
    } while (ChooseSizes(proposal) && ownWeight_);
    Calculate();
    proposal.Sections = calculation_.ElementSection;
    proposal.Check = calculation_.CheckData;
    proposal.Settled = std::move(calculation_);
    return proposal;
  }

 private:
  void Calculate() {
    // With the sections as they are by now, on the loads of the round before.
    const Design& design = calculation_;
    calculation_ = ownWeight_ ? CalculateWithOwnWeight(design, numbers_)
                              : trelonit::Calculate(design, numbers_).Value;
  }

  /// Whether a group has changed.
  bool ChooseSizes(SelectionProposal& proposal) {
    const JudgedTruss truss = SolveTruss(calculation_.TreloData);
    std::vector<BarJudgement> bars(truss.Model.Bars.size());
    const bool onlyUp = proposal.Rounds >= lastFreeRound;
    bool changed = false;
    for (const ElementGroupRow& row : elementGroups) {
      if (row.Group == ElementGroup::Stoyka && !HasVerticals(calculation_.TreloData.TreloType)) {
        continue;
      }
      SectionRec& section = calculation_.ElementSection[row.Place];
      const SectionRec before = section;
      if (!ChooseSize(row, section, onlyUp ? before.SizeIdx : 1, truss, bars)) {
        proposal.Impossible.insert(OptionOf(row.Group));
      }
      changed = changed || !(section == before);
    }
    return changed;
  }

  /// Leaves the first size from this one on that passes, or the last of the standard.
  bool ChooseSize(const ElementGroupRow& row, SectionRec& section, Long first,
                  const JudgedTruss& truss, std::vector<BarJudgement>& bars) {
    const BoundedArray<ProfileRec>& sizes = catalogue_[section.TypeIdx].Rec;
    const double gap = given_[row.Place].Gdist;
    for (Long size = first; size <= sizes.UpperBound(); ++size) {
      section.SizeIdx = size;
      section.Profile = sizes[size];
      if (section.Paired) {
        section.Gdist = GapForThickness(gap, section.Profile.s);
      }
      if (PassesTold(row) && PassesOpinion(row, section, truss, bars)) {
        return true;
      }
    }
    return false;
  }

  bool PassesTold(const ElementGroupRow& row) {
    const CheckResult check = CheckueStress(calculation_.TreloData, calculation_.TreloResult,
                                            numbers_, calculation_.ElementSection)
                                  .Value;
    const GroupCheck& group = check.*row.Block;
    // A check that broke off has an empty record.
    return group.Area > 0 && LargestUse(group) <= 1;
  }

  bool PassesOpinion(const ElementGroupRow& row, const SectionRec& section,
                     const JudgedTruss& truss, std::vector<BarJudgement>& bars) const {
    bool passes = false;
    PassOver([&] {
      passes =
          LargestFigure(JudgeGroup(truss, row.Group, ComposeSection(section), numbers_, bars)) <= 1;
    });
    return passes;
  }

  const ProfileTypeArray& catalogue_;
  const CheckNumbers& numbers_;
  bool ownWeight_;
  SectionArray given_;
  Calculation calculation_;
};

}  // namespace

SelectionProposal SelectByOpinion(const Design& design, const ProfileTypeArray& catalogue,
                                  const CheckNumbers& numbers, bool ownWeight) {
  return SearchByBoth(design, catalogue, numbers, ownWeight).Run();
}

}  // namespace trelonit
