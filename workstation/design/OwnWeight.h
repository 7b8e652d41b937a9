#pragma once

#include <optional>

#include "analysis/modDatatypes.h"
#include "catalogue/SectionRecord.h"
#include "workstation/design/Calculation.h"

namespace trelonit {

// Own weight: how it gets into the loads of a design, out of them again, and how it is found in
// those of a restored project.

/// The mass of a calculated truss over the sum of both chord lengths, rounded to 4 decimals, tonnes
/// per metre. Raises 6 or 11 for a calculation without lengths.
double OwnWeightPerMetreOf(const Calculation& calculation);

/// Brings the own weight inside the distributed loads to this amount. False, and nothing is
/// done, when just this amount is inside already.
bool PutOwnWeight(LoadArrays& loads, OwnWeightState& state, double perMetre);

/// Takes the amount that is inside out of the loads. An amount that is not positive cannot
/// be taken out: false. Either way own weight counts as not added from then on.
bool WithdrawOwnWeight(LoadArrays& loads, OwnWeightState& state);

/// The own weight that these loads seem to hold already, tonnes per metre: an amount that every
/// panel of both chords has, the lower ones nothing else, and that a truss of these sections may
/// weigh (no more than three times its own weight per metre of chord). Nothing where there is none;
/// a ceiling along the whole lower chord is heavier as a rule, but only the user can tell.
/// Density in t/m3.
std::optional<double> OwnWeightInside(const TreloData& data, const SectionArray& sections,
                                      double density);

}  // namespace trelonit
