#include <gtest/gtest.h>

#include "tests/workstation/main/Desk.h"

namespace trelonit::test {
namespace {

class FoundExplanation : public ::testing::Test {
 protected:
  FoundExplanation() {
    desk.Main.chkProgib.SetChecked(true);
    desk.Main.tabMain.SetTab(2);
    AddForce(desk.Main, 3, "1.2");
    desk.Main.cmdCalculate_Click();
  }
  const SecondOpinion& Opinion() const { return desk.Results.at(0).Opinion; }

  StartedDesk desk;
};

TEST_F(FoundExplanation, IsThatOfItsSourceGroupAndCheck) {
  for (const ExplanationSource source : {ExplanationSource::Told, ExplanationSource::Opinion}) {
    for (const ElementGroup group : {ElementGroup::UpPoyas, ElementGroup::Stoyka}) {
      for (const char* check : {"Strength", "FlexY"}) {
        const auto found = Opinion().FindExplanation(source, group, check);
        ASSERT_TRUE(found.has_value()) << check;
        EXPECT_EQ(found->Source, source);
        EXPECT_EQ(found->Group, group);
        EXPECT_EQ(found->Check, check);
      }
    }
  }
}

TEST_F(FoundExplanation, OfTheDeflectionHasNoGroup) {
  const auto found = Opinion().FindExplanation(ExplanationSource::Told, std::nullopt, "Progib");
  ASSERT_TRUE(found.has_value());
  EXPECT_EQ(found->Formula, "f/fu");
  EXPECT_FALSE(
      Opinion().FindExplanation(ExplanationSource::Opinion, std::nullopt, "Progib").has_value());
}

TEST_F(FoundExplanation, IsNothingWhereThereIsNone) {
  EXPECT_FALSE(Opinion()
                   .FindExplanation(ExplanationSource::Opinion, ElementGroup::UpPoyas, "UserX")
                   .has_value());
  EXPECT_FALSE(Opinion()
                   .FindExplanation(ExplanationSource::Told, ElementGroup::UpPoyas, "no check")
                   .has_value());
}

}  // namespace
}  // namespace trelonit::test
