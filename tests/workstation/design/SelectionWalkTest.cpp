#include <cmath>
#include <gtest/gtest.h>
#include <set>
#include <string>
#include <vector>

#include "tests/workstation/design/SelectionLadder.h"
#include "workstation/design/modHelper.h"

namespace trelonit::test {
namespace {

/// The walk of one group, the same for all five.
class SelectionWalk : public ::testing::TestWithParam<GroupOption> {
 protected:
  struct End {
    Long SizeIdx = 0;
    bool Possible = true;
    /// The group's largest coefficient as the proposal has it.
    double Use = 0;
  };

  static GroupOption Group() { return GetParam(); }
  static const SectionRec& SectionOf(const SelectionProposal& proposal) {
    return proposal.Sections[PlaceOfOption(Group())];
  }

  static End Walked(Ladder& ladder) {
    const SelectionProposal proposal = ladder.Select();
    const SectionRec& section = SectionOf(proposal);
    EXPECT_EQ(section.Profile, ladder.Size(section.SizeIdx));
    return {section.SizeIdx, proposal.Impossible.count(Group()) == 0,
            LargestUse(BlockOf(proposal.Check, Group()))};
  }

  static End Walked(const std::vector<double>& uses, Long start) {
    Ladder ladder(Group(), uses, start);
    const End end = Walked(ladder);
    EXPECT_EQ(ladder.Messages.Shown.size(), 0U);
    return end;
  }

