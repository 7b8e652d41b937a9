#include <cmath>
#include <gtest/gtest.h>

#include "catalogue/SectionComposition.h"
#include "catalogue/SectionDrawing.h"
#include "catalogue/SectionLayouts.h"
#include "catalogue/StandardFigures.h"
#include "catalogue/modProfileData.h"
#include "platform/errors/RuntimeError.h"
#include "resources/EmbeddedResources.h"
#include "tests/support/TestServices.h"

namespace trelonit {
namespace {

using Side = SectionDimension::Side;

/// L100x63x8 with sharp corners: the long leg stands, 63 mm lie.
SectionRec Angle(Long layout, double gap) {
  SectionRec section;
  section.TypeIdx = 1;
  section.Layout = layout;
  section.Gdist = gap;
  section.Profile.B = 63;
  section.Profile.H = 100;
  section.Profile.t = 8;
  section.Profile.s = 8;
  return section;
}

/// The value beside this side; of several the outermost. 0 where there is none.
double Measured(const SectionDrawing& drawing, Side side) {
  double value = 0;
  for (const SectionDimension& dimension : drawing.Dimensions) {
    value = dimension.At == side ? dimension.Value : value;
  }
  return value;
}

void ExpectBounds(const SectionDrawing& drawing, double left, double right, double bottom,
                  double top) {
  EXPECT_DOUBLE_EQ(drawing.Left, left);
  EXPECT_DOUBLE_EQ(drawing.Right, right);
  EXPECT_DOUBLE_EQ(drawing.Bottom, bottom);
  EXPECT_DOUBLE_EQ(drawing.Top, top);
}

TEST(SectionDrawing, StandsASingleAngleOnItsShortLeg) {
  const SectionDrawing drawing = DrawSection(Angle(1, 10));
  EXPECT_EQ(drawing.Profiles.size(), 1U);
  ExpectBounds(drawing, 0, 63, 0, 100);
  // 100 x 8 and 55 x 8: the centroid is (800 * 4 + 440 * 35.5) / 1240 from the back of the long
  // leg, and (800 * 50 + 440 * 4) / 1240 from that of the short one.
  EXPECT_NEAR(drawing.CentroidX, 15.177, 1e-3);
  EXPECT_NEAR(drawing.CentroidY, 33.677, 1e-3);
  EXPECT_EQ(Measured(drawing, Side::Above), 0) << "a single profile has no gap";
}

TEST(SectionDrawing, HangsThePairWithItsLongLegsInThePlane) {
  const SectionDrawing drawing = DrawSection(Angle(2, 10));
  EXPECT_EQ(drawing.Profiles.size(), 2U);
  ExpectBounds(drawing, -68, 68, -100, 0);
  EXPECT_EQ(drawing.CentroidX, 0);
  EXPECT_NEAR(drawing.CentroidY, -33.677, 1e-3);
}

TEST(SectionDrawing, LaysTheLongLegsOutOfThePlane) {
  const SectionDrawing drawing = DrawSection(Angle(3, 10));
  ExpectBounds(drawing, -105, 105, -63, 0);
  EXPECT_NEAR(drawing.CentroidY, -15.177, 1e-3);
}

TEST(SectionDrawing, PutsTheCrossRoundItsMiddle) {
  const SectionDrawing drawing = DrawSection(Angle(4, 10));
  ExpectBounds(drawing, -68, 68, -105, 105);
  EXPECT_EQ(drawing.CentroidX, 0);
  EXPECT_EQ(drawing.CentroidY, 0);
}

TEST(SectionDrawing, MeasuresTheWholeTheGapAndTheWalls) {
  const SectionDrawing drawing = DrawSection(Angle(2, 10));
  ASSERT_EQ(drawing.Dimensions.size(), 5U);
  // The gap stands nearer to the section than the whole width under it.
  EXPECT_EQ(drawing.Dimensions[0].At, Side::Below);
  EXPECT_EQ(drawing.Dimensions[0].Value, 10);
  EXPECT_EQ(drawing.Dimensions[0].From, -5);
  EXPECT_EQ(drawing.Dimensions[0].To, 5);
  EXPECT_EQ(Measured(drawing, Side::Below), 136);
  EXPECT_EQ(Measured(drawing, Side::Left), 100);
  EXPECT_EQ(Measured(drawing, Side::Across), 8);
  EXPECT_EQ(Measured(drawing, Side::Right), 8);
}

TEST(SectionDrawing, MeasuresTheWholeFromItsCorners) {
  const SectionDrawing drawing = DrawSection(Angle(2, 10));
  const SectionDimension& width = drawing.Dimensions[3];
  ASSERT_EQ(width.At, Side::Below);
  // The lying legs are 8 mm thick and hang at the top.
  EXPECT_EQ(width.EdgeFrom, -8);
  EXPECT_EQ(width.EdgeTo, -8);
  const SectionDimension& height = drawing.Dimensions[4];
  ASSERT_EQ(height.At, Side::Left);
  // Below the end of the standing leg, above that of the lying one.
  EXPECT_EQ(height.EdgeFrom, -13);
  EXPECT_EQ(height.EdgeTo, -68);
}

TEST(SectionDrawing, MeasuresNoGapBetweenProfilesInContact) {
  const SectionDrawing drawing = DrawSection(Angle(2, 0));
  EXPECT_EQ(drawing.Dimensions.size(), 4U);
  EXPECT_EQ(Measured(drawing, Side::Below), 126);
}

TEST(SectionDrawing, TellsTheWallsOfALyingAngleWithTheirOwnLegs) {
  SectionRec section = Angle(3, 10);
  section.Profile.t = 7;  // of the short leg, which hangs between the long ones
  const SectionDrawing drawing = DrawSection(section);
  EXPECT_EQ(Measured(drawing, Side::Across), 7);
  EXPECT_EQ(Measured(drawing, Side::Right), 8);
}

TEST(SectionDrawing, EndsWhereASectionOfLessThanAMillimetreEnds) {
  SectionRec section = Angle(1, 0);
  section.Profile = {.B = 0.75, .H = 0.5, .t = 0.125, .s = 0.125};
  ExpectBounds(DrawSection(section), 0, 0.75, 0, 0.5);
}

TEST(SectionDrawing, MeasuresTheFlangesOfAllProfilesButTubes) {
  constexpr Long lastOpenProfile = 11;
  SectionRec section = Angle(5, 0);
  for (Long standard = 1; standard <= standardCount; ++standard) {
    section.TypeIdx = standard;
    EXPECT_EQ(Measured(DrawSection(section), Side::Right), standard <= lastOpenProfile ? 8 : 0)
        << standard;
  }
}

/// The measured wall and flange of a single profile.
struct MeasuredParts {
  SectionDimension Wall, Flange;
};

MeasuredParts PartsOf(Long standard, Long layout, const ProfileRec& profile) {
  SectionRec section;
  section.TypeIdx = standard;
  section.Layout = layout;
  section.Profile = profile;
  MeasuredParts parts;
  for (const SectionDimension& dimension : DrawSection(section).Dimensions) {
    if (dimension.At == Side::Across) {
      parts.Wall = dimension;
    } else if (dimension.At == Side::Right) {
      parts.Flange = dimension;
    }
  }
  return parts;
}

void ExpectLine(const SectionDimension& line, double from, double to, double edge, double value) {
  EXPECT_DOUBLE_EQ(line.From, from);
  EXPECT_DOUBLE_EQ(line.To, to);
  EXPECT_DOUBLE_EQ(line.EdgeFrom, edge);
  EXPECT_DOUBLE_EQ(line.EdgeTo, edge);
  EXPECT_DOUBLE_EQ(line.Value, value);
}

TEST(SectionDrawing, MeasuresTheWallOfAnAngleAwayFromTheFillets) {
  const MeasuredParts parts = PartsOf(1, 1, {.B = 63, .H = 100, .t = 7, .s = 8});
  ExpectLine(parts.Wall, 0, 8, 60, 8);
  ExpectLine(parts.Flange, 0, 7, 63, 7);
}

TEST(SectionDrawing, MeasuresTheWallOfAChannelAtHalfItsHeight) {
  const MeasuredParts parts = PartsOf(3, 5, {.B = 64, .H = 160, .t = 8, .s = 5});
  ExpectLine(parts.Wall, 0, 5, 80, 5);
  ExpectLine(parts.Flange, 0, 8, 64, 8);
}

TEST(SectionDrawing, MeasuresTheWallOfABeamInItsMiddle) {
  const MeasuredParts parts = PartsOf(6, 6, {.B = 82, .H = 160, .t = 7, .s = 5});
  ExpectLine(parts.Wall, -2.5, 2.5, 80, 5);
  ExpectLine(parts.Flange, 0, 7, 41, 7);
}

TEST(SectionDrawing, MeasuresAHangingTeeBelowItsFlange) {
  const MeasuredParts parts = PartsOf(8, 7, {.B = 100, .H = 150, .t = 9, .s = 6});
  ExpectLine(parts.Wall, -3, 3, -90, 6);
  ExpectLine(parts.Flange, -9, 0, 50, 9);
}

TEST(SectionDrawing, MeasuresTheRightWallOfABox) {
  const MeasuredParts parts = PartsOf(18, 9, {.B = 80, .H = 120, .t = 4, .s = 4});
  ExpectLine(parts.Wall, 36, 40, 0, 4);
  EXPECT_EQ(parts.Flange.Value, 0) << "walls of one thickness";
}

TEST(SectionDrawing, DrawsTubesBySharpTablesWithSharpCorners) {
  for (const Long standard : {18, 20, 21}) {
    SectionRec section;
    section.TypeIdx = standard;
    section.Layout = 9;
    section.Profile = {.B = 80, .H = 80, .t = 4, .s = 4};
    const SectionDrawing drawing = DrawSection(section);
    ASSERT_EQ(drawing.Holes.size(), 1U);
    for (const Outline& outline : {drawing.Profiles[0], drawing.Holes[0]}) {
      for (const OutlineVertex& vertex : outline) {
        EXPECT_EQ(static_cast<double>(vertex.Radius), 0) << standard;
      }
    }
  }
}

TEST(SectionDrawing, MeasuresAGapOfAMillimetre) {
  EXPECT_EQ(DrawSection(Angle(2, 1)).Dimensions.size(), 5U);
}

TEST(SectionDrawing, GivesARoundTubeItsDiameterAndWall) {
  SectionRec section;
  section.TypeIdx = 14;
  section.Layout = 11;
  section.Profile.B = 114;
  section.Profile.s = 4;
  const SectionDrawing drawing = DrawSection(section);
  ASSERT_EQ(drawing.Holes.size(), 1U);
  ExpectBounds(drawing, -57, 57, -57, 57);
  ASSERT_EQ(drawing.Dimensions.size(), 2U);
  EXPECT_EQ(drawing.Dimensions[0].At, Side::Across);
  EXPECT_EQ(drawing.Dimensions[0].From, 53);
  EXPECT_EQ(drawing.Dimensions[0].To, 57);
  EXPECT_FALSE(drawing.Dimensions[0].Diameter);
  EXPECT_TRUE(drawing.Dimensions[1].Diameter);
  EXPECT_EQ(drawing.Dimensions[1].Value, 114);
}

TEST(SectionDrawing, GivesNothingElseADiameter) {
  for (const SectionDimension& dimension : DrawSection(Angle(2, 10)).Dimensions) {
    EXPECT_FALSE(dimension.Diameter);
  }
}

TEST(SectionDrawing, RefusesWhatMakesNoSection) {
  SectionRec section = Angle(1, 0);
  section.Profile.s = 200;
  EXPECT_THROW(DrawSection(section), RuntimeError);
  section = Angle(1, 0);
  section.Profile.r1 = 500;
  EXPECT_THROW(DrawSection(section), RuntimeError) << "a fillet without room";
  section = Angle(1, 0);
  section.TypeIdx = 23;
  EXPECT_THROW(DrawSection(section), RuntimeError);
  EXPECT_THROW(DrawSection(Angle(2, std::nan(""))), RuntimeError);
  EXPECT_NO_THROW(DrawSection(Angle(1, std::nan("")))) << "a single profile has no gap to look at";
}

/// Area and moments of inertia of what is drawn, about its own centroid; cm2 and cm4.
SectionProps PropsOf(const SectionDrawing& drawing) {
  AreaIntegrals sum{};
  const auto add = [&](const Outline& outline, bool hole) {
    const AreaIntegrals part = Integrate(outline);
    // The mirrored ones go round the other way.
    const Real sign = ((part.A < 0) == hole) ? 1.0 : -1.0;
    sum = {sum.A + sign * part.A, sum.Sy + sign * part.Sy, sum.Sz + sign * part.Sz,
           sum.Jy + sign * part.Jy, sum.Jz + sign * part.Jz};
  };
  for (const Outline& outline : drawing.Profiles) {
    add(outline, false);
  }
  for (const Outline& outline : drawing.Holes) {
    add(outline, true);
  }
  const SectionFigures figures = CentroidalFigures(sum);
  EXPECT_NEAR(figures.y0, drawing.CentroidX, 1e-6);
  EXPECT_NEAR(figures.z0, drawing.CentroidY, 1e-6);
  return {.Area = figures.A, .Jin = figures.Jy, .Jout = figures.Jz};
}

TEST(SectionDrawing, HasTheAreaAndInertiaThatAreCalculatedWith) {
  EmbeddedResources resources;
  test::World world(resources);
  const ProfileTypeArray catalogue = LoadProfileTypes(world.Bundle());
  for (Long number = 1; number <= sectionLayoutCount; ++number) {
    for (const Long standard : FindSectionLayout(number)->Standards) {
      const BoundedArray<ProfileRec>& sizes = catalogue[standard].Rec;
      for (const Long size : {sizes.UpperBound() / 2, sizes.UpperBound()}) {
        const SectionRec section{.TypeIdx = standard,
                                 .SizeIdx = size,
                                 .Gdist = 12,
                                 .Paired = FindSectionLayout(number)->Paired,
                                 .Profile = sizes[size],
                                 .Layout = number};
        const SectionProps drawn = PropsOf(DrawSection(section));
        const SectionProps told = ComposeSection(section);
        // The tables leave out corners: some percent in thick walls.
        constexpr double share = 0.06;
        const std::string name = std::to_string(number) + " " + section.Profile.Name.Trimmed();
        EXPECT_NEAR(drawn.Area, told.Area, share * told.Area) << name;
        EXPECT_NEAR(drawn.Jin, told.Jin, share * told.Jin) << name;
        EXPECT_NEAR(drawn.Jout, told.Jout, share * told.Jout) << name;
      }
    }
  }
}

}  // namespace
}  // namespace trelonit
