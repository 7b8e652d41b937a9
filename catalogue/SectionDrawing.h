#pragma once

#include <vector>

#include "catalogue/SectionGeometry.h"
#include "catalogue/SectionRecord.h"

namespace trelonit {

// The composed section of a group as it is, for whoever draws it. X runs out of the plane of the
// truss, Y upward in it, both in mm.

/// A distance to be written beside the section.
struct SectionDimension {
  /// On which side of the section its line stands. Across: inside the section, along X, with the
  /// text to the right.
  enum class Side { Below, Above, Left, Right, Across };
  Side At = Side::Below;
  double From = 0;  ///< along the line: X, or Y for the left and the right side
  double To = 0;
  /// Where the measured points stand: Y, or X for the left and the right side.
  double EdgeFrom = 0;
  double EdgeTo = 0;
  double Value = 0;
  bool Diameter = false;
};

struct SectionDrawing {
  /// The outlines of the profiles and of their holes.
  std::vector<Outline> Profiles;
  std::vector<Outline> Holes;
  double Left = 0, Right = 0, Bottom = 0, Top = 0;
  double CentroidX = 0, CentroidY = 0;
  /// Those of one side from the section outward.
  std::vector<SectionDimension> Dimensions;
};

/// Raises 5 for dimensions that make no section, 9 for a standard that nobody has told the shape
/// of, 6 for a gap that is no number.
SectionDrawing DrawSection(const SectionRec& section);

}  // namespace trelonit
