#pragma once

#include "platform/text/FixedText.h"
#include "platform/values/BoundedArray.h"

namespace trelonit {

// Units of all records here: forces and joint loads in tonnes, distributed loads in tonnes per
// metre, lengths in metres, angles in radians. Bar forces are positive in tension, loads downward.

/// The loads of both chords, zero-based: index i of a point load array is the i-th joint of that
/// chord from the left, index i of a distributed one the panel between joints i and i + 1.
struct LoadArrays {
  BoundedArray<double> UpPForce;
  BoundedArray<double> UpDistForce;
  BoundedArray<double> DwnPForce;
  BoundedArray<double> DwnDistForce;

  friend bool operator==(const LoadArrays&, const LoadArrays&) = default;
};

/// Upper bounds of the four load arrays; all lower bounds are 0.
struct LoadBounds {
  Long UpPForce = 0;
  Long UpDistForce = 0;
  Long DwnPForce = 0;
  Long DwnDistForce = 0;
};

/// Four arrays of zeros with these bounds. Raises 9 for a bound below 0: every chord has at least
/// one joint and one panel.
LoadArrays ZeroLoads(const LoadBounds& bounds);

/// The input of an analysis.
struct TreloData : LoadArrays {
  FixedText<50> ReservedText;  ///< not read; the record keeps its place
  Long TreloType = 1;          ///< scheme, 1 to 10
  double LengthF = 0;          ///< span L
  double Hight = 0;            ///< height H
  double Reserved1 = 0;        ///< not read
  double LenOporn = 0;         ///< length of each of the two end panels
  double Reserved2 = 0;        ///< not read
  Long PanelNum = 0;           ///< number of panels n
  Integer UpPoyasBrace = 0;    ///< out-of-plane bracing of the upper chord, 1 to 4
  Integer DownPoyasBrace = 0;  ///< the same for the lower chord
};

/// The output of an analysis. A reserved scheme and a failed solver give an empty one: numbers 0,
/// arrays unallocated. Bar force arrays are one-based, left to right.
struct TreloResult {
  Long KnotNum = 0;                  ///< number of joints J
  double AngleOporn = 0;             ///< slope of the support diagonals
  double AngleRaskos = 0;            ///< slope of the regular diagonals; 0 in scheme 3
  double LenPanel = 0;               ///< length d of a regular panel
  double LenOpornRaskos = 0;         ///< length of one support diagonal
  double LenRaskos = 0;              ///< length of one regular diagonal
  BoundedArray<double> UpKnotLoad;   ///< assembled loads of the upper joints, zero-based
  BoundedArray<double> DwnKnotLoad;  ///< the same for the lower joints
  double ReactLeft = 0;              ///< positive upward
  double ReactRight = 0;
  SquareTable<double> BarForce;        ///< J x J: force in the bar between two joints, else 0
  BoundedArray<double> UpPoyasForce;   ///< upper chord bars
  BoundedArray<double> DwnPoyasForce;  ///< lower chord bars
  BoundedArray<double> RaskosForce;    ///< diagonals; first and last are the support diagonals
  BoundedArray<double> StoykaForce;    ///< verticals
  bool Balanced = false;               ///< the closing residuals are zero at 4 decimals
  double SumLenUpPoyas = 0;
  double SumLenDwnPoyas = 0;
  double SumLenOpornRaskos = 0;
  double SumLenRaskos = 0;
  double SumLenStoyka = 0;
};

}  // namespace trelonit
