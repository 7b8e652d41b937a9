#include "catalogue/SectionShapes.h"

#include <initializer_list>

namespace trelonit {
namespace {

// Written so that a NaN is refused, too.
void RequirePositive(std::initializer_list<double> lengths) {
  for (const double length : lengths) {
    RequireDrawable(length > 0);
  }
}

/// Thickness of a flange with a sloped inner face at its edge and at the web, from the thickness at
/// the middle of the overhang.
struct FlangeThickness {
  FlangeThickness(Real t, Real overhang, double slope)
      : Edge(t - slope * overhang / 2), Root(t + slope * overhang / 2) {
    RequirePositive({Edge, Root});
  }
  Real Edge;
  Real Root;
};

/// A rectangle of this width and height about the origin.
Outline RoundedRectangle(Real width, Real height, Real radius) {
  const Real y = width / 2;
  const Real z = height / 2;
  return {{-y, -z, radius}, {y, -z, radius}, {y, z, radius}, {-y, z, radius}};
}

}  // namespace

Outline AngleOutline(const ProfileRec& d) {
  RequirePositive({d.B, d.H, d.t, d.s});
  RequireDrawable(d.s < d.B && d.t < d.H);
  return {{0, 0}, {d.B, 0}, {d.B, d.t, d.r2}, {d.s, d.t, d.r1}, {d.s, d.H, d.r2}, {0, d.H}};
}

Outline ChannelOutline(const ProfileRec& d, double slope) {
  RequirePositive({d.B, d.H, d.t, d.s});
  RequireDrawable(d.s < d.B);
  const Real H = d.H;
  const FlangeThickness t(d.t, Real(d.B) - d.s, slope);
  RequireDrawable(2 * t.Root < H);
  return {{0, 0},
          {d.B, 0},
          {d.B, t.Edge, d.r2},
          {d.s, t.Root, d.r1},
          {d.s, H - t.Root, d.r1},
          {d.B, H - t.Edge, d.r2},
          {d.B, H},
          {0, H}};
}

Outline IOutline(const ProfileRec& d, double slope) {
  RequirePositive({d.B, d.H, d.t, d.s});
  RequireDrawable(d.s < d.B);
  const Real H = d.H;
  const Real edge = Real(d.B) / 2;
  const Real web = Real(d.s) / 2;
  const FlangeThickness t(d.t, edge - web, slope);
  RequireDrawable(2 * t.Root < H);
  return {{-edge, 0},
          {edge, 0},
          {edge, t.Edge, d.r2},
          {web, t.Root, d.r1},
          {web, H - t.Root, d.r1},
          {edge, H - t.Edge, d.r2},
          {edge, H},
          {-edge, H},
          {-edge, H - t.Edge, d.r2},
          {-web, H - t.Root, d.r1},
          {-web, t.Root, d.r1},
          {-edge, t.Edge, d.r2}};
}

Outline TeeOutline(const ProfileRec& d) {
  RequirePositive({d.B, d.H, d.t, d.s});
  RequireDrawable(d.s < d.B && d.t < d.H);
  const Real edge = Real(d.B) / 2;
  const Real web = Real(d.s) / 2;
  return {{-edge, 0}, {edge, 0},   {edge, d.t},       {web, d.t, d.r1},
          {web, d.H}, {-web, d.H}, {-web, d.t, d.r1}, {-edge, d.t}};
}

Outline BentChannelOutline(const ProfileRec& d) {
  RequirePositive({d.B, d.H, d.t, d.s});
  RequireDrawable(d.s < d.B);
  const Real H = d.H;
  RequireDrawable(2 * Real(d.t) < H);
  const Real outer = Real(d.r1) + d.s;
  return {{0, 0, outer},        {d.B, 0},       {d.B, d.t}, {d.s, d.t, d.r1},
          {d.s, H - d.t, d.r1}, {d.B, H - d.t}, {d.B, H},   {0, H, outer}};
}

SectionShape RectangularTubeShape(const ProfileRec& d, Real outerRadius, Real innerRadius) {
  RequirePositive({d.B, d.H, d.t, d.s});
  const Real innerWidth = Real(d.B) - 2 * Real(d.s);
  const Real innerHeight = Real(d.H) - 2 * Real(d.t);
  RequirePositive({innerWidth, innerHeight});
  return {RoundedRectangle(d.B, d.H, outerRadius),
          RoundedRectangle(innerWidth, innerHeight, innerRadius)};
}

SectionShape RoundTubeShape(const ProfileRec& d) {
  RequirePositive({d.B, d.s});
  const Real bore = Real(d.B) - 2 * Real(d.s);
  RequirePositive({bore});
  // A circle is a square whose corners are rounded until nothing of the sides is left.
  return {RoundedRectangle(d.B, d.B, Real(d.B) / 2), RoundedRectangle(bore, bore, bore / 2)};
}

SectionFigures FiguresOf(const SectionShape& shape) {
  return shape.Hole.empty() ? CentroidalFigures(Integrate(shape.Outer))
                            : CentroidalFigures(Integrate(shape.Outer) - Integrate(shape.Hole));
}

SectionFigures AngleSection(const ProfileRec& d) {
  return FiguresOf({AngleOutline(d)});
}

SectionFigures ChannelSection(const ProfileRec& d, double slope) {
  return FiguresOf({ChannelOutline(d, slope)});
}

SectionFigures ISection(const ProfileRec& d, double slope) {
  return FiguresOf({IOutline(d, slope)});
}

SectionFigures TeeSection(const ProfileRec& d) {
  return FiguresOf({TeeOutline(d)});
}

SectionFigures BentChannelSection(const ProfileRec& d) {
  return FiguresOf({BentChannelOutline(d)});
}

SectionFigures RectangularTube(const ProfileRec& d, Real outerRadius, Real innerRadius) {
  return FiguresOf(RectangularTubeShape(d, outerRadius, innerRadius));
}

SectionFigures RoundTube(const ProfileRec& d) {
  return FiguresOf(RoundTubeShape(d));
}

Real QuarterRingInertia(Real outerRadius, Real innerRadius) {
  const auto quarterDisc = [](Real radius) {
    return Integrate({{0, 0}, {radius, 0}, {radius, radius, radius}, {0, radius}});
  };
  const AreaIntegrals ring = innerRadius > 0 ? quarterDisc(outerRadius) - quarterDisc(innerRadius)
                                             : quarterDisc(outerRadius);
  return CentroidalFigures(ring).Jy;
}

}  // namespace trelonit
