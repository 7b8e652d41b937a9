#include <cmath>
#include <gtest/gtest.h>
#include <rapidcheck/gtest.h>
#include <set>
#include <string>

#include "checks/ElementGroups.h"
#include "opinion/Opinion.h"
#include "tests/checks/Checks.h"
#include "tests/workstation/AnyDesign.h"
#include "tests/workstation/SelectionLadder.h"
#include "workstation/CalculationChain.h"
#include "workstation/OpinionSelection.h"
#include "workstation/modHelper.h"

namespace trelonit::test {

namespace {

const Pick pick = [](Long low, Long high) { return *rc::gen::inRange<Long>(low, high + 1); };

CheckNumbers PickNumbers() {
  CheckNumbers numbers = StartNumbers();
  numbers.Ry = static_cast<double>(pick(200, 400));
  numbers.LimitUser = static_cast<double>(pick(120, 400));
  numbers.Dynamic = pick(0, 1) != 0;
  return numbers;
}

/// Sections of all layouts from the whole catalogue, at any size.
DesignModel PickModel(const CheckNumbers& numbers) {
  std::vector<Long> layouts(5);
  for (Long& layout : layouts) {
    layout = pick(1, sectionLayoutCount);
  }
  return AnyModel(pick, PickScheme(), layouts, numbers);
}

bool Exists(const ElementGroupRow& row, const DesignModel& model) {
  return row.Group != ElementGroup::Stoyka || model.TreloData.TreloType != 3;
}

/// Whether the group passes the program's own checks and the opinion under the forces that the
/// design was calculated with.
bool Passes(const trelonit::Design& design, const CheckNumbers& numbers,
            const ElementGroupRow& row) {
  RecordingMessages messages;
  const CheckResult check =
      CheckueStress(design.TreloData, design.TreloResult, numbers, design.ElementSection, messages);
  const Opinion opinion = FormOpinion({.Data = design.TreloData,
                                       .Result = design.TreloResult,
                                       .Check = check,
                                       .Sections = design.ElementSection,
                                       .Numbers = numbers});
  if (opinion.HasRefused() || LargestUse(check.*row.Block) > 1) {
    return false;
  }
  const GroupJudgement& judged = *opinion.FindGroup(row.Group);
  return *std::max_element(judged.Figures.begin(), judged.Figures.end()) <= 1;
}

/// The same with another size of the group's standard, the gap as a user's choice would make it.
bool PassesWithSize(const DesignModel& model, trelonit::Design design, const CheckNumbers& numbers,
                    const ElementGroupRow& row, Long size) {
  SectionRec& section = design.ElementSection[row.Place];
  section.SizeIdx = size;
  section.Profile = model.ProfileTypes[section.TypeIdx].Rec[size];
  if (section.Paired) {
    section.Gdist = GapForThickness(model.ElementSection[row.Place].Gdist, section.Profile.s);
  }
  return Passes(design, numbers, row);
}

bool IsImpossible(const SelectionProposal& proposal, const ElementGroupRow& row) {
  return proposal.Impossible.count(OptionOf(row.Group)) != 0;
}

RC_GTEST_PROP(SelectionByOpinion, TakesTheFirstSizeThatPassesBoth, ()) {
  const CheckNumbers numbers = PickNumbers();
  const DesignModel model = PickModel(numbers);
  const SelectionProposal proposal = SelectByOpinion(model, numbers, false);
  RC_ASSERT(proposal.Rounds == 1);
  RC_ASSERT(proposal.Settled.has_value());
  for (const ElementGroupRow& row : elementGroups) {
    const SectionRec& section = proposal.Sections[row.Place];
    if (!Exists(row, model)) {
      RC_ASSERT(section == model.ElementSection[row.Place]);
      continue;
    }
    RC_ASSERT(section.TypeIdx == model.ElementSection[row.Place].TypeIdx);
    RC_ASSERT(section.Layout == model.ElementSection[row.Place].Layout);
    RC_ASSERT(section.Profile == model.ProfileTypes[section.TypeIdx].Rec[section.SizeIdx]);
    RC_ASSERT(Passes(*proposal.Settled, numbers, row) != IsImpossible(proposal, row));
    if (IsImpossible(proposal, row)) {
      RC_ASSERT(section.SizeIdx == model.ProfileTypes[section.TypeIdx].Rec.UpperBound());
    }
    if (section.SizeIdx > 1) {
      RC_ASSERT(!PassesWithSize(model, *proposal.Settled, numbers, row, section.SizeIdx - 1));
      const Long smaller = pick(1, section.SizeIdx - 1);
      RC_ASSERT(!PassesWithSize(model, *proposal.Settled, numbers, row, smaller));
    }
  }
}

RC_GTEST_PROP(SelectionByOpinion, WithOwnWeightChangesNothingWhenCalculatedAgain, ()) {
  const CheckNumbers numbers = PickNumbers();
  const DesignModel model = PickModel(numbers);
  const SelectionProposal proposal = SelectByOpinion(model, numbers, true);
  RC_ASSERT(proposal.Rounds >= 1);
  RC_CLASSIFY(proposal.Rounds > 2, "more than two rounds");
  trelonit::Design again = *proposal.Settled;
  RC_ASSERT(again.ElementSection == proposal.Sections);
  RC_ASSERT(again.OwnWeightAdded);
  RecordingMessages messages;
  AnalyseAndCheck(again, numbers, messages);
  RC_ASSERT(!ApplyOwnWeight(again, numbers, messages));
  RC_ASSERT(again.Loads == proposal.Settled->Loads);
  RC_ASSERT(AllForces(again.TreloResult) == AllForces(proposal.Settled->TreloResult));
  RC_ASSERT(Numbers(again.CheckData) == Numbers(proposal.Check));
  for (const ElementGroupRow& row : elementGroups) {
    if (Exists(row, model)) {
      RC_ASSERT(Passes(again, numbers, row) != IsImpossible(proposal, row));
    }
  }
}

RC_GTEST_PROP(SelectionByOpinion, LeavesTheUsersLoadsAndAddsTheWeightOfItsSizes, ()) {
  const CheckNumbers numbers = PickNumbers();
  const DesignModel model = PickModel(numbers);
  const SelectionProposal without = SelectByOpinion(model, numbers, false);
  RC_ASSERT(without.Settled->Loads == model.Loads);
  RC_ASSERT(!without.Settled->OwnWeightAdded);
  const trelonit::Design with = *SelectByOpinion(model, numbers, true).Settled;
  const double perMetre =
      with.CheckData.Mass / (with.TreloResult.SumLenUpPoyas + with.TreloResult.SumLenDwnPoyas);
  RC_ASSERT(std::abs(with.OwnWeightPerMetre - perMetre) <= 0.5001e-4);
  for (Long panel = 0; panel <= model.Loads.UpDistForce.UpperBound(); ++panel) {
    RC_ASSERT(std::abs(with.Loads.UpDistForce[panel] - model.Loads.UpDistForce[panel] -
                       with.OwnWeightPerMetre) <= 1e-9);
  }
}

// Loads that no size carries: every group is marked and stands at the last size of its standard.
TEST(SelectionByOpinion, MarksEveryGroupThatNoSizeOfItsStandardSuits) {
  const Pick low = [](Long least, Long) { return least; };
  for (Long scheme = 1; scheme <= 4; ++scheme) {
    DesignModel model = AnyModel(low, scheme, std::vector<Long>(5, 11), StartNumbers());
    model.TreloData = Design(scheme, 8, 24, 2.5, 3);
    model.Loads = model.TreloData;
    for (double& load : model.Loads.UpPForce) {
      load = 1e5;
    }
    // All web bars have a force but those posts whose joint below bears nothing.
    for (double& load : model.Loads.DwnPForce) {
      load = 1e5;
    }
    for (const bool ownWeight : {false, true}) {
      const SelectionProposal proposal = SelectByOpinion(model, StartNumbers(), ownWeight);
      EXPECT_EQ(proposal.Impossible.size(), scheme == 3 ? 4U : 5U) << scheme;
      for (const ElementGroupRow& row : elementGroups) {
        if (Exists(row, model)) {
          const SectionRec& section = proposal.Sections[row.Place];
          EXPECT_EQ(section.SizeIdx, model.ProfileTypes[section.TypeIdx].Rec.UpperBound());
        }
      }
    }
  }
}

/// Two sizes for the upper chord: the first heavy and slender, the second half as heavy and stout.
/// The first carries the truss with the second's weight, but not with its own, so that the two
/// would take turns for ever.
class TakingTurns {
 public:
  TakingTurns() {
    model_.TreloData = SquareDesign(1, 4);
    model_.TreloData.UpPoyasBrace = 1;
    model_.TreloData.DownPoyasBrace = 1;
    model_.Loads = model_.TreloData;
    model_.ProfileTypes = ProfileTypeArray(1, 2);
    model_.ProfileTypes[1].Rec = BoundedArray<ProfileRec>(1, 2);
    // Slenderness 200 / sqrt(3) = 115 in the plane, phi 0.45: 45 cm2 count, against nearly 50.
    model_.ProfileTypes[1].Rec[1] = Size(100, 300);
    model_.ProfileTypes[1].Rec[2] = Size(50, 500000);
    model_.ProfileTypes[2].Rec = BoundedArray<ProfileRec>(1, 1);
    model_.ProfileTypes[2].Rec[1] = Size(60, 600000);
    for (SectionRec& section : model_.ElementSection) {
      section = {.TypeIdx = 2, .SizeIdx = 1, .Profile = model_.ProfileTypes[2].Rec[1], .Layout = 6};
    }
    SectionRec& upper = model_.ElementSection[sectionUpPoyas];
    upper.TypeIdx = 1;
    upper.Profile = model_.ProfileTypes[1].Rec[1];
    numbers_.LimitUser = 1000;
    // Between what the first size makes of the two weights. With E in the same proportion phi
    // stays, and the use falls with Ry.
    SetRy(std::sqrt(UseOfFirst(1) * UseOfFirst(2)));
  }

