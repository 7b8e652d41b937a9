#include <gtest/gtest.h>
#include <initializer_list>

#include "checks/EffectiveLengths.h"
#include "tests/analysis/Designs.h"
#include "tests/checks/Checks.h"

namespace trelonit::test {
namespace {

constexpr double wholeSpan = 24;

/// d and the end panel d0, one of them the longer.
struct PanelLengths {
  double d;
  double d0;
};
constexpr PanelLengths panelLengths[] = {{3, 2}, {2, 3.5}};

struct Case {
  Long Scheme = 1;
  Long n = 8;
  Integer UpBrace = 1;
  Integer DownBrace = 1;
  Long UpIndex = 1;
  Long DwnIndex = 1;
  PanelLengths Panels = panelLengths[0];
};

CheckResult LengthsOf(const Case& c) {
  TreloData data = Design(1, c.n, wholeSpan, 1.5, c.Panels.d0);
  data.TreloType = c.Scheme;
  data.UpPoyasBrace = c.UpBrace;
  data.DownPoyasBrace = c.DownBrace;
  TreloResult result;
  result.LenPanel = c.Panels.d;
  result.LenRaskos = 2.25;
  result.LenOpornRaskos = 2.75;
  result.UpPoyasForce = BoundedArray<double>(1, 8);
  result.DwnPoyasForce = BoundedArray<double>(1, 6);
  CheckResult check;
  check.UpPoyas.NMax.Index = c.UpIndex;
  check.DwnPoyas.NMax.Index = c.DwnIndex;
  PutEffectiveLengths(check, data, result);
  return check;
}

TEST(EffectiveLengths, OfTheUpperChordInPlaneHangOnTheBarOfGreatestForce) {
  for (const PanelLengths& panels : panelLengths) {
    for (Long scheme = 1; scheme <= 4; ++scheme) {
      for (const Long index : {1, 2, 7, 8}) {
        SCOPED_TRACE(testing::Message() << "scheme " << scheme << ", bar " << index);
        const bool end = index == 1 || index == 8;
        const double expected = scheme != 3 && end ? panels.d0 : panels.d;
        EXPECT_EQ(LengthsOf({.Scheme = scheme, .UpIndex = index, .Panels = panels}).UpPoyas.LenX,
                  expected);
      }
    }
  }
}

TEST(EffectiveLengths, OfTheUpperChordOutOfPlaneHangOnTheBracing) {
  for (Long scheme = 1; scheme <= 4; ++scheme) {
    for (const Long index : {1, 4, 8}) {
      for (const PanelLengths& panels : panelLengths) {
        const double longer = panels.d > panels.d0 ? panels.d : panels.d0;
        const double expected[] = {0, longer, longer, wholeSpan / 2, wholeSpan, 0};
        for (Integer brace = 0; brace <= 5; ++brace) {
          SCOPED_TRACE(testing::Message() << "scheme " << scheme << ", bracing " << brace);
          EXPECT_EQ(
              LengthsOf({.Scheme = scheme, .UpBrace = brace, .UpIndex = index, .Panels = panels})
                  .UpPoyas.LenY,
              expected[brace]);
        }
      }
    }
  }
}

TEST(EffectiveLengths, OfTheLowerChordInPlaneHangOnTheScheme) {
  for (const PanelLengths& panels : panelLengths) {
    for (const Long index : {1, 2, 5, 6}) {
      SCOPED_TRACE(index);
      const bool end = index == 1 || index == 6;
      const double expected[] = {0, end ? panels.d0 : panels.d, panels.d, panels.d, 2 * panels.d,
                                 0};
      for (Long scheme = 0; scheme <= 5; ++scheme) {
        SCOPED_TRACE(scheme);
        EXPECT_EQ(LengthsOf({.Scheme = scheme, .DwnIndex = index, .Panels = panels}).DwnPoyas.LenX,
                  expected[scheme]);
      }
    }
  }
}

TEST(EffectiveLengths, OfTheLowerChordOutOfPlaneHangOnSchemeAndBracing) {
  for (const PanelLengths& panels : panelLengths) {
    const double d = panels.d;
    const double longer = panels.d > panels.d0 ? panels.d : panels.d0;
    // Rows: schemes 1 to 4; columns: bracing 1 to 4, for trusses of 8 panels.
    const double expected[4][4] = {{longer, longer, wholeSpan / 2, wholeSpan},
                                   {d, 2 * d, wholeSpan / 2, wholeSpan},
                                   {d, 2 * d, wholeSpan / 2, wholeSpan},
                                   {2 * d, 4 * d, wholeSpan / 2, wholeSpan}};
    for (Long scheme = 1; scheme <= 4; ++scheme) {
      for (Integer brace = 1; brace <= 4; ++brace) {
        SCOPED_TRACE(testing::Message() << "scheme " << scheme << ", bracing " << brace);
        EXPECT_EQ(LengthsOf({.Scheme = scheme, .DownBrace = brace, .Panels = panels}).DwnPoyas.LenY,
                  expected[scheme - 1][brace - 1]);
      }
    }
  }
}

double AlternatelyHeld(Long scheme, Long n) {
  return LengthsOf({.Scheme = scheme, .n = n, .DownBrace = 2}).DwnPoyas.LenY;
}

TEST(EffectiveLengths, OfAlternatelyHeldLowerChordsAreShorterInTheSmallestTrusses) {
  const double d = panelLengths[0].d;
  EXPECT_EQ(AlternatelyHeld(3, 2), d);
  EXPECT_EQ(AlternatelyHeld(3, 3), 2 * d);
  EXPECT_EQ(AlternatelyHeld(4, 4), 2 * d);
  EXPECT_EQ(AlternatelyHeld(4, 6), 4 * d);
  EXPECT_EQ(AlternatelyHeld(2, 4), 2 * d);
}

TEST(EffectiveLengths, OutsideTheTablesAreZero) {
  for (const Integer brace : std::initializer_list<Integer>{-1, 0, 5, 100}) {
    for (Long scheme = 1; scheme <= 4; ++scheme) {
      EXPECT_EQ(LengthsOf({.Scheme = scheme, .UpBrace = brace}).UpPoyas.LenY, 0);
      EXPECT_EQ(LengthsOf({.Scheme = scheme, .DownBrace = brace}).DwnPoyas.LenY, 0);
    }
  }
  for (const Long scheme : {0, 5, 11}) {
    for (Integer brace = 1; brace <= 4; ++brace) {
      EXPECT_EQ(LengthsOf({.Scheme = scheme, .DownBrace = brace}).DwnPoyas.LenY, 0);
    }
  }
}

TEST(EffectiveLengths, OfWebMembersAreTheirFullLengthsInBothPlanes) {
  for (Long scheme = 1; scheme <= 4; ++scheme) {
    SCOPED_TRACE(scheme);
    const CheckResult check = LengthsOf({.Scheme = scheme});
    const double stoyka = scheme == 3 ? 0 : 1.5;
    EXPECT_EQ(check.Stoyka.LenX, stoyka);
    EXPECT_EQ(check.Stoyka.LenY, stoyka);
    EXPECT_EQ(check.Raskos.LenX, 2.25);
    EXPECT_EQ(check.Raskos.LenY, 2.25);
    EXPECT_EQ(check.OpornRaskos.LenX, 2.75);
    EXPECT_EQ(check.OpornRaskos.LenY, 2.75);
  }
}

}  // namespace
}  // namespace trelonit::test
