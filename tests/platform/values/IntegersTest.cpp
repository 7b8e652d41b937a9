#include <cmath>
#include <functional>
#include <gtest/gtest.h>
#include <limits>
#include <rapidcheck.h>
#include <rapidcheck/gtest.h>
#include <type_traits>

#include "platform/values/Integers.h"
#include "tests/support/AnyNumber.h"

namespace trelonit::test {

int ErrorOf(const std::function<void()>& body);

namespace {

TEST(Integers, AreOfSixteenAndThirtyTwoBits) {
  EXPECT_EQ(std::numeric_limits<Integer>::min(), -32768);
  EXPECT_EQ(std::numeric_limits<Integer>::max(), 32767);
  EXPECT_EQ(std::numeric_limits<Long>::min(), -2147483647 - 1);
  EXPECT_EQ(std::numeric_limits<Long>::max(), 2147483647);
}

TEST(RoundToInteger, RoundsHalfToEven) {
  EXPECT_EQ(RoundToInteger(0.5), 0);
  EXPECT_EQ(RoundToInteger(1.5), 2);
  EXPECT_EQ(RoundToInteger(2.5), 2);
  EXPECT_EQ(RoundToInteger(-0.5), 0);
  EXPECT_EQ(RoundToInteger(-1.5), -2);
  EXPECT_EQ(RoundToInteger(-2.5), -2);
}

TEST(RoundToInteger, RoundsToTheNearestOtherwise) {
  EXPECT_EQ(RoundToInteger(2.4999), 2);
  EXPECT_EQ(RoundToInteger(2.5001), 3);
  EXPECT_EQ(RoundToInteger(-2.5001), -3);
  EXPECT_EQ(RoundToInteger(7), 7);
}

TEST(RoundToInteger, RaisesOverflowBeyondSixteenBits) {
  EXPECT_EQ(RoundToInteger(32767.49), 32767);
  EXPECT_EQ(RoundToInteger(-32768.5), -32768);
  EXPECT_EQ(ErrorOf([] { RoundToInteger(32767.5); }), 6);
  EXPECT_EQ(ErrorOf([] { RoundToInteger(-32768.51); }), 6);
  EXPECT_EQ(ErrorOf([] { RoundToInteger(1e300); }), 6);
}

TEST(RoundToInteger, RaisesOverflowForWhatIsNotFinite) {
  EXPECT_EQ(ErrorOf([] { RoundToInteger(infinity); }), 6);
  EXPECT_EQ(ErrorOf([] { RoundToInteger(-infinity); }), 6);
  EXPECT_EQ(ErrorOf([] { RoundToInteger(notANumber); }), 6);
}

TEST(RoundToLong, RoundsHalfToEven) {
  EXPECT_EQ(RoundToLong(100000.5), 100000);
  EXPECT_EQ(RoundToLong(100001.5), 100002);
  EXPECT_EQ(RoundToLong(-100001.5), -100002);
}

TEST(RoundToLong, RaisesOverflowBeyondThirtyTwoBits) {
  EXPECT_EQ(RoundToLong(2147483647.49), 2147483647);
  EXPECT_EQ(RoundToLong(-2147483648.5), -2147483647 - 1);
  EXPECT_EQ(ErrorOf([] { RoundToLong(2147483647.5); }), 6);
  EXPECT_EQ(ErrorOf([] { RoundToLong(-2147483648.51); }), 6);
  EXPECT_EQ(ErrorOf([] { RoundToLong(notANumber); }), 6);
}

RC_GTEST_PROP(RoundToLong, GivesTheEvenNeighbourOfEveryHalf, ()) {
  const auto whole = *rc::gen::inRange<Long>(-2000000000, 2000000000);
  const Long even = whole % 2 == 0 ? whole : whole + 1;
  RC_ASSERT(RoundToLong(whole + 0.5) == even);
  RC_ASSERT(RoundToLong(whole) == whole);
}

}  // namespace

}  // namespace trelonit::test
