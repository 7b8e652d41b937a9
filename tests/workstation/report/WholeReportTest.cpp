#include <gtest/gtest.h>

#include "tests/workstation/ExpectedLines.h"
#include "tests/workstation/report/ReportText.h"

// Whole reports of small trusses. All numbers are worked out by hand from the forces, which are
// told at each.

namespace trelonit::test {
namespace {

// Reactions 3 and 1 from 4 t a quarter of the span from the left. By sections, with slopes of 45
// degrees, every chord force is a moment over 2 m and every diagonal a shear times root 2. All
// other numbers are worked out from these by the formulas on paper.
TEST(WholeReport, OfATrussOnItsLowerChord) {
  SmallTruss desk(1);
  desk.Load(true, 1, "4");
  desk.Main.chkDinloadEnable.SetChecked(true);
  ExpectSameReport(Reported(desk), ExpectedLines("report-scheme1.txt"));
  EXPECT_EQ(desk.TakeMessages(), Messages());
}

// Forces by sections, as with slopes of 45 degrees; the deflection by virtual work from a general
// solution of the joints.
TEST(WholeReport, OfATrussOnItsUpperChord) {
  SmallTruss desk(2);
  desk.Load(true, 1, "4");
  desk.Main.optUpPoyas.Select(4);
  desk.Main.optDownPoyas.Select(4);
  desk.Main.chkProgib.SetChecked(true);
  ExpectSameReport(Reported(desk), ExpectedLines("report-scheme2.txt"));
  EXPECT_EQ(desk.TakeMessages(), Messages());
}

// The moment in the middle is 4 t m over 1 m of height; the second diagonal has no shear. The lower
// chord sinks by 0.00214 m, more than 4 m / 2500.
TEST(WholeReport, OfALatticeWithoutVerticals) {
  SmallTruss desk(3);
  desk.Load(true, 1, "2");
  desk.Load(false, 0, "4");
  desk.Main.optUpPoyas.Select(3);
  desk.Main.optDownPoyas.Select(3);
  desk.Main.chkDinloadEnable.SetChecked(true);
  desk.Main.chkProgib.SetChecked(true);
  desk.Main.optNP.SetValue(true);
  Choose(desk.Main.cmbLenlim, "1 / 2500");
  ExpectSameReport(Reported(desk), ExpectedLines("report-scheme3.txt"));
  EXPECT_EQ(desk.TakeMessages(), Messages());
}

// The loaded vertical carries just its load, the other one nothing.
TEST(WholeReport, OfATrussWithEverySecondVerticalInACommaLocale) {
  SmallTruss desk(4, CommaLocale());
  desk.Load(true, 1, "4");
  desk.Main.optUpPoyas.Select(1);
  desk.Main.optDownPoyas.Select(1);
  ExpectSameReport(Reported(desk), ExpectedLines("report-scheme4.txt"));
  EXPECT_EQ(desk.TakeMessages(), Messages());
}

}  // namespace
}  // namespace trelonit::test
