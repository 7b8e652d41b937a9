#include "workstation/OpinionSelection.h"

#include <optional>
#include <vector>

#include "catalogue/SectionComposition.h"
#include "checks/ElementGroups.h"
#include "opinion/Opinion.h"
#include "platform/Guard.h"
#include "workstation/CalculationChain.h"
#include "workstation/SilentMessages.h"
#include "workstation/modHelper.h"

namespace trelonit {

namespace {

/// From this round on no group becomes smaller: sizes of the catalogue are not in the order of
/// their weight, and two of them could take turns for ever.
constexpr int lastFreeRound = 10;

class SearchByBoth {
 public:
  SearchByBoth(const DesignModel& model, const CheckNumbers& numbers, bool ownWeight)
      : model_(model), numbers_(numbers), ownWeight_(ownWeight), design_(model) {}

  SelectionProposal Run() {
    SelectionProposal proposal;
    do {
      ++proposal.Rounds;
      Calculate();
      proposal.Impossible.clear();
    } while (ChooseSizes(proposal) && ownWeight_);
    Calculate();
    proposal.Sections = design_.ElementSection;
    proposal.Check = design_.CheckData;
    proposal.Settled = std::move(design_);
    return proposal;
  }

 private:
  void Calculate() {
    AnalyseAndCheck(design_, numbers_, silent_);
    if (ownWeight_) {
      ApplyOwnWeight(design_, numbers_, silent_);
    }
  }

  /// Whether a group has changed.
  bool ChooseSizes(SelectionProposal& proposal) {
    const JudgedTruss truss = SolveTruss(design_.TreloData);
    std::vector<BarJudgement> bars(truss.Model.Bars.size());
    const bool onlyUp = proposal.Rounds >= lastFreeRound;
    bool changed = false;
    for (const ElementGroupRow& row : elementGroups) {
      if (row.Group == ElementGroup::Stoyka && !HasVerticals(design_.TreloData.TreloType)) {
        continue;
      }
      SectionRec& section = design_.ElementSection[row.Place];
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
    const BoundedArray<ProfileRec>& sizes = model_.ProfileTypes[section.TypeIdx].Rec;
    const double gap = model_.ElementSection[row.Place].Gdist;
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
    const CheckResult check = CheckueStress(design_.TreloData, design_.TreloResult, numbers_,
                                            design_.ElementSection, silent_);
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

  const DesignModel& model_;
  const CheckNumbers& numbers_;
  bool ownWeight_;
  Design design_;
  SilentMessages silent_;
};

}  // namespace

SelectionProposal SelectByOpinion(const DesignModel& model, const CheckNumbers& numbers,
                                  bool ownWeight) {
  return SearchByBoth(model, numbers, ownWeight).Run();
}

}  // namespace trelonit
