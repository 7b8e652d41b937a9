#pragma once

#include "catalogue/SectionShapes.h"
#include "platform/values/Integers.h"

namespace trelonit {

// What the dimensions of a record leave open and its standard tells: the slope of flanges, the
// radii of a tube's corners.

/// The published figures of GOST 8240-89 and GOST 8239-89 follow these slopes.
constexpr double slopeOfChannels = 0.10;
constexpr double slopeOfBeams = 0.12;

// Outer radii of the corners of tubes, in walls; the inner one is a wall less.
constexpr double cornersOf12336 = 3;
constexpr double cornersOf30245of94 = 2;
constexpr double cornersOf8645 = 1.5;
/// GOST 30245-2003: they grow with the wall, mm.
double CornersOf30245of2003(double wall);

/// A tube with concentric corners, the outer radius so many walls.
SectionShape ConcentricTubeShape(const ProfileRec& record, double outerRadiusInWalls);

/// The section that a record of this standard, 1 to 22, stands for. GOST 30245-94 leaves the
/// corners of small tubes open: they are drawn as those of the large ones. Raises 9 for another
/// standard, 5 for dimensions that make no section.
SectionShape ShapeOfStandard(Long standard, const ProfileRec& record);

}  // namespace trelonit
