#include <algorithm>
#include <cmath>
#include <functional>
#include <gtest/gtest.h>
#include <limits>
#include <rapidcheck.h>
#include <rapidcheck/gtest.h>
#include <string>
#include <vector>

#include "platform/errors/RuntimeError.h"
#include "tests/checks/DriverCase.h"
#include "tests/support/AnyNumber.h"

namespace trelonit::test {
namespace {

/// Every number that the driver reads, by reference.
std::vector<std::reference_wrapper<double>> ReadNumbers(DriverCase& c) {
  std::vector<std::reference_wrapper<double>> numbers{c.Data.LengthF,      c.Data.Hight,
                                                      c.Data.LenOporn,     c.Res.LenPanel,
                                                      c.Res.LenRaskos,     c.Res.LenOpornRaskos,
                                                      c.Res.SumLenUpPoyas, c.Res.SumLenDwnPoyas,
                                                      c.Res.SumLenRaskos,  c.Res.SumLenOpornRaskos,
                                                      c.Res.SumLenStoyka,  c.Numbers.Ry,
                                                      c.Numbers.E,         c.Numbers.Yc,
                                                      c.Numbers.Gn,        c.Numbers.Density,
                                                      c.Numbers.LimitUser};
  for (auto* group :
       {&c.Res.UpPoyasForce, &c.Res.DwnPoyasForce, &c.Res.RaskosForce, &c.Res.StoykaForce}) {
    numbers.insert(numbers.end(), group->begin(), group->end());
  }
  for (SectionRec& section : c.Sections) {
    ProfileRec& profile = section.Profile;
    numbers.insert(numbers.end(),
                   {profile.A, profile.Jy, profile.Jz, profile.y0, profile.z0, section.Gdist});
  }
  return numbers;
}

void PickOptions(DriverCase& c) {
  c.Data.TreloType = *rc::gen::inRange<Long>(-1, 7);
  c.Data.PanelNum = *rc::gen::element<Long>(std::numeric_limits<Long>::min(), -1, 0, 2, 5,
                                            std::numeric_limits<Long>::max());
  c.Data.UpPoyasBrace = *rc::gen::inRange<Integer>(-1, 7);
  c.Data.DownPoyasBrace = *rc::gen::inRange<Integer>(-1, 7);
  c.Numbers.Dynamic = *rc::gen::arbitrary<bool>();
  for (SectionRec& section : c.Sections) {
    section.Layout = *rc::gen::inRange<Long>(0, 13);
  }
}

/// What is wrong with the outcome; nothing for a filled record of finite numbers without an error
/// and for an empty record with one error, which is the last message.
std::string Complaint(const DriverRun& outcome) {
  for (const double number : Numbers(outcome.Check)) {
    if (!std::isfinite(number)) {
      return "not finite: " + std::to_string(number);
    }
  }
  for (const Message& message : outcome.Shown) {
    if (message.Title != massMessage.Title || message.Style != MessageStyle::Critical) {
      return "not the driver's message: " + message.Title + ": " + message.Text;
    }
  }
  const auto errors = std::count_if(outcome.Shown.begin(), outcome.Shown.end(),
                                    [](const Message& message) { return message.Failure; });
  if (errors == 0) {
    return IsEmpty(outcome.Check) ? "empty without an error" : "";
  }
  if (errors > 1 || !outcome.Shown.back().Failure) {
    return "went on after an error";
  }
  return IsEmpty(outcome.Check) ? "" : "filled after an error";
}

/// Whether the record is filled.
bool RunAndExpectNoComplaint(const DriverCase& c) {
  const DriverRun outcome = c.Run();
  RC_ASSERT(Complaint(outcome) == "");
  return !IsEmpty(outcome.Check);
}

RC_GTEST_PROP(HostileInput, OfAnyNumbersGivesAFiniteRecordOrOneError, ()) {
  DriverCase c;
  PickOptions(c);
  for (double& number : ReadNumbers(c)) {
    number = *AnyNumber();
  }
  RunAndExpectNoComplaint(c);
}

RC_GTEST_PROP(HostileInput, OfAFewWildNumbersGivesAFiniteRecordOrOneError, ()) {
  DriverCase c;
  if (*rc::gen::arbitrary<bool>()) {
    PickOptions(c);
  }
  const auto numbers = ReadNumbers(c);
  const int wild = *rc::gen::inRange(0, 4);
  for (int i = 0; i < wild; ++i) {
    (*rc::gen::elementOf(numbers)).get() = *AnyNumber();
  }
  RC_CLASSIFY(RunAndExpectNoComplaint(c), "filled");
}

RC_GTEST_PROP(HostileInput, OfAnyBoundsGivesAFiniteRecordOrOneError, ()) {
  DriverCase c;
  c.Data.TreloType = *rc::gen::inRange<Long>(1, 5);
  for (auto* group :
       {&c.Res.UpPoyasForce, &c.Res.DwnPoyasForce, &c.Res.RaskosForce, &c.Res.StoykaForce}) {
    const Long lower = *rc::gen::weightedElement<Long>({{20, 1}, {1, 0}, {1, 2}, {1, -3}});
    const Long count = *rc::gen::weightedOneOf<Long>(
        {{1, rc::gen::inRange<Long>(-1, 3)}, {9, rc::gen::inRange<Long>(3, 7)}});
    *group = count < 0 ? BoundedArray<double>() : BoundedArray<double>(lower, lower + count - 1);
    for (double& force : *group) {
      force = *rc::gen::inRange(-50, 51);
    }
  }
  RC_CLASSIFY(RunAndExpectNoComplaint(c), "filled");
}

/// Each number alone, at each end of its range and at zero: nothing else hides what it does.
TEST(HostileInput, OfOneExtremeNumberGivesAFiniteRecordOrOneError) {
  int filled = 0;
  int failed = 0;
  for (Long scheme = 1; scheme <= 4; ++scheme) {
    for (const Long layout : {1, 2, 3, 4, 6, 10}) {
      DriverCase c;
      c.Data.TreloType = scheme;
      for (SectionRec& section : c.Sections) {
        section.Layout = layout;
      }
      int place = 0;
      for (double& number : ReadNumbers(c)) {
        ++place;
        const double kept = number;
        for (const double extreme : extremeNumbers) {
          number = extreme;
          const DriverRun outcome = c.Run();
          ASSERT_EQ(Complaint(outcome), "") << "scheme " << scheme << ", layout " << layout
                                            << ", number " << place << ": " << extreme;
          ++(IsEmpty(outcome.Check) ? failed : filled);
        }
        number = kept;
      }
    }
  }
  EXPECT_GT(filled, 1000);
  EXPECT_GT(failed, 1000);
}

/// The formulas on their own never give what is no number, either.
void ExpectFiniteOrError(const std::function<double()>& formula) {
  try {
    RC_ASSERT(std::isfinite(formula()));
  } catch (const RuntimeError&) {
    // A failure tells what it is.
  }
}

RC_GTEST_PROP(HostileInput, OfAFormulaGivesAFiniteNumberOrAnError, ()) {
  const double a = *AnyNumber();
  const double b = *AnyNumber();
  const double c = *AnyNumber();
  const double d = *AnyNumber();
  const double e = *AnyNumber();
  const double f = *AnyNumber();
  ExpectFiniteOrError([&] { return CalcStrength(a, b, c, d, e); });
  ExpectFiniteOrError([&] { return CalcStability(a, b, c, d, e, f); });
  ExpectFiniteOrError([&] { return CalcFlex(a, b, c, d); });
  ExpectFiniteOrError([&] { return CalcFlexBar(a, b, c); });
  ExpectFiniteOrError([&] { return CalcPhi(a, b, c); });
  ExpectFiniteOrError([&] { return CalcPhi(std::fmod(a, 6), b, c); });
  ExpectFiniteOrError([&] { return CalcAlpha(a, b, c, d, e); });
  ExpectFiniteOrError(
      [&] { return CalcLimitFlex(Single(1, 1, 1, 1), a, b, false).Value.Compress; });
  ExpectFiniteOrError(
      [&] { return CalcLimitFlex(Single(1, 1, 1, 2), a, b, false).Value.Compress; });
}

}  // namespace
}  // namespace trelonit::test
