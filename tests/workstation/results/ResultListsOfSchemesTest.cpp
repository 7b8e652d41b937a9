#include <gtest/gtest.h>

#include "tests/workstation/ExpectedLines.h"
#include "tests/workstation/design/SmallTruss.h"

namespace trelonit::test {
namespace {

// Expected values by hand or by a general solution of the joints, not by the walk that is tested.

/// The forces, then the coefficients, caption and value apart by a tab.
std::vector<std::string> LinesOf(const ResultLists& lists) {
  std::vector<std::string> lines = lists.lstForces;
  for (const Grid::Row& row : lists.MSFlexGKoefUse) {
    lines.push_back(row.at(0) + '\t' + row.at(1));
  }
  return lines;
}

// A load of 4 t a quarter of the span from the left: reactions 3 and 1. By sections, with slopes of
// 45 degrees, every chord force is a moment over 2 m and every diagonal a shear times root 2.
TEST(ResultLists, OfATrussOnItsLowerChord) {
  SmallTruss desk(1);
  desk.Load(true, 1, "4");
  const ResultLists& lists = desk.Calculate();
  EXPECT_EQ(LinesOf(lists), ExpectedLines("results-scheme1.txt"));
  EXPECT_FALSE(lists.Of.Progib);
  EXPECT_EQ(desk.TakeMessages(), Messages());
}

// The same forces as with the support below, but for the bars that are gone.
TEST(ResultLists, OfATrussOnItsUpperChord) {
  SmallTruss desk(2);
  desk.Load(true, 1, "4");
  const ResultLists& lists = desk.Calculate();
  EXPECT_EQ(LinesOf(lists), ExpectedLines("results-scheme2.txt"));
  EXPECT_FALSE(lists.Of.Progib);
  EXPECT_EQ(desk.TakeMessages(), Messages());
}

// The moment in the middle is 4 t m over 1 m of height; the second diagonal has no shear, as the
// load below the first upper panel takes up the whole left reaction.
TEST(ResultLists, OfALatticeWithoutVerticals) {
  SmallTruss desk(3);
  desk.Load(true, 1, "2");
  desk.Load(false, 0, "4");
  const ResultLists& lists = desk.Calculate();
  EXPECT_EQ(LinesOf(lists), ExpectedLines("results-scheme3.txt"));
  EXPECT_FALSE(lists.Of.Progib);
  EXPECT_EQ(desk.TakeMessages(), Messages());
}

// The loaded vertical carries just its load; the other one nothing.
TEST(ResultLists, OfATrussWithEverySecondVertical) {
  SmallTruss desk(4);
  desk.Load(true, 1, "4");
  const ResultLists& lists = desk.Calculate();
  EXPECT_EQ(LinesOf(lists), ExpectedLines("results-scheme4.txt"));
  EXPECT_FALSE(lists.Of.Progib);
  EXPECT_EQ(desk.TakeMessages(), Messages());
}

}  // namespace
}  // namespace trelonit::test
