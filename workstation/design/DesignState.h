#pragma once

#include <cstddef>
#include <optional>
#include <string>

#include "checks/frmParamerty.h"
#include "workstation/design/Design.h"
#include "workstation/design/DesignInputs.h"

namespace trelonit {

/// What the boxes of the numbers show: what comes back is what was written.
struct DesignTexts {
  std::string LengthF;
  std::string Hight;
  std::string LenOporn;
  std::string PanelNum;
  std::string Ry;
  std::string UsloviyaRabot;
  std::string Nadegnost;
  SteelTexts Steel;

  friend bool operator==(const DesignTexts&, const DesignTexts&) = default;
};

/// A whole design as the main form holds and shows it, so that it can be shown again. Results are
/// not in it.
struct DesignState {
  DesignInputs Inputs;
  DesignTexts Texts;
  OwnWeightState OwnWeight;
  /// Own weight that the loads of a restored project seem to hold, tonnes per metre, until the user
  /// has decided.
  std::optional<double> OwnWeightInside;

  friend bool operator==(const DesignState&, const DesignState&) = default;
};

/// The tabs of the main form.
constexpr Integer schemeTab = 0;
constexpr Integer sectionTab = 1;
constexpr Integer calculateTab = 2;

/// Where on the main form a part of a design is seen.
struct DesignPlace {
  Integer Tab = 0;
  /// The group option whose section it is; 0 where it is no section.
  Long Option = 0;
};

/// Whether the user's loads are the same: own weight that a calculation has put into them is none
/// of theirs.
bool SameLoads(const DesignState& a, const DesignState& b);

/// Whether the user has designed the same truss. What only says how the inputs are shown - the
/// group, the load tool - and own weight that a calculation put into the loads is no design.
bool SameDesign(const DesignState& a, const DesignState& b);

/// Memory that a state takes.
std::size_t BytesOf(const DesignState& state);

}  // namespace trelonit
