#include <cmath>
#include <functional>
#include <gtest/gtest.h>
#include <limits>
#include <rapidcheck.h>
#include <rapidcheck/gtest.h>
#include <type_traits>

#include "platform/values/Arithmetic.h"
#include "platform/values/Integers.h"
#include "tests/support/AnyNumber.h"

namespace trelonit::test {

int ErrorOf(const std::function<void()>& body);
double AnyDouble();

namespace {

constexpr double largest = std::numeric_limits<double>::max();
// A mixed form that fell back to the built-in operators would be an unchecked double.
static_assert(std::is_same_v<decltype(Real() + 1), Real>);
static_assert(std::is_same_v<decltype(1.0 - Real()), Real>);
static_assert(std::is_same_v<decltype(Long{1} * Real()), Real>);
static_assert(std::is_same_v<decltype(Real() / 1.0), Real>);
static_assert(std::is_same_v<decltype(Integer{1} / Real()), Real>);
static_assert(std::is_same_v<decltype(-Real()), Real>);

TEST(Finite, PassesEveryFiniteValue) {
  EXPECT_EQ(Finite(0), 0.0);
  EXPECT_EQ(Finite(-1.5), -1.5);
  EXPECT_EQ(Finite(largest), largest);
  EXPECT_EQ(Finite(-largest), -largest);
}

TEST(Finite, RaisesOverflowOtherwise) {
  EXPECT_EQ(ErrorOf([] { Finite(infinity); }), 6);
  EXPECT_EQ(ErrorOf([] { Finite(-infinity); }), 6);
  EXPECT_EQ(ErrorOf([] { Finite(notANumber); }), 6);
}

TEST(Real, StartsAtZero) {
  EXPECT_EQ(static_cast<double>(Real()), 0.0);
}

TEST(Real, CalculatesAsOnPaper) {
  const Real a = 7;
  const Real b = 2;
  EXPECT_EQ(static_cast<double>(a + b), 9.0);
  EXPECT_EQ(static_cast<double>(a - b), 5.0);
  EXPECT_EQ(static_cast<double>(a * b), 14.0);
  EXPECT_EQ(static_cast<double>(a / b), 3.5);
  EXPECT_EQ(static_cast<double>(-a), -7.0);
}

TEST(Real, CalculatesWithPlainNumbersOnEitherSide) {
  const Real a = 8;
  EXPECT_EQ(static_cast<double>(a + 1), 9.0);
  EXPECT_EQ(static_cast<double>(1 + a), 9.0);
  EXPECT_EQ(static_cast<double>(a - 0.5), 7.5);
  EXPECT_EQ(static_cast<double>(0.5 - a), -7.5);
  EXPECT_EQ(static_cast<double>(a * Long{3}), 24.0);
  EXPECT_EQ(static_cast<double>(Long{3} * a), 24.0);
  EXPECT_EQ(static_cast<double>(a / Integer{3}), 8.0 / 3);
  EXPECT_EQ(static_cast<double>(Integer{3} / a), 0.375);
}

TEST(Real, AddsAndSubtractsInPlace) {
  Real sum = 1;
  sum += 2;
  sum += 0.5;
  EXPECT_EQ(static_cast<double>(sum), 3.5);
  sum -= 5;
  EXPECT_EQ(static_cast<double>(sum), -1.5);
}

TEST(Real, RaisesDivisionByZero) {
  EXPECT_EQ(ErrorOf([] { Real(1) / Real(0); }), 11);
  EXPECT_EQ(ErrorOf([] { Real(-1) / Real(-0.0); }), 11);
  EXPECT_EQ(ErrorOf([] { Real(1) / 0; }), 11);
  EXPECT_EQ(ErrorOf([] { Real(1) / 0.0; }), 11);
  EXPECT_EQ(ErrorOf([] { 1 / Real(0); }), 11);
  EXPECT_EQ(ErrorOf([] { 1.0 / Real(0); }), 11);
}

TEST(Real, RaisesOverflowForZeroByZero) {
  EXPECT_EQ(ErrorOf([] { Real(0) / Real(0); }), 6);
  EXPECT_EQ(ErrorOf([] { Real(0) / Real(-0.0); }), 6);
  EXPECT_EQ(ErrorOf([] { Real(0) / 0; }), 6);
  EXPECT_EQ(ErrorOf([] { 0.0 / Real(0); }), 6);
}

TEST(Real, DividesZeroByAnythingElse) {
  EXPECT_EQ(static_cast<double>(Real(0) / 5), 0.0);
}

TEST(Real, RaisesOverflowBeyondTheRange) {
  EXPECT_EQ(ErrorOf([] { Real(largest) + Real(largest); }), 6);
  EXPECT_EQ(ErrorOf([] { Real(-largest) - Real(largest); }), 6);
  EXPECT_EQ(ErrorOf([] { Real(1e200) * Real(-1e200); }), 6);
  EXPECT_EQ(ErrorOf([] { Real(1e300) / Real(1e-300); }), 6);
  EXPECT_EQ(ErrorOf([] { Real(largest) + largest; }), 6);
  EXPECT_EQ(ErrorOf([] { largest + Real(largest); }), 6);
  EXPECT_EQ(ErrorOf([] { Real(-largest) - largest; }), 6);
  EXPECT_EQ(ErrorOf([] { -largest - Real(largest); }), 6);
  EXPECT_EQ(ErrorOf([] { Real(largest) * 2; }), 6);
  EXPECT_EQ(ErrorOf([] { 2 * Real(largest); }), 6);
  EXPECT_EQ(ErrorOf([] { Real(largest) / 0.5; }), 6);
  EXPECT_EQ(ErrorOf([] { largest / Real(0.5); }), 6);
}

TEST(Real, RaisesOverflowInPlace) {
  Real sum = largest;
  EXPECT_EQ(ErrorOf([&] { sum += largest; }), 6);
  Real difference = -largest;
  EXPECT_EQ(ErrorOf([&] { difference -= largest; }), 6);
  EXPECT_EQ(static_cast<double>(sum), largest);
}

TEST(Real, LetsAResultBelowTheRangeBecomeZero) {
  EXPECT_EQ(static_cast<double>(Real(1e-200) * 1e-200), 0.0);
}

TEST(Real, ComparesAsItsValue) {
  EXPECT_TRUE(Real(1) < Real(2));
  EXPECT_TRUE(Real(2) == 2.0);
  EXPECT_FALSE(Real(2) > 2);
}

TEST(SquareRoot, GivesTheRoot) {
  EXPECT_EQ(static_cast<double>(SquareRoot(6.25)), 2.5);
  EXPECT_EQ(static_cast<double>(SquareRoot(0)), 0.0);
  EXPECT_EQ(static_cast<double>(SquareRoot(-0.0)), 0.0);
}

TEST(SquareRoot, RaisesInvalidProcedureCallForANegativeNumber) {
  EXPECT_EQ(ErrorOf([] { SquareRoot(-1); }), 5);
  EXPECT_EQ(ErrorOf([] { SquareRoot(-std::numeric_limits<double>::denorm_min()); }), 5);
}

TEST(Functions, AreThoseOfAnglesInRadians) {
  const double pi = std::acos(-1.0);
  EXPECT_DOUBLE_EQ(static_cast<double>(Sine(pi / 6)), 0.5);
  EXPECT_DOUBLE_EQ(static_cast<double>(Cosine(pi / 3)), 0.5);
  EXPECT_DOUBLE_EQ(static_cast<double>(ArcTangent(1)), pi / 4);
}

TEST(Functions, GiveTheMagnitude) {
  EXPECT_EQ(static_cast<double>(Magnitude(-2.5)), 2.5);
  EXPECT_EQ(static_cast<double>(Magnitude(2.5)), 2.5);
}

void CheckAgainst(double expected, const std::function<Real()>& operation) {
  Real result;
  const int error = ErrorOf([&] { result = operation(); });
  if (std::isfinite(expected)) {
    RC_ASSERT(error == 0);
    RC_ASSERT(static_cast<double>(result) == expected);
  } else {
    RC_ASSERT(error == 6);
  }
}

RC_GTEST_PROP(Real, GivesThePlainResultOrOverflow, ()) {
  const double a = AnyDouble();
  const double b = AnyDouble();
  CheckAgainst(a + b, [&] { return Real(a) + b; });
  CheckAgainst(a - b, [&] { return a - Real(b); });
  CheckAgainst(a * b, [&] { return Real(a) * Real(b); });
  if (b != 0) {
    CheckAgainst(a / b, [&] { return Real(a) / Real(b); });
  }
}

}  // namespace

}  // namespace trelonit::test
