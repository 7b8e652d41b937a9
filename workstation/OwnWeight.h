#pragma once

#include <optional>

#include "analysis/modDatatypes.h"
#include "catalogue/SectionRecord.h"
#include "workstation/DesignModel.h"

namespace trelonit {

/// The own weight that these loads seem to hold already, tonnes per metre: an amount that every
/// panel of both chords has, the lower ones nothing else, and that a truss of these sections may
/// weigh (no more than three times its own weight per metre of chord). Nothing where there is none;
/// a ceiling along the whole lower chord is heavier as a rule, but only the user can tell.
/// Density in t/m3.
std::optional<double> OwnWeightInside(const TreloData& data, const SectionArray& sections,
                                      double density);

/// The mass of the truss over the length of both its chords, tonnes per metre, from the geometry of
/// the scheme. Raises 5 for a truss that is none.
double WeightPerMetre(const TreloData& data, const SectionArray& sections, double density);

}  // namespace trelonit
