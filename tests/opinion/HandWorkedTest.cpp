#include <gtest/gtest.h>

#include "tests/opinion/HandWorkedDesigns.h"

namespace trelonit::test {

namespace {

TEST(HandWorkedDesigns, HaveTheForcesOfThePaper) {
  for (const HandWorkedDesign& worked : HandWorkedDesigns()) {
    SCOPED_TRACE(worked.Name);
    const Opinion opinion = worked.Design.Form();
    ASSERT_EQ(opinion.Refusal, "");
    std::size_t compared = 0;
    for (const HandWorkedGroup& group : worked.Groups) {
      for (std::size_t bar = 0; bar < opinion.Bars.size(); ++bar) {
        const TrussBar& place = opinion.Model.Bars[bar];
        if (place.Group == group.Group) {
          const auto number = static_cast<std::size_t>(place.Number);
          ASSERT_LE(number, group.Forces.size());
          EXPECT_NEAR(opinion.Bars[bar].Force, group.Forces[number - 1], 1e-12)
              << static_cast<int>(group.Group) << ", " << number;
          ++compared;
        }
      }
    }
    EXPECT_EQ(compared, opinion.Bars.size());
  }
}

TEST(HandWorkedDesigns, HaveTheFiguresOfThePaper) {
  for (const HandWorkedDesign& worked : HandWorkedDesigns()) {
    SCOPED_TRACE(worked.Name);
    const Opinion opinion = worked.Design.Form();
    ASSERT_EQ(opinion.Groups.size(), worked.Groups.size());
    for (const HandWorkedGroup& group : worked.Groups) {
      const GroupJudgement* judged = opinion.FindGroup(group.Group);
      ASSERT_NE(judged, nullptr);
      for (const MemberCheckRow& row : memberChecks) {
        SCOPED_TRACE(std::to_string(static_cast<int>(group.Group)) + ", " + row.Key);
        // The paper has five decimals.
        const double figure = group.Figures[static_cast<std::size_t>(row.Check)];
        EXPECT_NEAR(judged->Figure(row.Check), figure, 6e-6);
        const bool ruled = judged->GoverningBar(row.Check).has_value();
        EXPECT_EQ(ruled, figure != 0);
        if (ruled) {
          EXPECT_EQ(opinion.Bars[*judged->GoverningBar(row.Check)].Figure(row.Check),
                    judged->Figure(row.Check));
        }
      }
    }
  }
}

// Every formula of the norm and every kind of bar has its part in them.
TEST(HandWorkedDesigns, UseAllFormulas) {
  std::array<int, 11> used{};
  for (const HandWorkedDesign& worked : HandWorkedDesigns()) {
    for (const BarJudgement& bar : worked.Design.Form().Bars) {
      ++used.at(static_cast<std::size_t>(bar.X.PhiFormula));
      ++used.at(static_cast<std::size_t>(bar.Y.PhiFormula));
    }
  }
  EXPECT_GT(used[8], 3);
  EXPECT_GT(used[9], 3);
  EXPECT_GT(used[10], 3);
}

}  // namespace

}  // namespace trelonit::test
