#pragma once

#include <string>

#include "workstation/design/DesignState.h"

namespace trelonit {

/// What a user sees as different between two states of a design.
struct DesignChange {
  /// As it stands in a menu: "высота фермы".
  std::string Name;
  DesignPlace Place;
};

/// Names the one thing that differs; several things that do not follow from each other are the
/// design as a whole.
DesignChange ChangeBetween(const DesignState& before, const DesignState& after);

}  // namespace trelonit
