#include <gtest/gtest.h>

#include "drawing/HostMembers.h"
#include "tests/drawing/RecordingHost.h"

namespace trelonit::test {

namespace {

int NumberOf(const std::function<void()>& statement) {
  try {
    statement();
  } catch (const RuntimeError& error) {
    return error.Number();
  }
  return 0;
}

TEST(HostMembers, OfAnEmptyReferenceRaiseThatItIsNotSet) {
  EXPECT_EQ(NumberOf([] { Member(nullptr, "count"); }), 91);
  EXPECT_EQ(NumberOf([] { ObjectMember(nullptr, "Documents"); }), 91);
  EXPECT_EQ(NumberOf([] { SetMember(nullptr, "Visible", true); }), 91);
  EXPECT_EQ(NumberOf([] { CallMember(nullptr, "ZoomExtents"); }), 91);
  EXPECT_EQ(NumberOf([] { CallForObject(nullptr, "Add"); }), 91);
}

TEST(HostMembers, ThatTheHostHasNotGotRaiseItsOwnError) {
  RecordingHost host;
  EXPECT_EQ(NumberOf([&] { Member(host.Application(), "Caption"); }), 438);
}

TEST(HostAnswers, AreObjectsOrNothing) {
  RecordingHost host;
  const AutomationHandle application = host.Application();
  EXPECT_EQ(ObjectIn(application), application);
  EXPECT_EQ(ObjectIn(AutomationValue()), nullptr);
  EXPECT_EQ(ObjectIn(AutomationHandle()), nullptr);
  EXPECT_EQ(NumberOf([] { ObjectIn(Long{1}); }), 13);
}

TEST(HostAnswers, AreNumbersOfEitherKind) {
  EXPECT_EQ(LongIn(Long{7}), 7);
  EXPECT_EQ(LongIn(2.5), 2);
  EXPECT_EQ(NumberOf([] { LongIn(1e10); }), 6);
  EXPECT_EQ(NumberOf([] { LongIn(std::string("7")); }), 13);
}

TEST(HostAnswers, AreFlagsAsTruthValuesOrNumbers) {
  EXPECT_TRUE(FlagIn(true));
  EXPECT_FALSE(FlagIn(false));
  EXPECT_TRUE(FlagIn(Long{-1}));
  EXPECT_FALSE(FlagIn(Long{0}));
  EXPECT_EQ(NumberOf([] { FlagIn(AutomationValue()); }), 13);
}

TEST(HostAnswers, AreTextsOnlyWhereTheyAreTexts) {
  EXPECT_EQ(TextIn(std::string("Main")), "Main");
  EXPECT_EQ(NumberOf([] { TextIn(Long{1}); }), 13);
}

}  // namespace

}  // namespace trelonit::test
