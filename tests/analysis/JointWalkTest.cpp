#include <gtest/gtest.h>

#include "analysis/JointWalk.h"
#include "tests/analysis/Designs.h"

namespace trelonit::test {
namespace {

/// A walk over a truss of single bars.
WalkedTruss SmallWalk() {
  WalkedTruss truss;
  for (Reals* values : {&truss.Pu, &truss.Pd, &truss.U, &truss.D, &truss.R, &truss.V}) {
    *values = Reals(0, 0);
  }
  return truss;
}

TEST(RoundingNoise, LiesBelowAHundredBillionthOfTheGreatestForce) {
  WalkedTruss truss = SmallWalk();
  truss.U[0] = -1;
  truss.D[0] = 1e-11;
  truss.R[0] = -1e-11;
  truss.V[0] = 0.999e-11;
  DropRoundingNoise(truss);
  EXPECT_EQ(truss.U[0], -1);
  EXPECT_EQ(truss.D[0], 1e-11);
  EXPECT_EQ(truss.R[0], -1e-11);
  EXPECT_EQ(truss.V[0], 0);
}

TEST(BalanceCheck, AsksForEachOfTheThreeResiduals) {
  EXPECT_TRUE(ResultOf(SmallWalk()).Balanced);
  for (Real WalkedTruss::*const residual : {&WalkedTruss::r1, &WalkedTruss::r2, &WalkedTruss::r3}) {
    WalkedTruss truss = SmallWalk();
    truss.*residual = 0.5;
    EXPECT_FALSE(ResultOf(truss).Balanced);
  }
}

TEST(JointCount, ReachesAThousand) {
  // Scheme 4 has 3 n / 2 + 1 joints, scheme 3 has 2 n + 1.
  EXPECT_EQ(Solved(Design(4, 666, 1332, 2, 2)).KnotNum, 1000);
  EXPECT_EQ(CalcTrelo(Design(3, 500, 1000, 2, 2)).Told.size(), 1U);
}

}  // namespace
}  // namespace trelonit::test
