#include <cmath>
#include <gtest/gtest.h>
#include <utility>

#include "checks/ElementGroups.h"
#include "tests/workstation/design/SmallTruss.h"
#include "workstation/design/SectionSummary.h"

namespace trelonit::test {
namespace {

constexpr double steel = 7.85;

TEST(SectionSummary, HasTheFiguresOfTheSectionAndItsGroup) {
  // The upper chord of the small truss: a tube of 3.9 cm2 with J = 14.4 cm4, four bars of 2 m.
  SmallTruss desk(1);
  const auto summary =
      SummariseSection(desk.Main.Model.ToCalculate(), ElementGroup::UpPoyas, steel);
  ASSERT_TRUE(summary && summary->Totals);
  EXPECT_EQ(summary->Props.Area, 3.9);
  EXPECT_NEAR(summary->RadiusIn, std::sqrt(14.4 / 3.9), 1e-12);
  EXPECT_NEAR(summary->RadiusOut, std::sqrt(14.4 / 3.9), 1e-12);
  EXPECT_NEAR(summary->MassPerMetre, 3.9 * 0.785, 1e-12);
  EXPECT_EQ(summary->Totals->Bars, 4);
  EXPECT_NEAR(summary->Totals->Length, 8, 1e-12);
  EXPECT_NEAR(summary->Totals->Mass, 8 * 3.9 * 0.785 / 1000, 1e-12);
}

TEST(SectionSummary, HasBothRadiiOfAPair) {
  // Two angles L25x16x3 10 mm apart.
  SmallTruss desk(1);
  const auto summary =
      SummariseSection(desk.Main.Model.ToCalculate(), ElementGroup::DwnPoyas, steel);
  ASSERT_TRUE(summary);
  EXPECT_NEAR(summary->RadiusIn, std::sqrt(1.4 / 2.32), 1e-12);
  EXPECT_NEAR(summary->RadiusOut, std::sqrt(2.403648 / 2.32), 1e-9);
}

/// Of all groups of the small truss of this scheme, and what the calculation tells of it; tonnes.
std::pair<double, double> Masses(Long scheme) {
  SmallTruss desk(scheme);
  desk.Load(true, 1, "1");
  const Calculation calculation = desk.Calculate().Of;
  double mass = 0;
  for (const ElementGroupRow& row : elementGroups) {
    const auto summary = SummariseSection(calculation, row.Group, steel);
    mass += summary && summary->Totals ? summary->Totals->Mass : 0;
  }
  return {mass, calculation.CheckData.Mass};
}

TEST(SectionSummary, MassesOfTheGroupsMakeThatOfTheTruss) {
  for (const Long scheme : {1, 2, 4}) {
    const auto [groups, told] = Masses(scheme);
    EXPECT_NEAR(groups, told, 1e-9) << scheme;
  }
}

TEST(SectionSummary, WeighsTheEndDiagonalsOfSchemeThreeWithTheirOwnSection) {
  // Two of them, a root of 2 long: beams of 12 cm2 and not the channels of 6.16 cm2 of the others,
  // which the calculation takes for all diagonals.
  const auto [groups, told] = Masses(3);
  EXPECT_NEAR(groups - told, 2 * std::sqrt(2) * (12 - 6.16) * steel / 10000, 1e-9);
}

TEST(SectionSummary, HasNoTotalsWithoutATruss) {
  SmallTruss desk(1);
  trelonit::Design design = desk.Main.Model.ToCalculate();
  design.TreloData.TreloType = 7;
  const auto summary = SummariseSection(design, ElementGroup::UpPoyas, steel);
  ASSERT_TRUE(summary);
  EXPECT_FALSE(summary->Totals);
  // Scheme 3 has no verticals.
  SmallTruss lattice(3);
  const auto verticals =
      SummariseSection(lattice.Main.Model.ToCalculate(), ElementGroup::Stoyka, steel);
  ASSERT_TRUE(verticals);
  EXPECT_FALSE(verticals->Totals);
}

TEST(SectionSummary, IsNoneForASectionWithoutAreaOrASteelWithoutDensity) {
  SmallTruss desk(1);
  trelonit::Design design = desk.Main.Model.ToCalculate();
  EXPECT_FALSE(SummariseSection(design, ElementGroup::UpPoyas, 0));
  EXPECT_FALSE(SummariseSection(design, ElementGroup::UpPoyas, -1));
  design.ElementSection[sectionUpPoyas].Profile.A = 0;
  EXPECT_FALSE(SummariseSection(design, ElementGroup::UpPoyas, steel));
  design.ElementSection[sectionUpPoyas].Layout = 12;
  EXPECT_FALSE(SummariseSection(design, ElementGroup::UpPoyas, steel));
}

TEST(SectionFacts, AreWrittenForTheUser) {
  SectionSummary summary{.Props = {.Area = 69.74, .Jin = 6315.3, .Jout = 250},
                         .RadiusIn = 9.516,
                         .RadiusOut = 1.893,
                         .MassPerMetre = 54.7459,
                         .Totals = GroupTotals{.Bars = 8, .Length = 24, .Mass = 1.3139}};
  NumberLocale russian = CommaLocale();
  russian.GroupSeparator = " ";
  std::string text;
  for (const SectionFact& fact : SectionFacts(summary, russian)) {
    text += fact.Name + ": " + fact.Value + "\n";
  }
  EXPECT_EQ(text,
            "A: 69,74 см²\n"
            "J в плоскости фермы: 6 315,30 см⁴\n"
            "J из плоскости фермы: 250,00 см⁴\n"
            "i в плоскости фермы: 9,52 см\n"
            "i из плоскости фермы: 1,89 см\n"
            "Масса метра: 54,75 кг/м\n"
            "Вся группа: 8 стержней, 24,00 м, 1 314 кг\n");
}

TEST(SectionFacts, CountBarsAsTheLanguageDoes) {
  const auto counted = [](Long bars) {
    SectionSummary summary;
    summary.Totals = GroupTotals{.Bars = bars};
    return SectionFacts(summary, PointLocale()).back().Value;
  };
  EXPECT_TRUE(counted(1).starts_with("1 стержень,"));
  EXPECT_TRUE(counted(2).starts_with("2 стержня,"));
  EXPECT_TRUE(counted(11).starts_with("11 стержней"));
  EXPECT_TRUE(counted(21).starts_with("21 стержень"));
  EXPECT_TRUE(counted(24).starts_with("24 стержня,"));
  EXPECT_TRUE(counted(30).starts_with("30 стержней"));
}

}  // namespace
}  // namespace trelonit::test
