#include <cmath>
#include <gtest/gtest.h>
#include <rapidcheck.h>
#include <rapidcheck/gtest.h>
#include <string>
#include <vector>

#include "tests/analysis/RandomDesigns.h"
#include "tests/checks/Recomputation.h"

namespace trelonit::test {
namespace {

/// A number of the range whose logarithm is evenly spread.
double PickLogarithmic(double low, double high) {
  return std::exp(PickBetween(std::log(low), std::log(high)));
}

/// From a needle to a box, so that every branch of the buckling curve comes up.
SectionRec PickSection() {
  SectionRec section;
  section.Layout = *rc::gen::inRange<Long>(1, 12);
  section.Profile.A = PickLogarithmic(1, 300);
  section.Profile.Jy = section.Profile.A * std::pow(PickLogarithmic(0.4, 60), 2);
  section.Profile.Jz = section.Profile.A * std::pow(PickLogarithmic(0.4, 60), 2);
  section.Profile.y0 = PickBetween(0, 90);
  section.Profile.z0 = PickBetween(0, 90);
  section.Gdist = PickBetween(0, 30);
  return section;
}

void PickChecks(DriverCase& c) {
  c.Sections = Sections(PickSection(), PickSection(), PickSection(), PickSection(), PickSection());
  c.Numbers = {.Ry = PickBetween(180, 700),
               .E = PickBetween(60000, 220000),
               .Yc = PickBetween(0.5, 1.2),
               .Gn = PickBetween(0.7, 1.3),
               // Also none at all, which tells of the mass.
               .Density = *rc::gen::element(7.85, 2.7, 0.0),
               .Dynamic = *rc::gen::arbitrary<bool>(),
               .LimitUser = PickBetween(50, 400)};
}

/// Mostly an option of the form, sometimes none of them.
Integer PickBrace() {
  return *rc::gen::weightedOneOf<Integer>(
      {{9, rc::gen::inRange<Integer>(1, 5)}, {1, rc::gen::element<Integer>(0, 5)}});
}

/// Where the outcome differs from the expected one; nothing where it agrees.
std::string Difference(const Outcome& actual, const Outcome& expected) {
  if (actual.Shown != expected.Shown) {
    return std::to_string(actual.Shown.size()) + " messages instead of " +
           std::to_string(expected.Shown.size()) + ", or other ones";
  }
  const std::vector<double> numbers = Numbers(actual.Check);
  const std::vector<double> wanted = Numbers(expected.Check);
  const std::size_t inBlock = Numbers(actual.Check.UpPoyas).size();
  for (std::size_t i = 0; i < numbers.size(); ++i) {
    if (!(std::abs(numbers[i] - wanted[i]) <= 1e-11 * std::abs(wanted[i]))) {
      return "number " + std::to_string(i % inBlock) + " of block " + std::to_string(i / inBlock) +
             ": " + std::to_string(numbers[i]) + " instead of " + std::to_string(wanted[i]);
    }
  }
  return "";
}

TEST(Recomputation, OfEverySchemePanelCountAndBracingAgrees) {
  DriverCase c;
  c.Numbers.E = 210000;
  c.Sections = Sections(DriverCase::Turned(60, 4, 9), DriverCase::Turned(40, 3, 6),
                        DriverCase::Turned(20, 2.5, 2), DriverCase::Turned(30, 1.9, 3.5, 1),
                        DriverCase::Turned(10, 1.5, 0.8));
  for (Long scheme = 1; scheme <= 4; ++scheme) {
    for (const Long n : PanelCounts(scheme)) {
      c.Data = Design(scheme, n, 1.9 * static_cast<double>(n), 1.6, 2.2);
      FillIrregular(c.Data);
      c.Res = Solved(c.Data);
      for (Integer brace = 0; brace < 16; ++brace) {
        c.Data.UpPoyasBrace = static_cast<Integer>(1 + brace / 4);
        c.Data.DownPoyasBrace = static_cast<Integer>(1 + brace % 4);
        const Outcome actual = c.Run();
        ASSERT_FALSE(IsEmpty(actual.Check));
        ASSERT_EQ(Difference(actual, Recomputed(c)), "")
            << "scheme " << scheme << ", panels " << n << ", bracing " << brace;
      }
    }
  }
}

RC_GTEST_PROP(Recomputation, OfSolvedTrussesAgrees, ()) {
  DriverCase c;
  c.Data = PickDesign(PickScheme());
  c.Data.UpPoyasBrace = PickBrace();
  c.Data.DownPoyasBrace = PickBrace();
  c.Res = Solved(c.Data);
  PickChecks(c);
  const Outcome expected = Recomputed(c);
  RC_CLASSIFY(IsEmpty(expected.Check), "fails");
  RC_ASSERT(Difference(c.Run(), expected) == "");
}

/// Forces as no truss has them: every bar may govern, whole groups may be in tension.
BoundedArray<double> PickForces(Long least) {
  BoundedArray<double> forces(1, *rc::gen::inRange<Long>(least, 9));
  PickLoads(forces);
  const int sign = *rc::gen::inRange(0, 3);
  for (double& force : forces) {
    force = sign == 0 ? force : (sign == 1 ? std::abs(force) : -std::abs(force));
  }
  return forces;
}

RC_GTEST_PROP(Recomputation, OfAnyForcesAndLengthsAgrees, ()) {
  DriverCase c;
  PickChecks(c);
  c.Data.TreloType = *rc::gen::weightedOneOf<Long>(
      {{9, rc::gen::inRange<Long>(1, 5)}, {1, rc::gen::element<Long>(-1, 0, 5, 10)}});
  c.Data.PanelNum = *rc::gen::inRange<Long>(2, 9);
  c.Data.LengthF = PickBetween(3, 120);
  c.Data.Hight = PickBetween(-0.2, 8);
  c.Data.LenOporn = PickBetween(0.5, 6);
  c.Data.UpPoyasBrace = PickBrace();
  c.Data.DownPoyasBrace = PickBrace();
  c.Res.LenPanel = PickBetween(0.5, 6);
  c.Res.LenRaskos = PickBetween(-0.2, 8);
  c.Res.LenOpornRaskos = PickBetween(0.5, 60);
  c.Res.UpPoyasForce = PickForces(1);
  c.Res.DwnPoyasForce = PickForces(1);
  c.Res.RaskosForce = PickForces(3);
  c.Res.StoykaForce = PickForces(1);
  c.Res.SumLenUpPoyas = PickBetween(0, 60);
  c.Res.SumLenDwnPoyas = PickBetween(0, 60);
  c.Res.SumLenRaskos = PickBetween(0, 60);
  c.Res.SumLenOpornRaskos = PickBetween(0, 60);
  c.Res.SumLenStoyka = PickBetween(0, 60);
  const Outcome expected = Recomputed(c);
  RC_CLASSIFY(IsEmpty(expected.Check), "fails");
  RC_ASSERT(Difference(c.Run(), expected) == "");
}

}  // namespace
}  // namespace trelonit::test
