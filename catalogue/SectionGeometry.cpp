#include "catalogue/SectionGeometry.h"

#include <cstddef>

#include "platform/values/Elementary.h"

namespace trelonit {
namespace {

/// A point or a direction in the frame of one pass: u is the coordinate whose powers are
/// integrated, w the one that stands a quarter turn ahead of it.
struct Vector {
  Real u;
  Real w;
};

struct Corner {
  Vector Place;
  Real Radius;
};

Vector operator+(Vector a, Vector b) {
  return {a.u + b.u, a.w + b.w};
}
Vector operator-(Vector a, Vector b) {
  return {a.u - b.u, a.w - b.w};
}
Vector operator*(Real factor, Vector a) {
  return {factor * a.u, factor * a.w};
}
Real Length(Vector a) {
  return SquareRoot(a.u * a.u + a.w * a.w);
}
Vector QuarterTurnLeft(Vector a) {
  return {-a.w, a.u};
}

/// Integrals of cos, cos^2, cos^3 and cos^4 from 0 to an angle.
struct CosinePowers {
  explicit CosinePowers(Real angle) {
    const Real sine = Sine(angle);
    const Real product = sine * Cosine(angle);
    First = sine;
    Second = (angle + product) / 2;
    Third = sine - sine * sine * sine / 3;
    Fourth = (3 * angle + product * (5 - 2 * sine * sine)) / 8;
  }
  Real First, Second, Third, Fourth;
};

/// Area, and first and second moment along u, gathered piece by piece of the boundary.
struct MomentsAlong {
  Real Area, First, Second;

  void AddLine(Vector from, Vector to) {
    const Real rise = to.w - from.w;
    const Real sum = from.u + to.u;
    Area += rise * sum / 2;
    First += rise * (sum * sum - from.u * to.u) / 6;
    Second += rise * sum * (from.u * from.u + to.u * to.u) / 12;
  }

  /// u = c + R cos(angle), dw = R cos(angle) d(angle).
  void AddArc(Real c, Real R, Real fromAngle, Real toAngle) {
    const CosinePowers from(fromAngle);
    const CosinePowers to(toAngle);
    const Real c1 = to.First - from.First;
    const Real c2 = to.Second - from.Second;
    const Real c3 = to.Third - from.Third;
    const Real c4 = to.Fourth - from.Fourth;
    Area += R * (c * c1 + R * c2);
    First += R * (c * c * c1 + 2 * c * R * c2 + R * R * c3) / 2;
    Second += R * (c * c * c * c1 + 3 * c * c * R * c2 + 3 * c * R * R * c3 + R * R * R * c4) / 3;
  }
};

/// A corner with the directions of the sides that meet there.
struct Turn {
  Turn(const Corner& previous, const Corner& corner, const Corner& next) {
    const Vector incoming = corner.Place - previous.Place;
    const Vector outgoing = next.Place - corner.Place;
    SideLength = Length(incoming);
    const Real nextLength = Length(outgoing);
    RequireDrawable(SideLength > 0 && nextLength > 0);
    In = 1 / SideLength * incoming;
    Out = 1 / nextLength * outgoing;
    const Real sine = In.u * Out.w - In.w * Out.u;
    const Real cosine = In.u * Out.u + In.w * Out.w;
    RequireDrawable(1 + cosine > 0);
    Angle = portable::Direction(sine, cosine);
    // The tangent of half the turn, without the loss that comes with computing the angle first.
    TangentLength = corner.Radius * Magnitude(sine) / (1 + cosine);
  }
  Real SideLength;  ///< of the incoming side
  Vector In, Out;
  Real Angle;          ///< positive to the left
  Real TangentLength;  ///< from the corner to where the arc touches its sides
};

/// An arc may take a side to its end, so that a circle is a square with four round corners; this
/// share of the side is left to rounding.
constexpr double sideSlack = 1e-9;

MomentsAlong IntegrateAlong(const std::vector<Corner>& corners) {
  const std::size_t count = corners.size();
  std::vector<Turn> turns;
  turns.reserve(count);
  for (std::size_t place = 0; place < count; ++place) {
    turns.emplace_back(corners[(place + count - 1) % count], corners[place],
                       corners[(place + 1) % count]);
  }
  MomentsAlong moments;
  for (std::size_t place = 0; place < count; ++place) {
    const Corner& previous = corners[(place + count - 1) % count];
    const Corner& corner = corners[place];
    const Turn& turn = turns[place];
    const Real previousTangent = turns[(place + count - 1) % count].TangentLength;
    RequireDrawable(previousTangent + turn.TangentLength <= turn.SideLength * (1 + sideSlack));
    const Vector from = previous.Place + previousTangent * turn.In;
    const Vector to = corner.Place - turn.TangentLength * turn.In;
    moments.AddLine(from, to);
    if (corner.Radius > 0) {
      const Real side = turn.Angle < 0 ? -1.0 : 1.0;
      const Vector spoke = -side * corner.Radius * QuarterTurnLeft(turn.In);
      const Vector centre = to - spoke;
      const Real start = portable::Direction(spoke.w, spoke.u);
      moments.AddArc(centre.u, corner.Radius, start, start + turn.Angle);
    }
  }
  return moments;
}

}  // namespace

AreaIntegrals operator-(const AreaIntegrals& whole, const AreaIntegrals& hole) {
  return {whole.A - hole.A, whole.Sy - hole.Sy, whole.Sz - hole.Sz, whole.Jy - hole.Jy,
          whole.Jz - hole.Jz};
}

AreaIntegrals Integrate(const Outline& outline) {
  RequireDrawable(outline.size() >= 3);
  std::vector<Corner> upright;
  std::vector<Corner> turned;
  upright.reserve(outline.size());
  turned.reserve(outline.size());
  for (const OutlineVertex& vertex : outline) {
    RequireDrawable(vertex.Radius >= 0);
    upright.push_back({{vertex.y, vertex.z}, vertex.Radius});
    turned.push_back({{vertex.z, -vertex.y}, vertex.Radius});
  }
  const MomentsAlong alongY = IntegrateAlong(upright);
  const MomentsAlong alongZ = IntegrateAlong(turned);
  return {alongY.Area, alongZ.First, alongY.First, alongZ.Second, alongY.Second};
}

SectionFigures CentroidalFigures(const AreaIntegrals& integrals) {
  RequireDrawable(integrals.A > 0);
  const Real y0 = integrals.Sz / integrals.A;
  const Real z0 = integrals.Sy / integrals.A;
  constexpr double mm2InCm2 = 1e2;
  constexpr double mm4InCm4 = 1e4;
  return {integrals.A / mm2InCm2, (integrals.Jy - integrals.A * z0 * z0) / mm4InCm4,
          (integrals.Jz - integrals.A * y0 * y0) / mm4InCm4, y0, z0};
}

}  // namespace trelonit
