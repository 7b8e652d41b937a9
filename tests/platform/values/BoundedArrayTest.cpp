#include <functional>
#include <gtest/gtest.h>
#include <limits>
#include <rapidcheck.h>
#include <rapidcheck/gtest.h>
#include <string>
#include <utility>
#include <vector>

#include "platform/values/BoundedArray.h"

namespace trelonit::test {

int ErrorOf(const std::function<void()>& body);

namespace {

constexpr Long highest = std::numeric_limits<Long>::max();
constexpr Long lowest = std::numeric_limits<Long>::min();

TEST(BoundedCount, CountsBothBounds) {
  EXPECT_EQ(BoundedCount(1, 5), 5U);
  EXPECT_EQ(BoundedCount(-2, 2), 5U);
  EXPECT_EQ(BoundedCount(3, 3), 1U);
  EXPECT_EQ(BoundedCount(lowest, highest), 4294967296U);
}

TEST(BoundedCount, IsNothingForAnUpperBoundOneBelowTheLower) {
  EXPECT_EQ(BoundedCount(1, 0), 0U);
  EXPECT_EQ(BoundedCount(0, -1), 0U);
}

TEST(BoundedCount, RaisesSubscriptOutOfRangeFurtherBelow) {
  EXPECT_EQ(ErrorOf([] { BoundedCount(1, -1); }), 9);
  EXPECT_EQ(ErrorOf([] { BoundedCount(highest, lowest); }), 9);
}

TEST(BoundedArray, StartsUnallocated) {
  const BoundedArray<double> array;
  EXPECT_FALSE(array.IsAllocated());
  EXPECT_EQ(array.begin(), array.end());
}

TEST(BoundedArray, RaisesSubscriptOutOfRangeForEverythingWhileUnallocated) {
  BoundedArray<double> array;
  const BoundedArray<double>& seen = array;
  EXPECT_EQ(ErrorOf([&] { seen.LowerBound(); }), 9);
  EXPECT_EQ(ErrorOf([&] { seen.UpperBound(); }), 9);
  EXPECT_EQ(ErrorOf([&] { array[0] = 1; }), 9);
  EXPECT_EQ(ErrorOf([&] { static_cast<void>(seen[0]); }), 9);
  EXPECT_EQ(ErrorOf([&] { array.ResizeUpper(3); }), 9);
  EXPECT_EQ(ErrorOf([&] { array.Append(1); }), 9);
  EXPECT_FALSE(array.IsAllocated());
}

TEST(BoundedArray, KnowsItsBounds) {
  const BoundedArray<int> array(-1, 3);
  EXPECT_TRUE(array.IsAllocated());
  EXPECT_EQ(array.LowerBound(), -1);
  EXPECT_EQ(array.UpperBound(), 3);
}

TEST(BoundedArray, StartsWithZeros) {
  const BoundedArray<double> numbers(1, 2);
  EXPECT_EQ(numbers[1], 0.0);
  EXPECT_EQ(numbers[2], 0.0);
  const BoundedArray<std::string> texts(0, 0);
  EXPECT_EQ(texts[0], "");
}

TEST(BoundedArray, KeepsEveryElementUnderItsSubscript) {
  BoundedArray<int> array(-1, 1);
  array[-1] = 10;
  array[0] = 20;
  array[1] = 30;
  EXPECT_EQ(array[-1], 10);
  EXPECT_EQ(array[0], 20);
  EXPECT_EQ(array[1], 30);
  EXPECT_EQ(std::vector<int>(array.begin(), array.end()), (std::vector<int>{10, 20, 30}));
}

TEST(BoundedArray, RaisesSubscriptOutOfRangeBesideItsBounds) {
  BoundedArray<int> array(1, 3);
  const BoundedArray<int>& seen = array;
  for (const Long subscript : {0, 4, -1, highest, lowest}) {
    EXPECT_EQ(ErrorOf([&] { array[subscript] = 1; }), 9) << subscript;
    EXPECT_EQ(ErrorOf([&] { static_cast<void>(seen[subscript]); }), 9) << subscript;
  }
  EXPECT_EQ(ErrorOf([&] { array[1] = 1; }), 0);
  EXPECT_EQ(ErrorOf([&] { array[3] = 1; }), 0);
}

TEST(BoundedArray, IsEmptyButAllocatedWithAnUpperBoundOneBelowTheLower) {
  BoundedArray<int> array(1, 0);
  EXPECT_TRUE(array.IsAllocated());
  EXPECT_EQ(array.LowerBound(), 1);
  EXPECT_EQ(array.UpperBound(), 0);
  EXPECT_EQ(array.begin(), array.end());
  EXPECT_EQ(ErrorOf([&] { static_cast<void>(array[0]); }), 9);
  EXPECT_EQ(ErrorOf([&] { static_cast<void>(array[1]); }), 9);
}

TEST(BoundedArray, RaisesSubscriptOutOfRangeForAnUpperBoundFurtherBelow) {
  EXPECT_EQ(ErrorOf([] { BoundedArray<int>(1, -1); }), 9);
}

TEST(BoundedArray, ReachesTheHighestSubscript) {
  BoundedArray<int> array(highest, highest);
  array[highest] = 5;
  EXPECT_EQ(array.UpperBound(), highest);
  EXPECT_EQ(array[highest], 5);
  EXPECT_EQ(ErrorOf([&] { static_cast<void>(array[lowest]); }), 9);
}

TEST(BoundedArray, KeepsItsElementsWhenItGrows) {
  BoundedArray<int> array(2, 3);
  array[2] = 7;
  array[3] = 8;
  array.ResizeUpper(5);
  EXPECT_EQ(array.LowerBound(), 2);
  EXPECT_EQ(array.UpperBound(), 5);
  EXPECT_EQ(std::vector<int>(array.begin(), array.end()), (std::vector<int>{7, 8, 0, 0}));
}

TEST(BoundedArray, DropsOnlyTheElementsAboveWhenItShrinks) {
  BoundedArray<int> array(1, 3);
  array[1] = 7;
  array[3] = 9;
  array.ResizeUpper(1);
  EXPECT_EQ(array.UpperBound(), 1);
  EXPECT_EQ(array[1], 7);
  EXPECT_EQ(ErrorOf([&] { static_cast<void>(array[2]); }), 9);
  array.ResizeUpper(3);
  EXPECT_EQ(array[3], 0);
}

TEST(BoundedArray, StaysAsItIsWhenAResizeFails) {
  BoundedArray<int> array(1, 2);
  array[2] = 4;
  EXPECT_EQ(ErrorOf([&] { array.ResizeUpper(-1); }), 9);
  EXPECT_EQ(array.UpperBound(), 2);
  EXPECT_EQ(array[2], 4);
}

TEST(BoundedArray, AppendsAboveTheUpperBound) {
  BoundedArray<std::string> array(1, 0);
  array.Append("a");
  array.Append("b");
  EXPECT_EQ(array.UpperBound(), 2);
  EXPECT_EQ(array[1], "a");
  EXPECT_EQ(array[2], "b");
}

TEST(BoundedArray, IsEqualInBoundsAndElements) {
  BoundedArray<int> one(1, 2);
  BoundedArray<int> other(1, 2);
  EXPECT_EQ(one, other);
  other[2] = 1;
  EXPECT_NE(one, other);
  EXPECT_NE(one, BoundedArray<int>(0, 1));
  EXPECT_NE(BoundedArray<int>(0, -1), BoundedArray<int>());
}

TEST(BoundedArray, IsAValue) {
  BoundedArray<int> original(1, 1);
  BoundedArray<int> copy = original;
  copy[1] = 3;
  EXPECT_EQ(original[1], 0);
  EXPECT_EQ(copy[1], 3);
}

RC_GTEST_PROP(BoundedArray, GivesWhatAPlainListHoldsOrRaises, ()) {
  const auto values = *rc::gen::arbitrary<std::vector<int>>();
  const auto lower = *rc::gen::inRange<Long>(-50, 50);
  const auto subscript = *rc::gen::inRange<Long>(-200, 200);
  BoundedArray<int> array(lower, lower - 1);
  for (const int value : values) {
    array.Append(value);
  }
  RC_ASSERT(array.UpperBound() == lower - 1 + static_cast<Long>(values.size()));
  int found = 0;
  const int error = ErrorOf([&] { found = array[subscript]; });
  if (subscript >= lower && subscript <= array.UpperBound()) {
    RC_ASSERT(error == 0);
    RC_ASSERT(found == values[static_cast<std::size_t>(subscript - lower)]);
  } else {
    RC_ASSERT(error == 9);
  }
}

TEST(SquareTable, StartsUnallocated) {
  SquareTable<double> table;
  EXPECT_FALSE(table.IsAllocated());
  EXPECT_EQ(table.Size(), 0);
  EXPECT_EQ(ErrorOf([&] { table(1, 1) = 1; }), 9);
  EXPECT_EQ(ErrorOf([&] { table(0, 0) = 1; }), 9);
}

TEST(SquareTable, StartsWithZeros) {
  const SquareTable<double> table(2);
  EXPECT_TRUE(table.IsAllocated());
  EXPECT_EQ(table.Size(), 2);
  EXPECT_EQ(table(1, 1), 0.0);
  EXPECT_EQ(table(2, 2), 0.0);
}

TEST(SquareTable, KeepsEveryCellUnderItsSubscripts) {
  constexpr Long size = 4;
  SquareTable<Long> table(size);
  for (Long row = 1; row <= size; ++row) {
    for (Long column = 1; column <= size; ++column) {
      table(row, column) = 10 * row + column;
    }
  }
  const SquareTable<Long>& seen = table;
  for (Long row = 1; row <= size; ++row) {
    for (Long column = 1; column <= size; ++column) {
      EXPECT_EQ(seen(row, column), 10 * row + column);
    }
  }
}

TEST(SquareTable, RaisesSubscriptOutOfRangeBesideItsBounds) {
  SquareTable<int> table(3);
  const SquareTable<int>& seen = table;
  for (const auto& [row, column] : std::vector<std::pair<Long, Long>>{
           {0, 1}, {1, 0}, {4, 1}, {1, 4}, {2, 4}, {-1, 2}, {2, highest}, {lowest, 2}}) {
    EXPECT_EQ(ErrorOf([&, r = row, c = column] { table(r, c) = 1; }), 9) << row << " " << column;
    EXPECT_EQ(ErrorOf([&, r = row, c = column] { static_cast<void>(seen(r, c)); }), 9)
        << row << " " << column;
  }
}

TEST(SquareTable, IsUnallocatedWithSizeZero) {
  EXPECT_FALSE(SquareTable<int>(0).IsAllocated());
}

TEST(SquareTable, RaisesSubscriptOutOfRangeForASizeBelowZero) {
  EXPECT_EQ(ErrorOf([] { SquareTable<int>(-1); }), 9);
}

TEST(SquareTable, IsEqualInSizeAndCells) {
  SquareTable<int> one(2);
  SquareTable<int> other(2);
  EXPECT_EQ(one, other);
  other(2, 1) = 1;
  EXPECT_NE(one, other);
  EXPECT_NE(one, SquareTable<int>(3));
}

}  // namespace

}  // namespace trelonit::test
