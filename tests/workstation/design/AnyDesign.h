#pragma once

#include <functional>
#include <vector>

#include "catalogue/SectionLayouts.h"
#include "catalogue/modProfileData.h"
#include "resources/EmbeddedResources.h"
#include "tests/analysis/RandomDesigns.h"
#include "workstation/design/Calculation.h"

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

/// A design of the scheme; layouts by storage place.
inline trelonit::Design AnyDesign(const Pick& pick, Long scheme, const std::vector<Long>& layouts) {
  const std::vector<Long> counts = PanelCounts(scheme);
  trelonit::Design design;
  design.TreloData =
      Design(scheme, counts[static_cast<std::size_t>(pick(0, 6))], static_cast<double>(pick(6, 36)),
             static_cast<double>(pick(1, 4)), static_cast<double>(pick(5, 25)) / 10);
  design.TreloData.UpPoyasBrace = static_cast<Integer>(pick(1, 4));
  design.TreloData.DownPoyasBrace = static_cast<Integer>(pick(1, 4));
  LoadAny(design.TreloData.UpPForce, pick);
  LoadAny(design.TreloData.DwnDistForce, pick);
  for (Long place = 1; place <= sectionCount; ++place) {
    design.ElementSection[place] = AnySection(pick, layouts[static_cast<std::size_t>(place - 1)]);
  }
  return design;
}

}  // namespace trelonit::test
