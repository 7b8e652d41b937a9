#include <gtest/gtest.h>

#include "tests/opinion/ExplanationTools.h"
#include "tests/opinion/FindingsTools.h"
#include "tests/opinion/OpinionCase.h"

namespace trelonit::test {

namespace {

TEST(UnloadedTruss, HasNoCompressedBarAndNothingToTellOfItsLoads) {
  for (Long scheme = 1; scheme <= 4; ++scheme) {
    SCOPED_TRACE(scheme);
    const OpinionCase design(Design(scheme, 8, 24, 2.5, 3));
    const Opinion opinion = design.Form();
    ASSERT_EQ(opinion.Refusal, "");
    for (const BarJudgement& bar : opinion.Bars) {
      EXPECT_FALSE(bar.Compressed);
      EXPECT_EQ(bar.Force, 0);
    }
    EXPECT_EQ(TextsOf(design.Find(), FindingCode::NotBalanced), Texts());
    EXPECT_EQ(TextsOf(design.Find(), FindingCode::LoadDiffers), Texts());
    const std::vector<Explanation> explanations = ExplainOpinion(design.Judged(), opinion);
    const Explanation& strength = Find(explanations, ElementGroup::UpPoyas, "Strength");
    EXPECT_EQ(StepOf(strength, "N").Note, "растяжение");
  }
}

TEST(SmallForces, AreNoneBelowABillionthOfTheGreatest) {
  JudgedTruss truss = SolveTruss(SnowyTruss(1));
  const std::size_t bars = truss.Model.Bars.size();
  const auto isCompressed = [&](double force) {
    truss.Forces.Forces.assign(bars, 0);
    truss.Forces.Forces[0] = force;
    truss.Forces.Forces[bars - 1] = 1e9;
    std::vector<BarJudgement> judged(bars);
    JudgeGroup(truss, truss.Model.Bars[0].Group, {.Area = 20, .Jin = 500, .Jout = 500},
               StartNumbers(), judged);
    return judged[0].Compressed;
  };
  EXPECT_TRUE(isCompressed(-1));
  EXPECT_FALSE(isCompressed(-0.999));
  EXPECT_FALSE(isCompressed(0));
  EXPECT_FALSE(isCompressed(1));
}

// A hundredth of the first of the hand worked designs, whose greatest force is the 12 sqrt 2 t of
// its support diagonals.
TEST(SmallForces, AreMeasuredByTheGreatestHoweverSmallThatIs) {
  TreloData data = SquareDesign(1, 4);
  Fill(data.UpPForce, 0.08);
  data.UpPForce[0] = 0.04;
  data.UpPForce[4] = 0.04;
  const Opinion opinion = OpinionCase(data).Form();
  EXPECT_NEAR(opinion.GreatestForce, 0.12 * 1.4142135623730951, 1e-12);
  EXPECT_NEAR(opinion.SmallestForce(), 0.12e-9 * 1.4142135623730951, 1e-21);
}

}  // namespace

}  // namespace trelonit::test
