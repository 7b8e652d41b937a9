#include <gtest/gtest.h>
#include <map>
#include <string>
#include <vector>

#include "tests/opinion/ExplanationTools.h"
#include "tests/opinion/OpinionCase.h"

namespace trelonit::test {

namespace {

std::vector<Explanation> OfOpinion(const OpinionCase& design) {
  return ExplainOpinion(design.Judged(), design.Form());
}

std::vector<Explanation> OfCalculation(const OpinionCase& design) {
  return ExplainTold(design.Judged(), std::nullopt);
}

/// Whether one of its own rules has these words.
bool HasRule(const Explanation& explanation, const std::string& words) {
  return std::any_of(explanation.OwnRules.begin(), explanation.OwnRules.end(),
                     [&](const std::string& rule) { return rule.find(words) != rule.npos; });
}

// A twentieth of the first of the hand worked designs: the lower chord has 12 / 20 = 0.6 t, the
// upper one -16 / 20 = -0.8 t.
TEST(ExplanationNotes, SayWhetherTheForcePullsOrPresses) {
  TreloData data = SquareDesign(1, 4);
  Fill(data.UpPForce, 0.4);
  data.UpPForce[0] = 0.2;
  data.UpPForce[4] = 0.2;
  const std::vector<Explanation> explanations = OfOpinion(OpinionCase(data));
  const auto force = [&](ElementGroup group) {
    return StepOf(Find(explanations, group, "Strength"), "N");
  };
  EXPECT_NEAR(force(ElementGroup::DwnPoyas).Value, 0.6, 1e-12);
  EXPECT_EQ(force(ElementGroup::DwnPoyas).Note, "растяжение");
  EXPECT_NEAR(force(ElementGroup::UpPoyas).Value, 0.8, 1e-12);
  EXPECT_EQ(force(ElementGroup::UpPoyas).Note, "сжатие");
}

/// The note at the length, by group and plane, where the slenderness is checked.
std::string LengthNote(const OpinionCase& design, ElementGroup group, const std::string& check) {
  return StepOf(Find(OfOpinion(design), group, check), "lef").Note;
}

TEST(ExplanationNotes, SayWhereTheLengthOfAWebBarComesFrom) {
  const std::string own = "длина элемента, п. 6.1, табл. 11";
  const std::string reduced = "0,8 длины элемента решетки, п. 6.1, табл. 11";
  // Only the first scheme has posts on its supports, and there they rule: their length is full and
  // their force the greatest.
  const std::map<Long, std::string> posts{{1, own}, {2, reduced}, {4, reduced}};
  for (const auto& [scheme, post] : posts) {
    SCOPED_TRACE(scheme);
    const OpinionCase design(SnowyTruss(scheme));
    EXPECT_EQ(LengthNote(design, ElementGroup::Stoyka, "FlexX"), post);
    EXPECT_EQ(LengthNote(design, ElementGroup::Stoyka, "FlexY"), own);
    EXPECT_EQ(LengthNote(design, ElementGroup::Raskos, "FlexX"), reduced);
    EXPECT_EQ(LengthNote(design, ElementGroup::Raskos, "FlexY"), own);
    EXPECT_EQ(LengthNote(design, ElementGroup::OpornRaskos, "FlexX"), own);
    EXPECT_EQ(LengthNote(design, ElementGroup::OpornRaskos, "FlexY"), own);
  }
}

/// A truss whose chords are held in different ways.
OpinionCase HeldInTwoWays() {
  TreloData data = SnowyTruss(1);
  data.UpPoyasBrace = 3;
  data.DownPoyasBrace = 1;
  return OpinionCase(data);
}

TEST(ExplanationNotes, NameTheBracingOfTheChordItself) {
  const OpinionCase design = HeldInTwoWays();
  const std::string panel = "длина панели, п. 6.1, табл. 11";
  EXPECT_EQ(LengthNote(design, ElementGroup::UpPoyas, "FlexX"), panel);
  EXPECT_EQ(LengthNote(design, ElementGroup::DwnPoyas, "FlexX"), panel);
  EXPECT_EQ(LengthNote(design, ElementGroup::UpPoyas, "FlexY"),
            "между закрепленными точками («Через один»), п. 6.1, табл. 11");
  EXPECT_EQ(LengthNote(design, ElementGroup::DwnPoyas, "FlexY"),
            "между закрепленными точками («Только крайние»), п. 6.1, табл. 11");
}

TEST(OwnRules, NameTheBracingOfTheChordItself) {
  const std::vector<Explanation> explanations = OfCalculation(HeldInTwoWays());
  EXPECT_TRUE(HasRule(Find(explanations, ElementGroup::UpPoyas, "FlexY"), "«Через один»"));
  EXPECT_TRUE(HasRule(Find(explanations, ElementGroup::DwnPoyas, "FlexY"), "«Только крайние»"));
}

// Eight panels on 24 m: end panels of 3 m and a little more leave 3 m and a third of it less to the
// other six. A billionth of 3 m is rounding.
TEST(OwnRules, TakePanelsThatDifferByRoundingForOfOneLength) {
  const auto tellsOfTwoLengths = [](double more) {
    TreloData data = Design(1, 8, 24, 2.5, 3 + more);
    Fill(data.UpPForce, 3);
    return HasRule(Find(OfCalculation(OpinionCase(data)), ElementGroup::UpPoyas, "FlexX"),
                   "по панели стержня с наибольшим усилием");
  };
  EXPECT_FALSE(tellsOfTwoLengths(1.5e-9));
  EXPECT_TRUE(tellsOfTwoLengths(3e-9));
}

TEST(OwnRules, TellOfALimitForBarsBeyondFiftyMetresAndNotForFifty) {
  const auto upperChord = [](double panel) {
    TreloData data = Design(1, 4, 4 * panel, 20, panel);
    Fill(data.UpPForce, 3);
    const OpinionCase design(data, SameSections(Single(300, 300000, 300000)));
    EXPECT_EQ(design.Check.UpPoyas.LenX, panel);
    return Find(OfCalculation(design), ElementGroup::UpPoyas, "FlexX");
  };
  EXPECT_EQ(StepOf(upperChord(50), "λu").Formula, "180-60*α");
  EXPECT_EQ(StepOf(upperChord(50.5), "λu").Formula, "");
  EXPECT_EQ(StepOf(upperChord(50.5), "λu").Value, 120);
  EXPECT_TRUE(HasRule(upperChord(50.5), "больше 50 м взят предел 120"));
}

TEST(Explanations, OfAFigureOfExactlyOnePass) {
  const OpinionCase design(SnowyTruss(1));
  const auto passes = [&](double deflection) {
    const ToldDeflection told{.Value = deflection, .Limit = 0.125};
    return ExplainToldTruss(design.Judged(), told).at(0).Passed;
  };
  EXPECT_TRUE(passes(0.125));
  EXPECT_FALSE(passes(0.1251));
}

}  // namespace

}  // namespace trelonit::test
