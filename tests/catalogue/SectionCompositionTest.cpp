#include <bit>
#include <cmath>
#include <cstdint>
#include <gtest/gtest.h>
#include <limits>
#include <rapidcheck.h>

#include "catalogue/SectionComposition.h"
#include "tests/catalogue/CatalogueWorld.h"

namespace trelonit {
namespace {

constexpr double huge = std::numeric_limits<double>::max();
constexpr double infinite = std::numeric_limits<double>::infinity();

SectionRec Section(const ProfileRec& profile, Long layout, double gap = 0) {
  return {.Gdist = gap, .Profile = profile, .Layout = layout};
}

/// The unequal angle L25x16x3.
ProfileRec Angle() {
  return {.A = 1.16, .Jy = 0.7, .Jz = 0.22, .y0 = 4.2, .z0 = 8.6};
}

void ExpectProps(const SectionProps& props, double area, double in, double out) {
  EXPECT_NEAR(props.Area, area, 1e-12 * area);
  EXPECT_NEAR(props.Jin, in, 1e-12 * in);
  EXPECT_NEAR(props.Jout, out, 1e-12 * out);
}

/// Any bits, so that infinities and NaN occur, and plain sizes more often than they would.
rc::Gen<double> AnyDouble() {
  return rc::gen::oneOf(
      rc::gen::map(rc::gen::arbitrary<std::uint64_t>(),
                   [](std::uint64_t bits) { return std::bit_cast<double>(bits); }),
      rc::gen::arbitrary<double>(),
      rc::gen::element(0.0, -0.0, 1.0, huge, -huge, 5e-324, infinite, -infinite,
                       std::numeric_limits<double>::quiet_NaN()));
}

TEST(SectionComposition, TakesASingleAngleAsItsRecordStands) {
  const SectionProps props = ComposeSection(Section(Angle(), 1));
  EXPECT_EQ(props.Area, 1.16);
  EXPECT_EQ(props.Jin, 0.7);
  EXPECT_EQ(props.Jout, 0.22);
}

TEST(SectionComposition, PairsAnglesWithTheLongLegInThePlane) {
  ExpectProps(ComposeSection(Section(Angle(), 2, 10)), 2.32, 1.4, 2.403648);
}

TEST(SectionComposition, PairsAnglesWithTheLongLegOutOfThePlane) {
  ExpectProps(ComposeSection(Section(Angle(), 3, 10)), 2.32, 0.44, 5.691072);
}

TEST(SectionComposition, ShiftsBothInertiasOfACross) {
  ExpectProps(ComposeSection(Section(Angle(), 4, 10)), 2.32, 5.691072, 2.403648);
}

TEST(SectionComposition, TakesAGapOfZeroAsProfilesInContact) {
  // a = 0.42 cm and c = 0.86 cm.
  ExpectProps(ComposeSection(Section(Angle(), 2, 0)), 2.32, 1.4, 2 * (0.22 + 1.16 * 0.1764));
  ExpectProps(ComposeSection(Section(Angle(), 3, 0)), 2.32, 0.44, 2 * (0.7 + 1.16 * 0.7396));
}

TEST(SectionComposition, GivesAChannelPairTheFormulaOfAnglesInLayoutTwo) {
  const ProfileTypeArray catalogue = test::CatalogueWorld().Load();
  const ProfileRec channel = catalogue[3].Rec[1];
  // 6.16 cm2, 22.8 and 5.95 cm4, 12.1 mm to the back of the web.
  ExpectProps(ComposeSection(Section(channel, 8, 8)), 12.32, 45.6, 2 * (5.95 + 6.16 * 1.61 * 1.61));
  const SectionProps asAngles = ComposeSection(Section(channel, 2, 8));
  EXPECT_EQ(ComposeSection(Section(channel, 8, 8)).Jout, asAngles.Jout);
}

TEST(SectionComposition, TakesATeeAsItsRecordStands) {
  ProfileRec tee{.A = 26.19, .Jy = 129, .Jz = 666.99, .z0 = 15};
  ExpectProps(ComposeSection(Section(tee, 7, 20)), 26.19, 129, 666.99);
}

TEST(SectionComposition, SwapsTheInertiasOfATubeLaidFlat) {
  const ProfileTypeArray catalogue = test::CatalogueWorld().Load();
  const ProfileRec rectangle = catalogue[13].Rec[1];
  ExpectProps(ComposeSection(Section(rectangle, 9)), 3.8, 18.8, 10);
  ExpectProps(ComposeSection(Section(rectangle, 10)), 3.8, 10, 18.8);
  const ProfileRec square = catalogue[12].Rec[1];
  ExpectProps(ComposeSection(Section(square, 9)), 3.9, 14.4, 14.4);
  ExpectProps(ComposeSection(Section(square, 10)), 3.9, 14.4, 14.4);
}

TEST(SectionComposition, IgnoresTheGapOfLayoutsWithoutAPair) {
  const ProfileTypeArray catalogue = test::CatalogueWorld().Load();
  for (const double gap : {0.0, 10.0, -7.5, huge, infinite}) {
    ExpectProps(ComposeSection(Section(catalogue[3].Rec[1], 5, gap)), 6.16, 22.8, 5.95);
    for (const Long layout : {1, 5, 6, 7, 9, 10, 11}) {
      const SectionProps props = ComposeSection(Section(Angle(), layout, gap));
      EXPECT_EQ(props.Area, 1.16) << layout;
      EXPECT_EQ(props.Jin, layout == 10 ? 0.22 : 0.7) << layout;
      EXPECT_EQ(props.Jout, layout == 10 ? 0.7 : 0.22) << layout;
    }
  }
}

TEST(SectionComposition, DoesNotAskWhetherTheSectionIsMarkedAsPaired) {
  SectionRec section = Section(Angle(), 1, 10);
  section.Paired = true;
  ExpectProps(ComposeSection(section), 1.16, 0.7, 0.22);
  section.Layout = 2;
  section.Paired = false;
  ExpectProps(ComposeSection(section), 2.32, 1.4, 2.403648);
}

TEST(SectionComposition, IsZeroForALayoutOutsideOneToEleven) {
  for (const Long layout : {-1, 0, 12, 100}) {
    const SectionProps props = ComposeSection(Section(Angle(), layout, 10));
    EXPECT_EQ(props.Area, 0) << layout;
    EXPECT_EQ(props.Jin, 0) << layout;
    EXPECT_EQ(props.Jout, 0) << layout;
  }
}

TEST(SectionComposition, RaisesOverflowInsteadOfAnInfinity) {
  ProfileRec angle = Angle();
  angle.A = huge;
  EXPECT_EQ(test::ErrorOf([&] { ComposeSection(Section(angle, 2, 10)); }), 6);
  EXPECT_EQ(test::ErrorOf([&] { ComposeSection(Section(Angle(), 2, 1e200)); }), 6);
  angle.A = infinite;
  EXPECT_EQ(test::ErrorOf([&] { ComposeSection(Section(angle, 1)); }), 6);
}

TEST(SectionComposition, NeverGivesWhatIsNoNumber) {
  EXPECT_TRUE(rc::check([] {
    ProfileRec profile;
    profile.A = *AnyDouble();
    profile.Jy = *AnyDouble();
    profile.Jz = *AnyDouble();
    profile.y0 = *AnyDouble();
    profile.z0 = *AnyDouble();
    const SectionRec section = Section(profile, *rc::gen::inRange(-1, 14), *AnyDouble());
    try {
      const SectionProps props = ComposeSection(section);
      RC_ASSERT(std::isfinite(props.Area));
      RC_ASSERT(std::isfinite(props.Jin));
      RC_ASSERT(std::isfinite(props.Jout));
    } catch (const RuntimeError& error) {
      RC_ASSERT(error.Number() == 6);
    }
  }));
}

}  // namespace
}  // namespace trelonit
