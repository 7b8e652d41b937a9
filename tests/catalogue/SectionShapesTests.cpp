#include <cmath>
#include <cstddef>
#include <functional>
#include <gtest/gtest.h>
#include <limits>
#include <numbers>
#include <rapidcheck.h>
#include <rapidcheck/gtest.h>
#include <utility>
#include <vector>

#include "catalogue/SectionShapes.h"
#include "tests/catalogue/CatalogueWorld.h"

namespace trelonit {
namespace {

using std::numbers::pi;

bool Same(double a, double b) {
  return std::abs(a - b) <= 1e-9 * std::abs(b);
}

/// Dimensions that make each of the shapes: the rest in tenths of the flange's thickness.
ProfileRec RandomDimensions() {
  const double tenth = *rc::gen::inRange(2, 40) / 10.0;
  const auto tenths = [tenth](int from, int to) { return *rc::gen::inRange(from, to) * tenth; };
  ProfileRec dimensions;
  dimensions.t = 10 * tenth;
  dimensions.s = tenths(5, 11);
  dimensions.r1 = tenths(0, 5);
  dimensions.r2 = tenths(0, 2);
  dimensions.B = 4 * dimensions.s + tenths(30, 60);
  dimensions.H = 4 * dimensions.s + tenths(60, 500);
  return dimensions;
}

ProfileRec Scaled(ProfileRec dimensions, double factor) {
  for (double ProfileRec::*length : {&ProfileRec::B, &ProfileRec::H, &ProfileRec::t, &ProfileRec::s,
                                     &ProfileRec::r1, &ProfileRec::r2}) {
    dimensions.*length *= factor;
  }
  return dimensions;
}

using Shape = std::function<SectionFigures(const ProfileRec&)>;

const std::vector<Shape>& Shapes() {
  static const std::vector<Shape> shapes{
      AngleSection,
      [](const ProfileRec& d) { return ChannelSection(d, 0); },
      [](const ProfileRec& d) { return ChannelSection(d, 0.1); },
      [](const ProfileRec& d) { return ISection(d, 0); },
      [](const ProfileRec& d) { return ISection(d, 0.12); },
      TeeSection,
      BentChannelSection,
      [](const ProfileRec& d) { return RectangularTube(d, 2 * d.s, d.s); },
      RoundTube,
  };
  return shapes;
}

TEST(SectionShapes, GiveAnAngleItsTwoLegs) {
  const SectionFigures figures = AngleSection({.B = 60, .H = 100, .t = 8, .s = 6});
  const double flange = 60 * 8;
  const double web = 92 * 6;
  EXPECT_NEAR(figures.A, (flange + web) / 100, 1e-12);
  EXPECT_NEAR(figures.y0, (flange * 30 + web * 3) / (flange + web), 1e-10);
  EXPECT_NEAR(figures.z0, (flange * 4 + web * 54) / (flange + web), 1e-10);
}

TEST(SectionShapes, RoundBothEdgesAndTheCornerOfAnAngle) {
  const ProfileRec sharp{.B = 50, .H = 50, .t = 5, .s = 5};
  ProfileRec rolled = sharp;
  rolled.r1 = 5.5;
  rolled.r2 = 1.8;
  const double corner = (1 - pi / 4) * 5.5 * 5.5;
  const double edges = 2 * (1 - pi / 4) * 1.8 * 1.8;
  EXPECT_NEAR(AngleSection(rolled).A - AngleSection(sharp).A, (corner - edges) / 100, 1e-12);
}

TEST(SectionShapes, MeasureASlopedFlangeAtTheMiddleOfItsOverhang) {
  const ProfileRec sharp{.B = 100, .H = 200, .t = 12, .s = 8};
  EXPECT_NEAR(ChannelSection(sharp, 0.1).A, ChannelSection(sharp, 0).A, 1e-12);
  EXPECT_NEAR(ISection(sharp, 0.12).A, ISection(sharp, 0).A, 1e-12);
}

TEST(SectionShapes, GiveASlopedChannelItsTwoTrapezoids) {
  // The flanges are 12 mm thick at their middle and 16.6 mm at the web.
  const SectionFigures figures = ChannelSection({.B = 100, .H = 200, .t = 12, .s = 8}, 0.1);
  const double web = 8 * 200;
  const double flanges = 2 * 92 * 12;
  // The centroid of a trapezoid with the parallel sides 16.6 and 7.4 from its thick side.
  const double inFlange = 92.0 / 3 * (16.6 + 2 * 7.4) / (16.6 + 7.4);
  EXPECT_NEAR(figures.y0, (web * 4 + flanges * (8 + inFlange)) / (web + flanges), 1e-10);
}

TEST(SectionShapes, GiveATeeItsFlangeAndItsWeb) {
  const SectionFigures figures = TeeSection({.B = 100, .H = 80, .t = 10, .s = 6});
  const double flange = 100 * 10;
  const double web = 70 * 6;
  const double z0 = (flange * 5 + web * 45) / (flange + web);
  EXPECT_NEAR(figures.A, 14.2, 1e-12);
  EXPECT_NEAR(figures.y0, 0, 1e-12);
  EXPECT_NEAR(figures.z0, z0, 1e-10);
  const double Jy = 100.0 * 1000 / 12 + flange * (z0 - 5) * (z0 - 5) + 6.0 * 70 * 70 * 70 / 12 +
                    web * (45 - z0) * (45 - z0);
  EXPECT_NEAR(figures.Jy, Jy / 1e4, 1e-9);
  EXPECT_NEAR(figures.Jz, (10.0 * 1e6 + 70.0 * 216) / 12 / 1e4, 1e-9);
}

TEST(SectionShapes, BendAChannelWithoutLosingItsDevelopedLength) {
  const double B = 60;
  const double H = 120;
  const double s = 4;
  const double r = 6;
  const double length = 2 * (B - r - s) + (H - 2 * r - 2 * s) + pi * (r + s / 2);
  const SectionFigures figures = BentChannelSection({.B = B, .H = H, .t = s, .s = s, .r1 = r});
  EXPECT_NEAR(figures.A, length * s / 100, 1e-10);
}

TEST(SectionShapes, GiveASharpTubeTwoRectangles) {
  const SectionFigures figures = RectangularTube({.B = 60, .H = 100, .t = 5, .s = 4}, 0, 0);
  EXPECT_NEAR(figures.A, (60.0 * 100 - 52.0 * 90) / 100, 1e-12);
  EXPECT_NEAR(figures.Jy, (60 * 1e6 - 52 * 729e3) / 12 / 1e4, 1e-10);
  EXPECT_NEAR(figures.Jz, (100 * 216e3 - 90.0 * 52 * 52 * 52) / 12 / 1e4, 1e-10);
}

TEST(SectionShapes, TakeTheCornersOfATubeOffByBothRadii) {
  const ProfileRec tube{.B = 80, .H = 80, .t = 5, .s = 5};
  const double sharp = RectangularTube(tube, 0, 0).A;
  EXPECT_NEAR(sharp - RectangularTube(tube, 10, 5).A, (4 - pi) * (100 - 25) / 100, 1e-10);
}

TEST(SectionShapes, GiveARoundTubeTwoCircles) {
  const SectionFigures figures = RoundTube({.B = 100, .s = 8});
  EXPECT_NEAR(figures.A, pi * (1e4 - 84 * 84) / 4 / 100, 1e-9);
  EXPECT_NEAR(figures.Jy, pi * (1e8 - 84.0 * 84 * 84 * 84) / 64 / 1e4, 1e-8);
  EXPECT_NEAR(figures.Jz, figures.Jy, 1e-9);
}

TEST(SectionShapes, GiveAQuarterRingItsOwnInertia) {
  const double area = pi / 4 * (15 * 15 - 5 * 5);
  const double centroid = (15.0 * 15 * 15 - 5 * 5 * 5) / 3 / area;
  const double about = pi / 16 * (15.0 * 15 * 15 * 15 - 5 * 5 * 5 * 5);
  EXPECT_NEAR(QuarterRingInertia(15, 5), (about - area * centroid * centroid) / 1e4, 1e-10);
  const double disc = pi / 16 - 4 / (9 * pi);
  EXPECT_NEAR(QuarterRingInertia(10, 0), disc, 1e-10);
  // By the square of the square of a length.
  EXPECT_NEAR(QuarterRingInertia(1.5, 0.5), QuarterRingInertia(15, 5) / 1e4, 1e-14);
}

RC_GTEST_PROP(SectionShapes, GrowWithTheirDimensions, ()) {
  const ProfileRec dimensions = RandomDimensions();
  const double factor = *rc::gen::inRange(1, 100) / 10.0;
  for (const Shape& shape : Shapes()) {
    const SectionFigures small = shape(dimensions);
    const SectionFigures large = shape(Scaled(dimensions, factor));
    RC_ASSERT(small.A > 0 && small.Jy > 0 && small.Jz > 0);
    RC_ASSERT(Same(large.A, small.A * std::pow(factor, 2)));
    RC_ASSERT(Same(large.Jy, small.Jy * std::pow(factor, 4)));
    RC_ASSERT(Same(large.Jz, small.Jz * std::pow(factor, 4)));
  }
}

RC_GTEST_PROP(SectionShapes, ChangeTheAxesOfAnAngleThatLiesOnItsOtherLeg, ()) {
  const ProfileRec standing = RandomDimensions();
  ProfileRec lying = standing;
  std::swap(lying.B, lying.H);
  std::swap(lying.t, lying.s);
  const SectionFigures before = AngleSection(standing);
  const SectionFigures after = AngleSection(lying);
  RC_ASSERT(Same(after.A, before.A));
  RC_ASSERT(Same(after.Jy, before.Jz));
  RC_ASSERT(Same(after.Jz, before.Jy));
  RC_ASSERT(Same(after.y0, before.z0));
}

RC_GTEST_PROP(SectionShapes, MakeAnISectionOfTwoChannelsBackToBack, ()) {
  const ProfileRec half = RandomDimensions();
  ProfileRec whole = half;
  whole.B *= 2;
  whole.s *= 2;
  const SectionFigures channel = ChannelSection(half, 0.12);
  const SectionFigures both = ISection(whole, 0.12);
  RC_ASSERT(Same(both.A, 2 * channel.A));
  RC_ASSERT(Same(both.Jy, 2 * channel.Jy));
  const double distance = channel.y0 / 10;
  RC_ASSERT(Same(both.Jz, 2 * (channel.Jz + channel.A * distance * distance)));
}

RC_GTEST_PROP(SectionShapes, CutAnISectionIntoTwoTees, ()) {
  ProfileRec whole = RandomDimensions();
  whole.r2 = 0;
  ProfileRec half = whole;
  half.H /= 2;
  const SectionFigures beam = ISection(whole, 0);
  const SectionFigures tee = TeeSection(half);
  RC_ASSERT(Same(2 * tee.A, beam.A));
  const double distance = (half.H - tee.z0) / 10;
  RC_ASSERT(Same(2 * (tee.Jy + tee.A * distance * distance), beam.Jy));
  RC_ASSERT(Same(2 * tee.Jz, beam.Jz));
}

TEST(SectionShapes, RefuseDimensionsThatMakeNoSection) {
  const ProfileRec sound{.B = 60, .H = 100, .t = 5, .s = 5, .r1 = 4, .r2 = 2};
  const auto expectRefused = [&](double ProfileRec::*length, double value, std::size_t shape) {
    ProfileRec broken = sound;
    broken.*length = value;
    EXPECT_EQ(test::ErrorOf([&] { Shapes()[shape](broken); }), 5)
        << "shape " << shape << " with " << value;
  };
  for (std::size_t shape = 0; shape < Shapes().size(); ++shape) {
    EXPECT_EQ(test::ErrorOf([&] { Shapes()[shape](sound); }), std::nullopt) << shape;
    for (const double value : {0.0, -5.0, std::numeric_limits<double>::quiet_NaN()}) {
      expectRefused(&ProfileRec::B, value, shape);
      expectRefused(&ProfileRec::s, value, shape);
    }
    expectRefused(&ProfileRec::s, 60, shape);
  }
  constexpr std::size_t roundTube = 8;
  for (std::size_t shape = 0; shape < roundTube; ++shape) {
    expectRefused(&ProfileRec::t, 0, shape);
    expectRefused(&ProfileRec::H, 0, shape);
    expectRefused(&ProfileRec::t, 100, shape);
  }
  for (const std::size_t tube : {roundTube - 1, roundTube}) {
    expectRefused(&ProfileRec::s, 30, tube);
  }
}

TEST(SectionShapes, TakeFlangesOfNearlyHalfTheHeight) {
  const ProfileRec thick{.B = 60, .H = 40, .t = 19, .s = 10};
  // 40 x 10 and two flanges of 50 x 19 on one side or 25 x 19 on both.
  EXPECT_NEAR(ChannelSection(thick, 0).A, (400 + 2 * 950) / 100.0, 1e-10);
  EXPECT_NEAR(ISection(thick, 0).A, (400 + 4 * 475) / 100.0, 1e-10);
  // The back's corners are rounded with the wall's thickness.
  EXPECT_NEAR(BentChannelSection(thick).A, (400 + 2 * 950 - 2 * (1 - pi / 4) * 100) / 100, 1e-10);
}

TEST(SectionShapes, RefuseASlopeThatLeavesNoEdge) {
  const ProfileRec wide{.B = 260, .H = 400, .t = 12, .s = 10};
  EXPECT_EQ(test::ErrorOf([&] { ChannelSection(wide, 0.1); }), 5);
  EXPECT_EQ(test::ErrorOf([&] { ISection(wide, 0.2); }), 5);
}

}  // namespace
}  // namespace trelonit
