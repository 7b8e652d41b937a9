#pragma once

#include <vector>

#include "tests/workstation/design/AnyDesign.h"
#include "tests/workstation/main/Desk.h"
#include "variants/Study.h"

namespace trelonit::test {

/// The design of the program's start: 20 m, 10 panels, a load on each panel of the upper chord.
inline DesignInputs StartInputs(Long scheme = 1) {
  StartedDesk desk;
  desk.Main.imgTreloType_Click(scheme);
  DesignInputs inputs = desk.Main.ReadInputs();
  for (double& load : inputs.Loads.UpDistForce) {
    load = 1.2;
  }
  return inputs;
}

inline std::vector<Variant> AllOf(const VariantSpace& space, const StudyPlan& plan = {}) {
  std::vector<Variant> all;
  const std::atomic<bool> never{false};
  RunStudy(
      space, plan, Catalogue(),
      [&all](const std::vector<Variant>& batch) {
        all.insert(all.end(), batch.begin(), batch.end());
      },
      never);
  return all;
}

}  // namespace trelonit::test