  /// The use of the first size under the weight of this one.
  double UseOfFirst(Long weighing) {
    trelonit::Design design = model_;
    design.ElementSection[sectionUpPoyas].Profile = model_.ProfileTypes[1].Rec[weighing];
    RecordingMessages messages;
    AnalyseAndCheck(design, numbers_, messages);
    ApplyOwnWeight(design, numbers_, messages);
    design.ElementSection[sectionUpPoyas].Profile = model_.ProfileTypes[1].Rec[1];
    return LargestUse(CheckueStress(design.TreloData, design.TreloResult, numbers_,
                                    design.ElementSection, messages)
                          .UpPoyas);
  }

  SelectionProposal Select(bool ownWeight) const {
    return SelectByOpinion(model_, numbers_, ownWeight);
  }

 private:
  /// Wide out of the plane, where the chord is held at its ends only.
  static ProfileRec Size(double area, double inPlane) {
    ProfileRec record;
    record.A = area;
    record.Jy = inPlane;
    record.Jz = 500000;
    return record;
  }

  void SetRy(double Ry) {
    numbers_.Ry = Ry;
    numbers_.E = Ry * 206000 / 240;
  }

  DesignModel model_;
  CheckNumbers numbers_{
      .Ry = 1, .E = 206000.0 / 240, .Yc = 0.9, .Gn = 1, .Density = 7.85, .LimitUser = 1000};
};

TEST(SelectionByOpinion, EndsWhereTwoSizesWouldTakeTurns) {
  TakingTurns turns;
  ASSERT_GT(turns.UseOfFirst(1), 1);
  ASSERT_LT(turns.UseOfFirst(2), 1);
  const SelectionProposal proposal = turns.Select(true);
  EXPECT_EQ(proposal.Rounds, 10);
  EXPECT_EQ(proposal.Sections[sectionUpPoyas].SizeIdx, 2);
  EXPECT_TRUE(proposal.Impossible.empty());
  EXPECT_LE(LargestUse(proposal.Check.UpPoyas), 1);
}

TEST(SelectionByOpinion, TakesALargerSizeThanTheProgramsOwnWhereTheNormAsksForOne) {
  const Pick middle = [](Long low, Long high) { return low + (high - low) / 2; };
  DesignModel model = AnyModel(middle, 1, std::vector<Long>(5, 2), StartNumbers());
  model.TreloData = Design(1, 8, 24, 2.5, 3);
  model.TreloData.UpPoyasBrace = 1;
  model.Loads = model.TreloData;
  for (double& load : model.Loads.UpPForce) {
    load = 3;
  }
  RecordingMessages messages;
  AnalyseAndCheck(model, StartNumbers(), messages);
  const SelectionProposal told = SelectSections(model, StartNumbers(), messages);
  const SelectionProposal both = SelectByOpinion(model, StartNumbers(), false);
  ASSERT_TRUE(told.Impossible.empty());
  EXPECT_EQ(told.Rounds, 0);
  EXPECT_FALSE(told.Settled.has_value());
  // The whole span between held points, where the calculation takes a panel.
  EXPECT_GT(both.Sections[sectionUpPoyas].SizeIdx, told.Sections[sectionUpPoyas].SizeIdx);
}

}  // namespace

}  // namespace trelonit::test
