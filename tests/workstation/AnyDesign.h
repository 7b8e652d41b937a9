#pragma once

#include <functional>
#include <vector>

#include "catalogue/SectionLayouts.h"
#include "catalogue/modProfileData.h"
#include "checks/modCheckueStress.h"
#include "resources/EmbeddedResources.h"
#include "tests/analysis/RandomDesigns.h"
#include "workstation/DesignModel.h"

namespace trelonit::test {

/// The shipped catalogue.
inline const ProfileTypeArray& Catalogue() {
  static const ProfileTypeArray catalogue = [] {
    EmbeddedResources resources;
    World world(resources);
    return LoadProfileTypes(world.Bundle());
  }();
  return catalogue;
}

/// Picks from a range, both ends included.
using Pick = std::function<Long(Long, Long)>;

inline SectionRec AnySection(const Pick& pick, Long layout) {
  const SectionLayout& known = *FindSectionLayout(layout);
  SectionRec section;
  section.Layout = layout;
  section.Paired = known.Paired;
  section.TypeIdx = known.Standards[static_cast<std::size_t>(
      pick(0, static_cast<Long>(known.Standards.size()) - 1))];
  const BoundedArray<ProfileRec>& records = Catalogue()[section.TypeIdx].Rec;
  section.SizeIdx = pick(1, records.UpperBound());
  section.Profile = records[section.SizeIdx];
  section.Gdist = known.Paired ? static_cast<double>(pick(0, 24)) : 0;
  return section;
}

inline void LoadAny(BoundedArray<double>& loads, const Pick& pick) {
  for (double& load : loads) {
    load = static_cast<double>(pick(-2000, 8000)) / 1000;
  }
}

/// A solved and checked design of the scheme; layouts by storage place.
inline DesignModel AnyModel(const Pick& pick, Long scheme, const std::vector<Long>& layouts,
                            const CheckNumbers& numbers) {
  DesignModel model;
  const std::vector<Long> counts = PanelCounts(scheme);
  model.TreloData =
      Design(scheme, counts[static_cast<std::size_t>(pick(0, 6))], static_cast<double>(pick(6, 36)),
             static_cast<double>(pick(1, 4)), static_cast<double>(pick(5, 25)) / 10);
  model.TreloData.UpPoyasBrace = static_cast<Integer>(pick(1, 4));
  model.TreloData.DownPoyasBrace = static_cast<Integer>(pick(1, 4));
  LoadAny(model.TreloData.UpPForce, pick);
  LoadAny(model.TreloData.DwnDistForce, pick);
  model.Loads = model.TreloData;
  RecordingMessages messages;
  model.TreloResult = CalcTrelo(model.TreloData, messages);
  model.ProfileTypes = Catalogue();
  for (Long place = 1; place <= sectionCount; ++place) {
    model.ElementSection[place] = AnySection(pick, layouts[static_cast<std::size_t>(place - 1)]);
  }
  model.CheckData =
      CheckueStress(model.TreloData, model.TreloResult, numbers, model.ElementSection, messages);
  return model;
}

}  // namespace trelonit::test
