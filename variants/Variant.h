#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "variants/VariantSpace.h"
#include "workstation/design/Calculation.h"

namespace trelonit {

enum class VariantVerdict {
  Passes,
  Fails,      ///< it is calculated, and something is beyond its limit
  Impossible  ///< it is not calculated, or no size of a standard is enough
};

/// One truss of a study: what it is made of and what it comes to.
struct Variant {
  std::uint64_t Number = 0;  ///< in the space, from 0
  /// With the chosen sizes and the loads on its own joints, without own weight in them: as a
  /// project it is calculated to these figures.
  DesignInputs Inputs;
  VariantVerdict Verdict = VariantVerdict::Impossible;
  /// Why it does not pass, for the user; and whether its sizes are the best of some that
  /// take turns.
  std::string Reason;
  // All 0 where it is impossible.
  double Mass = 0;  ///< tonnes
  /// By SectionPlace, from 0: the greatest coefficient of the group, of the second opinion too
  /// where sizes are chosen by both; 0 for verticals that there are none of.
  std::array<double, sectionCount> Use{};
  double Progib = 0;  ///< deflection of the chord that the base design names, metres
  int Rounds = 0;     ///< calculations with a selection until nothing changed
};

struct VariantRules {
  /// Sizes pass the program's own checks and the second opinion.
  bool ByOpinion = false;
};

/// Makes one variant: sizes that the geometry rules let through, loads on its joints, then
/// analysis, own weight where the base design asks for it, and automatic selection, again until
/// nothing changes; then the deflection. What keeps it from that is its reason. Raises nothing;
/// touches nothing that is shared.
Variant MakeVariant(const VariantSpace& space, std::uint64_t number, const VariantRules& rules,
                    const ProfileTypeArray& catalogue);

}  // namespace trelonit
