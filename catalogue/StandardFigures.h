#pragma once

#include "catalogue/ProfileRecord.h"
#include "catalogue/SectionGeometry.h"
#include "platform/values/Integers.h"

namespace trelonit {

/// What the published table of a standard holds for a section, as far as its dimensions tell: one
/// figure, or a range where the standard leaves the corners open.
struct ExpectedFigures {
  SectionFigures Low;
  SectionFigures High;
};

/// How closely one figure of a standard's table follows its geometry. The figure is in order when
/// it is off by no more than Percent, or by no more than LastUnits units of its last printed digit.
/// That digit is the table's, not the stored number's, which no longer knows its trailing zeros.
struct FigureRule {
  double Percent = 0;
  int Digits = 0;           ///< significant digits that the table prints
  double FinestUnit = 0;    ///< but none below this unit
  double CoarsestUnit = 0;  ///< and all down to this one
  double LastUnits = 0.5;   ///< 0.5 where the table rounds, 1 where it cuts off

  /// The allowed deviation from a computed figure, in its own unit (cm2 or cm4).
  double Allowance(double computed) const;
};

struct StandardRule {
  /// Raises 5 for dimensions that make no section, 6 beyond the range of Double.
  ExpectedFigures (*Compute)(const ProfileRec& record) = nullptr;
  FigureRule A;
  FigureRule Jy;
  FigureRule Jz;
};

constexpr Long standardCount = 22;

/// The rule of a standard, 1 to 22; raises 9 for any other.
const StandardRule& RuleOfStandard(Long standard);

}  // namespace trelonit
