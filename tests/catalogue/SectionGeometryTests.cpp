#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <numbers>
#include <rapidcheck.h>
#include <rapidcheck/gtest.h>

#include "catalogue/SectionGeometry.h"
#include "tests/catalogue/CatalogueWorld.h"

namespace trelonit {
namespace {

using std::numbers::pi;

Outline Rectangle(double width, double height, double radius = 0) {
  return {{0, 0, radius}, {width, 0, radius}, {width, height, radius}, {0, height, radius}};
}

SectionFigures FiguresOf(const Outline& outline) {
  return CentroidalFigures(Integrate(outline));
}

/// Relative closeness of what is the same on paper.
bool SameNumber(double a, double b, double scale) {
  return std::abs(a - b) <= 1e-9 * std::abs(scale);
}
bool SameNumber(double a, double b) {
  return SameNumber(a, b, b);
}

/// An angle with an obtuse corner and with arcs of both directions.
Outline CrookedOutline(double size) {
  return {{0, 0},
          {10 * size, 0, 0.5 * size},
          {9 * size, 2 * size, 0.7 * size},
          {2 * size, 3 * size, 1.5 * size},
          {size, 12 * size, 0.2 * size},
          {0, 12 * size}};
}

Outline Moved(Outline outline, double y, double z) {
  for (OutlineVertex& vertex : outline) {
    vertex.y += y;
    vertex.z += z;
  }
  return outline;
}

TEST(SectionGeometry, GivesTheFiguresOfARectangle) {
  const SectionFigures figures = FiguresOf(Rectangle(30, 50));
  EXPECT_DOUBLE_EQ(figures.A, 15);
  EXPECT_DOUBLE_EQ(figures.y0, 15);
  EXPECT_DOUBLE_EQ(figures.z0, 25);
  EXPECT_NEAR(figures.Jy, 3.0 * 5 * 5 * 5 / 12, 1e-12);
  EXPECT_NEAR(figures.Jz, 5.0 * 3 * 3 * 3 / 12, 1e-12);
}

TEST(SectionGeometry, GivesTheFiguresOfATriangle) {
  const SectionFigures figures = FiguresOf({{0, 0}, {60, 0}, {0, 90}});
  EXPECT_DOUBLE_EQ(figures.A, 27);
  EXPECT_DOUBLE_EQ(figures.y0, 20);
  EXPECT_DOUBLE_EQ(figures.z0, 30);
  EXPECT_NEAR(figures.Jy, 6.0 * 9 * 9 * 9 / 36, 1e-12);
  EXPECT_NEAR(figures.Jz, 9.0 * 6 * 6 * 6 / 36, 1e-12);
}

TEST(SectionGeometry, TakesTheCornersOfASquareOffWhenTheyAreRounded) {
  const AreaIntegrals sharp = Integrate(Rectangle(40, 40));
  const AreaIntegrals rounded = Integrate(Rectangle(40, 40, 7));
  EXPECT_NEAR(sharp.A - rounded.A, 4 * (1 - pi / 4) * 7 * 7, 1e-10);
}

TEST(SectionGeometry, FillsTheInnerCornerThatHasAFillet) {
  const auto areaOfAngle = [](double fillet) {
    return Integrate({{0, 0}, {50, 0}, {50, 5}, {5, 5, fillet}, {5, 50}, {0, 50}}).A;
  };
  EXPECT_NEAR(areaOfAngle(6) - areaOfAngle(0), (1 - pi / 4) * 6 * 6, 1e-10);
}

TEST(SectionGeometry, GivesTheFiguresOfAQuarterDisc) {
  const double r = 20;
  const AreaIntegrals integrals = Integrate({{0, 0}, {r, 0}, {r, r, r}, {0, r}});
  EXPECT_NEAR(integrals.A, pi * r * r / 4, 1e-10);
  EXPECT_NEAR(integrals.Sy, r * r * r / 3, 1e-9);
  EXPECT_NEAR(integrals.Sz, r * r * r / 3, 1e-9);
  EXPECT_NEAR(integrals.Jy, pi * r * r * r * r / 16, 1e-8);
  EXPECT_NEAR(integrals.Jz, pi * r * r * r * r / 16, 1e-8);
}

TEST(SectionGeometry, MakesACircleOfAHexagonThatIsRoundedAllTheWay) {
  const double r = 25;
  const double corner = r / std::cos(pi / 6);
  Outline hexagon;
  for (int place = 0; place < 6; ++place) {
    hexagon.push_back(
        {100 + corner * std::cos(place * pi / 3), -40 + corner * std::sin(place * pi / 3), r});
  }
  const SectionFigures figures = FiguresOf(hexagon);
  EXPECT_NEAR(figures.A, pi * r * r / 100, 1e-9);
  EXPECT_NEAR(figures.y0, 100, 1e-9);
  EXPECT_NEAR(figures.z0, -40, 1e-9);
  EXPECT_NEAR(figures.Jy, pi * r * r * r * r / 4 / 1e4, 1e-8);
  EXPECT_NEAR(figures.Jz, pi * r * r * r * r / 4 / 1e4, 1e-8);
}

TEST(SectionGeometry, RoundsAnObtuseCornerByTheSectorBetweenItsTangents) {
  const auto area = [](double radius) {
    return Integrate({{0, 0}, {30, 0}, {40, 10, radius}, {40, 40}, {0, 40}}).A;
  };
  const double turn = pi / 4;
  EXPECT_NEAR(area(0) - area(5), 5 * 5 * (std::tan(turn / 2) - turn / 2), 1e-10);
}

TEST(SectionGeometry, SubtractsAHole) {
  const AreaIntegrals hole = Integrate(Moved(Rectangle(10, 20), 5, 5));
  const SectionFigures figures = CentroidalFigures(Integrate(Rectangle(20, 40)) - hole);
  EXPECT_DOUBLE_EQ(figures.A, 6);
  EXPECT_DOUBLE_EQ(figures.z0, (800.0 * 20 - 200.0 * 15) / 600);
  const double aboutBase = 20.0 * 40 * 40 * 40 / 3 - (10.0 * 20 * 20 * 20 / 12 + 200.0 * 15 * 15);
  EXPECT_NEAR(figures.Jy, (aboutBase - 600 * figures.z0 * figures.z0) / 1e4, 1e-10);
  const AreaIntegrals aside = Integrate(Moved(Rectangle(10, 20), 2, 5));
  EXPECT_DOUBLE_EQ(CentroidalFigures(Integrate(Rectangle(20, 40)) - aside).y0,
                   (800.0 * 10 - 200.0 * 7) / 600);
}

TEST(SectionGeometry, CountsAClockwiseOutlineAsTakenAway) {
  const Outline outline = CrookedOutline(5);
  const AreaIntegrals forth = Integrate(outline);
  const AreaIntegrals back = Integrate({outline.rbegin(), outline.rend()});
  EXPECT_NEAR(back.A, -forth.A, 1e-9);
  EXPECT_NEAR(back.Jy, -forth.Jy, 1e-5);
  EXPECT_NEAR(back.Jz, -forth.Jz, 1e-5);
}

RC_GTEST_PROP(SectionGeometry, FollowsTheParallelAxisTheorem, ()) {
  const double size = *rc::gen::inRange(1, 40);
  const double y = *rc::gen::inRange(-300, 300);
  const double z = *rc::gen::inRange(-300, 300);
  const AreaIntegrals home = Integrate(CrookedOutline(size));
  const AreaIntegrals away = Integrate(Moved(CrookedOutline(size), y, z));
  RC_ASSERT(SameNumber(away.A, home.A));
  RC_ASSERT(SameNumber(away.Jy, home.Jy + 2 * z * home.Sy + home.A * z * z));
  RC_ASSERT(SameNumber(away.Jz, home.Jz + 2 * y * home.Sz + home.A * y * y));
  const SectionFigures before = CentroidalFigures(home);
  const SectionFigures after = CentroidalFigures(away);
  RC_ASSERT(SameNumber(after.Jy, before.Jy, away.Jy / 1e4));
  RC_ASSERT(SameNumber(after.Jz, before.Jz, away.Jz / 1e4));
}

RC_GTEST_PROP(SectionGeometry, ChangesTheAxesWithAQuarterTurn, ()) {
  const double size = *rc::gen::inRange(1, 40);
  Outline turned = CrookedOutline(size);
  for (OutlineVertex& vertex : turned) {
    vertex = {-vertex.z, vertex.y, vertex.Radius};
  }
  const SectionFigures before = FiguresOf(CrookedOutline(size));
  const SectionFigures after = FiguresOf(turned);
  RC_ASSERT(SameNumber(after.A, before.A));
  RC_ASSERT(SameNumber(after.Jy, before.Jz));
  RC_ASSERT(SameNumber(after.Jz, before.Jy));
}

RC_GTEST_PROP(SectionGeometry, KeepsTheFiguresOfAMirroredSection, ()) {
  const double size = *rc::gen::inRange(1, 40);
  const Outline outline = CrookedOutline(size);
  Outline mirrored(outline.rbegin(), outline.rend());
  for (OutlineVertex& vertex : mirrored) {
    vertex.y = -vertex.y;
  }
  const SectionFigures before = FiguresOf(outline);
  const SectionFigures after = FiguresOf(mirrored);
  RC_ASSERT(SameNumber(after.A, before.A));
  RC_ASSERT(SameNumber(after.Jy, before.Jy));
  RC_ASSERT(SameNumber(after.Jz, before.Jz));
  RC_ASSERT(SameNumber(after.y0, -before.y0));
}

TEST(SectionGeometry, RefusesWhatCannotBeDrawn) {
  const auto errorOf = [](const Outline& outline) {
    return test::ErrorOf([&] { Integrate(outline); });
  };
  EXPECT_EQ(errorOf({{0, 0}, {1, 0}}), 5);
  EXPECT_EQ(errorOf({{0, 0}, {1, 0}, {1, 0}, {0, 1}}), 5);
  EXPECT_EQ(errorOf({{0, 0}, {1, 0}, {0, 1}, {0, 0}}), 5);
  EXPECT_EQ(errorOf({{0, 0}, {2, 0}, {1, 0}}), 5);
  EXPECT_EQ(errorOf(Rectangle(10, 10, -1)), 5);
  EXPECT_EQ(errorOf(Rectangle(10, 10, 5.001)), 5);
  EXPECT_EQ(errorOf(Rectangle(10, 10, std::numeric_limits<double>::quiet_NaN())), 5);
  EXPECT_EQ(errorOf(Rectangle(1e200, 10)), 6);
  EXPECT_EQ(errorOf(Rectangle(10, 10, 5)), std::nullopt);
}

TEST(SectionGeometry, HasNoCentroidWithoutAnArea) {
  EXPECT_EQ(test::ErrorOf([] { CentroidalFigures({}); }), 5);
  const AreaIntegrals square = Integrate(Rectangle(10, 10));
  EXPECT_EQ(test::ErrorOf([&] { CentroidalFigures(square - square); }), 5);
}

}  // namespace
}  // namespace trelonit
