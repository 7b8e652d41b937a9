#include "workstation/history/DesignChange.h"

#include <vector>

#include "workstation/design/ElementGroups.h"
#include "workstation/results/ResultPicture.h"

namespace trelonit {

namespace {

using Changes = std::vector<DesignChange>;

void AddGeometry(Changes& changes, const DesignState& before, const DesignState& after) {
  const auto add = [&](bool differs, const char* name) {
    if (differs) {
      changes.push_back({.Name = name, .Place = {.Tab = schemeTab}});
    }
  };
  const DesignInputs& a = before.Inputs;
  const DesignInputs& b = after.Inputs;
  const bool scheme = a.TreloType != b.TreloType;
  add(scheme, "схема фермы");
  add(before.Texts.LengthF != after.Texts.LengthF, "длина фермы");
  add(before.Texts.Hight != after.Texts.Hight, "высота фермы");
  add(before.Texts.LenOporn != after.Texts.LenOporn, "опорная панель");
  // Another scheme brings its own panel count along.
  add(!scheme && before.Texts.PanelNum != after.Texts.PanelNum, "число панелей");
  add(a.UpPoyasBrace != b.UpPoyasBrace, "закрепление верхнего пояса");
  add(a.DownPoyasBrace != b.DownPoyasBrace, "закрепление нижнего пояса");
  add(a.ProgibOn != b.ProgibOn || a.LenLim != b.LenLim || a.ProgibUpper != b.ProgibUpper, "прогиб");
}

void AddSections(Changes& changes, const DesignState& before, const DesignState& after) {
  Changes groups;
  for (Long option = 1; option <= groupCount; ++option) {
    const SectionPlace place = PlaceOfOption(option);
    if (before.Inputs.ElementSection[place] != after.Inputs.ElementSection[place]) {
      groups.push_back({.Name = "сечение: " + GroupName(static_cast<GroupOption>(option)),
                        .Place = {.Tab = sectionTab, .Option = option}});
    }
  }
  if (groups.size() > 1) {
    changes.push_back({.Name = "сечения", .Place = {.Tab = sectionTab}});
  } else {
    changes.insert(changes.end(), groups.begin(), groups.end());
  }
}

void AddLoadTab(Changes& changes, const DesignState& before, const DesignState& after) {
  const auto add = [&](bool differs, const char* name) {
    if (differs) {
      changes.push_back({.Name = name, .Place = {.Tab = calculateTab}});
    }
  };
  const DesignInputs& a = before.Inputs;
  const DesignInputs& b = after.Inputs;
  // Loads that go with their joints are no change of their own, nor is the box that is cleared with
  // all loads.
  const bool cut = a.TreloType != b.TreloType || before.Texts.PanelNum != after.Texts.PanelNum;
  const bool loads =
      !cut && (!SameLoads(before, after) || before.OwnWeightInside != after.OwnWeightInside);
  add(loads, "нагрузки");
  add(!loads && a.OwnWeightOn != b.OwnWeightOn, "собственный вес");
  add(a.DinloadOn != b.DinloadOn, "динамические нагрузки");
  const bool steel = a.SteelName != b.SteelName;
  add(steel, "сталь");
  add(!steel && before.Texts.Ry != after.Texts.Ry, "Ry");
  add(!steel && before.Texts.UsloviyaRabot != after.Texts.UsloviyaRabot, "γc");
  add(!steel && before.Texts.Nadegnost != after.Texts.Nadegnost, "γn");
  add(before.Texts.Steel != after.Texts.Steel, "параметры стали");
}

}  // namespace

DesignChange ChangeBetween(const DesignState& before, const DesignState& after) {
  Changes changes;
  AddGeometry(changes, before, after);
  AddSections(changes, before, after);
  AddLoadTab(changes, before, after);
  return changes.size() == 1 ? changes.front() : DesignChange{.Name = "проект"};
}

}  // namespace trelonit
