#include <array>
#include <cmath>
#include <gtest/gtest.h>

#include "opinion/Buckling.h"
#include "platform/errors/RuntimeError.h"
#include "tests/opinion/PublishedPhi.h"

namespace trelonit::test {

namespace {

TEST(Phi, IsThatOfThePublishedTable) {
  for (const PublishedPhi& row : publishedPhi) {
    const double conditional = row.Slenderness * std::sqrt(240.0 / 206000.0);
    // The table has whole thousandths: half of one is what its rounding may take away.
    EXPECT_NEAR(BucklingCoefficient(conditional, 240, 206000).Phi * 1000, row.Thousandths, 0.5)
        << row.Slenderness;
  }
}

// With Ry = 200 and E = 200000, Ry / E = 0.001 and the formulas are
//   (8)  1 - 0.06747 x sqrt(x)
//   (9)  1.457 - 0.3437 x + 0.02197 x^2
//   (10) 332 / (x^2 (51 - x))
struct Bound {
  double Conditional = 0;
  int FormulaAt = 0;
  double PhiAt = 0;
  int FormulaAbove = 0;
  double PhiAbove = 0;
};

constexpr std::array<Bound, 3> bounds{{
    // 1 - 0.06747 * 2.5 * 1.5811388 = 0.7333014; 1.457 - 0.85925 + 0.1373125 = 0.7350625
    {2.5, 8, 0.7333014, 9, 0.7350625},
    // 1.457 - 1.54665 + 0.4448925 = 0.3552425; 332 / (20.25 * 46.5) = 0.3525820
    {4.5, 9, 0.3552425, 10, 0.3525820},
    // 332 / (1225 * 16) = 0.0169388; beyond it the program's own 0.017
    {35, 10, 0.0169388, 0, 0.017},
}};

TEST(Phi, HasTheLowerFormulaAtABoundAndTheUpperOneAboveIt) {
  for (const Bound& bound : bounds) {
    const double below = std::nextafter(bound.Conditional, 0);
    const double above = std::nextafter(bound.Conditional, 100);
    for (const double x : {below, bound.Conditional}) {
      const Buckling found = BucklingCoefficient(x, 200, 200000);
      EXPECT_EQ(found.Formula, bound.FormulaAt) << bound.Conditional;
      EXPECT_NEAR(found.Phi, bound.PhiAt, 1e-7) << bound.Conditional;
    }
    const Buckling found = BucklingCoefficient(above, 200, 200000);
    EXPECT_EQ(found.Formula, bound.FormulaAbove) << bound.Conditional;
    EXPECT_NEAR(found.Phi, bound.PhiAbove, 1e-7) << bound.Conditional;
  }
}

TEST(Phi, IsOneWithoutSlendernessAndFallsWithIt) {
  EXPECT_EQ(BucklingCoefficient(0, 240, 206000).Phi, 1);
  double last = 1;
  // Up to 34, where x^2 (51 - x) is greatest.
  for (int tenth = 1; tenth <= 340; ++tenth) {
    const double phi = BucklingCoefficient(tenth / 10.0, 240, 206000).Phi;
    EXPECT_LT(phi, last) << tenth;
    EXPECT_GT(phi, 0) << tenth;
    last = phi;
  }
}

TEST(Phi, IsNoInfinityForASteelOfAnyStrength) {
  EXPECT_THROW(BucklingCoefficient(1, 1e308, 1), RuntimeError);
  EXPECT_THROW(BucklingCoefficient(3, 1e308, 1), RuntimeError);
  EXPECT_THROW(BucklingCoefficient(1, 240, 0), RuntimeError);
}

}  // namespace

}  // namespace trelonit::test
