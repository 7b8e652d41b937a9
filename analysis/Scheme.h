#pragma once

#include <cstddef>
#include <limits>
#include <optional>
#include <vector>

#include "analysis/ElementGroup.h"
#include "analysis/modDatatypes.h"

namespace trelonit {

// What a truss scheme is, in one table: where its joints stand, which bars join them, where it is
// held, how many panels it may have. Columns are the verticals through the upper joints, 0 to n;
// panel c lies between the columns c and c + 1.

/// Numbers of the joints in the table of bar forces, by column and panel count. In schemes 1 and 2
/// the lower joint of a column comes first up to the middle, from there on the upper one; in scheme
/// 2 the end columns have no lower joint.
struct JointsOfScheme1 {
  static constexpr Long Upper(Long column, Long n) { return 2 * column + (column < n / 2 ? 2 : 1); }
  static constexpr Long Lower(Long joint, Long n) { return 2 * joint + (joint < n / 2 ? 1 : 2); }
};
struct JointsOfScheme2 {
  static constexpr Long Upper(Long column, Long n) { return 2 * column + (column < n / 2 ? 1 : 0); }
  static constexpr Long Lower(Long joint, Long n) {
    return 2 * (joint + 1) + (joint + 1 < n / 2 ? 0 : 1);
  }
};
/// In zigzag order along the diagonals.
struct JointsOfScheme3 {
  static constexpr Long Upper(Long column, Long /*n*/) { return 2 * column + 1; }
  static constexpr Long Lower(Long joint, Long /*n*/) { return 2 * joint + 2; }
};
/// Three for every second column: its upper joint, the next upper one, the lower one under that.
struct JointsOfScheme4 {
  static constexpr Long Upper(Long column, Long /*n*/) { return 3 * (column / 2) + 1 + column % 2; }
  static constexpr Long Lower(Long joint, Long /*n*/) { return 3 * joint + 3; }
};

/// One scheme. Rules of a scheme are routines where they depend on the panel count n.
struct Scheme {
  Long Number = 0;
  /// Without joints and bars: the scheme has a place in the program and no body yet.
  bool Reserved = true;
  bool HasVerticals = true;
  /// Held at the ends of the lower chord, otherwise at those of the upper one.
  bool HeldBelow = true;
  /// The two end panels have a length of their own; otherwise all panels are L / n.
  bool OwnEndPanels = true;
  /// The lower chord has these end panels too.
  bool LowerEndPanels = false;
  /// Regular panels that a bar of the lower chord spans.
  Long PanelsOfLowerBar = 1;
  Long FewestPanels = 4;
  Long PanelStep = 2;
  /// Index of the last lower joint; null where it is not settled.
  Long (*LastLowerJoint)(Long n) = nullptr;
  /// Place of a lower joint in half columns: even under a column, odd between two of them.
  Long (*LowerHalfColumn)(Long joint) = nullptr;
  /// Whether the diagonal of a panel falls to the right, from its upper left to its lower right
  /// joint. Not asked where a lower joint stands between the columns: there both run to it.
  bool (*FallsToTheRight)(Long panel, Long n) = nullptr;
  /// Numbers of the joints: of the upper one of a column, of a lower one by its index.
  Long (*UpperNumber)(Long column, Long n) = nullptr;
  Long (*LowerNumber)(Long joint, Long n) = nullptr;
  /// Regular panels between the held joints of the lower chord where every second one is held, in
  /// the program's own checks; null where the chord counts by its longest panel.
  Long (*PanelsOfLowerStretch)(Long n) = nullptr;

  /// Whether the scheme exists with this many panels.
  bool HasPanelNum(Long n) const;
  /// Half a panel is what a diagonal spans where the lower joints stand between the columns.
  bool DiagonalsSpanHalfPanels() const { return !HasVerticals; }
  bool ShowsVerticals() const { return HasVerticals && !Reserved; }
};

/// The most panels on offer, in every scheme.
constexpr Long mostPanels = 30;
/// No truss has more joints, whatever a damaged input asks for.
constexpr Long mostJoints = 1000;

/// The row of a scheme; null for a number outside 1 to 10. The rows live as long as the program.
const Scheme* FindScheme(Long number);

/// Whether a scheme has verticals; one that is unknown has.
bool HasVerticals(Long scheme);

constexpr Long schemeCount = 10;

/// Length d of a regular panel, metres. Raises 11 for a panel count that leaves none.
double PanelLength(const TreloData& data);

/// A number of panels that a few more can be taken from: the smallest numbers there are, with which
/// nothing can be calculated either, would have none below them.
constexpr Long Subtractable(Long panelNum) {
  constexpr Long few = 4;
  constexpr Long smallest = std::numeric_limits<Long>::min() + few;
  return panelNum < smallest ? smallest : panelNum;
}

/// Upper bounds of the load arrays of a scheme; nothing where its joints are not settled yet.
std::optional<LoadBounds> BoundsOfLoads(Long treloType, Long panelNum);

enum class Chord { Upper, Lower };

/// Metres from the left end of the lower edge of the truss, Y upward.
struct TrussJoint {
  Chord Of = Chord::Upper;
  Long Index = 0;   ///< on its chord from the left, from 0: its place in the load arrays
  Long Number = 0;  ///< in the table of bar forces, from 1
  double X = 0;
  double Y = 0;
};

struct TrussBar {
  ElementGroup Group = ElementGroup::UpPoyas;
  Long Number = 0;  ///< in its group from the left, from 1
  /// Where its force stands in a result: the array and the subscript there.
  BoundedArray<double> TreloResult::*Forces = nullptr;
  Long Subscript = 0;
  std::size_t A = 0;  ///< places of its joints in Truss::Joints, the left one first
  std::size_t B = 0;
  double Length = 0;  ///< metres
};

/// A truss as joints and bars.
struct Truss {
  std::vector<TrussJoint> Joints;  ///< by their numbers, which run from left to right
  std::vector<TrussBar> Bars;      ///< chords, diagonals, verticals, each from left to right
  std::vector<std::size_t> Upper;  ///< places of a chord's joints, from left to right
  std::vector<std::size_t> Lower;
  std::size_t LeftSupport = 0;   ///< pinned
  std::size_t RightSupport = 0;  ///< on rollers

  const std::vector<std::size_t>& JointsOf(Chord chord) const {
    return chord == Chord::Upper ? Upper : Lower;
  }
};

/// The joints and bars of a design of schemes 1 to 4. Raises 5 for a reserved or unknown scheme and
/// for a panel count that the scheme does not have, 9 for more joints than any truss has.
Truss TrussOf(const TreloData& data);

}  // namespace trelonit
