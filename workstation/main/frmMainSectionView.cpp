#include "analysis/Scheme.h"
#include "catalogue/DesignationSearch.h"
#include "catalogue/SectionDrawing.h"
#include "platform/errors/Guard.h"
#include "workstation/main/frmMain.h"

// What stands beside the inputs of the sections: the composed section with its figures, its copies
// in other groups, the search of a size.

namespace trelonit {

void frmMain::ShowSectionOf(Long option) {
  shownGroup_ = option;
  if (SectionChanged) {
    SectionChanged();
  }
}

frmMain::ShownSection frmMain::DescribeSection() {
  ShownSection shown{.Locale = services_.Locale};
  PassOver([&] {
    const ElementGroup group = GroupOfOption(shownGroup_);
    shown.Group = OptionOf(group);
    const DesignInputs& inputs = ReadInputs();
    PassOver(
        [&] { shown.Drawing = DrawSection(inputs.ElementSection[PlaceOfOption(shownGroup_)]); });
    Design design{.ElementSection = inputs.ElementSection};
    // Sizes that make no truss leave the section its own figures.
    PassOver([&] { design.TreloData = ShownGeometry(); });
    if (const auto summary = SummariseSection(design, group, inputs.Density)) {
      shown.Facts = SectionFacts(*summary, services_.Locale);
    }
  });
  return shown;
}

std::vector<GroupOption> frmMain::CopyTargets() const {
  std::vector<GroupOption> targets;
  for (Long option = 1; option <= groupCount; ++option) {
    if (option != SelectedGroup() &&
        (option != optionStoyka || HasVerticals(Model.Inputs.TreloType))) {
      targets.push_back(static_cast<GroupOption>(option));
    }
  }
  return targets;
}

void frmMain::cmdCopySection_Click(const std::vector<GroupOption>& to) {
  Guard(services_.Messages, "cmdCopySection_Click", [&] {
    const SectionRec section = SelectedSection();
    for (const GroupOption group : to) {
      Model.Inputs.ElementSection[PlaceOfOption(group)] = section;
      ShowSection(group);
    }
    if (!to.empty()) {
      WithdrawOwnWeightOfOldSection();
    }
  });
}

std::vector<Long> frmMain::FindSizes(const std::string& query) const {
  std::vector<Long> places;
  for (const std::size_t place : FindDesignations(cmbSectType.List(), query)) {
    places.push_back(static_cast<Long>(place));
  }
  return places;
}

}  // namespace trelonit
