#include <gtest/gtest.h>

#include "tests/checks/DriverCase.h"

namespace trelonit::test {
namespace {

/// The check of a case that must pass in silence.
CheckResult Checked(const DriverCase& c) {
  const DriverRun outcome = c.Run();
  EXPECT_EQ(outcome.Shown, std::vector<Message>{});
  return outcome.Check;
}

void ExpectForce(const ForceExtreme& force, double value, Long index) {
  EXPECT_EQ(force.Value, value);
  EXPECT_EQ(force.Index, index);
}

TEST(CheckueStress, PutsTheVerticalsThirdThoughTheyAreStoredLast) {
  DriverCase c;
  c.Sections = Sections(Single(10, 110, 210), Single(20, 120, 220), Single(30, 130, 230),
                        Single(40, 140, 240), Single(50, 150, 250));
  const CheckResult check = Checked(c);
  const GroupCheck* const blocks[] = {&check.UpPoyas, &check.DwnPoyas, &check.Stoyka, &check.Raskos,
                                      &check.OpornRaskos};
  const double areas[] = {10, 20, 50, 30, 40};
  for (int block = 0; block < 5; ++block) {
    EXPECT_EQ(blocks[block]->Area, areas[block]);
    EXPECT_EQ(blocks[block]->Jin, 100 + areas[block]);
    EXPECT_EQ(blocks[block]->Jout, 200 + areas[block]);
    if (block > 0) {
      EXPECT_LT(blocks[block - 1], blocks[block]);
    }
  }
}

TEST(CheckueStress, ChecksPairsByTheirComposedSection) {
  DriverCase c;
  SectionRec& pair = c.Sections[sectionUpPoyas];
  pair.Layout = 2;
  pair.Profile.A = 8;
  pair.Profile.Jy = 75;
  pair.Profile.Jz = 40;
  pair.Profile.y0 = 15;
  pair.Gdist = 10;
  const CheckResult check = Checked(c);
  EXPECT_EQ(check.UpPoyas.Area, 16);
  EXPECT_EQ(check.UpPoyas.Jin, 150);
  // The centroids stand 1.5 + 0.5 cm from the axis: 2 (40 + 8 * 4).
  EXPECT_DOUBLE_EQ(check.UpPoyas.Jout, 144);
  EXPECT_DOUBLE_EQ(check.UpPoyas.KStrength, 16 * 0.95 * 98.1 / (16 * 240 * 0.9));
}

TEST(CheckueStress, OfACompressedChordGivesAllItsFigures) {
  DriverCase c;
  // Slenderness 96 and 32.
  c.Sections[sectionUpPoyas] = DriverCase::Turned(20, 3.125, 9.375);
  const GroupCheck chord = Checked(c).UpPoyas;
  ExpectForce(chord.NMax, 16, 4);
  ExpectForce(chord.NComp, -16, 4);
  EXPECT_EQ(chord.LenX, 3);
  EXPECT_EQ(chord.LenY, 3);
  EXPECT_DOUBLE_EQ(chord.FlexX, 96);
  EXPECT_DOUBLE_EQ(chord.FlexY, 32);
  EXPECT_DOUBLE_EQ(chord.FlexBarX, 3);
  EXPECT_DOUBLE_EQ(chord.FlexBarY, 1);
  // 1.4573046875 - 0.34433984375 * 3 + 0.022099609375 * 9 and 1 - 0.067599609375.
  const double phiX = 0.623181640625;
  const double phiY = 0.932400390625;
  EXPECT_NEAR(chord.PhiX, phiX, 1e-14);
  EXPECT_NEAR(chord.PhiY, phiY, 1e-14);
  // 16 * 98.1 over 20 * 240 * 0.9; the reliability coefficient does not enter.
  const double alphaX = 1569.6 / 4320 / phiX;
  const double alphaY = 1569.6 / 4320 / phiY;
  EXPECT_NEAR(chord.AlphaX, alphaX, 1e-13);
  EXPECT_NEAR(chord.AlphaY, alphaY, 1e-13);
  EXPECT_NEAR(chord.LimitX.Compress, 180 - 60 * alphaX, 1e-11);
  EXPECT_NEAR(chord.LimitY.Compress, 180 - 60 * alphaY, 1e-11);
  EXPECT_EQ(chord.LimitX.Tension, 400);
  EXPECT_EQ(chord.LimitY.Tension2, 400);
  // 16 * 0.95 * 98.1 = 1491.12.
  EXPECT_NEAR(chord.KStrength, 1491.12 / 4320, 1e-14);
  EXPECT_NEAR(chord.KStabX, 1491.12 / 4320 / phiX, 1e-13);
  EXPECT_NEAR(chord.KStabY, 1491.12 / 4320 / phiY, 1e-13);
  EXPECT_NEAR(chord.KFlexX, 96 / (180 - 60 * alphaX), 1e-13);
  EXPECT_NEAR(chord.KFlexY, 32 / (180 - 60 * alphaY), 1e-13);
  EXPECT_DOUBLE_EQ(chord.KUserX, 0.64);
  EXPECT_DOUBLE_EQ(chord.KUserY, 32 / 150.0);
}

TEST(CheckueStress, OfAChordInTensionHasNoStabilityAndUsesTheTensionLimit) {
  const GroupCheck chord = Checked(DriverCase()).DwnPoyas;
  ExpectForce(chord.NMax, 15, 4);
  ExpectForce(chord.NComp, 0, 0);
  EXPECT_EQ(chord.KStabX, 0);
  EXPECT_EQ(chord.KStabY, 0);
  EXPECT_DOUBLE_EQ(chord.FlexX, 100);
  EXPECT_DOUBLE_EQ(chord.FlexY, 60);
  EXPECT_GT(chord.PhiX, 0);
  EXPECT_GT(chord.PhiY, 0);
  EXPECT_EQ(chord.AlphaX, 0);
  EXPECT_EQ(chord.AlphaY, 0);
  EXPECT_EQ(chord.LimitX.Compress, 180);
  EXPECT_DOUBLE_EQ(chord.KFlexX, 0.25);
  EXPECT_DOUBLE_EQ(chord.KFlexY, 0.15);
  EXPECT_DOUBLE_EQ(chord.KUserX, 100 / 150.0);
  EXPECT_DOUBLE_EQ(chord.KUserY, 0.4);
  EXPECT_DOUBLE_EQ(chord.KStrength, 15 * 0.95 * 98.1 / (20 * 240 * 0.9));
}

TEST(CheckueStress, WithDynamicLoadsChangesNothingButTheLimitInTension) {
  DriverCase c;
  const CheckResult plain = Checked(c);
  c.Numbers.Dynamic = true;
  const CheckResult dynamic = Checked(c);
  EXPECT_DOUBLE_EQ(dynamic.DwnPoyas.KFlexX, 0.4);
  EXPECT_DOUBLE_EQ(dynamic.DwnPoyas.KFlexY, 0.24);
  EXPECT_EQ(dynamic.UpPoyas.KFlexX, plain.UpPoyas.KFlexX);

  CheckResult expected = plain;
  for (GroupCheck* group : {&expected.UpPoyas, &expected.DwnPoyas, &expected.Stoyka,
                            &expected.Raskos, &expected.OpornRaskos}) {
    group->LimitX.Tension = group->LimitY.Tension = 250;
    group->LimitX.Tension2 = group->LimitY.Tension2 = 350;
  }
  expected.DwnPoyas.KFlexX = dynamic.DwnPoyas.KFlexX;
  expected.DwnPoyas.KFlexY = dynamic.DwnPoyas.KFlexY;
  EXPECT_EQ(Numbers(dynamic), Numbers(expected));
}

TEST(CheckueStress, WithTheReliabilityCoefficientChangesTheStressesOnly) {
  DriverCase c;
  c.Numbers.Gn = 1;
  const GroupCheck one = Checked(c).UpPoyas;
  c.Numbers.Gn = 2;
  const GroupCheck two = Checked(c).UpPoyas;
  EXPECT_DOUBLE_EQ(two.KStrength, 2 * one.KStrength);
  EXPECT_DOUBLE_EQ(two.KStabX, 2 * one.KStabX);
  EXPECT_DOUBLE_EQ(two.KStabY, 2 * one.KStabY);
  EXPECT_GT(one.AlphaX, 0);
  EXPECT_EQ(two.AlphaX, one.AlphaX);
  EXPECT_EQ(two.AlphaY, one.AlphaY);
  EXPECT_EQ(two.KFlexX, one.KFlexX);
}

TEST(CheckueStress, CutsTheUseInCompressionAtOne) {
  DriverCase c;
  c.Res.UpPoyasForce = Forces({-1, -500, -1});
  const GroupCheck chord = Checked(c).UpPoyas;
  EXPECT_EQ(chord.AlphaX, 1);
  EXPECT_EQ(chord.AlphaY, 1);
  EXPECT_EQ(chord.LimitX.Compress, 120);
  EXPECT_DOUBLE_EQ(chord.KFlexX, 100 / 120.0);
  EXPECT_GT(chord.KStabX, 1);
}

TEST(CheckueStress, TakesStrengthByTheGreatestAndStabilityByTheMostNegativeForce) {
  DriverCase c;
  c.Res.UpPoyasForce = Forces({-1, 30, -6, 5, -6});
  const GroupCheck chord = Checked(c).UpPoyas;
  ExpectForce(chord.NMax, 30, 2);
  ExpectForce(chord.NComp, -6, 3);
  EXPECT_DOUBLE_EQ(chord.KStrength, 30 * 0.95 * 98.1 / 4320);
  EXPECT_DOUBLE_EQ(chord.KStabX, 6 * 0.95 * 98.1 / (chord.PhiX * 4320));
  EXPECT_DOUBLE_EQ(chord.AlphaY, 6 * 98.1 / (chord.PhiY * 4320));
  EXPECT_DOUBLE_EQ(chord.KFlexX, 100 / chord.LimitX.Compress);
}

TEST(CheckueStress, CountsAForceOfZeroAsNoCompression) {
  DriverCase c;
  c.Res.DwnPoyasForce = Forces({3, 0, -0.0, 5});
  const GroupCheck chord = Checked(c).DwnPoyas;
  ExpectForce(chord.NComp, 0, 0);
  EXPECT_EQ(chord.KStabX, 0);
  EXPECT_DOUBLE_EQ(chord.KFlexX, chord.FlexX / 400);
}

TEST(CheckueStress, OfAGroupWithoutAnyForceStillHasItsSlenderness) {
  DriverCase c;
  c.Res.DwnPoyasForce = Forces({0, 0, 0});
  const GroupCheck chord = Checked(c).DwnPoyas;
  ExpectForce(chord.NMax, 0, 1);
  ExpectForce(chord.NComp, 0, 0);
  EXPECT_EQ(chord.KStrength, 0);
  EXPECT_DOUBLE_EQ(chord.KFlexX, 250 / 3.0 / 400);
}

TEST(CheckueStress, JudgesTheDiagonalsWithoutTheFirstAndTheLast) {
  DriverCase c;
  c.Res.RaskosForce = Forces({-90, 2, -4, 8, -3, 70});
  const GroupCheck diagonals = Checked(c).Raskos;
  // Counted among the regular diagonals alone.
  ExpectForce(diagonals.NMax, 8, 3);
  ExpectForce(diagonals.NComp, -4, 2);
}

TEST(CheckueStress, JudgesTheSupportDiagonalsByTheGreatestForceOfAllDiagonals) {
  DriverCase c;
  c.Res.RaskosForce = Forces({9, -2, 25, -30, 4, 9});
  const GroupCheck support = Checked(c).OpornRaskos;
  ExpectForce(support.NMax, 30, 4);
  ExpectForce(support.NComp, -30, 4);
  EXPECT_DOUBLE_EQ(support.KStrength, 30 * 0.95 * 98.1 / 4320);
  EXPECT_GT(support.KStabX, 0);
}

TEST(CheckueStress, JudgesTheSupportDiagonalsByTheirOwnEndBarsToo) {
  DriverCase c;
  c.Res.RaskosForce = Forces({-40, 1, 2, 45});
  const CheckResult check = Checked(c);
  ExpectForce(check.OpornRaskos.NMax, 45, 4);
  ExpectForce(check.OpornRaskos.NComp, -40, 1);
  ExpectForce(check.Raskos.NMax, 2, 2);
  ExpectForce(check.Raskos.NComp, 0, 0);
}

TEST(CheckueStress, ChecksASingleRegularDiagonal) {
  DriverCase c;
  c.Res.RaskosForce = Forces({9, -5, 9});
  const GroupCheck diagonals = Checked(c).Raskos;
  ExpectForce(diagonals.NMax, 5, 1);
  ExpectForce(diagonals.NComp, -5, 1);
}

TEST(CheckueStress, TakesTheVerticalsAtTheFullHeight) {
  const GroupCheck verticals = Checked(DriverCase()).Stoyka;
  ExpectForce(verticals.NMax, 8, 2);
  ExpectForce(verticals.NComp, -8, 2);
  EXPECT_EQ(verticals.LenX, 2);
  EXPECT_EQ(verticals.LenY, 2);
  EXPECT_DOUBLE_EQ(verticals.FlexX, 200 / 3.0);
  EXPECT_DOUBLE_EQ(verticals.FlexY, 40);
}

TEST(CheckueStress, TakesTheEndPanelForAnUpperEndBarEvenWhenItIsTheShorter) {
  DriverCase c;
  c.Res.UpPoyasForce = Forces({-20, -10, -10, -20});
  const GroupCheck chord = Checked(c).UpPoyas;
  ExpectForce(chord.NMax, 20, 1);
  EXPECT_EQ(chord.LenX, 2.5);
  EXPECT_EQ(chord.LenY, 3);
  EXPECT_DOUBLE_EQ(chord.FlexX, 250 / 3.0);
}

TEST(CheckueStress, TakesTwoPanelsForALowerChordUnderEverySecondJoint) {
  DriverCase c;
  c.Data.TreloType = 4;
  c.Data.DownPoyasBrace = 2;
  const GroupCheck chord = Checked(c).DwnPoyas;
  EXPECT_EQ(chord.LenX, 6);
  EXPECT_EQ(chord.LenY, 12);
  EXPECT_DOUBLE_EQ(chord.FlexX, 200);
  EXPECT_DOUBLE_EQ(chord.FlexY, 240);
}

TEST(CheckueStress, AddsUpTheMassByTheGroupsInStorage) {
  DriverCase c;
  c.Sections = Sections(Single(10, 90, 90), Single(20, 90, 90), Single(30, 90, 90),
                        Single(40, 90, 90), Single(50, 90, 90));
  // 10 * 24 + 20 * 23 + 30 * 27 + 40 * 7 + 50 * 14 = 2490.
  EXPECT_DOUBLE_EQ(Checked(c).Mass, 0.249 * 7.85);
  c.Numbers.Density = 2.7;
  EXPECT_DOUBLE_EQ(Checked(c).Mass, 0.249 * 2.7);
}

/// A lattice without verticals whose vertical's angle is not in the way of a silent run.
DriverCase Lattice() {
  DriverCase c;
  c.Data.TreloType = 3;
  c.Res.SumLenStoyka = 0;
  c.Sections[sectionStoyka] = DriverCase::Turned(20, 3, 5, 1);
  return c;
}

TEST(CheckueStress, OfALatticeLeavesTheVerticalsAtZero) {
  const GroupCheck verticals = Checked(Lattice()).Stoyka;
  GroupCheck expected;
  expected.Area = 20;
  expected.Jin = 180;
  expected.Jout = 500;
  // The limits are looked up all the same, with a use of 0.
  expected.LimitX = expected.LimitY = {.Compress = 210, .Tension = 400, .Tension2 = 400};
  EXPECT_EQ(Numbers(verticals), Numbers(expected));
}

TEST(CheckueStress, OfALatticeDoesNotLookAtTheForcesOfVerticals) {
  DriverCase c = Lattice();
  c.Res.StoykaForce = Forces({-1e300, 1e300});
  const CheckResult filled = Checked(c);
  c.Res.StoykaForce = BoundedArray<double>();
  const CheckResult none = Checked(c);
  EXPECT_EQ(Numbers(filled), Numbers(none));
  EXPECT_EQ(Numbers(filled), Numbers(Checked(Lattice())));
}

TEST(CheckueStress, OfALatticeDoesNotNeedASectionOfVerticals) {
  DriverCase c = Lattice();
  c.Sections[sectionStoyka] = Single(0, 0, 0, 1);
  const CheckResult check = Checked(c);
  EXPECT_EQ(check.Stoyka.KStrength, 0);
  EXPECT_EQ(check.Stoyka.KUserX, 0);
  EXPECT_GT(check.OpornRaskos.KUserX, 0);
}

TEST(CheckueStress, OfALatticeTakesTheRegularPanelForEndBarsToo) {
  DriverCase c = Lattice();
  c.Res.UpPoyasForce = Forces({-20, -10, -20});
  c.Res.DwnPoyasForce = Forces({20, 10, 20});
  const CheckResult check = Checked(c);
  EXPECT_EQ(check.UpPoyas.LenX, 3);
  EXPECT_EQ(check.DwnPoyas.LenX, 3);
}

TEST(CheckueStress, ComparesASingleAngleWithItsOwnLimit) {
  DriverCase c;
  c.Sections[sectionUpPoyas] = DriverCase::Turned(20, 3, 5, 1);
  const GroupCheck chord = Checked(c).UpPoyas;
  EXPECT_DOUBLE_EQ(chord.LimitX.Compress, 210 - 60 * chord.AlphaX);
  EXPECT_DOUBLE_EQ(chord.LimitY.Compress, 210 - 60 * chord.AlphaY);
  EXPECT_DOUBLE_EQ(chord.KFlexX, 100 / chord.LimitX.Compress);
}

TEST(CheckueStress, LimitsAVeryLongBarWithoutLookingAtItsUse) {
  DriverCase c;
  c.Data.LengthF = 51;
  c.Data.UpPoyasBrace = 4;
  const GroupCheck chord = Checked(c).UpPoyas;
  EXPECT_EQ(chord.LenY, 51);
  EXPECT_GT(chord.AlphaY, 0);
  EXPECT_EQ(chord.LimitY.Compress, 120);
  EXPECT_DOUBLE_EQ(chord.LimitX.Compress, 180 - 60 * chord.AlphaX);
}

TEST(CheckueStress, PassesTheGapsOfTheBucklingCurveInTension) {
  DriverCase c;
  // Slenderness 80 and 144, conditional 2.5 and 4.5.
  c.Sections[sectionDwnPoyas] = DriverCase::Turned(20, 3.75, 5);
  c.Res.RaskosForce = Forces({9, 1, 9});
  c.Sections[sectionRaskos] = DriverCase::Turned(16, 5, 3.125);
  const CheckResult check = Checked(c);
  EXPECT_EQ(check.DwnPoyas.FlexBarX, 2.5);
  EXPECT_EQ(check.DwnPoyas.PhiX, 0);
  EXPECT_EQ(check.DwnPoyas.AlphaX, 0);
  EXPECT_DOUBLE_EQ(check.DwnPoyas.KFlexX, 0.2);
  EXPECT_EQ(check.Raskos.FlexBarY, 4.5);
  EXPECT_EQ(check.Raskos.PhiY, 0);
}

TEST(CheckueStress, HasPhiOfTheLongestBarsConstant) {
  DriverCase c;
  // Slenderness 4.5 * 100 / 0.390625 = 1152, conditional 36.
  c.Sections[sectionRaskos] = DriverCase::Turned(16, 0.390625, 5);
  const GroupCheck diagonals = Checked(c).Raskos;
  EXPECT_EQ(diagonals.FlexBarX, 36);
  EXPECT_EQ(diagonals.PhiX, 0.017);
}

TEST(CheckueStress, LeavesTheUseOfANegativePhiAtZero) {
  DriverCase c;
  c.Numbers.E = c.Numbers.Ry;
  // Slenderness 4.49 is the conditional one as well: -11.53 + 26.929 * 4.49 - 5.5025 * 20.1601.
  c.Res.LenPanel = 4.49;
  c.Sections[sectionUpPoyas] = DriverCase::Turned(20, 100, 100);
  const GroupCheck chord = Checked(c).UpPoyas;
  EXPECT_NEAR(chord.PhiX, -1.54974025, 1e-9);
  EXPECT_EQ(chord.AlphaX, 0);
  EXPECT_EQ(chord.LimitX.Compress, 180);
  EXPECT_NEAR(chord.KStabX, -1491.12 / 4320 / 1.54974025, 1e-9);
}

TEST(CheckueStress, DividesByANegativeUserLimitAsItStands) {
  DriverCase c;
  c.Numbers.LimitUser = -50;
  EXPECT_DOUBLE_EQ(Checked(c).UpPoyas.KUserX, -2);
}

TEST(CheckueStress, GivesTheSameForTheSame) {
  const DriverCase c;
  const SectionArray sections = c.Sections;
  const CheckResult first = Checked(c);
  DriverCase other;
  other.Data.TreloType = 4;
  other.Numbers.Gn = 2;
  Checked(other);
  EXPECT_EQ(Numbers(Checked(c)), Numbers(first));
  EXPECT_EQ(c.Sections, sections);
}

}  // namespace
}  // namespace trelonit::test
