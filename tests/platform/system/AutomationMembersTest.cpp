#include <functional>
#include <gtest/gtest.h>

#include "platform/system/AutomationMembers.h"

namespace trelonit::test {

namespace {

/// A host that has a member "Count" and no other.
class CountingObject : public AutomationObject {
 public:
  AutomationValue Get(const std::string& member) override {
    if (member != "Count") {
      throw RuntimeError(ErrorNumber::PropertyNotSupported);
    }
    return Long{3};
  }
  void Set(const std::string& member, const AutomationValue&) override { Get(member); }
  AutomationValue Call(const std::string& member, const std::vector<AutomationValue>&) override {
    return Get(member);
  }
  std::vector<AutomationHandle> Enumerate() override { return {}; }
};

int NumberOf(const std::function<void()>& statement) {
  try {
    statement();
  } catch (const RuntimeError& error) {
    return error.Number();
  }
  return 0;
}

TEST(AutomationMembers, OfAnEmptyReferenceRaiseThatItIsNotSet) {
  EXPECT_EQ(NumberOf([] { Member(nullptr, "count"); }), 91);
  EXPECT_EQ(NumberOf([] { ObjectMember(nullptr, "Documents"); }), 91);
  EXPECT_EQ(NumberOf([] { SetMember(nullptr, "Visible", true); }), 91);
  EXPECT_EQ(NumberOf([] { CallMember(nullptr, "ZoomExtents"); }), 91);
  EXPECT_EQ(NumberOf([] { CallForObject(nullptr, "Add"); }), 91);
}

TEST(AutomationMembers, ThatTheHostHasNotGotRaiseItsOwnError) {
  const auto host = std::make_shared<CountingObject>();
  EXPECT_EQ(NumberOf([&] { Member(host, "Caption"); }), 438);
  EXPECT_EQ(NumberOf([&] { SetMember(host, "Caption", true); }), 438);
  EXPECT_EQ(NumberOf([&] { CallMember(host, "Close"); }), 438);
  EXPECT_EQ(LongIn(Member(host, "Count")), 3);
}

TEST(AutomationAnswers, AreObjectsOrNothing) {
  const AutomationHandle object = std::make_shared<CountingObject>();
  EXPECT_EQ(ObjectIn(object), object);
  EXPECT_EQ(ObjectIn(AutomationValue()), nullptr);
  EXPECT_EQ(ObjectIn(AutomationHandle()), nullptr);
  EXPECT_EQ(NumberOf([] { ObjectIn(Long{1}); }), 13);
}

TEST(AutomationAnswers, AreNumbersOfEitherKind) {
  EXPECT_EQ(LongIn(Long{7}), 7);
  EXPECT_EQ(LongIn(2.5), 2);
  EXPECT_EQ(NumberOf([] { LongIn(1e10); }), 6);
  EXPECT_EQ(NumberOf([] { LongIn(std::string("7")); }), 13);
}

TEST(AutomationAnswers, AreFlagsAsTruthValuesOrNumbers) {
  EXPECT_TRUE(FlagIn(true));
  EXPECT_FALSE(FlagIn(false));
  EXPECT_TRUE(FlagIn(Long{-1}));
  EXPECT_FALSE(FlagIn(Long{0}));
  EXPECT_EQ(NumberOf([] { FlagIn(AutomationValue()); }), 13);
}

TEST(AutomationAnswers, AreTextsOnlyWhereTheyAreTexts) {
  EXPECT_EQ(TextIn(std::string("Main")), "Main");
  EXPECT_EQ(NumberOf([] { TextIn(Long{1}); }), 13);
}

}  // namespace

}  // namespace trelonit::test
