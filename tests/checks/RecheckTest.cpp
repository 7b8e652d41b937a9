#include <algorithm>
#include <gtest/gtest.h>
#include <rapidcheck.h>
#include <rapidcheck/gtest.h>
#include <vector>

#include "checks/ElementGroups.h"
#include "tests/checks/DriverCase.h"
#include "tests/support/AnyNumber.h"

namespace trelonit::test {
namespace {

double PickAround(double usual) {
  return *rc::gen::weightedOneOf<double>(
      {{9, rc::gen::map(rc::gen::inRange(1, 400),
                        [usual](int percent) { return usual * percent / 100; })},
       {1, AnyNumber()}});
}

bool Recheck(CheckResult& check, ElementGroup group, const DriverCase& c) {
  return RecheckGroup(check, group, c.Data, c.Res, c.Numbers, c.Sections);
}

RC_GTEST_PROP(RecheckOfAGroup, GivesWhatAWholeCheckGivesWhereItGivesAnything, ()) {
  DriverCase c;
  c.Data.TreloType = *rc::gen::inRange<Long>(1, 5);
  c.Res.LenRaskos = PickAround(4);
  c.Numbers.Ry = PickAround(240);
  const auto group = static_cast<ElementGroup>(*rc::gen::inRange(0, elementGroupCount));
  DriverRun run = c.Run();
  const std::vector<Message> before = run.Shown;
  SectionRec& section = c.Sections[RowOf(group).Place];
  section = DriverCase::Turned(PickAround(20), PickAround(3), PickAround(5),
                               *rc::gen::element<Long>(1, 2, 3, 6, 10));
  section.Gdist = PickAround(10);
  const bool rechecked = Recheck(run.Check, group, c);
  RC_CLASSIFY(rechecked, "rechecked");
  if (rechecked) {
    const DriverRun whole = c.Run();
    RC_ASSERT(Numbers(run.Check) == Numbers(whole.Check));
    // Nothing has to be told that was not told before.
    for (const Message& message : whole.Shown) {
      RC_ASSERT(std::find(before.begin(), before.end(), message) != before.end());
    }
  }
}

TEST(RecheckOfAGroup, IsNoneWhereAMessageOrAnErrorComesUp) {
  DriverCase c;
  CheckResult check = c.Run().Check;
  EXPECT_TRUE(Recheck(check, ElementGroup::Raskos, c));
  c.Sections[sectionRaskos].Profile.A = 0;
  EXPECT_FALSE(Recheck(check, ElementGroup::Raskos, c));
  c = DriverCase();
  c.Data.DownPoyasBrace = 0;
  check = c.Run().Check;
  EXPECT_FALSE(Recheck(check, ElementGroup::DwnPoyas, c));
  EXPECT_TRUE(Recheck(check, ElementGroup::UpPoyas, c));
}

TEST(RecheckOfAGroup, IsNoneAfterACheckThatFailed) {
  DriverCase c;
  CheckResult failed;
  EXPECT_FALSE(Recheck(failed, ElementGroup::UpPoyas, c));
}

}  // namespace
}  // namespace trelonit::test
