#include <cmath>
#include <functional>
#include <gtest/gtest.h>
#include <limits>

#include "platform/errors/RuntimeError.h"
#include "tests/checks/Checks.h"

namespace trelonit::test {
namespace {

constexpr double Ry = 240;
constexpr double E = 210000;

/// Number of the run-time error that the formula raises, 0 for none.
int ErrorOf(const std::function<void()>& formula) {
  try {
    formula();
  } catch (const RuntimeError& error) {
    return error.Number();
  }
  return 0;
}

TEST(Strength, IsTheStressOverTheReducedResistance) {
  // 10 t on 20 cm2 is 49.05 MPa.
  EXPECT_NEAR(CalcStrength(10, 20, 240, 0.9, 0.95), 49.05 * 0.95 / (240 * 0.9), 1e-15);
}

TEST(Strength, WithoutAreaOrResistanceIsADivisionByZero) {
  EXPECT_EQ(ErrorOf([] { CalcStrength(10, 0, 240, 0.9, 1); }), 11);
  EXPECT_EQ(ErrorOf([] { CalcStrength(10, 20, 0, 0.9, 1); }), 11);
  EXPECT_EQ(ErrorOf([] { CalcStrength(10, 20, 240, 0, 1); }), 11);
  EXPECT_EQ(ErrorOf([] { CalcStrength(0, 0, 240, 0.9, 1); }), 6);
}

TEST(Stability, DividesTheStrengthByPhi) {
  EXPECT_NEAR(CalcStability(10, 0.5, 20, 240, 0.9, 0.95), 2 * 49.05 * 0.95 / (240 * 0.9), 1e-15);
}

TEST(Stability, WithoutPhiIsADivisionByZero) {
  EXPECT_EQ(ErrorOf([] { CalcStability(10, 0, 20, 240, 0.9, 1); }), 11);
}

TEST(Slenderness, IsTheLengthOverTheRadiusOfGyration) {
  // i = sqrt(90 / 10) = 3 cm.
  EXPECT_DOUBLE_EQ(CalcFlex(6, 10, 90, 1), 200);
  EXPECT_DOUBLE_EQ(CalcFlex(6, 10, 90, 0.5), 100);
  EXPECT_EQ(CalcFlex(0, 10, 90, 1), 0);
}

TEST(Slenderness, OfASectionWithoutAreaOrInertiaFails) {
  EXPECT_EQ(ErrorOf([] { CalcFlex(6, 0, 90, 1); }), 11);
  EXPECT_EQ(ErrorOf([] { CalcFlex(6, 10, 0, 1); }), 11);
  EXPECT_EQ(ErrorOf([] { CalcFlex(6, 10, -90, 1); }), 5);
  EXPECT_EQ(ErrorOf([] { CalcFlex(6, 0, 0, 1); }), 6);
}

TEST(ConditionalSlenderness, GoesWithTheRootOfTheStrain) {
  EXPECT_DOUBLE_EQ(CalcFlexBar(100, 210, 210000), 100 * std::sqrt(0.001));
  EXPECT_EQ(CalcFlexBar(0, Ry, E), 0);
  EXPECT_EQ(ErrorOf([] { CalcFlexBar(100, 240, 0); }), 11);
  EXPECT_EQ(ErrorOf([] { CalcFlexBar(100, -240, 210000); }), 5);
}

TEST(Phi, OfABarWithoutSlendernessIsZero) {
  EXPECT_EQ(CalcPhi(0, Ry, E), 0);
  EXPECT_EQ(CalcPhi(-1, Ry, E), 0);
  EXPECT_EQ(CalcPhi(-std::numeric_limits<double>::max(), Ry, E), 0);
}

TEST(Phi, AtOneComesFromTheFirstFormula) {
  EXPECT_NEAR(CalcPhi(1, Ry, E), 0.93332, 5e-9);
}

TEST(Phi, OfAVeryShortBarIsNearlyOne) {
  EXPECT_NEAR(CalcPhi(1e-9, Ry, E), 1, 1e-12);
  EXPECT_LT(CalcPhi(0.1, Ry, E), 1);
}

TEST(Phi, StepsAtTwoAndAHalf) {
  EXPECT_NEAR(CalcPhi(std::nextafter(2.5, 0), Ry, E), 0.7364, 5e-5);
  EXPECT_EQ(CalcPhi(2.5, Ry, E), 0);
  EXPECT_NEAR(CalcPhi(std::nextafter(2.5, 3), Ry, E), 0.7380, 5e-5);
}

TEST(Phi, StepsAtFourAndAHalf) {
  EXPECT_NEAR(CalcPhi(std::nextafter(4.5, 0), Ry, E), 0.3549, 5e-5);
  EXPECT_EQ(CalcPhi(4.5, Ry, E), 0);
  EXPECT_NEAR(CalcPhi(std::nextafter(4.5, 5), Ry, E), 0.3526, 5e-5);
}

TEST(Phi, IsConstantBeyondThirtyFive) {
  EXPECT_NEAR(CalcPhi(35, Ry, E), 0.016939, 5e-7);
  EXPECT_EQ(CalcPhi(std::nextafter(35, 36), Ry, E), 0.017);
  EXPECT_EQ(CalcPhi(36, Ry, E), 0.017);
  EXPECT_EQ(CalcPhi(std::numeric_limits<double>::max(), Ry, E), 0.017);
}

TEST(Phi, OfTheMiddleBranchIsTheSecondFormula) {
  // Ry / E = 0.001: 1.47 - 0.013 - (0.371 - 0.0273) 3 + (0.0275 - 0.00553) 9.
  EXPECT_NEAR(CalcPhi(3, 210, 210000), 1.457 - 0.3437 * 3 + 0.02197 * 9, 1e-14);
}

TEST(Phi, OfTheThirdBranchDoesNotDependOnTheSteel) {
  EXPECT_NEAR(CalcPhi(10, Ry, E), 332.0 / 4100, 1e-15);
  EXPECT_EQ(CalcPhi(10, 500, E), CalcPhi(10, 100, E));
}

TEST(Phi, IsNotClampedToOne) {
  // With a strain of 0.02 the first formula grows beyond 1.
  EXPECT_NEAR(CalcPhi(1, 4200, 210000), 1.0376, 1e-12);
}

TEST(Phi, IsNotClampedToZero) {
  // With a strain of 1 the second formula falls below 0 near its end.
  EXPECT_NEAR(CalcPhi(4.49, 210000, 210000), -11.53 + 26.929 * 4.49 - 5.5025 * 20.1601, 1e-11);
  EXPECT_LT(CalcPhi(4.49, 210000, 210000), -1.5);
}

TEST(Alpha, IsTheUseInCompression) {
  EXPECT_NEAR(CalcAlpha(5, 240, 10, 0.5, 1), 0.40875, 1e-15);
}

TEST(Alpha, IsCutAtOne) {
  EXPECT_EQ(CalcAlpha(20, 240, 10, 0.5, 1), 1);
}

TEST(Alpha, OfABarWithoutForceIsZero) {
  EXPECT_EQ(CalcAlpha(0, 240, 10, 0.5, 1), 0);
}

TEST(Alpha, HasNoLowerBound) {
  EXPECT_NEAR(CalcAlpha(5, 240, 10, 0.5, -1), -0.40875, 1e-15);
}

LimitFlex Limit(Long layout, double alpha, double length, bool dynamic = false) {
  const Outcome<LimitFlex> limit =
      CalcLimitFlex(Single(10, 40, 90, layout), alpha, length, dynamic);
  EXPECT_TRUE(limit.Told.empty());
  return limit.Value;
}

TEST(LimitSlenderness, OfASingleAngleDoesNotLookAtTheLength) {
  for (const double length : {-3.0, 0.0, 6.0, 50.0, 51.0, 1e6}) {
    EXPECT_EQ(Limit(1, 1, length).Compress, 150) << length;
    EXPECT_EQ(Limit(1, 0, length).Compress, 210) << length;
  }
}

TEST(LimitSlenderness, OfOtherLayoutsHangsOnTheLength) {
  for (Long layout = 2; layout <= 11; ++layout) {
    EXPECT_EQ(Limit(layout, 1, 6).Compress, 120) << layout;
    EXPECT_EQ(Limit(layout, 0.5, 6).Compress, 150) << layout;
    EXPECT_EQ(Limit(layout, 0, 6).Compress, 180) << layout;
    EXPECT_EQ(Limit(layout, 0.5, 51).Compress, 120) << layout;
  }
}

TEST(LimitSlenderness, ComparesWithFiftyMetres) {
  EXPECT_EQ(Limit(2, 0, 50).Compress, 180);
  EXPECT_EQ(Limit(2, 0, std::nextafter(50, 51)).Compress, 120);
  EXPECT_EQ(Limit(2, 0, 1e-300).Compress, 180);
}

TEST(LimitSlenderness, InTensionIsLoweredByDynamicLoads) {
  for (const Long layout : {1, 2}) {
    const LimitFlex plain = Limit(layout, 0.5, 6);
    EXPECT_EQ(plain.Tension, 400);
    EXPECT_EQ(plain.Tension2, 400);
    const LimitFlex dynamic = Limit(layout, 0.5, 6, true);
    EXPECT_EQ(dynamic.Tension, 250);
    EXPECT_EQ(dynamic.Tension2, 350);
    EXPECT_EQ(dynamic.Compress, plain.Compress);
  }
}

TEST(LimitSlenderness, OfALengthThatIsNotPositiveIsReported) {
  for (const double length : {0.0, -0.5}) {
    const auto [limit, told] = CalcLimitFlex(Single(10, 40, 90, 2), 0.5, length, true);
    EXPECT_EQ(told, std::vector{lengthMessage});
    EXPECT_EQ(limit.Compress, 0);
    EXPECT_EQ(limit.Tension, 250);
    EXPECT_EQ(limit.Tension2, 350);
  }
}

TreloResult Lengths(double up, double dwn, double raskos, double oporn, double stoyka) {
  TreloResult result;
  result.SumLenUpPoyas = up;
  result.SumLenDwnPoyas = dwn;
  result.SumLenRaskos = raskos;
  result.SumLenOpornRaskos = oporn;
  result.SumLenStoyka = stoyka;
  return result;
}

TEST(Mass, MeetsEveryAreaWithTheLengthOfItsOwnGroup) {
  const SectionArray sections = Sections(Single(1, 1, 1), Single(20, 1, 1), Single(300, 1, 1),
                                         Single(4000, 1, 1), Single(50000, 1, 1));
  // 1 * 2 + 20 * 3 + 300 * 5 + 4000 * 7 + 50000 * 11 = 579562.
  EXPECT_NEAR(CalcMass(Lengths(2, 3, 5, 7, 11), 7.85, sections), 57.9562 * 7.85, 1e-11);
}

TEST(Mass, TakesTheComposedAreaOfAPair) {
  SectionArray sections = SameSections(Single(10, 1, 1));
  sections[2].Layout = 2;
  EXPECT_NEAR(CalcMass(Lengths(0, 5, 0, 0, 0), 8, sections), 20 * 5 * 8 / 10000.0, 1e-15);
}

TEST(Mass, ThatIsNotPositiveIsZero) {
  const SectionArray sections = SameSections(Single(10, 1, 1));
  EXPECT_EQ(CalcMass(Lengths(1, 1, 1, 1, 1), 0, sections), 0);
  EXPECT_EQ(CalcMass(Lengths(1, 1, 1, 1, 1), -7.85, sections), 0);
  EXPECT_EQ(CalcMass(Lengths(-1, 0, 0, 0, 0), 7.85, sections), 0);
  EXPECT_EQ(CalcMass(TreloResult(), 7.85, sections), 0);
  EXPECT_FALSE(std::signbit(CalcMass(TreloResult(), -7.85, sections)));
}

void ExpectExtreme(const ForceExtreme& extreme, double value, Long index) {
  EXPECT_EQ(extreme.Value, value);
  EXPECT_EQ(extreme.Index, index);
}

TEST(ForceExtremes, TakeTheFirstOfEqualMagnitudes) {
  ExpectExtreme(MaxAbsForce(Forces({2, -7, 7, 3})), 7, 2);
  ExpectExtreme(MaxAbsForce(Forces({7, -7, 7})), 7, 1);
  ExpectExtreme(MaxAbsForce(Forces({1, 2, -3})), 3, 3);
  ExpectExtreme(MaxAbsForce(Forces({-5})), 5, 1);
  ExpectExtreme(MaxAbsForce(Forces({0, 0})), 0, 1);
}

TEST(ForceExtremes, TakeTheFirstOfTheSmallestSignedForces) {
  ExpectExtreme(MinForce(Forces({2, -7, 9, -7})), -7, 2);
  ExpectExtreme(MinForce(Forces({4, 3, 5})), 3, 2);
  ExpectExtreme(MinForce(Forces({-1, -2, -3})), -3, 3);
  ExpectExtreme(MinForce(Forces({6})), 6, 1);
}

TEST(ForceExtremes, OfNoForcesFail) {
  EXPECT_EQ(ErrorOf([] { MaxAbsForce(BoundedArray<double>()); }), 9);
  EXPECT_EQ(ErrorOf([] { MinForce(BoundedArray<double>()); }), 9);
  EXPECT_EQ(ErrorOf([] { MaxAbsForce(BoundedArray<double>(1, 0)); }), 9);
}

TEST(StripEnds, LeavesOutTheFirstAndTheLast) {
  EXPECT_EQ(StripEnds(Forces({1, 2, 3, 4, 5})), Forces({2, 3, 4}));
  EXPECT_EQ(StripEnds(Forces({1, 2, 3})), Forces({2}));
}

TEST(StripEnds, OfFewerThanThreeFails) {
  EXPECT_EQ(ErrorOf([] { StripEnds(Forces({1, 2})); }), 9);
  EXPECT_EQ(ErrorOf([] { StripEnds(Forces({1})); }), 9);
  EXPECT_EQ(ErrorOf([] { StripEnds(BoundedArray<double>()); }), 9);
}

TEST(MaxOf, GivesTheGreaterOne) {
  EXPECT_EQ(MaxOf(3, 2), 3);
  EXPECT_EQ(MaxOf(2, 3), 3);
  EXPECT_EQ(MaxOf(-3, -2), -2);
  EXPECT_EQ(MaxOf(2, 2), 2);
}

}  // namespace
}  // namespace trelonit::test
