#pragma once

#include "analysis/modDatatypes.h"
#include "catalogue/SectionRecord.h"

namespace trelonit {

/// What the commands have brought into the distributed loads of a design.
struct OwnWeightState {
  bool Added = false;   ///< it is inside the loads at present
  double PerMetre = 0;  ///< the amount, tonnes per metre; subtracting it restores the user's loads

  friend bool operator==(const OwnWeightState&, const OwnWeightState&) = default;
};

/// What of the distributed loads is no load of the user's, tonnes per metre.
inline double InsideOf(const OwnWeightState& ownWeight) {
  return ownWeight.Added ? ownWeight.PerMetre : 0;
}

/// One truss as it is to be calculated.
struct Design {
  /// The analysis input.
  struct TreloData TreloData;
  /// Subscripts by SectionPlace.
  SectionArray ElementSection{1, sectionCount};
  OwnWeightState OwnWeight;
};

}  // namespace trelonit
