#pragma once

#include "catalogue/ProfileRecord.h"
#include "platform/values/BoundedArray.h"

namespace trelonit {

/// The section of one element group: a layout, a catalogue record and, for paired layouts, a gap.
struct SectionRec {
  Long TypeIdx = 0;     ///< the standard in the catalogue
  Long SizeIdx = 0;     ///< the record in that standard
  double Gdist = 0;     ///< clear gap between the two profiles of a pair, mm
  bool Paired = false;  ///< the layout was chosen as a paired one
  ProfileRec Profile;   ///< copy of the record: the checks never go back to the catalogue
  Long Layout = 0;      ///< 1 to 11

  friend bool operator==(const SectionRec&, const SectionRec&) = default;
};

/// Places of the element groups in storage. Intended to differ from the order of the options on
/// the form (verticals before support diagonals) and from the order of the check's blocks.
enum SectionPlace : Long {
  sectionUpPoyas = 1,
  sectionDwnPoyas = 2,
  sectionRaskos = 3,
  sectionOpornRaskos = 4,
  sectionStoyka = 5,
};
constexpr Long sectionCount = 5;

/// Subscripts 1 to 5, by SectionPlace.
using SectionArray = BoundedArray<SectionRec>;

/// Area in cm2, moments of inertia in the plane of the truss and out of it in cm4.
struct SectionProps {
  double Area = 0;
  double Jin = 0;
  double Jout = 0;
};

}  // namespace trelonit
