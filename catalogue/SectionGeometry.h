#pragma once

#include <vector>

#include "platform/values/Arithmetic.h"

namespace trelonit {

/// Raises 5 where a section cannot be drawn as told.
inline void RequireDrawable(bool condition) {
  if (!condition) {
    RaiseInvalidProcedureCall();
  }
}

/// A corner of a section's outline: where its two straight sides meet, or would meet without the
/// arc of this radius that touches both of them. All in mm; y runs along the flange, z along the
/// height.
struct OutlineVertex {
  Real y;
  Real z;
  Real Radius = 0;
};

/// A closed outline of straight lines and circular arcs, counter-clockwise (y to the right, z up).
using Outline = std::vector<OutlineVertex>;

/// Integrals over the area inside an outline, about the axes of its coordinates.
struct AreaIntegrals {
  Real A;   ///< area, mm2
  Real Sy;  ///< first moment, integral of z dA, mm3
  Real Sz;  ///< first moment, integral of y dA, mm3
  Real Jy;  ///< integral of z^2 dA, mm4
  Real Jz;  ///< integral of y^2 dA, mm4
};

/// Of a section with a hole: the integrals of the outer outline less those of the hole's.
AreaIntegrals operator-(const AreaIntegrals& whole, const AreaIntegrals& hole);

/// Green's theorem turns the integrals over the area into integrals along the outline,
///   A = ∮ y dz,  Sz = 1/2 ∮ y^2 dz,  Jz = 1/3 ∮ y^3 dz
/// (and the same with z and -y in place of y and z), which have a closed form on a straight line
/// and on a circular arc alike. So the result is exact: nothing is cut into pieces.
/// Raises 5 for an outline that cannot be drawn: fewer than three corners, two corners in one
/// place, a side that turns straight back, a negative radius, a side that is too short for the arcs
/// at its ends; 6 beyond the range of Double.
AreaIntegrals Integrate(const Outline& outline);

/// The figures of a section as the tables print them.
struct SectionFigures {
  double A = 0;   ///< cm2
  double Jy = 0;  ///< cm4, about the axis through the centroid that is parallel to the flange
  double Jz = 0;  ///< cm4, about the axis through the centroid that is parallel to the height
  double y0 = 0;  ///< mm, place of the centroid in the outline's coordinates
  double z0 = 0;  ///< mm
};

/// Moves the moments to the centroid (parallel axis theorem) and changes mm to cm. Raises 5 for an
/// area that is not above 0.
SectionFigures CentroidalFigures(const AreaIntegrals& integrals);

}  // namespace trelonit
