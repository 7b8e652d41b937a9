#include "workstation/design/Selection.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "analysis/Scheme.h"
#include "checks/ElementGroups.h"
#include "checks/modCheckueStress.h"
#include "platform/values/Arithmetic.h"
#include "workstation/design/modHelper.h"

namespace trelonit {

namespace {

const GroupCheck& CheckOf(const CheckResult& check, GroupOption group) {
  return check.*RowOf(GroupOfOption(group)).Block;
}

class Search {
 public:
  Search(const Calculation& calculation, const ProfileTypeArray& catalogue, Messages& told)
      : calculation_(calculation), catalogue_(catalogue), told_(told) {
    proposal_.Sections = calculation.ElementSection;
    proposal_.Check = calculation.CheckData;
  }

  SelectionProposal Run() {
    for (const GroupOption group :
         {optionUpPoyas, optionDwnPoyas, optionRaskos, optionStoyka, optionOpornRaskos}) {
      if (group != optionStoyka || HasVerticals(calculation_.TreloData.TreloType)) {
        Walk(group);
      }
    }
    return std::move(proposal_);
  }

 private:
  double Use(GroupOption group) const { return LargestUse(CheckOf(proposal_.Check, group)); }

  void PutRecord(SectionRec& section, Long size) const {
    section.SizeIdx = size;
    section.Profile = catalogue_[section.TypeIdx].Rec[size];
  }

  void Try(GroupOption group, SectionRec& section, Long size) {
    PutRecord(section, size);
    if (section.Paired) {
      section.Gdist = GapForThickness(section.Gdist, section.Profile.s);
    }
    if (checked_ == group &&
        RecheckGroup(proposal_.Check, GroupOfOption(group), calculation_.TreloData,
                     calculation_.TreloResult, calculation_.Numbers, proposal_.Sections)) {
      return;
    }
    Outcome<CheckResult> check = CheckueStress(calculation_.TreloData, calculation_.TreloResult,
                                               calculation_.Numbers, proposal_.Sections);
    proposal_.Check = check.Value;
    TellOnce(check.Told);
    checked_ = group;
  }

  /// A search tries hundreds of sizes, and what is wrong with the truss is wrong at each of them.
  void TellOnce(const Messages& messages) {
    for (const Message& message : messages) {
      if (std::find(told_.begin(), told_.end(), message) == told_.end()) {
        told_.push_back(message);
      }
    }
  }

  void Walk(GroupOption group) {
    SectionRec& section = proposal_.Sections[PlaceOfOption(group)];
    if (Use(group) > 1) {
      WalkUp(group, section);
    } else {
      WalkDown(group, section);
    }
  }

  void WalkUp(GroupOption group, SectionRec& section) {
    const Long last = catalogue_[section.TypeIdx].Rec.UpperBound();
    while (Use(group) > 1 && section.SizeIdx < last) {
      Try(group, section, section.SizeIdx + 1);
    }
    if (Use(group) > 1) {
      proposal_.Impossible.insert(group);
    }
  }

  // Three things here are intended, being how the search settles: a group that comes with exactly 1
  // moves one size up; a walk that reaches the first size stays there even if only the second
  // passed; and the step back is plain, so that gap and figures stay as the last try left them.
  void WalkDown(GroupOption group, SectionRec& section) {
    while (Use(group) < 1 && section.SizeIdx > 1) {
      Try(group, section, section.SizeIdx - 1);
    }
    if (section.SizeIdx > 1) {
      // Above the last size, where only exactly 1 leads, there is none.
      const Long last = catalogue_[section.TypeIdx].Rec.UpperBound();
      PutRecord(section, std::min(section.SizeIdx + 1, last));
    }
  }

  const Calculation& calculation_;
  const ProfileTypeArray& catalogue_;
  Messages& told_;
  SelectionProposal proposal_;
  /// The group since whose first try the check has been made with the sections as they are: the
  /// other groups' figures need not be found again. A step back at a walk's end ends this.
  std::optional<GroupOption> checked_;
};

}  // namespace

SelectionProposal SelectSections(const Calculation& calculation, const ProfileTypeArray& catalogue,
                                 Messages& told) {
  return Search(calculation, catalogue, told).Run();
}

double GapForThickness(double gap, double thickness) {
  const Real least = 0.8 * Real(thickness);
  const Real most = 1.2 * Real(thickness);
  return least <= gap && gap <= most ? gap : thickness;
}

}  // namespace trelonit
