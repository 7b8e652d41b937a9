#include <algorithm>
#include <gtest/gtest.h>
#include <map>
#include <random>
#include <rapidcheck/gtest.h>

#include "tests/checks/Checks.h"
#include "tests/workstation/AnyDesign.h"
#include "workstation/Selection.h"
#include "workstation/modHelper.h"

namespace trelonit::test {
namespace {

// The search once more, in plain steps over one record of everything: which size is tried when, and
// what is left behind, must come out the same for any design.

struct Retold {
  SectionArray Sections;
  CheckResult Check;
  /// In the order of the search.
  std::vector<bool> Satisfied;
  std::vector<Message> Boxes;
  int Tries = 0;
};

struct RetoldGroup {
  SectionPlace Place;
  GroupCheck CheckResult::*Block;
  GroupOption Option;
};

const std::vector<RetoldGroup>& RetoldOrder() {
  static const std::vector<RetoldGroup> order{
      {sectionUpPoyas, &CheckResult::UpPoyas, optionUpPoyas},
      {sectionDwnPoyas, &CheckResult::DwnPoyas, optionDwnPoyas},
      {sectionRaskos, &CheckResult::Raskos, optionRaskos},
      {sectionStoyka, &CheckResult::Stoyka, optionStoyka},
      {sectionOpornRaskos, &CheckResult::OpornRaskos, optionOpornRaskos},
  };
  return order;
}

double MaxUse(const GroupCheck& group) {
  double greatest = group.KFlexX;
  for (const double figure :
       {group.KFlexY, group.KStabX, group.KStabY, group.KStrength, group.KUserX, group.KUserY}) {
    greatest = figure > greatest ? figure : greatest;
  }
  return greatest;
}

Retold Retell(const DesignModel& model, const CheckNumbers& numbers) {
  Retold retold{.Sections = model.ElementSection, .Check = model.CheckData};
  RecordingMessages boxes;
  for (const RetoldGroup& group : RetoldOrder()) {
    retold.Satisfied.push_back(true);
    if (group.Option == optionStoyka && model.TreloData.TreloType == 3) {
      continue;
    }
    SectionRec& section = retold.Sections[group.Place];
    const BoundedArray<ProfileRec>& records = model.ProfileTypes[section.TypeIdx].Rec;
    Long i = section.SizeIdx;
    double K = MaxUse(retold.Check.*group.Block);
    const auto tryTheSize = [&] {
      section.SizeIdx = i;
      section.Profile = records[i];
      if (section.Paired) {
        const double s = section.Profile.s;
        if (section.Gdist < 0.8 * s || section.Gdist > 1.2 * s) {
          section.Gdist = s;
        }
      }
      retold.Check =
          CheckueStress(model.TreloData, model.TreloResult, numbers, retold.Sections, boxes);
      K = MaxUse(retold.Check.*group.Block);
      ++retold.Tries;
    };
    if (K > 1) {
      while (K > 1 && i < records.UpperBound()) {
        i = i + 1;
        tryTheSize();
      }
      retold.Satisfied.back() = !(K > 1);
    } else {
      while (K < 1 && i > 1) {
        i = i - 1;
        tryTheSize();
      }
      if (i > 1) {
        i = i + 1;
        section.SizeIdx = i;
        section.Profile = records[i];
      }
    }
  }
  for (const Message& box : boxes.Shown) {
    if (std::find(retold.Boxes.begin(), retold.Boxes.end(), box) == retold.Boxes.end()) {
      retold.Boxes.push_back(box);
    }
  }
  return retold;
}

/// The empty string when the search and its retelling agree, else what differs.
std::string Difference(const DesignModel& model, const CheckNumbers& numbers,
                       const Retold& retold) {
  RecordingMessages messages;
  const SelectionProposal proposal = SelectSections(model, numbers, messages);
  for (std::size_t number = 0; number < RetoldOrder().size(); ++number) {
    const RetoldGroup& group = RetoldOrder()[number];
    const SectionRec& actual = proposal.Sections[group.Place];
    const SectionRec& expected = retold.Sections[group.Place];
    if (!(actual == expected)) {
      return "section " + std::to_string(group.Place) + ": size " + std::to_string(actual.SizeIdx) +
             " gap " + std::to_string(actual.Gdist) + " in place of size " +
             std::to_string(expected.SizeIdx) + " gap " + std::to_string(expected.Gdist);
    }
    if ((proposal.Impossible.count(group.Option) == 0) != retold.Satisfied[number]) {
      return "verdict on group " + std::to_string(group.Option);
    }
  }
  if (Numbers(proposal.Check) != Numbers(retold.Check)) {
    return "figures of the check";
  }
  return messages.Shown == retold.Boxes ? "" : "boxes";
}

class SelectionAgreement : public ::testing::TestWithParam<Long> {};

TEST_P(SelectionAgreement, HoldsForEveryLayoutInEveryGroup) {
  const Long scheme = GetParam();
  std::mt19937 generator(static_cast<unsigned>(scheme));
  const Pick pick = [&generator](Long low, Long high) {
    return low + static_cast<Long>(generator() % static_cast<unsigned>(high - low + 1));
  };
  int tries = 0;
  std::map<std::string, int> ends;
  for (Long layout = 1; layout <= sectionLayoutCount; ++layout) {
    for (int design = 0; design < 4; ++design) {
      CheckNumbers numbers = StartNumbers();
      numbers.Dynamic = design % 2 != 0;
      const DesignModel model = AnyModel(pick, scheme, std::vector<Long>(5, layout), numbers);
      const Retold retold = Retell(model, numbers);
      EXPECT_EQ(Difference(model, numbers, retold), "") << layout << ", " << design;
      tries += retold.Tries;
      for (std::size_t number = 0; number < retold.Satisfied.size(); ++number) {
        const SectionPlace place = RetoldOrder()[number].Place;
        const Long moved = retold.Sections[place].SizeIdx - model.ElementSection[place].SizeIdx;
        ++ends[!retold.Satisfied[number] ? "impossible"
               : moved > 0               ? "up"
               : moved < 0               ? "down"
                                         : "stays"];
      }
    }
  }
  // The designs are none on which every search is alike.
  EXPECT_GT(tries, 1000);
  EXPECT_GT(ends["impossible"], 5);
  EXPECT_GT(ends["up"], 5);
  EXPECT_GT(ends["down"], 5);
}

INSTANTIATE_TEST_SUITE_P(OfEveryScheme, SelectionAgreement, ::testing::Values(1, 2, 3, 4),
                         [](const auto& test) { return "Scheme" + std::to_string(test.param); });

RC_GTEST_PROP(SelectionOfAnyDesign, EndsWhereThePlainStepsEnd, ()) {
  const Pick pick = [](Long low, Long high) { return *rc::gen::inRange<Long>(low, high + 1); };
  std::vector<Long> layouts(5);
  for (Long& layout : layouts) {
    layout = pick(1, sectionLayoutCount);
  }
  CheckNumbers numbers = StartNumbers();
  numbers.Ry = static_cast<double>(pick(150, 500));
  numbers.LimitUser = static_cast<double>(pick(60, 400));
  numbers.Dynamic = pick(0, 1) != 0;
  const DesignModel model = AnyModel(pick, PickScheme(), layouts, numbers);
  RC_ASSERT(Difference(model, numbers, Retell(model, numbers)) == std::string());
}

/// Sizes from 1 mm tubes to the thickest of the standard of round tubes, whose areas do not grow
/// from size to size: the longest walk there is.
TEST(SelectionOfTheLongestStandard, WalksAllOfItEitherWay) {
  const CheckNumbers numbers = StartNumbers();
  const Pick middle = [](Long low, Long high) { return low + (high - low) / 2; };
  const Long roundTubes = 14;
  const Long last = Catalogue()[roundTubes].Rec.UpperBound();
  for (const Long start : {Long{1}, last}) {
    DesignModel model = AnyModel(middle, 1, std::vector<Long>(5, 11), numbers);
    for (SectionRec& section : model.ElementSection) {
      section.SizeIdx = start;
      section.Profile = Catalogue()[roundTubes].Rec[start];
    }
    RecordingMessages messages;
    model.CheckData =
        CheckueStress(model.TreloData, model.TreloResult, numbers, model.ElementSection, messages);
    const Retold retold = Retell(model, numbers);
    EXPECT_EQ(Difference(model, numbers, retold), "");
    EXPECT_GT(retold.Tries, 100);
  }
}

}  // namespace
}  // namespace trelonit::test
