#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <map>
#include <set>
#include <tuple>

#include "tests/opinion/OpinionCase.h"

namespace trelonit::test {

namespace {

/// What tables 19* and 20* tell bars apart by.
enum class Role { Chord, SupportDiagonal, SupportPost, Other };

Role RoleOf(const Truss& truss, const TrussBar& bar) {
  switch (bar.Group) {
    case ElementGroup::UpPoyas:
    case ElementGroup::DwnPoyas:
      return Role::Chord;
    case ElementGroup::OpornRaskos:
      return Role::SupportDiagonal;
    case ElementGroup::Stoyka: {
      const double x = truss.Joints[bar.A].X;
      const bool first = bar.Number == 1;
      const bool last = x == truss.Joints[truss.RightSupport].X;
      const bool onSupport = truss.Joints[truss.LeftSupport].Of == Chord::Lower;
      return onSupport && (first || last) ? Role::SupportPost : Role::Other;
    }
    case ElementGroup::Raskos:
      break;
  }
  return Role::Other;
}

/// Table 19*, rows 1 and 2.
double CompressedLimit(Role role, double alpha) {
  return role == Role::Other ? 210 - 60 * alpha : 180 - 60 * alpha;
}

/// Table 20*, rows 1 and 2: the column of static loads, and that of dynamic ones.
double TensionLimit(Role role, bool dynamic) {
  if (!dynamic) {
    return 400;
  }
  // Support posts are not named among chords and support diagonals there.
  return role == Role::Chord || role == Role::SupportDiagonal ? 250 : 350;
}

/// Which lines of the tables a run has met.
using Met = std::set<std::tuple<Role, bool, bool>>;

void ExpectLimits(const OpinionCase& design, Met& met, std::map<int, int>& alphas) {
  const Opinion opinion = design.Form();
  ASSERT_EQ(opinion.Refusal, "");
  for (std::size_t place = 0; place < opinion.Bars.size(); ++place) {
    const BarJudgement& bar = opinion.Bars[place];
    const Role role = RoleOf(opinion.Model, opinion.Model.Bars[place]);
    met.insert({role, bar.Compressed, design.Numbers.Dynamic});
    for (const PlaneJudgement* plane : {&bar.X, &bar.Y}) {
      if (bar.Compressed) {
        const double alpha = std::min(1.0, std::max(0.5, plane->Stability));
        ++alphas[plane->Stability < 0.5 ? 0 : plane->Stability <= 1 ? 1 : 2];
        EXPECT_EQ(plane->Alpha, alpha);
        EXPECT_NEAR(plane->Limit, CompressedLimit(role, alpha), 1e-12);
      } else {
        EXPECT_EQ(plane->Limit, TensionLimit(role, design.Numbers.Dynamic));
        EXPECT_EQ(plane->Alpha, 0);
        EXPECT_EQ(plane->Phi, 0);
        EXPECT_EQ(plane->PhiFormula, 0);
        EXPECT_EQ(plane->Stability, 0);
      }
      EXPECT_NEAR(plane->Flex, plane->Slenderness / plane->Limit, 1e-12);
    }
  }
}

TEST(LimitSlenderness, IsThatOfTables19And20) {
  Met met;
  std::map<int, int> alphas;
  for (Long scheme = 1; scheme <= 4; ++scheme) {
    for (const double load : {-8.0, -1.0, 1.0, 8.0}) {
      for (const bool dynamic : {false, true}) {
        TreloData data = Design(scheme, 8, 24, 2.5, 3);
        Fill(data.UpPForce, load);
        OpinionCase design(data, SameSections(Single(30, 600, 900)));
        design.Numbers.Dynamic = dynamic;
        ExpectLimits(design, met, alphas);
      }
    }
  }
  // Four roles, in tension and in compression, under static and under dynamic loads.
  EXPECT_EQ(met.size(), 16U);
  // Alpha below its lower bound, between its bounds, above its upper one.
  EXPECT_GT(alphas[0], 20);
  EXPECT_GT(alphas[1], 20);
  EXPECT_GT(alphas[2], 20);
}

/// The upper chord of two bars of 3 m under 6 t, see HandWorkedTest: 5 t of compression. With
/// A = 10, J = 90 both ways: i = 3, lambda = 100.
OpinionCase PressedChord(double Ry) {
  TreloData data = Design(3, 2, 6, 1.5, 0);
  data.UpPForce[1] = 6;
  data.DwnPForce[0] = 2;
  data.DwnPForce[1] = 2;
  data.UpPoyasBrace = 4;
  data.DownPoyasBrace = 4;
  CheckNumbers numbers = StartNumbers();
  numbers.Yc = 1;
  numbers.Ry = Ry;
  return OpinionCase(data, SameSections(Single(10, 90, 90)), numbers);
}

// phi at lambda 100, Ry 240 is 0.54242 (formula 9 at 3.41326): 5 * 98.1 / (0.54242 * 10 * 240) =
// 0.37678, below the least alpha.
TEST(LimitSlenderness, TakesAnAlphaOfAtLeastAHalf) {
  const Opinion opinion = PressedChord(240).Form();
  const PlaneJudgement& plane = opinion.Bars[0].X;
  EXPECT_NEAR(plane.Slenderness, 100, 1e-9);
  EXPECT_NEAR(plane.Stability, 0.37678, 2e-5);
  EXPECT_EQ(plane.Alpha, 0.5);
  EXPECT_EQ(plane.Limit, 150);
  EXPECT_NEAR(plane.Flex, 100.0 / 150, 1e-12);
}

// At Ry = 50 MPa: x = 100 sqrt(50 / 206000) = 1.557942, q = 2.427184e-4, phi = 1 - (0.073 -
// 0.001342233) * 1.557942 * 1.248176 = 0.860655; 5 * 98.1 / (0.860655 * 10 * 50) = 1.13983.
TEST(LimitSlenderness, TakesAnAlphaOfAtMostOne) {
  const Opinion opinion = PressedChord(50).Form();
  const PlaneJudgement& plane = opinion.Bars[0].X;
  EXPECT_NEAR(plane.Stability, 1.13983, 2e-5);
  EXPECT_EQ(plane.Alpha, 1);
  EXPECT_EQ(plane.Limit, 120);
}

// At Ry = 80: x = 1.970659, q = 3.883495e-4, phi = 1 - (0.073 - 0.002147573) * 1.970659 * 1.403801
// = 0.803993; 5 * 98.1 / (0.803993 * 800) = 0.762600, which is alpha.
TEST(LimitSlenderness, TakesTheStabilityOfThePlaneForAlphaBetween) {
  const Opinion opinion = PressedChord(80).Form();
  const PlaneJudgement& plane = opinion.Bars[0].X;
  EXPECT_NEAR(plane.Alpha, 0.762600, 2e-6);
  EXPECT_NEAR(plane.Limit, 134.2440, 2e-4);
}

TEST(Compression, StartsAtABillionthOfTheGreatestForce) {
  // A load at a joint over a support reaches the post alone, whose force is the load: 10 t on the
  // left post, and on the right one just below and just above a billionth of it.
  TreloData data = Design(1, 4, 12, 3, 3);
  data.UpPForce[0] = 10;
  for (const double tiny : {0.9e-8, 1.1e-8}) {
    data.UpPForce[4] = tiny;
    const Opinion opinion = OpinionCase(data).Form();
    std::vector<bool> compressed;
    for (std::size_t bar = 0; bar < opinion.Bars.size(); ++bar) {
      if (opinion.Model.Bars[bar].Group == ElementGroup::Stoyka) {
        compressed.push_back(opinion.Bars[bar].Compressed);
      }
    }
    EXPECT_EQ(compressed, (std::vector<bool>{true, false, false, false, tiny > 1e-8}));
  }
}

}  // namespace

}  // namespace trelonit::test