  static void ExpectEnd(const End& end, Long size, bool possible, double use) {
    EXPECT_EQ(end.SizeIdx, size);
    EXPECT_EQ(end.Possible, possible);
    EXPECT_NEAR(end.Use, use, 1e-9);
  }
};

TEST_P(SelectionWalk, GoesUpToTheFirstSizeThatPasses) {
  ExpectEnd(Walked({3, 2, 1.2, 0.9, 0.5, 0.3}, 1), 4, true, 0.9);
  ExpectEnd(Walked({3, 2, 1.2, 0.9, 0.5, 0.3}, 3), 4, true, 0.9);
}

TEST_P(SelectionWalk, GoesDownToTheLastSizeThatPassesPastTheFirstThatFails) {
  // The step back is plain: the figures are those of the size that failed.
  ExpectEnd(Walked({3, 2, 1.2, 0.9, 0.5, 0.3}, 6), 4, true, 1.2);
  ExpectEnd(Walked({3, 2, 1.2, 0.9, 0.5, 0.3}, 5), 4, true, 1.2);
}

TEST_P(SelectionWalk, TriesTheSizeBelowAlsoFromTheSmallestThatPasses) {
  ExpectEnd(Walked({3, 2, 1.2, 0.9, 0.5, 0.3}, 4), 4, true, 1.2);
}

TEST_P(SelectionWalk, EndsAtTheSameSizeFromEverySizeAboveTheFirst) {
  const std::vector<double> uses{5, 4, 3, 2, 1.5, 1.01, 0.99, 0.6, 0.4, 0.2};
  for (Long start = 1; start <= 10; ++start) {
    EXPECT_EQ(Walked(uses, start).SizeIdx, 7) << start;
  }
}

TEST_P(SelectionWalk, DoesNotLookBehindTheFirstSizeThatSettlesIt) {
  // Two sizes that fail lie among those that pass.
  const std::vector<double> uses{2, 0.9, 1.5, 0.5, 1.1, 0.4};
  ExpectEnd(Walked(uses, 1), 2, true, 0.9);
  ExpectEnd(Walked(uses, 3), 4, true, 0.5);
  ExpectEnd(Walked(uses, 4), 4, true, 1.5);
  ExpectEnd(Walked(uses, 6), 6, true, 1.1);
}

TEST_P(SelectionWalk, TriesNoSizeBelowTheFirstThatFails) {
  Ladder ladder(Group(), {4, 3, 1.2, 0.9, 0.5}, 5);
  ladder.Break(1);
  ladder.Break(2);
  ExpectEnd(Walked(ladder), 4, true, 1.2);
  EXPECT_EQ(ladder.Messages.Shown.size(), 0U);
}

TEST_P(SelectionWalk, TriesNoSizeAboveTheFirstThatPasses) {
  Ladder ladder(Group(), {4, 0.9, 0.5, 0.4}, 1);
  ladder.Break(3);
  ladder.Break(4);
  ExpectEnd(Walked(ladder), 2, true, 0.9);
  EXPECT_EQ(ladder.Messages.Shown.size(), 0U);
}

TEST_P(SelectionWalk, StaysAtTheFirstSizeOnceThere) {
  ExpectEnd(Walked({0.9, 0.5, 0.3}, 3), 1, true, 0.9);
  ExpectEnd(Walked({0.9, 0.5, 0.3}, 1), 1, true, 0.9);
  // Intended: also where only its neighbour passed, and it is not called impossible.
  ExpectEnd(Walked({1.2, 0.8, 0.5}, 3), 1, true, 1.2);
  ExpectEnd(Walked({1.2, 0.8, 0.5}, 2), 1, true, 1.2);
  // From below it goes up, though.
  ExpectEnd(Walked({1.2, 0.8, 0.5}, 1), 2, true, 0.8);
}

TEST_P(SelectionWalk, IsImpossibleWhereTheLargestFails) {
  for (Long start = 1; start <= 4; ++start) {
    ExpectEnd(Walked({5, 4, 3, 1.001}, start), 4, false, 1.001);
  }
  ExpectEnd(Walked({1.5}, 1), 1, false, 1.5);
}

TEST_P(SelectionWalk, IsImpossibleAfterNoTryAtTheLargest) {
  Ladder ladder(Group(), {5, 4, 3}, 3);
  // A try would put a gap of 5 and renew the figures.
  ladder.Pair(Group(), 50);
  ladder.Model.Last.CheckData.Mass = 12345;
  const SelectionProposal proposal = ladder.Select();
  EXPECT_EQ(proposal.Impossible, std::set<GroupOption>{Group()});
  EXPECT_EQ(proposal.Sections, ladder.Model.Inputs.ElementSection);
  EXPECT_EQ(proposal.Check.Mass, 12345);
}

TEST_P(SelectionWalk, StaysWithTheOnlySizeOfAStandard) {
  ExpectEnd(Walked({0.5}, 1), 1, true, 0.5);
}

TEST_P(SelectionWalk, MovesOneUpWithoutATryFromExactlyOne) {
  Ladder ladder(Group(), {2, 1, 0.8, 0.5}, 2);
  ladder.MakeExactlyOne(Group(), 2);
  ASSERT_EQ(LargestUse(BlockOf(ladder.Model.Last.CheckData, Group())), 1.0);
  ladder.Pair(Group(), 50);
  const SelectionProposal proposal = ladder.Select();
  EXPECT_EQ(SectionOf(proposal).SizeIdx, 3);
  EXPECT_EQ(SectionOf(proposal).Profile, ladder.Size(3));
  EXPECT_EQ(SectionOf(proposal).Gdist, 50);
  EXPECT_EQ(LargestUse(BlockOf(proposal.Check, Group())), 1.0);
  EXPECT_TRUE(proposal.Impossible.empty());
}

TEST_P(SelectionWalk, StaysWithExactlyOneAtTheFirstSize) {
  Ladder ladder(Group(), {1, 0.8, 0.5}, 1);
  ladder.MakeExactlyOne(Group(), 1);
  ExpectEnd(Walked(ladder), 1, true, 1);
}

TEST_P(SelectionWalk, TakesExactlyOneAsAPassOnTheWayUp) {
  Ladder ladder(Group(), {3, 2, 1, 0.8}, 1);
  ladder.MakeExactlyOne(Group(), 3);
  const End end = Walked(ladder);
  ExpectEnd(end, 3, true, 1);
  EXPECT_EQ(end.Use, 1.0);
}

TEST_P(SelectionWalk, TakesExactlyOneAsAPassAtTheLargest) {
  Ladder ladder(Group(), {3, 2, 1}, 1);
  ladder.MakeExactlyOne(Group(), 3);
  ExpectEnd(Walked(ladder), 3, true, 1);
}

TEST_P(SelectionWalk, StaysWithExactlyOneAtTheLargest) {
  // There is no size to step to.
  Ladder ladder(Group(), {3, 2, 1}, 3);
  ladder.MakeExactlyOne(Group(), 3);
  ExpectEnd(Walked(ladder), 3, true, 1);
}

TEST_P(SelectionWalk, StepsBackFromExactlyOneOnTheWayDown) {
  Ladder ladder(Group(), {3, 1, 0.8, 0.5}, 4);
  ladder.MakeExactlyOne(Group(), 2);
  const End end = Walked(ladder);
  ExpectEnd(end, 3, true, 1);
  EXPECT_EQ(end.Use, 1.0);
}

TEST_P(SelectionWalk, TellsTheNextNumberAboveOneFromOne) {
  Ladder ladder(Group(), {3, 1, 0.8}, 2);
  ladder.MakeExactlyOne(Group(), 2);
  ladder.Numbers.LimitUser = std::nextafter(ladder.Numbers.LimitUser, 0);
  ladder.Check();
  ASSERT_GT(LargestUse(BlockOf(ladder.Model.Last.CheckData, Group())), 1);
  ExpectEnd(Walked(ladder), 3, true, 0.8);
}

TEST_P(SelectionWalk, TouchesOnlySizeAndProfileOfASingleSection) {
  Ladder ladder(Group(), {3, 2, 0.9}, 1);
  ladder.SectionOf(Group()).Gdist = 99;
  const SelectionProposal proposal = ladder.Select();
  SectionArray expected = ladder.Model.Inputs.ElementSection;
  SectionRec& section = expected[PlaceOfOption(Group())];
  section.SizeIdx = 3;
  section.Profile = ladder.Size(3);
  EXPECT_EQ(proposal.Sections, expected);
}

TEST_P(SelectionWalk, LeavesTheModelAsItIs) {
  Ladder ladder(Group(), {3, 2, 0.9}, 1);
  const SectionArray sections = ladder.Model.Inputs.ElementSection;
  const LoadArrays loads = ladder.Model.Inputs.Loads;
  const double use = LargestUse(BlockOf(ladder.Model.Last.CheckData, Group()));
  ladder.Select();
  EXPECT_EQ(ladder.Model.Inputs.ElementSection, sections);
  EXPECT_EQ(ladder.Model.Inputs.Loads, loads);
  EXPECT_EQ(LargestUse(BlockOf(ladder.Model.Last.CheckData, Group())), use);
}

TEST_P(SelectionWalk, StartsFromTheCheckOfTheModelAndNotFromANewOne) {
  Ladder ladder(Group(), {0.9, 0.5, 0.3}, 2);
  // As if the last check had refused this size, which it does not.
  (ladder.Model.Last.CheckData.*BlockOf(Group())).KStrength = 7;
  ExpectEnd(Walked(ladder), 3, true, 0.3);
}

TEST_P(SelectionWalk, HasEachOfTheSevenCoefficientsInIt) {
  for (double GroupCheck::*coefficient :
       {&GroupCheck::KFlexX, &GroupCheck::KFlexY, &GroupCheck::KStabX, &GroupCheck::KStabY,
        &GroupCheck::KStrength, &GroupCheck::KUserX, &GroupCheck::KUserY}) {
    Ladder ladder(Group(), {0.9, 0.5}, 1);
    (ladder.Model.Last.CheckData.*BlockOf(Group())).*coefficient = 1.0001;
    ExpectEnd(Walked(ladder), 2, true, 0.5);
  }
}

TEST_P(SelectionWalk, TakesAnEmptyCheckForAPass) {
  // A size that cannot be checked gives no figures, so that the walk goes past it.
  Ladder ladder(Group(), {0.9, 0.8, 0.7, 0.6}, 4);
  ladder.Break(2);
  ladder.Break(3);
  ExpectEnd(Walked(ladder), 1, true, 0.9);
  ASSERT_EQ(ladder.Messages.Shown.size(), 1U);
  EXPECT_TRUE(ladder.Messages.Shown.front().Failure);
}

TEST_P(SelectionWalk, ShowsABoxThatComesBackAtEveryTryOnceACommand) {
  Ladder ladder(Group(), {0.9, 0.8, 0.7, 0.6, 0.5}, 5);
  for (Long size = 1; size <= 4; ++size) {
    ladder.Break(size);
  }
  ladder.Select();
  ASSERT_EQ(ladder.Messages.Shown.size(), 1U);
  ladder.Select();
  ASSERT_EQ(ladder.Messages.Shown.size(), 2U);
  EXPECT_EQ(ladder.Messages.Shown[0], ladder.Messages.Shown[1]);
}

TEST_P(SelectionWalk, RaisesASubscriptErrorWhereItLeavesTheCatalogue) {
  const auto numberRaised = [](Ladder& ladder) {
    try {
      ladder.Select();
    } catch (const RuntimeError& error) {
      return error.Number();
    }
    return 0;
  };
  for (const Long standard : {-1, 0, 3, 1000}) {
    Ladder down(Group(), {0.9, 0.5}, 2);
    down.SectionOf(Group()).TypeIdx = standard;
    EXPECT_EQ(numberRaised(down), 9) << standard;
    Ladder up(Group(), {3, 0.5}, 1);
    up.SectionOf(Group()).TypeIdx = standard;
    EXPECT_EQ(numberRaised(up), 9) << standard;
  }
  for (const Long size : {4, 5, 1000}) {
    Ladder down(Group(), {0.9, 0.5}, 2);
    down.SectionOf(Group()).SizeIdx = size;
    EXPECT_EQ(numberRaised(down), 9) << size;
  }
  Ladder up(Group(), {3, 0.5}, 1);
  up.SectionOf(Group()).SizeIdx = -1;
  EXPECT_EQ(numberRaised(up), 9);
}

TEST_P(SelectionWalk, ReadsNoCatalogueWhereItDoesNotMove) {
  Ladder ladder(Group(), {0.9, 0.5}, 1);
  ladder.SectionOf(Group()).TypeIdx = 0;
  EXPECT_EQ(ladder.Select().Sections, ladder.Model.Inputs.ElementSection);
}

TEST_P(SelectionWalk, EntersTheStandardFromBelowItsFirstSize) {
  Ladder ladder(Group(), {3, 0.5}, 1);
  ladder.SectionOf(Group()).SizeIdx = 0;
  ExpectEnd(Walked(ladder), 2, true, 0.5);
}

INSTANTIATE_TEST_SUITE_P(OfEveryGroup, SelectionWalk,
                         ::testing::Values(optionUpPoyas, optionDwnPoyas, optionRaskos,
                                           optionStoyka, optionOpornRaskos),
                         [](const auto& test) {
                           return std::string(std::vector<const char*>{
                               "UpPoyas", "DwnPoyas", "Raskos", "Stoyka",
                               "OpornRaskos"}[static_cast<std::size_t>(test.param - 1)]);
                         });

TEST(SelectionOfSeveralGroups, RenewsTheFiguresOfAStepBackByALaterTry) {
  const std::vector<GroupOption> order{optionUpPoyas, optionDwnPoyas, optionRaskos, optionStoyka,
                                       optionOpornRaskos};
  for (std::size_t first = 0; first < order.size(); ++first) {
    for (std::size_t second = first + 1; second < order.size(); ++second) {
      Ladder ladder(order[first], {1.2, 1.1, 0.9, 0.5}, 4);
      ladder.AddSizes(order[second], {3, 2, 0.8, 0.4});
      ladder.Put(order[second], 8);
      const SelectionProposal proposal = ladder.Select();
      EXPECT_EQ(proposal.Sections[PlaceOfOption(order[first])].SizeIdx, 3);
      EXPECT_EQ(proposal.Sections[PlaceOfOption(order[second])].SizeIdx, 7);
      // The earlier group has the figures of what it kept, the later those of what failed.
      EXPECT_NEAR(LargestUse(BlockOf(proposal.Check, order[first])), 0.9, 1e-9);
      EXPECT_NEAR(LargestUse(BlockOf(proposal.Check, order[second])), 2, 1e-9);
    }
  }
}

TEST(SelectionOfSeveralGroups, KeepsTheStaleMassOfTheLastTry) {
  Ladder ladder(optionOpornRaskos, {3, 2, 0.9, 0.5}, 4);
  ladder.Size(2).A = 7;
  ladder.Size(2).Jy *= 0.7;
  ladder.Size(2).Jz *= 0.7;
  const SelectionProposal proposal = ladder.Select();
  ASSERT_EQ(proposal.Sections[sectionOpornRaskos].SizeIdx, 3);
  SectionArray tried = proposal.Sections;
  tried[sectionOpornRaskos].Profile = ladder.Size(2);
  const auto massOf = [&ladder](const SectionArray& sections) {
    return CheckueStress(ladder.Model.Last.TreloData, ladder.Model.Last.TreloResult, ladder.Numbers,
                         sections)
        .Value.Mass;
  };
  EXPECT_EQ(proposal.Check.Mass, massOf(tried));
  EXPECT_NE(proposal.Check.Mass, massOf(proposal.Sections));
}

TEST(SelectionOfSeveralGroups, MarksEachImpossibleOneAndGoesOn) {
  Ladder ladder(optionUpPoyas, {9, 8}, 1);
  ladder.AddSizes(optionUpPoyas, {7});
  for (const GroupOption group : {optionDwnPoyas, optionRaskos, optionOpornRaskos}) {
    ladder.Put(group, 1);
  }
  const SelectionProposal proposal = ladder.Select();
  EXPECT_EQ(proposal.Impossible, (std::set<GroupOption>{optionUpPoyas, optionDwnPoyas, optionRaskos,
                                                        optionOpornRaskos}));
  EXPECT_EQ(proposal.Sections[sectionUpPoyas].SizeIdx, 3);
  EXPECT_EQ(proposal.Sections[sectionOpornRaskos].SizeIdx, 3);
  EXPECT_EQ(proposal.Sections[sectionStoyka].TypeIdx, Ladder::thick);
  EXPECT_EQ(proposal.Sections[sectionStoyka].SizeIdx, 1);
}

TEST(SelectionOfSeveralGroups, LeavesTheVerticalsOfSchemeThreeUntouched) {
  Ladder ladder(optionUpPoyas, {3, 0.9, 0.5}, 1, 3);
  ladder.SectionOf(optionStoyka).Layout = 1;
  ladder.Put(optionStoyka, 3);
  ladder.Pair(optionStoyka, 50);
  const SelectionProposal proposal = ladder.Select();
  EXPECT_EQ(proposal.Sections[sectionUpPoyas].SizeIdx, 2);
  EXPECT_EQ(proposal.Sections[sectionStoyka], ladder.SectionOf(optionStoyka));
}

TEST(SelectionOfSeveralGroups, DoesNotJudgeTheVerticalsOfSchemeThree) {
  Ladder ladder(3);
  ladder.AddSizes(optionUpPoyas, {0.5});
  ladder.Put(optionStoyka, 1);
  ladder.Model.Last.CheckData.Stoyka.KStrength = 5;
  EXPECT_TRUE(ladder.Select().Impossible.empty());
}

TEST(SelectionOfSeveralGroups, ShowsTheBoxOfHiddenVerticalsOnce) {
  // The verticals of scheme 3 have no length, which every check tells for any but single angles.
  Ladder ladder(optionUpPoyas, {3, 2, 1.5, 0.9}, 1, 3);
  ladder.Messages.Shown.clear();
  EXPECT_EQ(ladder.Select().Sections[sectionUpPoyas].SizeIdx, 4);
  ASSERT_EQ(ladder.Messages.Shown.size(), 1U);
  EXPECT_EQ(ladder.Messages.Shown.front().Text, "Ошибочное значение длинны стержня (<=0)!");
}

}  // namespace
}  // namespace trelonit::test
