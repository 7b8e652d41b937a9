#include <cmath>
#include <gtest/gtest.h>

#include "analysis/modMaxProgib.h"
#include "tests/checks/Checks.h"
#include "tests/workstation/design/Calculations.h"
#include "tests/workstation/design/SmallTruss.h"

namespace trelonit::test {
namespace {

/// A loaded truss whose sections are all the smallest of their standards and fail, on the tab with
/// the commands.
class LoadedTruss : public SmallTruss {
 public:
  explicit LoadedTruss(Long scheme = 1, const NumberLocale& locale = PointLocale())
      : SmallTruss(scheme, locale) {
    Load(true, 1, "12");
    Load(false, 1, "3");
    TakeMessages();
  }

  const SelectionProposal& Select(bool take) {
    TakesProposals = take;
    Main.cmdCalcAndSelect_Click();
    if (Proposals.empty()) {
      throw std::logic_error("no proposal");
    }
    return Proposals.back();
  }

  std::vector<std::string> SizesShown() const {
    std::vector<std::string> sizes;
    for (const Label& label : Main.lblProfilName) {
      sizes.push_back(label.Caption());
    }
    return sizes;
  }
};

/// What the search proposes for the model as Calculate leaves it.
SelectionProposal ProposalAfterCalculate(LoadedTruss& desk) {
  desk.Calculate();
  Messages told;
  return SelectSections(desk.Main.Model.Last, desk.Main.Model.ProfileTypes, told);
}

std::vector<std::string> NamesOf(const SectionArray& sections) {
  std::vector<std::string> names;
  for (const SectionPlace place :
       {sectionUpPoyas, sectionDwnPoyas, sectionRaskos, sectionStoyka, sectionOpornRaskos}) {
    names.push_back(sections[place].Profile.Name.Trimmed());
  }
  return names;
}

void ExpectSame(const SelectionProposal& proposal, const SelectionProposal& expected) {
  EXPECT_EQ(proposal.Sections, expected.Sections);
  EXPECT_EQ(Numbers(proposal.Check), Numbers(expected.Check));
  EXPECT_EQ(proposal.Impossible, expected.Impossible);
}

TEST(CalcAndSelect, ProposesForWhatCalculateWouldFind) {
  for (const Long scheme : {1, 2, 3, 4}) {
    for (const bool ownWeight : {false, true}) {
      LoadedTruss desk(scheme);
      LoadedTruss other(scheme);
      desk.Main.chkOwnWeight.SetChecked(ownWeight);
      other.Main.chkOwnWeight.SetChecked(ownWeight);
      ExpectSame(desk.Select(false), ProposalAfterCalculate(other));
      EXPECT_EQ(desk.Main.Model.Inputs.Loads, other.Main.Model.Inputs.Loads);
      EXPECT_EQ(desk.Main.Model.OwnWeight.Added, ownWeight);
      EXPECT_EQ(desk.Main.Model.OwnWeight.PerMetre, other.Main.Model.OwnWeight.PerMetre);
    }
  }
}

TEST(CalcAndSelect, ReadsTheNumbersOfTheForm) {
  LoadedTruss plain;
  plain.Select(false);
  LoadedTruss desk;
  LoadedTruss other;
  for (LoadedTruss* truss : {&desk, &other}) {
    truss->Main.txtRy.SetText("120,5");
    truss->Main.Steel.LimitFlex = "80";
    truss->Main.chkDinloadEnable.SetChecked(true);
  }
  ExpectSame(desk.Select(false), ProposalAfterCalculate(other));
  EXPECT_NE(NamesOf(desk.Proposals[0].Sections), NamesOf(plain.Proposals[0].Sections));
}

TEST(CalcAndSelect, ProposesSizesThatPassInACheckOfTheirOwn) {
  LoadedTruss desk;
  const SelectionProposal& proposal = desk.Select(true);
  EXPECT_TRUE(proposal.Impossible.empty());
  desk.Calculate();
  for (const Grid::Row& row : desk.Results.back().MSFlexGKoefUse) {
    if (row.at(1) != "***") {
      EXPECT_LE(std::stod(row.at(1)), 1.0) << row.at(0);
    }
  }
}

TEST(CalcAndSelect, ShowsTheTakenSizeInItsListAndLeavesOwnWeightInTheLoads) {
  LoadedTruss desk;
  desk.Main.chkOwnWeight.SetChecked(true);
  const std::string before = desk.Main.cmbSectType.Text();
  const SelectionProposal& proposal = desk.Select(true);
  const SectionPlace shown = PlaceOfOption(desk.Main.optElementSection.Selected());
  EXPECT_EQ(desk.Main.cmbSectType.Text(), proposal.Sections[shown].Profile.Name.Trimmed());
  EXPECT_NE(desk.Main.cmbSectType.Text(), before);
  EXPECT_TRUE(desk.Main.Model.OwnWeight.Added);
}

TEST(CalcAndSelect, ShowsTheProposalBeforeTheResultsAndEachOnce) {
  Desk world;
  std::vector<std::string> order;
  frmMain form(world.Outside.Bundle(),
               {.ShowKoeffOfUse = [&](const ResultLists&) { order.push_back("lists"); },
                .ShowSearch =
                    [&](const SelectionOffer& offer) {
                      order.push_back("search");
                      return std::optional(offer.Proposal);
                    }});
  form.Form_Load();
  form.tabMain.SetTab(2);
  AddForce(form, 5, "4");
  form.cmdCalcAndSelect_Click();
  EXPECT_EQ(order, (std::vector<std::string>{"search", "lists"}));
  EXPECT_EQ(world.TakeMessages(), Messages());
}

TEST(CalcAndSelect, LeavesEverythingAsCalculateWouldWhereTheUserDoesNotTakeIt) {
  for (const Long scheme : {1, 3}) {
    LoadedTruss desk(scheme);
    LoadedTruss other(scheme);
    const SectionArray before = desk.Main.Model.Inputs.ElementSection;
    const std::vector<std::string> shown = desk.SizesShown();
    desk.Select(false);
    ASSERT_NE(NamesOf(desk.Proposals[0].Sections), NamesOf(before));
    const ResultLists& expected = other.Calculate();
    EXPECT_EQ(desk.Main.Model.Inputs.ElementSection, before);
    EXPECT_EQ(desk.SizesShown(), shown);
    EXPECT_EQ(Numbers(desk.Main.Model.Last.CheckData), Numbers(other.Main.Model.Last.CheckData));
    ASSERT_EQ(desk.Results.size(), 1U);
    EXPECT_EQ(desk.Results[0].lstForces, expected.lstForces);
    EXPECT_EQ(desk.Results[0].MSFlexGKoefUse, expected.MSFlexGKoefUse);
  }
}

TEST(CalcAndSelect, PutsWhatTheUserTakesIntoTheForm) {
  for (const Long scheme : {1, 2, 3, 4}) {
    LoadedTruss desk(scheme);
    const SelectionProposal proposal = desk.Select(true);
    const DesignModel& model = desk.Main.Model;
    EXPECT_EQ(model.Inputs.ElementSection, proposal.Sections);
    EXPECT_EQ(Numbers(model.Last.CheckData), Numbers(proposal.Check));
    EXPECT_EQ(desk.SizesShown(), NamesOf(proposal.Sections));
    EXPECT_EQ(desk.Results.size(), 1U);
    EXPECT_EQ(desk.Main.tabMain.Tab(), 2);
    EXPECT_EQ(desk.TakeMessages(), Messages());
  }
}

TEST(CalcAndSelect, RunsNoNewAnalysisForWhatTheUserTakes) {
  LoadedTruss desk;
  LoadedTruss other;
  desk.Main.chkOwnWeight.SetChecked(true);
  other.Main.chkOwnWeight.SetChecked(true);
  desk.Select(true);
  other.Calculate();
  const DesignModel& model = desk.Main.Model;
  EXPECT_EQ(Values(model.Last.TreloResult.UpPoyasForce),
            Values(other.Main.Model.Last.TreloResult.UpPoyasForce));
  EXPECT_EQ(Values(model.Last.TreloResult.RaskosForce),
            Values(other.Main.Model.Last.TreloResult.RaskosForce));
  EXPECT_EQ(model.Last.TreloResult.ReactLeft, other.Main.Model.Last.TreloResult.ReactLeft);
  EXPECT_EQ(model.Inputs.Loads, other.Main.Model.Inputs.Loads);
  EXPECT_EQ(static_cast<const LoadArrays&>(model.Last.TreloData), model.Inputs.Loads);
}

TEST(CalcAndSelect, BuildsTheListsFromWhatTheUserTakes) {
  LoadedTruss desk;
  const SelectionProposal proposal = desk.Select(true);
  const DesignModel& model = desk.Main.Model;
  EXPECT_EQ(
      desk.Results[0].lstForces,
      BuildForceList(CalculationOf(1, model.Last.TreloResult, proposal.Check.Mass), PointLocale()));
  EXPECT_EQ(desk.Results[0].MSFlexGKoefUse,
            BuildUtilisationGrid(CalculationOf(1, proposal.Check), PointLocale()));
  LoadedTruss other;
  other.Calculate();
  EXPECT_NE(desk.Results[0].lstForces, other.Results[0].lstForces);
  EXPECT_NE(desk.Results[0].MSFlexGKoefUse, other.Results[0].MSFlexGKoefUse);
}

class DeflectionAfterSelection : public ::testing::TestWithParam<bool> {};

TEST_P(DeflectionAfterSelection, IsOfTheSectionsThatTheFormHas) {
  const bool taken = GetParam();
  LoadedTruss desk;
  desk.Main.chkProgib.SetChecked(true);
  desk.Select(taken);
  ASSERT_TRUE(desk.Results.at(0).Of.Progib.has_value());
  const ProgibResult progib = *desk.Results[0].Of.Progib;
  const Calculation& last = desk.Main.Model.Last;
  const double expected =
      CalcProgib(last.TreloData, last.TreloResult, last.CheckData, desk.Main.optBP.Value(),
                 CheckNumbersOf(desk.Main.ReadInputs()).E)
          .Value;
  EXPECT_GT(progib.Value, 0);
  EXPECT_EQ(progib.Value, expected);
  EXPECT_EQ(desk.Main.tabMain.Tab(), 0);
  EXPECT_EQ(desk.Main.txtProgib.Text(), FormatShown(expected, 5, PointLocale()));

  // The larger sections bend less.
  LoadedTruss other;
  other.Main.chkProgib.SetChecked(true);
  const double before = other.Calculate().Of.Progib->Value;
  if (taken) {
    EXPECT_LT(progib.Value, before);
  } else {
    EXPECT_EQ(progib.Value, before);
  }
}

INSTANTIATE_TEST_SUITE_P(TakenOrNot, DeflectionAfterSelection, ::testing::Bool(),
                         [](const auto& test) { return test.param ? "Taken" : "NotTaken"; });

/// What the mass is when it is spread over both chords, with its four decimals.
double Spread(double mass, const TreloResult& result) {
  return std::round(mass / (result.SumLenUpPoyas + result.SumLenDwnPoyas) * 1e4) / 1e4;
}

TEST(OwnWeightInSelection, StaysThatOfTheOldSectionsUntilTheNextCalculation) {
  LoadedTruss desk;
  desk.Main.chkOwnWeight.SetChecked(true);
  LoadedTruss other;
  other.Calculate();
  const double oldMass = other.Main.Model.Last.CheckData.Mass;
  desk.Select(true);
  const DesignModel& model = desk.Main.Model;
  const double oldWeight = Spread(oldMass, model.Last.TreloResult);
  const double newWeight = Spread(model.Last.CheckData.Mass, model.Last.TreloResult);
  ASSERT_GT(std::abs(newWeight - oldWeight), 1e-3);
  EXPECT_TRUE(model.OwnWeight.Added);
  EXPECT_NEAR(model.OwnWeight.PerMetre, oldWeight, 1e-12);
  EXPECT_NEAR(model.Inputs.Loads.UpDistForce[0], oldWeight, 1e-12);

  desk.Calculate();
  const double weight = Spread(model.Last.CheckData.Mass, model.Last.TreloResult);
  EXPECT_NEAR(model.OwnWeight.PerMetre, weight, 1e-12);
  EXPECT_NEAR(model.Inputs.Loads.UpDistForce[0], weight, 1e-12);
  EXPECT_NEAR(model.Inputs.Loads.DwnDistForce[0], weight, 1e-12);
}

TEST(OwnWeightInSelection, StaysInTheLoadsWhereTheUserDoesNotTakeTheProposal) {
  LoadedTruss desk;
  desk.Main.chkOwnWeight.SetChecked(true);
  const LoadArrays before = desk.Main.Model.Inputs.Loads;
  const SectionArray sections = desk.Main.Model.Inputs.ElementSection;
  desk.Select(false);
  EXPECT_EQ(desk.Main.Model.Inputs.ElementSection, sections);
  EXPECT_TRUE(desk.Main.Model.OwnWeight.Added);
  EXPECT_GT(desk.Main.Model.Inputs.Loads.UpDistForce[0], 0);
  EXPECT_EQ(desk.Main.Model.Inputs.Loads.UpDistForce[0], desk.Main.Model.OwnWeight.PerMetre);
  // The check box takes it out again.
  desk.Main.chkOwnWeight.SetChecked(false);
  EXPECT_EQ(desk.Main.Model.Inputs.Loads, before);
}

TEST(OwnWeightInSelection, IsTakenOutAgainAfterTheProposalWasTaken) {
  LoadedTruss desk;
  desk.Main.chkOwnWeight.SetChecked(true);
  const LoadArrays before = desk.Main.Model.Inputs.Loads;
  desk.Select(true);
  desk.Main.chkOwnWeight.SetChecked(false);
  EXPECT_EQ(desk.Main.Model.Inputs.Loads, before);
  EXPECT_FALSE(desk.Main.Model.OwnWeight.Added);
}

TEST(CalcAndSelect, EndsAtTheSameSizesTheSecondTime) {
  for (const Long scheme : {1, 2, 3, 4}) {
    LoadedTruss desk(scheme);
    const std::vector<std::string> first = NamesOf(desk.Select(true).Sections);
    const SelectionProposal& second = desk.Select(true);
    EXPECT_EQ(NamesOf(second.Sections), first) << scheme;
    EXPECT_EQ(desk.Results.size(), 2U);
  }
}

TEST(CalcAndSelect, NamesTheLargestSizeWhereNonePasses) {
  LoadedTruss desk;
  desk.Main.txtRy.SetText("0.001");
  const SelectionProposal& proposal = desk.Select(true);
  EXPECT_EQ(proposal.Impossible.size(), 5U);
  for (const SectionRec& section : desk.Main.Model.Inputs.ElementSection) {
    EXPECT_EQ(section.SizeIdx, desk.Main.Model.ProfileTypes[section.TypeIdx].Rec.UpperBound());
  }
  EXPECT_EQ(desk.SizesShown(), NamesOf(proposal.Sections));
  EXPECT_EQ(desk.TakeMessages(), Messages());
}

TEST(CalcAndSelect, LeavesTheVerticalsOfSchemeThree) {
  LoadedTruss desk(3);
  const SectionRec verticals = desk.Main.Model.Inputs.ElementSection[sectionStoyka];
  desk.Select(true);
  EXPECT_EQ(desk.Main.Model.Inputs.ElementSection[sectionStoyka], verticals);
  for (const Grid::Row& row : desk.Results[0].MSFlexGKoefUse) {
    EXPECT_NE(row.at(0), "*** Cтойки");
  }
}

TEST(CalcAndSelect, ShowsABoxOfTheTriesOnce) {
  LoadedTruss desk(3);
  desk.Main.Model.Inputs.ElementSection[sectionStoyka].Layout = 6;
  desk.Select(true);
  const Message noLength = Stop("Ошибочное значение длинны стержня (<=0)!");
  // Two of the preparation, as Calculate shows them, and one of all tries.
  EXPECT_EQ(desk.TakeMessages(), (Messages{noLength, noLength, noLength}));
}

TEST(CalcAndSelect, TellsADamagedStandardUnderItsOwnTitle) {
  for (const SectionPlace place :
       {sectionUpPoyas, sectionDwnPoyas, sectionRaskos, sectionOpornRaskos, sectionStoyka}) {
    for (const Long standard : {-1, 0, 23}) {
      LoadedTruss desk;
      desk.Main.txtRy.SetText("1");
      desk.Main.Model.Inputs.ElementSection[place].TypeIdx = standard;
      const SectionArray before = desk.Main.Model.Inputs.ElementSection;
      desk.Main.cmdCalcAndSelect_Click();
      EXPECT_EQ(desk.TakeMessages(), Messages{SubscriptTail("cmdCalcAndSelect_Click")});
      EXPECT_TRUE(desk.Proposals.empty());
      EXPECT_TRUE(desk.Results.empty());
      EXPECT_EQ(desk.Main.Model.Inputs.ElementSection, before);
    }
  }
}

TEST(CalcAndSelect, TellsADamagedSizeUnderItsOwnTitle) {
  LoadedTruss down;
  down.Main.txtRy.SetText("1E9");
  down.Main.Steel.LimitFlex = "1E9";
  SectionRec& verticals = down.Main.Model.Inputs.ElementSection[sectionStoyka];
  verticals.SizeIdx = 1000;
  // Thick enough to pass, so that the walk goes down from there.
  verticals.Profile = down.Main.Model.ProfileTypes[verticals.TypeIdx].Rec[62];
  down.Main.cmdCalcAndSelect_Click();
  EXPECT_EQ(down.TakeMessages(), Messages{SubscriptTail("cmdCalcAndSelect_Click")});
  EXPECT_TRUE(down.Results.empty());

  LoadedTruss up;
  up.Main.txtRy.SetText("1");
  up.Main.Model.Inputs.ElementSection[sectionUpPoyas].SizeIdx = -5;
  up.Main.cmdCalcAndSelect_Click();
  EXPECT_EQ(up.TakeMessages(), Messages{SubscriptTail("cmdCalcAndSelect_Click")});
  EXPECT_TRUE(up.Proposals.empty());
}

TEST(CalcAndSelect, GoesOnAfterAFailedAnalysisUntilThereIsNothingToList) {
  LoadedTruss desk;
  desk.Main.tabMain.SetTab(0);
  // End panels that take the whole span leave panels of length 0.
  desk.Main.txtLenOporn.SetText("4");
  desk.Main.tabMain.SetTab(2);
  desk.TakeMessages();
  desk.Main.cmdCalcAndSelect_Click();
  EXPECT_EQ(desk.TakeMessages(),
            (Messages{Tail("CalcTrelo1", 11, "Division by zero"),
                      Stop("Не правильно расчитана масса фермы !"), SubscriptTail(formTitle),
                      SubscriptTail("cmdCalcAndSelect_Click")}));
  EXPECT_TRUE(desk.Results.empty());
}

TEST(CalcAndSelect, DoesNotNeedItsWindow) {
  Desk world;
  std::vector<ResultLists> results;
  frmMain form(world.Outside.Bundle(),
               {.ShowKoeffOfUse = [&](const ResultLists& lists) { results.push_back(lists); }});
  form.Form_Load();
  form.tabMain.SetTab(2);
  AddForce(form, 5, "4");
  const SectionArray before = form.Model.Inputs.ElementSection;
  form.cmdCalcAndSelect_Click();
  EXPECT_EQ(form.Model.Inputs.ElementSection, before);
  EXPECT_EQ(results.size(), 1U);
  EXPECT_EQ(world.TakeMessages(), Messages());
}

TEST(SearchMenu, GoesOverTheTabsToTheCommand) {
  for (const Integer from : {Integer{0}, Integer{1}, Integer{2}}) {
    StartedDesk desk;
    desk.Main.tabMain.SetTab(from);
    desk.Main.txtLengthF.SetText("24");
    desk.Main.mnuSearch_Click();
    EXPECT_EQ(desk.Opened, std::vector<std::string>{"Search"}) << from;
    EXPECT_EQ(desk.Results.size(), 1U);
    EXPECT_EQ(desk.Main.tabMain.Tab(), 2);
    // The geometry is checked on the way off the first tab only.
    EXPECT_EQ(desk.Main.Model.Accepted.LengthF, from == 0 ? 24 : 20);
  }
}

TEST(SearchMenu, StopsAtAGeometryThatIsRefused) {
  StartedDesk desk;
  desk.Main.txtLengthF.SetText("0");
  desk.Main.mnuSearch_Click();
  EXPECT_EQ(desk.Main.tabMain.Tab(), 0);
  EXPECT_EQ(desk.TakeMessages().size(), 1U);
  EXPECT_TRUE(desk.Opened.empty());
  EXPECT_TRUE(desk.Results.empty());
}

TEST(SearchMenu, DoesWhatTheButtonDoes) {
  LoadedTruss menu;
  LoadedTruss button;
  menu.TakesProposals = true;
  menu.Main.mnuSearch_Click();
  button.Select(true);
  EXPECT_EQ(menu.Main.Model.Inputs.ElementSection, button.Main.Model.Inputs.ElementSection);
  EXPECT_EQ(menu.Results.at(0).MSFlexGKoefUse, button.Results.at(0).MSFlexGKoefUse);
}

}  // namespace
}  // namespace trelonit::test
