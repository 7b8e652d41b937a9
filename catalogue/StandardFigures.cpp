#include "catalogue/StandardFigures.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <limits>

#include "catalogue/StandardShapes.h"
#include "platform/values/BoundedArray.h"
#include "platform/values/Elementary.h"

namespace trelonit {
namespace {

ExpectedFigures Exactly(const SectionFigures& figures) {
  return {figures, figures};
}

/// GOST 8510-86* and GOST 8509-93.
ExpectedFigures Angle(const ProfileRec& record) {
  return Exactly(AngleSection(record));
}
/// GOST 8240, the series with parallel flanges.
ExpectedFigures ParallelChannel(const ProfileRec& record) {
  return Exactly(ChannelSection(record, 0));
}
/// GOST 8240-89.
ExpectedFigures SlopedChannel(const ProfileRec& record) {
  return Exactly(ChannelSection(record, slopeOfChannels));
}
/// GOST 8239-89.
ExpectedFigures SlopedI(const ProfileRec& record) {
  return Exactly(ISection(record, slopeOfBeams));
}
/// GOST 26020-83.
ExpectedFigures ParallelI(const ProfileRec& record) {
  return Exactly(ISection(record, 0));
}
/// TU 14-2-685-86.
ExpectedFigures Tee(const ProfileRec& record) {
  return Exactly(TeeSection(record));
}
/// GOST 8278-83.
ExpectedFigures BentChannel(const ProfileRec& record) {
  return Exactly(BentChannelSection(record));
}
/// GOST 10704-91.
ExpectedFigures Round(const ProfileRec& record) {
  return Exactly(RoundTube(record));
}
/// GOST 8639-68, TU 36-2287-80 and TU 67-2287-80: the published figures follow sharp corners.
ExpectedFigures SharpTube(const ProfileRec& record) {
  return Exactly(RectangularTube(record, 0, 0));
}

/// Corners of concentric arcs; the outer radius is so many walls.
SectionFigures ConcentricTube(const ProfileRec& record, double outerRadiusInWalls) {
  return FiguresOf(ConcentricTubeShape(record, outerRadiusInWalls));
}

/// GOST 12336-66: the published first rows follow corners of 3 and 2 walls.
ExpectedFigures WideCornerTube(const ProfileRec& record) {
  return Exactly(ConcentricTube(record, cornersOf12336));
}

/// GOST 30245-94. Sizes from a developed width of B + H = 400 mm up (200x200, 300x200) follow
/// corners of 2 and 1 walls. The figures of the smaller ones lie anywhere between those corners and
/// sharp ones, without a rule; so an error there is seen only when it leads out of that range.
ExpectedFigures Tube30245of94(const ProfileRec& record) {
  constexpr double firstLargeWidth = 400;
  const SectionFigures rounded = ConcentricTube(record, cornersOf30245of94);
  if (Real(record.B) + record.H < firstLargeWidth) {
    return {rounded, RectangularTube(record, 0, 0)};
  }
  return Exactly(rounded);
}

/// GOST 30245-2003: the outer radius grows with the wall, and the published moments of inertia
/// leave out the own inertia of the two flat walls parallel to the axis (up to 1.4 % for narrow
/// thick sections).
ExpectedFigures Tube30245of2003(const ProfileRec& record) {
  const double radiusInWalls = CornersOf30245of2003(record.s);
  SectionFigures figures = ConcentricTube(record, radiusInWalls);
  const Real wall = record.s;
  const Real corners = 2 * radiusInWalls * wall;
  constexpr double mm4InCm4 = 1e4;
  const Real ownInertiaPerLength = 2 * (wall * wall * wall / 12) / mm4InCm4;
  figures.Jy = figures.Jy - (record.B - corners) * ownInertiaPerLength;
  figures.Jz = figures.Jz - (record.H - corners) * ownInertiaPerLength;
  return Exactly(figures);
}

/// GOST 8645-68: the table is computed for an outer radius of 1.5 walls, and its moments of inertia
/// leave out the own inertia of the four corner rings (up to 3.8 % for narrow thick sections).
ExpectedFigures Tube8645(const ProfileRec& record) {
  SectionFigures figures = ConcentricTube(record, cornersOf8645);
  const Real corners =
      4 * QuarterRingInertia(cornersOf8645 * Real(record.s), (cornersOf8645 - 1) * Real(record.s));
  figures.Jy = figures.Jy - corners;
  figures.Jz = figures.Jz - corners;
  return Exactly(figures);
}

/// A figure printed (or computed) with the same decimals whatever its size.
consteval FigureRule Decimals(double percent, double unit, double lastUnits = 0.5) {
  return {percent, 1, unit, unit, lastUnits};
}

constexpr double noLimit = std::numeric_limits<double>::max();

// The tolerances are the program's own rule. Percent is the smallest round value that leaves only
// single misfits of a published table on the list. What stands behind each:
constexpr std::array<StandardRule, standardCount> rules{{
    // 1, unequal angles (GOST 8510-86*): two decimals throughout. Four sizes (L125x80x8, L100x63x6,
    // L100x63x10, L140x90x8) are printed 0.02 to 0.12 % off.
    {Angle, Decimals(0.15, 0.01), Decimals(0.1, 0.01), Decimals(0.1, 0.01)},
    // 2, equal angles (GOST 8509-93): two decimals; some sizes come from tables with one decimal or
    // with whole numbers (L125x9 with A 22 is 0.09 % off, L63x5 with J 23.1 0.19 %).
    {Angle, Decimals(0.1, 0.01), Decimals(0.2, 0.01), Decimals(0.2, 0.01)},
    // 3 and 4, channels (GOST 8240): three digits, tens above 1000; only the area of the first size
    // (two decimals) is more than its rounding off, 0.096 %.
    {ParallelChannel, {0.1, 3, 0.01, 1}, {0.1, 3, 0.01, 10}, {0.1, 3, 0.01, 1}},
    {SlopedChannel, {0.1, 3, 0.01, 1}, {0.1, 3, 0.01, 10}, {0.1, 3, 0.01, 1}},
    // 5, I sections with sloped flanges (GOST 8239-89): three digits, tens above 1000. Jz of No. 24
    // is cut off (198.51 is printed 198, 0.26 %).
    {SlopedI, {0.1, 3, 0.01, 1}, {0.1, 3, 0.01, 10}, {0.3, 3, 0.01, 1}},
    // 6 and 7, I sections with parallel flanges (GOST 26020-83): four digits. Jz is low by up to
    // 0.08 % in a third of the sizes: the table's own method.
    {ParallelI, {0.05, 4, 0.01, 0.1}, {0.05, 4, 1, 100}, {0.1, 4, 0.1, 10}},
    {ParallelI, {0.05, 4, 0.01, 0.1}, {0.05, 4, 1, 100}, {0.1, 4, 1, 10}},
    // 8 and 9, tees (TU 14-2-685-86): area with two decimals, inertia with three digits, tens above
    // 1000. In 9, Jz of 20ШТ2 (3604.95 is printed 3610, 0.14 %) just misses its rounding.
    {Tee, Decimals(0.05, 0.01), {0.05, 3, 1, 10}, {0.05, 3, 1, 10}},
    {Tee, Decimals(0.05, 0.01), {0.05, 3, 1, 10}, {0.15, 3, 1, 10}},
    // 10 and 11, cold-bent channels (GOST 8278-83): two decimals, the last of them cut off in a
    // part of the sizes (5.4053 is printed 5.40). In 10, A of 180x70x6 is 0.07 % low, Jz of
    // 160x40x3 0.15 % high.
    {BentChannel, Decimals(0.1, 0.01, 1), Decimals(0.05, 0.01, 1), Decimals(0.15, 0.01, 1)},
    {BentChannel, Decimals(0.05, 0.01, 1), Decimals(0.05, 0.01, 1), Decimals(0.05, 0.01, 1)},
    // 12 and 13, tubes by GOST 30245-94: one decimal up to 100 cm2 and 1000 cm4, whole numbers
    // above. Areas go up to 0.14 % beyond sharp corners (42.24 is printed 42.3), inertias of thick
    // walls are up to 0.1 % low.
    {Tube30245of94, {0.15, 3, 0.1, 1}, {0.1, 4, 0.1, 1}, {0.1, 4, 0.1, 1}},
    {Tube30245of94, {0.15, 3, 0.1, 1}, {0.1, 4, 0.1, 1}, {0.1, 4, 0.1, 1}},
    // 14, round tubes (GOST 10704-91): area with two decimals, inertia computed with six digits.
    {Round, Decimals(0, 0.01), {0.001, 6, 0, noLimit}, {0.001, 6, 0, noLimit}},
    // 15 and 16, tubes by GOST 30245-2003: four digits, two decimals at most; 0.052 % is the worst
    // that the standard's method leaves beyond that.
    {Tube30245of2003, {0.06, 4, 0.01, 0.1}, {0.06, 4, 0.01, 1}, {0.06, 4, 0.01, 1}},
    {Tube30245of2003, {0.06, 4, 0.01, 0.1}, {0.06, 4, 0.01, 1}, {0.06, 4, 0.01, 1}},
    // 17 and 19, tubes by GOST 12336-66: figures computed with the corners of the published first
    // rows, inertia with one decimal from 10 cm4 up. 18 and 20, tubes by technical conditions:
    // sharp corners, inertia with one decimal; in 20 four published Jz are rounded to whole numbers
    // (116.58 is printed 117, 0.36 %).
    {WideCornerTube, Decimals(0, 0.01), {0, 3, 0.01, 0.1}, {0, 3, 0.01, 0.1}},
    {SharpTube, Decimals(0, 0.01), Decimals(0, 0.1), Decimals(0, 0.1)},
    {WideCornerTube, Decimals(0, 0.01), {0, 3, 0.01, 0.1}, {0, 3, 0.01, 0.1}},
    {SharpTube, Decimals(0, 0.01), Decimals(0.05, 0.1), Decimals(0.4, 0.1)},
    // 21, square tubes by GOST 8639-68: two decimals (area) and four digits with two decimals at
    // most, the last digit cut off (1.44 is printed 1.43). J of 100x6 and 120x9 is 0.1 % low.
    {SharpTube, Decimals(0.05, 0.01, 1), {0.15, 4, 0.01, 1, 1}, {0.15, 4, 0.01, 1, 1}},
    // 22, rectangular tubes by GOST 8645-68: digits as 21, which costs up to 8.5 % of the Jz of the
    // smallest sizes; Jz of 90x50x3 is 0.157 % low.
    {Tube8645, Decimals(0.05, 0.01, 1), {0.1, 4, 0.01, 1, 1}, {0.16, 4, 0.01, 1, 1}},
}};

/// Lets a figure that stands exactly on the edge of its rounding pass.
constexpr double edgeSlack = 1 + 1e-6;

}  // namespace

double FigureRule::Allowance(double computed) const {
  const double leading = std::floor(std::log10(std::abs(computed)));
  const double unit =
      std::clamp(portable::PowerOfTen(leading - Digits + 1), FinestUnit, CoarsestUnit);
  return std::max(Percent / 100 * std::abs(computed), LastUnits * unit) * edgeSlack;
}

const StandardRule& RuleOfStandard(Long standard) {
  if (standard < 1 || standard > standardCount) {
    RaiseSubscriptOutOfRange();
  }
  return rules[static_cast<std::size_t>(standard - 1)];
}

}  // namespace trelonit
