#include <cmath>
#include <functional>
#include <gtest/gtest.h>
#include <map>
#include <rapidcheck/gtest.h>
#include <set>
#include <string>

#include "checks/ElementGroups.h"
#include "opinion/Expression.h"
#include "tests/opinion/ExplanationTools.h"
#include "tests/opinion/OpinionCase.h"
#include "tests/workstation/design/AnyDesign.h"

namespace trelonit::test {

namespace {

/// Whether the text is plain arithmetic of this value, within 1e-4 and within 1e-4 of it.
bool Gives(const std::string& substitution, double value) {
  const double read = ValueOf(ParseExpression(substitution));
  return std::abs(read - value) <= 1e-4 * std::min(1.0, std::abs(value));
}

/// What is wrong with an explanation by itself; nothing for a good one.
std::string Complaint(const Explanation& explanation) {
  SymbolValues symbols;
  for (const ExplanationStep& step : explanation.Steps) {
    if (step.Symbol.empty()) {
      return "a step without a symbol";
    }
    if (step.Formula.empty() != step.Substitution.empty()) {
      return "half a formula: " + step.Symbol;
    }
    if (!step.Formula.empty()) {
      if (!Gives(step.Substitution, step.Value)) {
        return step.Symbol + ": " + step.Substitution + " is not " + std::to_string(step.Value);
      }
      // The formula uses only what was told before it.
      if (std::abs(ValueOf(ParseExpression(step.Formula), symbols) - step.Value) >
          1e-9 * std::abs(step.Value)) {
        return step.Symbol + ": " + step.Formula;
      }
    }
    symbols[step.Symbol] = step.Value;
  }
  if (!Gives(explanation.Substitution, explanation.Value)) {
    return explanation.Substitution + " is not " + std::to_string(explanation.Value);
  }
  if (std::abs(ValueOf(ParseExpression(explanation.Formula), symbols) - explanation.Value) >
      1e-9 * std::abs(explanation.Value)) {
    return explanation.Formula;
  }
  if (explanation.Clause.empty() || explanation.CheckName.empty()) {
    return "no clause or no name";
  }
  if (explanation.Limit != 1 || explanation.Passed != (explanation.Value <= 1)) {
    return "wrong verdict";
  }
  return "";
}

using Key = std::pair<std::optional<ElementGroup>, std::string>;

/// The figures that the record of the program's own calculation holds, by group and check.
std::map<Key, double> ToldFigures(const CheckResult& check, Long scheme) {
  std::map<Key, double> figures;
  for (const ElementGroupRow& row : elementGroups) {
    if (scheme == 3 && row.Group == ElementGroup::Stoyka) {
      continue;
    }
    const GroupCheck& group = check.*row.Block;
    figures[{row.Group, "Strength"}] = group.KStrength;
    if (group.NComp.Value < 0) {
      figures[{row.Group, "StabX"}] = group.KStabX;
      figures[{row.Group, "StabY"}] = group.KStabY;
    }
    figures[{row.Group, "FlexX"}] = group.KFlexX;
    figures[{row.Group, "FlexY"}] = group.KFlexY;
    figures[{row.Group, "UserX"}] = group.KUserX;
    figures[{row.Group, "UserY"}] = group.KUserY;
  }
  return figures;
}

std::map<Key, double> OpinionFigures(const Opinion& opinion) {
  std::map<Key, double> figures;
  const char* keys[] = {"Strength", "StabX", "StabY", "FlexX", "FlexY"};
  for (const GroupJudgement& group : opinion.Groups) {
    const bool compressed =
        std::any_of(opinion.Bars.begin(), opinion.Bars.end(), [&](const BarJudgement& bar) {
          const auto place = static_cast<std::size_t>(&bar - opinion.Bars.data());
          return bar.Compressed && opinion.Model.Bars[place].Group == group.Group;
        });
    for (std::size_t check = 0; check < 5; ++check) {
      if (compressed || (check != 1 && check != 2)) {
        figures[{group.Group, keys[check]}] = group.Figures[check];
      }
    }
  }
  return figures;
}

std::map<Key, double> Explained(const std::vector<Explanation>& explanations,
                                ExplanationSource source) {
  std::map<Key, double> figures;
  for (const Explanation& explanation : explanations) {
    if (explanation.Source == source) {
      const bool fresh =
          figures.emplace(Key{explanation.Group, explanation.Check}, explanation.Value).second;
      if (!fresh) {
        throw std::logic_error("explained twice: " + explanation.Check);
      }
    }
  }
  return figures;
}

OpinionCase PickCase() {
  const Pick pick = [](Long low, Long high) { return *rc::gen::inRange<Long>(low, high + 1); };
  std::vector<Long> layouts(5);
  for (Long& layout : layouts) {
    layout = pick(1, sectionLayoutCount);
  }
  CheckNumbers numbers = StartNumbers();
  numbers.Ry = static_cast<double>(pick(150, 500));
  numbers.Yc = static_cast<double>(pick(75, 115)) / 100;
  numbers.Gn = static_cast<double>(pick(80, 110)) / 100;
  numbers.Dynamic = pick(0, 1) != 0;
  const trelonit::Design design = AnyDesign(pick, PickScheme(), layouts);
  return OpinionCase(design.TreloData, design.ElementSection, numbers);
}

RC_GTEST_PROP(Explanations, OfAnyDesignAreOneForEachFigureAndGiveIt, ()) {
  const OpinionCase design = PickCase();
  const Opinion opinion = design.Form();
  RC_ASSERT(opinion.Refusal == "");
  const std::vector<Explanation> explanations =
      Explain(design.Judged(), opinion, ToldDeflection{.Value = 0.0321, .Limit = 0.08});
  for (const Explanation& explanation : explanations) {
    RC_ASSERT(Complaint(explanation) == "");
  }
  std::map<Key, double> told = ToldFigures(design.Check, design.Data.TreloType);
  told[{std::nullopt, "Progib"}] = 0.0321 / 0.08;
  RC_ASSERT(Explained(explanations, ExplanationSource::Told) == told);
  RC_ASSERT(Explained(explanations, ExplanationSource::Opinion) == OpinionFigures(opinion));
}

RC_GTEST_PROP(Explanations, OfTheOpinionNameTheBarThatRules, ()) {
  const OpinionCase design = PickCase();
  const Opinion opinion = design.Form();
  for (const Explanation& explanation : ExplainOpinion(design.Judged(), opinion)) {
    bool found = false;
    for (std::size_t place = 0; place < opinion.Bars.size(); ++place) {
      if (opinion.Model.Bars[place].Group == explanation.Group &&
          opinion.Model.Bars[place].Number == explanation.Bar) {
        for (const MemberCheckRow& row : memberChecks) {
          if (row.Key == explanation.Check) {
            found = opinion.Bars[place].Figure(row.Check) == explanation.Value;
            RC_ASSERT(explanation.CheckName == row.Name);
          }
        }
      }
    }
    RC_ASSERT(found);
  }
}

// The support post of the first of the hand worked designs, with its numbers put in.
TEST(Explanations, ReadLikeTheHandWorkedPaper) {
  TreloData data = Design(1, 4, 12, 3, 3);
  Fill(data.UpPForce, 8);
  data.UpPForce[0] = 4;
  data.UpPForce[4] = 4;
  CheckNumbers numbers = StartNumbers();
  numbers.Yc = 0.95;
  numbers.Gn = 0.95;
  const OpinionCase design(data, SameSections(Single(17.56, 93.14, 208.2212)), numbers);
  const std::vector<Explanation> explanations = ExplainOpinion(design.Judged(), design.Form());
  const Explanation& strength = Find(explanations, ElementGroup::Stoyka, "Strength");
  EXPECT_EQ(strength.Clause, "СНиП II-23-81*, п. 5.1, формула (5)");
  EXPECT_EQ(strength.Formula, "N*γn*98.1/(A*Ry*γc)");
  EXPECT_EQ(strength.Substitution, "16*0.95*98.1/(17.56*240*0.95)");
  const Explanation& stability = Find(explanations, ElementGroup::Stoyka, "StabX");
  EXPECT_EQ(stability.Clause, "СНиП II-23-81*, п. 5.3, формула (7)");
  EXPECT_EQ(stability.Substitution, "16*0.95*98.1/(0.36301*17.56*240*0.95)");
  EXPECT_FALSE(stability.Passed);
  std::map<std::string, double> steps;
  for (const ExplanationStep& step : stability.Steps) {
    steps[step.Symbol] = step.Value;
  }
  EXPECT_NEAR(steps.at("N"), 16, 1e-12);
  EXPECT_NEAR(steps.at("lef"), 3, 1e-12);
  EXPECT_NEAR(steps.at("λ"), 130.261, 5e-4);
  EXPECT_NEAR(steps.at("λ̄"), 4.44618, 5e-6);
  EXPECT_NEAR(steps.at("φ"), 0.36301, 5e-6);
  const Explanation& slenderness = Find(explanations, ElementGroup::Stoyka, "FlexX");
  EXPECT_EQ(slenderness.Clause, "СНиП II-23-81*, п. 6.15*, табл. 19*");
  EXPECT_EQ(slenderness.Substitution, "130.261/120");
  EXPECT_EQ(Find(explanations, ElementGroup::DwnPoyas, "FlexX").Clause,
            "СНиП II-23-81*, п. 6.16*, табл. 20*");
}

// The rules of the program's own that an explanation names, told by a word of theirs.
constexpr const char* fullLength = "по табл. 11 в плоскости фермы 0,8";
constexpr const char* tableOfLengths = "по таблице программы для варианта";
constexpr const char* greatestPanel = "по панели стержня с наибольшим усилием";
constexpr const char* allDiagonals = "наибольшее усилие среди всех раскосов";
constexpr const char* ownAlpha = "без γn и без нижней границы 0,5";
constexpr const char* ownTension = "Предел 250 взят для всех групп";
constexpr const char* ownPhi = "φ = 0,017";
constexpr const char* longBar = "больше 50 м взят предел 120";
constexpr const char* userLimit = "задает пользователь";
constexpr const char* halfLower = "половиной длины";
constexpr const char* allRules[] = {fullLength, tableOfLengths, greatestPanel, allDiagonals,
                                    ownAlpha,   ownTension,     ownPhi,        longBar,
                                    userLimit,  halfLower};

std::set<std::string> RulesOf(const Explanation& explanation) {
  std::set<std::string> rules;
  for (const std::string& sentence : explanation.OwnRules) {
    for (const char* rule : allRules) {
      if (sentence.find(rule) != std::string::npos) {
        rules.insert(rule);
      }
    }
  }
  EXPECT_EQ(rules.size(), explanation.OwnRules.size());
  return rules;
}

/// What the told explanation must name, from the record alone.
std::set<std::string> RulesDue(const OpinionCase& design, const Explanation& explanation) {
  std::set<std::string> rules;
  const ElementGroup group = *explanation.Group;
  const GroupCheck& check = design.Check.*RowOf(group).Block;
  const std::string& key = explanation.Check;
  const bool inPlane = key.back() == 'X';
  const bool chord = group == ElementGroup::UpPoyas || group == ElementGroup::DwnPoyas;
  const bool stability = key.starts_with("Stab");
  const bool norm = key.starts_with("Flex");
  const bool slenderness = norm || key.starts_with("User");
  const bool compressed = check.NComp.Value < 0;
  if ((key == "Strength" || stability) && group == ElementGroup::OpornRaskos) {
    rules.insert(allDiagonals);
  }
  if (stability || slenderness) {
    if (chord && !inPlane) {
      rules.insert(tableOfLengths);
    }
    const bool twoPanels =
        group == ElementGroup::UpPoyas ? design.Data.TreloType != 3 : design.Data.TreloType == 1;
    if (chord && inPlane && twoPanels &&
        std::abs(design.Data.LenOporn - design.Result.LenPanel) > 1e-9) {
      rules.insert(greatestPanel);
    }
    if ((group == ElementGroup::Stoyka || group == ElementGroup::Raskos) && inPlane) {
      rules.insert(fullLength);
    }
  }
  if (stability && (inPlane ? check.FlexBarX : check.FlexBarY) > 35) {
    rules.insert(ownPhi);
  }
  if (norm && compressed) {
    const bool isLong =
        (inPlane ? check.LenX : check.LenY) > 50 && design.Sections[RowOf(group).Place].Layout != 1;
    rules.insert(isLong ? longBar : ownAlpha);
  }
  if (norm && !compressed && design.Numbers.Dynamic && !chord &&
      group != ElementGroup::OpornRaskos) {
    rules.insert(ownTension);
  }
  if (key.starts_with("User")) {
    rules.insert(userLimit);
  }
  return rules;
}

void ExpectRulesDue(const OpinionCase& design, std::set<std::string>& met) {
  const std::vector<Explanation> explanations = ExplainTold(design.Judged(), std::nullopt);
  ASSERT_FALSE(explanations.empty());
  for (const Explanation& explanation : explanations) {
    const std::set<std::string> rules = RulesOf(explanation);
    EXPECT_EQ(rules, RulesDue(design, explanation)) << explanation.Check;
    met.insert(rules.begin(), rules.end());
  }
}

TEST(OwnRules, OfTheCalculationAreNamedWhereTheyAct) {
  std::set<std::string> met;
  for (Long scheme = 1; scheme <= 4; ++scheme) {
    for (const double load : {-3.0, 3.0}) {
      for (const bool dynamic : {false, true}) {
        for (const Long layout : {1, 6}) {
          // Panels of one length, of two, and a truss so long that its bars pass 50 m.
          for (const double endPanel : {3.0, 2.0, 120.0}) {
            TreloData data = Design(scheme, 8, endPanel > 100 ? 960 : 24, 2.5, endPanel);
            Fill(data.UpPForce, load);
            CheckNumbers numbers = StartNumbers();
            numbers.Dynamic = dynamic;
            // A needle in the plane, beyond every formula, in the long truss.
            OpinionCase design(
                data, SameSections(Single(30, endPanel > 100 ? 5 : 600, 900, layout)), numbers);
            ExpectRulesDue(design, met);
          }
        }
      }
    }
  }
  // All but the deflection's.
  EXPECT_EQ(met.size(), std::size(allRules) - 1);
}

TEST(OwnRules, OfTheDeflectionAreTheHalfLengthsOfTheFourthScheme) {
  for (Long scheme = 1; scheme <= 4; ++scheme) {
    const OpinionCase design(SnowyTruss(scheme));
    const std::vector<Explanation> explanations =
        ExplainTold(design.Judged(), ToldDeflection{.Value = 0.05, .Limit = 0.1});
    const Explanation& deflection = explanations.back();
    EXPECT_EQ(deflection.Check, "Progib");
    EXPECT_EQ(deflection.Group, std::nullopt);
    EXPECT_EQ(deflection.Value, 0.5);
    EXPECT_EQ(deflection.Clause, "СНиП 2.01.07-85*, раздел 10");
    EXPECT_EQ(RulesOf(deflection),
              scheme == 4 ? std::set<std::string>{halfLower} : std::set<std::string>{});
  }
}

TEST(OwnRules, OfTheOpinionAreOnlyThePhiBeyondTheFormulas) {
  TreloData data = SnowyTruss(1);
  data.UpPoyasBrace = 1;
  for (const double inertia : {900.0, 1.0}) {
    const OpinionCase design(data, SameSections(Single(30, 900, inertia)));
    const Opinion opinion = design.Form();
    int named = 0;
    for (const Explanation& explanation : ExplainOpinion(design.Judged(), opinion)) {
      const std::set<std::string> rules = RulesOf(explanation);
      bool beyond = false;
      for (const ExplanationStep& step : explanation.Steps) {
        beyond = beyond || (step.Symbol == "λ̄" && step.Value > 35);
      }
      EXPECT_EQ(rules, beyond ? std::set<std::string>{ownPhi} : std::set<std::string>{});
      named += beyond ? 1 : 0;
    }
    EXPECT_EQ(named > 0, inertia == 1.0);
  }
}

TEST(Explanations, OfANegativeDeflectionAreNotLost) {
  const OpinionCase design(SnowyTruss(2));
  const std::vector<Explanation> explanations =
      ExplainTold(design.Judged(), ToldDeflection{.Value = -0.012, .Limit = 0.1});
  ASSERT_EQ(explanations.back().Check, "Progib");
  EXPECT_EQ(explanations.back().Value, -0.12);
  EXPECT_EQ(Complaint(explanations.back()), "");
}

TEST(Explanations, OfAnEmptyRecordAndOfARefusalAreNone) {
  OpinionCase design(SnowyTruss(2));
  design.Check = {};
  EXPECT_TRUE(Explain(design.Judged(), design.Form(), std::nullopt).empty());
  design.Data.TreloType = 0;
  EXPECT_TRUE(Explain(design.Judged(), design.Form(), std::nullopt).empty());
}

}  // namespace

}  // namespace trelonit::test
