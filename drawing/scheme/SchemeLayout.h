#pragma once

#include <vector>

#include "analysis/Scheme.h"
#include "catalogue/SectionRecord.h"
#include "platform/values/Arithmetic.h"

namespace trelonit {

// Where the bars and dimensions of a truss lie on the sheet, and in which order they are drawn.
// Force and geometry scheme share all of it. Millimetres and radians where nothing else is told.

/// A half turn as the drawings hold it: intended to end here, all rotations are made from it.
constexpr double drawingPi = 3.14159265359;

struct SheetPoint {
  Real X;
  Real Y;
};

/// The sizes of a truss and its place on the sheet; X is 0 at the left support.
struct SchemeSheet {
  Long n = 0;           ///< number of panels
  Real L;               ///< span
  Real H;               ///< height
  Real d;               ///< end panel, where the scheme has one of its own
  Real p;               ///< regular panel
  Real t;               ///< text height and unit of every offset: follows the height, not the span
  Real Upper;           ///< level of the upper chord
  Real Lower;           ///< level of the lower chord
  Real AngleOporn;      ///< slope of the support diagonals
  Real AngleRaskos;     ///< slope of the regular diagonals; 0 in scheme 3
  Real LenOpornRaskos;  ///< metres
  Real LenRaskos;       ///< metres

  const Scheme* Of = nullptr;

  /// Abscissa of the upper node k, 0 to n.
  Real NodeX(Long k) const;
  /// Abscissa of a lower node, by its index from 0.
  Real LowerX(Long joint) const;
  /// Index of the last lower node.
  Long LastLower() const;
};

/// The force scheme stands at the bottom of the sheet. Both raise 6 for sizes beyond the range of
/// Double and 9 for a panel count that no solved truss has.
SchemeSheet ForceSheet(const TreloData& data, const TreloResult& result);
/// The geometry scheme stands clear above it.
SchemeSheet GeometrySheet(const TreloData& data, const TreloResult& result);

struct SchemeBar {
  SheetPoint From;
  SheetPoint To;
  SectionPlace Group = sectionUpPoyas;
  Long Number = 0;  ///< place in the force array of its group; all diagonals share one array
  Real Length;      ///< the length that it is labelled with, metres
  Real Rotation;    ///< of its labels
};

struct SchemeDimension {
  SheetPoint From;
  SheetPoint To;
  SheetPoint Location;
  Real Rotation;
};

/// Both in the order of drawing: upper chord, diagonals, verticals, lower chord; chains, overall
/// dimension, height.
struct SchemeLayout {
  std::vector<SchemeBar> Bars;
  std::vector<SchemeDimension> Dimensions;
};

/// Both chords at full length, a vertical at every node.
SchemeLayout LayoutOfScheme1(const SchemeSheet& sheet);
/// Lower chord shorter by both ends, no end verticals.
SchemeLayout LayoutOfScheme2(const SchemeSheet& sheet);
/// A zigzag lattice of equal panels without verticals.
SchemeLayout LayoutOfScheme3(const SchemeSheet& sheet);
/// Diagonals in pairs, a vertical at every second node.
SchemeLayout LayoutOfScheme4(const SchemeSheet& sheet);

}  // namespace trelonit
