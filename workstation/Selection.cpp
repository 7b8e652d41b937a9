#include "workstation/Selection.h"

#include <algorithm>
#include <vector>

#include "analysis/Scheme.h"
#include "checks/ElementGroups.h"
#include "platform/Arithmetic.h"
#include "workstation/modHelper.h"

namespace trelonit {

namespace {

/// Passes each box on the first time only: a search tries hundreds of sizes, and what is wrong with
/// the truss is wrong at each of them.
class OnceMessages : public MessageService {
 public:
  explicit OnceMessages(MessageService& messages) : messages_(messages) {}

  MessageAnswer Show(const Message& message) override {
    if (std::find(shown_.begin(), shown_.end(), message) != shown_.end()) {
      return MessageAnswer::Ok;
    }
    shown_.push_back(message);
    return messages_.Show(message);
  }

 private:
  MessageService& messages_;
  std::vector<Message> shown_;
};

const GroupCheck& CheckOf(const CheckResult& check, GroupOption group) {
  return check.*RowOf(GroupOfOption(group)).Block;
}

class Search {
 public:
  Search(const DesignModel& model, const CheckNumbers& numbers, MessageService& messages)
      : model_(model), numbers_(numbers), messages_(messages) {
    proposal_.Sections = model.ElementSection;
    proposal_.Check = model.CheckData;
  }

  SelectionProposal Run() {
    for (const GroupOption group :
         {optionUpPoyas, optionDwnPoyas, optionRaskos, optionStoyka, optionOpornRaskos}) {
      if (group != optionStoyka || HasVerticals(model_.TreloData.TreloType)) {
        Walk(group);
      }
    }
    return std::move(proposal_);
  }

 private:
  double Use(GroupOption group) const { return LargestUse(CheckOf(proposal_.Check, group)); }

  void PutRecord(SectionRec& section, Long size) const {
    section.SizeIdx = size;
    section.Profile = model_.ProfileTypes[section.TypeIdx].Rec[size];
  }

  void Try(SectionRec& section, Long size) {
    PutRecord(section, size);
    if (section.Paired) {
      section.Gdist = GapForThickness(section.Gdist, section.Profile.s);
    }
    proposal_.Check = CheckueStress(model_.TreloData, model_.TreloResult, numbers_,
                                    proposal_.Sections, messages_);
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
    const Long last = model_.ProfileTypes[section.TypeIdx].Rec.UpperBound();
    while (Use(group) > 1 && section.SizeIdx < last) {
      Try(section, section.SizeIdx + 1);
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
      Try(section, section.SizeIdx - 1);
    }
    if (section.SizeIdx > 1) {
      // Above the last size, where only exactly 1 leads, there is none.
      const Long last = model_.ProfileTypes[section.TypeIdx].Rec.UpperBound();
      PutRecord(section, std::min(section.SizeIdx + 1, last));
    }
  }

  const DesignModel& model_;
  const CheckNumbers& numbers_;
  OnceMessages messages_;
  SelectionProposal proposal_;
};

}  // namespace

SelectionProposal SelectSections(const DesignModel& model, const CheckNumbers& numbers,
                                 MessageService& messages) {
  return Search(model, numbers, messages).Run();
}

double GapForThickness(double gap, double thickness) {
  const Real least = 0.8 * Real(thickness);
  const Real most = 1.2 * Real(thickness);
  return least <= gap && gap <= most ? gap : thickness;
}

}  // namespace trelonit
