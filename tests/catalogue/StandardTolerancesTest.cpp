#include <array>
#include <gtest/gtest.h>
#include <limits>
#include <string>

#include "catalogue/StandardFigures.h"

namespace trelonit {
namespace {

/// What an error has to exceed to be found: the tolerances as they were reviewed against the
/// published tables. A wider one would still pass the shipped catalogue and hide misprints, so that
/// whoever changes one changes it here too.
struct Reviewed {
  FigureRule A, Jy, Jz;
};

constexpr double noLimit = std::numeric_limits<double>::max();

// Percent, digits, finest and coarsest unit, units of the last digit (half of one: rounded, one:
// cut off).
constexpr std::array<Reviewed, 22> reviewed{{
    {{0.15, 1, 0.01, 0.01, 0.5}, {0.1, 1, 0.01, 0.01, 0.5}, {0.1, 1, 0.01, 0.01, 0.5}},
    {{0.1, 1, 0.01, 0.01, 0.5}, {0.2, 1, 0.01, 0.01, 0.5}, {0.2, 1, 0.01, 0.01, 0.5}},
    {{0.1, 3, 0.01, 1, 0.5}, {0.1, 3, 0.01, 10, 0.5}, {0.1, 3, 0.01, 1, 0.5}},
    {{0.1, 3, 0.01, 1, 0.5}, {0.1, 3, 0.01, 10, 0.5}, {0.1, 3, 0.01, 1, 0.5}},
    {{0.1, 3, 0.01, 1, 0.5}, {0.1, 3, 0.01, 10, 0.5}, {0.3, 3, 0.01, 1, 0.5}},
    {{0.05, 4, 0.01, 0.1, 0.5}, {0.05, 4, 1, 100, 0.5}, {0.1, 4, 0.1, 10, 0.5}},
    {{0.05, 4, 0.01, 0.1, 0.5}, {0.05, 4, 1, 100, 0.5}, {0.1, 4, 1, 10, 0.5}},
    {{0.05, 1, 0.01, 0.01, 0.5}, {0.05, 3, 1, 10, 0.5}, {0.05, 3, 1, 10, 0.5}},
    {{0.05, 1, 0.01, 0.01, 0.5}, {0.05, 3, 1, 10, 0.5}, {0.15, 3, 1, 10, 0.5}},
    {{0.1, 1, 0.01, 0.01, 1}, {0.05, 1, 0.01, 0.01, 1}, {0.15, 1, 0.01, 0.01, 1}},
    {{0.05, 1, 0.01, 0.01, 1}, {0.05, 1, 0.01, 0.01, 1}, {0.05, 1, 0.01, 0.01, 1}},
    {{0.15, 3, 0.1, 1, 0.5}, {0.1, 4, 0.1, 1, 0.5}, {0.1, 4, 0.1, 1, 0.5}},
    {{0.15, 3, 0.1, 1, 0.5}, {0.1, 4, 0.1, 1, 0.5}, {0.1, 4, 0.1, 1, 0.5}},
    {{0, 1, 0.01, 0.01, 0.5}, {0.001, 6, 0, noLimit, 0.5}, {0.001, 6, 0, noLimit, 0.5}},
    {{0.06, 4, 0.01, 0.1, 0.5}, {0.06, 4, 0.01, 1, 0.5}, {0.06, 4, 0.01, 1, 0.5}},
    {{0.06, 4, 0.01, 0.1, 0.5}, {0.06, 4, 0.01, 1, 0.5}, {0.06, 4, 0.01, 1, 0.5}},
    {{0, 1, 0.01, 0.01, 0.5}, {0, 3, 0.01, 0.1, 0.5}, {0, 3, 0.01, 0.1, 0.5}},
    {{0, 1, 0.01, 0.01, 0.5}, {0, 1, 0.1, 0.1, 0.5}, {0, 1, 0.1, 0.1, 0.5}},
    {{0, 1, 0.01, 0.01, 0.5}, {0, 3, 0.01, 0.1, 0.5}, {0, 3, 0.01, 0.1, 0.5}},
    {{0, 1, 0.01, 0.01, 0.5}, {0.05, 1, 0.1, 0.1, 0.5}, {0.4, 1, 0.1, 0.1, 0.5}},
    {{0.05, 1, 0.01, 0.01, 1}, {0.15, 4, 0.01, 1, 1}, {0.15, 4, 0.01, 1, 1}},
    {{0.05, 1, 0.01, 0.01, 1}, {0.1, 4, 0.01, 1, 1}, {0.16, 4, 0.01, 1, 1}},
}};

void ExpectSame(const FigureRule& rule, const FigureRule& wished, const std::string& name) {
  EXPECT_EQ(rule.Percent, wished.Percent) << name;
  EXPECT_EQ(rule.Digits, wished.Digits) << name;
  EXPECT_EQ(rule.FinestUnit, wished.FinestUnit) << name;
  EXPECT_EQ(rule.CoarsestUnit, wished.CoarsestUnit) << name;
  EXPECT_EQ(rule.LastUnits, wished.LastUnits) << name;
}

TEST(StandardTolerances, AreTheReviewedOnes) {
  ASSERT_EQ(reviewed.size(), static_cast<std::size_t>(standardCount));
  for (Long standard = 1; standard <= standardCount; ++standard) {
    const StandardRule& rule = RuleOfStandard(standard);
    const Reviewed& wished = reviewed[static_cast<std::size_t>(standard - 1)];
    const std::string name = " of standard " + std::to_string(standard);
    ExpectSame(rule.A, wished.A, "A" + name);
    ExpectSame(rule.Jy, wished.Jy, "Jy" + name);
    ExpectSame(rule.Jz, wished.Jz, "Jz" + name);
  }
}

}  // namespace
}  // namespace trelonit
