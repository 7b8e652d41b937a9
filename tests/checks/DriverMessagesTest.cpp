#include <gtest/gtest.h>
#include <limits>

#include "tests/checks/DriverCase.h"

namespace trelonit::test {
namespace {

const Message subscript = DriverError("9 Discription : Subscript out of range");
const Message division = DriverError("11 Discription : Division by zero");
const Message overflow = DriverError("6 Discription : Overflow");
const Message invalidCall = DriverError("5 Discription : Invalid procedure call or argument");

void ExpectFailure(const DriverCase& c, const std::vector<Message>& shown) {
  const DriverRun outcome = c.Run();
  EXPECT_EQ(outcome.Shown, shown);
  EXPECT_TRUE(IsEmpty(outcome.Check));
}

/// A case in which no group is in compression.
DriverCase Hanging() {
  DriverCase c;
  c.Res.UpPoyasForce = c.Res.DwnPoyasForce;
  c.Res.StoykaForce = c.Res.DwnPoyasForce;
  c.Res.RaskosForce = c.Res.DwnPoyasForce;
  return c;
}

TEST(CheckueStressMessages, AreNoneForASoundTruss) {
  const DriverRun outcome = DriverCase().Run();
  EXPECT_EQ(outcome.Shown, std::vector<Message>{});
  EXPECT_FALSE(IsEmpty(outcome.Check));
}

TEST(CheckueStressMessages, TellOfAMassThatIsNotPositiveAndTheRunGoesOn) {
  CheckResult expected = DriverCase().Run().Check;
  expected.Mass = 0;
  for (const double density : {0.0, -7.85}) {
    DriverCase c;
    c.Numbers.Density = density;
    const DriverRun outcome = c.Run();
    EXPECT_EQ(outcome.Shown, std::vector{massMessage}) << density;
    EXPECT_EQ(Numbers(outcome.Check), Numbers(expected)) << density;
  }
}

TEST(CheckueStressMessages, TellTwiceARunOfTheMissingLengthOfALatticesVerticals) {
  DriverCase c;
  c.Data.TreloType = 3;
  for (int run = 0; run < 2; ++run) {
    const DriverRun outcome = c.Run();
    EXPECT_EQ(outcome.Shown, (std::vector{lengthMessage, lengthMessage}));
    EXPECT_EQ(outcome.Check.Stoyka.LimitX.Compress, 0);
    EXPECT_EQ(outcome.Check.Stoyka.LimitX.Tension, 400);
    EXPECT_EQ(outcome.Check.Stoyka.KFlexX, 0);
    EXPECT_GT(outcome.Check.OpornRaskos.KFlexX, 0);
  }
}

TEST(CheckueStressMessages, AreNoneForALatticeWhoseVerticalsAreASingleAngle) {
  DriverCase c;
  c.Data.TreloType = 3;
  for (Long layout = 1; layout <= 11; ++layout) {
    c.Sections[sectionStoyka].Layout = layout;
    EXPECT_EQ(c.Run().Shown.size(), layout == 1 ? 0 : 2) << layout;
  }
}

TEST(CheckueStressMessages, TellOfTheMassBeforeTheLengths) {
  DriverCase c;
  c.Data.TreloType = 3;
  c.Numbers.Density = 0;
  EXPECT_EQ(c.Run().Shown, (std::vector{massMessage, lengthMessage, lengthMessage}));
}

TEST(CheckueStressMessages, TellOfEveryPlaneWithoutALength) {
  DriverCase c = Hanging();
  c.Data.LenOporn = 0;
  c.Data.Hight = 0;
  c.Res.LenPanel = 0;
  c.Res.LenRaskos = 0;
  c.Res.LenOpornRaskos = 0;
  const DriverRun outcome = c.Run();
  EXPECT_EQ(outcome.Shown, std::vector(10, lengthMessage));
  EXPECT_EQ(outcome.Check.Raskos.LimitY.Compress, 0);
  EXPECT_EQ(outcome.Check.Raskos.KFlexY, 0);
  EXPECT_GT(outcome.Check.Raskos.KStrength, 0);
  // Two planes each of the two groups that are a single angle keep quiet.
  c.Sections[sectionRaskos].Layout = 1;
  c.Sections[sectionUpPoyas].Layout = 1;
  EXPECT_EQ(c.Run().Shown, std::vector(6, lengthMessage));
}

TEST(CheckueStressMessages, TellOfANegativeLengthInTensionAndTheRunGoesOn) {
  DriverCase c = Hanging();
  c.Data.Hight = -2;
  const DriverRun outcome = c.Run();
  EXPECT_EQ(outcome.Shown, (std::vector{lengthMessage, lengthMessage}));
  EXPECT_DOUBLE_EQ(outcome.Check.Stoyka.FlexY, -40);
  EXPECT_EQ(outcome.Check.Stoyka.PhiY, 0);
  EXPECT_DOUBLE_EQ(outcome.Check.Stoyka.KFlexY, -0.1);
}

TEST(CheckueStressMessages, TellOfABracingOutsideTheTable) {
  DriverCase c = Hanging();
  c.Data.DownPoyasBrace = 5;
  const DriverRun outcome = c.Run();
  EXPECT_EQ(outcome.Shown, std::vector{lengthMessage});
  EXPECT_EQ(outcome.Check.DwnPoyas.LenY, 0);
  EXPECT_EQ(outcome.Check.DwnPoyas.KFlexY, 0);
}

TEST(CheckueStressMessages, TellOfAMissingLengthBeforeItsDivisionByZero) {
  DriverCase c;
  c.Data.UpPoyasBrace = 0;
  ExpectFailure(c, {lengthMessage, division});
}

TEST(CheckueStressMessages, OfASingleAngleWithoutALengthInCompressionAreTheDivisionAlone) {
  DriverCase c;
  c.Data.UpPoyasBrace = 0;
  c.Sections[sectionUpPoyas].Layout = 1;
  ExpectFailure(c, {division});
}

TEST(CheckueStressFailure, ComesFromCompressionInTheGapsOfTheBucklingCurve) {
  DriverCase c;
  // Slenderness 80, conditional 2.5.
  c.Sections[sectionUpPoyas] = DriverCase::Turned(20, 3.75, 5);
  ExpectFailure(c, {division});
  DriverCase d;
  // Slenderness 144, conditional 4.5.
  d.Sections[sectionRaskos] = DriverCase::Turned(16, 5, 3.125);
  ExpectFailure(d, {division});
}

TEST(CheckueStressFailure, ComesFromAUserLimitOfZero) {
  DriverCase c;
  c.Numbers.LimitUser = 0;
  ExpectFailure(c, {division});
}

TEST(CheckueStressFailure, IsAnOverflowWhenZeroIsDividedByZero) {
  DriverCase c = Hanging();
  c.Numbers.LimitUser = 0;
  c.Res.LenPanel = 0;
  // The first quotient is that of the upper chord, in whose plane the length is missing; so it is
  // in the plane of the lower chord.
  ExpectFailure(c, {lengthMessage, lengthMessage, overflow});
}

TEST(CheckueStressFailure, ComesFromTooFewDiagonals) {
  for (const auto& forces :
       {Forces({5, -5}), Forces({5}), BoundedArray<double>(1, 0), BoundedArray<double>()}) {
    DriverCase c;
    c.Res.RaskosForce = forces;
    ExpectFailure(c, {subscript});
  }
}

TEST(CheckueStressFailure, ComesFromAGroupWithoutBars) {
  for (const auto group :
       {&TreloResult::UpPoyasForce, &TreloResult::DwnPoyasForce, &TreloResult::StoykaForce}) {
    DriverCase c;
    c.Res.*group = BoundedArray<double>();
    ExpectFailure(c, {subscript});
    c.Res.*group = BoundedArray<double>(1, 0);
    ExpectFailure(c, {subscript});
  }
}

TEST(CheckueStressFailure, ComesFromAnEmptyAnalysisAfterTheMessageOfTheMass) {
  DriverCase c;
  c.Res = TreloResult();
  ExpectFailure(c, {massMessage, subscript});
}

TEST(CheckueStressFailure, ComesFromMissingSectionsBeforeAnythingElse) {
  DriverCase c;
  c.Numbers.Density = 0;
  c.Sections = SectionArray();
  ExpectFailure(c, {subscript});
}

TEST(CheckueStressFailure, ComesFromASectionWithoutArea) {
  for (Long place = 1; place <= sectionCount; ++place) {
    DriverCase c;
    c.Sections[place].Profile.A = 0;
    ExpectFailure(c, {division});
    c.Sections[place] = DriverCase::Turned(20, 3, 5, 12);
    ExpectFailure(c, {division});
  }
}

TEST(CheckueStressFailure, ComesFromASectionWithoutInertia) {
  for (Long place = 1; place <= sectionCount; ++place) {
    for (const auto inertia : {&ProfileRec::Jy, &ProfileRec::Jz}) {
      DriverCase c;
      c.Sections[place].Profile.*inertia = 0;
      ExpectFailure(c, {division});
      c.Sections[place].Profile.*inertia = -1;
      ExpectFailure(c, {invalidCall});
    }
  }
}

TEST(CheckueStressFailure, ComesFromSteelWithoutResistance) {
  for (const auto number : {&CheckNumbers::Ry, &CheckNumbers::Yc, &CheckNumbers::E}) {
    DriverCase c;
    c.Numbers.*number = 0;
    ExpectFailure(c, {division});
  }
  DriverCase c;
  c.Numbers.E = -c.Numbers.E;
  ExpectFailure(c, {invalidCall});
}

TEST(CheckueStressFailure, ComesFromNumbersBeyondTheirRange) {
  DriverCase c;
  c.Res.UpPoyasForce = Forces({1, -std::numeric_limits<double>::max(), 1});
  ExpectFailure(c, {overflow});
}

TEST(CheckueStressFailure, LeavesNothingBehindForTheNextRun) {
  const CheckResult before = DriverCase().Run().Check;
  DriverCase broken;
  broken.Numbers.LimitUser = 0;
  ExpectFailure(broken, {division});
  const DriverRun after = DriverCase().Run();
  EXPECT_EQ(after.Shown, std::vector<Message>{});
  EXPECT_EQ(Numbers(after.Check), Numbers(before));
}

}  // namespace
}  // namespace trelonit::test
