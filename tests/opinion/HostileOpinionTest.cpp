#include <cmath>
#include <functional>
#include <gtest/gtest.h>
#include <limits>
#include <rapidcheck/gtest.h>
#include <string>
#include <vector>

#include "platform/errors/RuntimeError.h"
#include "tests/opinion/OpinionCase.h"
#include "tests/support/AnyNumber.h"

namespace trelonit::test {

namespace {

using NumberPlaces = std::vector<std::reference_wrapper<double>>;

void Add(NumberPlaces& numbers, BoundedArray<double>& array) {
  numbers.insert(numbers.end(), array.begin(), array.end());
}

/// What the user enters.
NumberPlaces InputsOf(OpinionCase& c) {
  NumberPlaces numbers{c.Data.LengthF, c.Data.Hight, c.Data.LenOporn, c.Numbers.Ry,
                       c.Numbers.E,    c.Numbers.Yc, c.Numbers.Gn,    c.Numbers.LimitUser};
  for (auto* loads :
       {&c.Data.UpPForce, &c.Data.UpDistForce, &c.Data.DwnPForce, &c.Data.DwnDistForce}) {
    Add(numbers, *loads);
  }
  for (SectionRec& section : c.Sections) {
    ProfileRec& profile = section.Profile;
    numbers.insert(numbers.end(),
                   {profile.A, profile.Jy, profile.Jz, profile.y0, profile.z0, section.Gdist});
  }
  return numbers;
}

NumberPlaces FieldsOf(GroupCheck& group) {
  return {group.AlphaX,
          group.AlphaY,
          group.FlexX,
          group.FlexY,
          group.FlexBarX,
          group.FlexBarY,
          group.PhiX,
          group.PhiY,
          group.Area,
          group.Jin,
          group.Jout,
          group.KStrength,
          group.KStabX,
          group.KStabY,
          group.KFlexX,
          group.KFlexY,
          group.LenX,
          group.LenY,
          group.KUserX,
          group.KUserY,
          group.NMax.Value,
          group.NComp.Value,
          group.LimitX.Compress,
          group.LimitX.Tension,
          group.LimitY.Compress,
          group.LimitY.Tension};
}

/// What the program's own calculation found.
NumberPlaces ResultsOf(OpinionCase& c) {
  NumberPlaces numbers{c.Result.ReactLeft, c.Result.ReactRight, c.Result.LenPanel, c.Check.Mass};
  for (auto* forces : {&c.Result.UpPoyasForce, &c.Result.DwnPoyasForce, &c.Result.RaskosForce,
                       &c.Result.StoykaForce, &c.Result.UpKnotLoad, &c.Result.DwnKnotLoad}) {
    Add(numbers, *forces);
  }
  for (GroupCheck* group : {&c.Check.UpPoyas, &c.Check.DwnPoyas, &c.Check.Stoyka, &c.Check.Raskos,
                            &c.Check.OpornRaskos}) {
    const NumberPlaces more = FieldsOf(*group);
    numbers.insert(numbers.end(), more.begin(), more.end());
  }
  return numbers;
}

/// Every number that an opinion holds.
std::vector<double> NumbersOf(const Opinion& opinion) {
  std::vector<double> numbers{
      opinion.UpperHeld,        opinion.LowerHeld,          opinion.GreatestForce,
      opinion.Forces.ReactLeft, opinion.Forces.ReactRight,  opinion.Told.ReactLeft,
      opinion.Told.ReactRight,  opinion.GreatestResidual(), opinion.SmallestForce()};
  const auto add = [&](const std::vector<double>& more) {
    numbers.insert(numbers.end(), more.begin(), more.end());
  };
  add(opinion.Forces.Loads);
  add(opinion.Forces.Forces);
  add(opinion.Told.Loads);
  add(opinion.Told.Forces);
  for (const trelonit::Residual& residual : opinion.ToldResiduals) {
    add({residual.Right, residual.Up, residual.Size()});
  }
  for (const BarJudgement& bar : opinion.Bars) {
    add({bar.Force, bar.Strength});
    for (const PlaneJudgement& plane : {bar.X, bar.Y}) {
      add({plane.Length, plane.Slenderness, plane.FlexBar, plane.Phi, plane.Stability, plane.Alpha,
           plane.Limit, plane.Flex});
    }
  }
  for (const GroupJudgement& group : opinion.Groups) {
    add({group.Section.Area, group.Section.Jin, group.Section.Jout});
    add({group.Figures.begin(), group.Figures.end()});
  }
  return numbers;
}

bool AllFinite(const std::vector<double>& numbers) {
  return std::all_of(numbers.begin(), numbers.end(), [](double n) { return std::isfinite(n); });
}

/// What is wrong with the opinion on this design, its findings and its explanations; nothing for a
/// refusal with a reason and for finite numbers throughout.
std::string Complaint(const OpinionCase& c) {
  const Opinion opinion = c.Form();
  if (opinion.HasRefused()) {
    const std::vector<Explanation> explanations = Explain(c.Judged(), opinion, std::nullopt);
    const bool ofOpinion =
        !explanations.empty() && explanations.back().Source == ExplanationSource::Opinion;
    return opinion.Bars.empty() && !ofOpinion ? "" : "a refusal with figures";
  }
  if (!AllFinite(NumbersOf(opinion))) {
    return "an opinion without bounds";
  }
  try {
    for (const Finding& finding : c.Find({.DoubledOwnWeight = 0.1})) {
      if (finding.Text.empty() ||
          !AllFinite({finding.Told.value_or(0), finding.Opinion.value_or(0)})) {
        return std::string("finding ") + KeyOf(finding.Code);
      }
    }
    for (const Explanation& explanation :
         Explain(c.Judged(), opinion, ToldDeflection{.Value = 0.01, .Limit = 0.1})) {
      if (!std::isfinite(explanation.Value) || explanation.Substitution.empty()) {
        return "explanation of " + explanation.Check;
      }
    }
  } catch (const RuntimeError& error) {
    return "error " + std::to_string(error.Number());
  }
  return "";
}

/// Draws a design, calculated with the inputs as they then are or before they went wild.
OpinionCase PickCase() {
  OpinionCase c(SnowyTruss(*rc::gen::inRange<Long>(1, 5)),
                SameSections(Single(20, 500, 500, *rc::gen::inRange<Long>(1, 12))));
  c.Data.UpPoyasBrace = *rc::gen::inRange<Integer>(1, 5);
  c.Data.DownPoyasBrace = *rc::gen::inRange<Integer>(1, 5);
  c.Numbers.Dynamic = *rc::gen::arbitrary<bool>();
  c.Calculate();
  return c;
}

void GoWild(const NumberPlaces& numbers, int count) {
  for (int i = 0; i < count; ++i) {
    (*rc::gen::elementOf(numbers)).get() = *AnyNumber();
  }
}

RC_GTEST_PROP(HostileOpinion, OfAFewWildInputsIsFiniteOrARefusal, ()) {
  OpinionCase c = PickCase();
  GoWild(InputsOf(c), *rc::gen::inRange(1, 4));
  if (*rc::gen::arbitrary<bool>()) {
    c.Calculate();
  }
  RC_ASSERT(Complaint(c) == "");
}

RC_GTEST_PROP(HostileOpinion, OfWildResultsIsFiniteOrARefusal, ()) {
  OpinionCase c = PickCase();
  GoWild(ResultsOf(c), *rc::gen::inRange(1, 30));
  RC_ASSERT(Complaint(c) == "");
}

RC_GTEST_PROP(HostileOpinion, OfGarbageThroughoutIsFiniteOrARefusal, ()) {
  OpinionCase c = PickCase();
  for (double& number : InputsOf(c)) {
    number = *AnyNumber();
  }
  for (double& number : ResultsOf(c)) {
    number = *AnyNumber();
  }
  c.Data.TreloType = *rc::gen::inRange<Long>(-1, 12);
  c.Data.PanelNum = *rc::gen::element<Long>(std::numeric_limits<Long>::min(), -1, 0, 2, 5, 8,
                                            std::numeric_limits<Long>::max());
  for (SectionRec& section : c.Sections) {
    section.Layout = *rc::gen::inRange<Long>(0, 13);
  }
  RC_ASSERT(Complaint(c) == "");
}

RC_GTEST_PROP(HostileOpinion, OfArraysOfAnyBoundsIsFiniteOrARefusal, ()) {
  OpinionCase c = PickCase();
  const auto any = [] {
    const Long lower = *rc::gen::weightedElement<Long>({{10, 0}, {10, 1}, {1, 2}, {1, -3}});
    const Long count = *rc::gen::inRange<Long>(-1, 12);
    return count < 0 ? BoundedArray<double>() : BoundedArray<double>(lower, lower + count - 1);
  };
  const std::vector<BoundedArray<double>*> arrays{
      &c.Data.UpPForce,       &c.Data.UpDistForce,     &c.Data.DwnPForce,     &c.Data.DwnDistForce,
      &c.Result.UpPoyasForce, &c.Result.DwnPoyasForce, &c.Result.RaskosForce, &c.Result.StoykaForce,
      &c.Result.UpKnotLoad,   &c.Result.DwnKnotLoad};
  const int wild = *rc::gen::inRange(1, 4);
  for (int i = 0; i < wild; ++i) {
    *(*rc::gen::elementOf(arrays)) = any();
  }
  RC_ASSERT(Complaint(c) == "");
}

/// Each number alone, at each end of its range and at zero: nothing else hides what it does.
TEST(HostileOpinion, OfOneExtremeNumberIsFiniteOrARefusal) {
  int formed = 0;
  int refused = 0;
  OpinionCase c(SnowyTruss(1, 4), SameSections(Single(20, 500, 500, 4)));
  NumberPlaces numbers = InputsOf(c);
  // The records of the groups are alike: one of them will do.
  const NumberPlaces record = FieldsOf(c.Check.UpPoyas);
  numbers.insert(numbers.end(), record.begin(), record.end());
  Add(numbers, c.Result.RaskosForce);
  Add(numbers, c.Result.UpKnotLoad);
  for (std::size_t place = 0; place < numbers.size(); ++place) {
    const double kept = numbers[place];
    for (const double extreme : extremeNumbers) {
      numbers[place].get() = extreme;
      ASSERT_EQ(Complaint(c), "") << "number " << place << ": " << extreme;
      ++(c.Form().HasRefused() ? refused : formed);
    }
    numbers[place].get() = kept;
  }
  EXPECT_GT(formed, 300);
  EXPECT_GT(refused, 100);
}

// Whoever tries sections one by one gets an error for what is none, never a figure that passes.
TEST(JudgeGroup, RaisesForASectionOrACoefficientThatIsNotPositive) {
  const JudgedTruss truss = SolveTruss(SnowyTruss(1));
  std::vector<BarJudgement> bars(truss.Model.Bars.size());
  const SectionProps good{.Area = 20, .Jin = 500, .Jout = 500};
  const auto judge = [&](const SectionProps& section, const CheckNumbers& numbers) {
    return JudgeGroup(truss, ElementGroup::UpPoyas, section, numbers, bars);
  };
  EXPECT_GT(LargestFigure(judge(good, StartNumbers())), 0);
  for (double SectionProps::*field :
       {&SectionProps::Area, &SectionProps::Jin, &SectionProps::Jout}) {
    for (const double value : {0.0, -20.0}) {
      SectionProps section = good;
      section.*field = value;
      EXPECT_THROW(judge(section, StartNumbers()), RuntimeError) << value;
    }
  }
  EXPECT_THROW(judge({.Area = -20, .Jin = -500, .Jout = -500}, StartNumbers()), RuntimeError);
  for (double CheckNumbers::*field :
       {&CheckNumbers::Ry, &CheckNumbers::E, &CheckNumbers::Yc, &CheckNumbers::Gn}) {
    for (const double value : {0.0, -1.0}) {
      CheckNumbers numbers = StartNumbers();
      numbers.*field = value;
      EXPECT_THROW(judge(good, numbers), RuntimeError) << value;
    }
  }
}

}  // namespace

}  // namespace trelonit::test
