#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <optional>
#include <rapidcheck/gtest.h>

#include "opinion/BandSystem.h"
#include "platform/errors/RuntimeError.h"
#include "tests/analysis/RandomDesigns.h"

namespace trelonit::test {

namespace {

using Matrix = std::vector<std::vector<double>>;

/// The number of the error, or nothing.
template <class Routine>
std::optional<int> ErrorOf(const Routine& routine) {
  try {
    routine();
    return std::nullopt;
  } catch (const RuntimeError& error) {
    return error.Number();
  }
}

BandSystem Banded(const Matrix& dense, std::size_t below, std::size_t above) {
  BandSystem system(dense.size(), below, above);
  for (std::size_t row = 0; row < dense.size(); ++row) {
    for (std::size_t column = 0; column < dense.size(); ++column) {
      if (dense[row][column] != 0) {
        system.At(row, column) = dense[row][column];
      }
    }
  }
  return system;
}

/// Gauss and Jordan with exchange of rows, on the whole matrix, in extended precision.
std::vector<double> Eliminated(const Matrix& dense, const std::vector<double>& right) {
  const std::size_t size = dense.size();
  std::vector<std::vector<long double>> rows;
  for (std::size_t row = 0; row < size; ++row) {
    rows.emplace_back(dense[row].begin(), dense[row].end());
    rows.back().push_back(right[row]);
  }
  for (std::size_t column = 0; column < size; ++column) {
    const auto pivot = std::max_element(
        rows.begin() + static_cast<std::ptrdiff_t>(column), rows.end(),
        [=](const auto& a, const auto& b) { return std::abs(a[column]) < std::abs(b[column]); });
    std::swap(rows[column], *pivot);
    for (std::size_t row = 0; row < size; ++row) {
      const long double factor = row == column ? 0 : rows[row][column] / rows[column][column];
      for (std::size_t k = column; k <= size; ++k) {
        rows[row][k] -= factor * rows[column][k];
      }
    }
  }
  std::vector<double> found;
  for (std::size_t row = 0; row < size; ++row) {
    found.push_back(static_cast<double>(rows[row][size] / rows[row][row]));
  }
  return found;
}

struct Shape {
  std::size_t Size = 0;
  std::size_t Below = 0;
  std::size_t Above = 0;
};

Shape PickShape() {
  return {.Size = *rc::gen::inRange<std::size_t>(1, 25),
          .Below = *rc::gen::inRange<std::size_t>(0, 6),
          .Above = *rc::gen::inRange<std::size_t>(0, 6)};
}

/// Any numbers inside the band, zeros among them.
Matrix PickMatrix(const Shape& shape) {
  Matrix matrix(shape.Size, std::vector<double>(shape.Size));
  for (std::size_t row = 0; row < shape.Size; ++row) {
    for (std::size_t column = 0; column < shape.Size; ++column) {
      if (column + shape.Below >= row && column <= row + shape.Above &&
          *rc::gen::inRange(0, 5) != 0) {
        matrix[row][column] = PickBetween(-1, 1);
      }
    }
  }
  return matrix;
}

std::vector<double> PickRight(std::size_t size) {
  std::vector<double> right(size);
  for (double& value : right) {
    value = PickBetween(-10, 10);
  }
  return right;
}

RC_GTEST_PROP(BandSystem, SolvesAsTheWholeMatrixDoes, ()) {
  const Shape shape = PickShape();
  Matrix matrix = PickMatrix(shape);
  // Far from singular, but with rows to exchange wherever there is a band below: the greatest
  // coefficient of a column stands as low in it as the band allows.
  for (std::size_t column = 0; column < shape.Size; ++column) {
    const std::size_t lowest = shape.Below == 0 ? column : column ^ 1U;
    const bool inside = lowest < shape.Size && (lowest <= column || shape.Below > 0) &&
                        (lowest >= column || shape.Above > 0);
    matrix[inside ? lowest : column][column] += 20;
  }
  const std::vector<double> right = PickRight(shape.Size);
  const std::vector<double> expected = Eliminated(matrix, right);
  for (const double value : expected) {
    RC_PRE(std::abs(value) < 1e6);
  }
  const std::vector<double> found = Banded(matrix, shape.Below, shape.Above).Solve(right);
  for (std::size_t row = 0; row < shape.Size; ++row) {
    RC_ASSERT(std::abs(found[row] - expected[row]) <= 1e-9 * (1 + std::abs(expected[row])));
  }
}

// 0 x + 2 y = 4 and 3 x + 0 y = 9: without an exchange of rows the first pivot is 0.
TEST(BandSystem, ExchangesRowsWhereTheDiagonalIsZero) {
  BandSystem system(2, 1, 1);
  system.At(0, 1) = 2;
  system.At(1, 0) = 3;
  const std::vector<double> found = std::move(system).Solve({4, 9});
  EXPECT_EQ(found, (std::vector<double>{3, 2}));
}

// y = 2, 5 x + y + z = 8, y + 2 z = 4: the second row moves up, and its end with it, beyond the
// band that was asked for.
TEST(BandSystem, KeepsTheEndOfARowThatMovesUp) {
  BandSystem system(3, 1, 1);
  system.At(0, 1) = 1;
  system.At(1, 0) = 5;
  system.At(1, 1) = 1;
  system.At(1, 2) = 1;
  system.At(2, 1) = 1;
  system.At(2, 2) = 2;
  const std::vector<double> found = std::move(system).Solve({2, 8, 4});
  EXPECT_EQ(found, (std::vector<double>{1, 2, 1}));
}

// x + y = 2 and x + 1e20 y = 1e20 + 1, which rounds to 1e20: next to x = y = 1. With the second row
// on top, x would be what 1e20 - 1e20 leaves of it, 0.
TEST(BandSystem, ExchangesNoRowsWithEqualCoefficients) {
  BandSystem system(2, 1, 1);
  system.At(0, 0) = 1;
  system.At(0, 1) = 1;
  system.At(1, 0) = 1;
  system.At(1, 1) = 1e20;
  EXPECT_EQ(std::move(system).Solve({2, 1e20}), (std::vector<double>{1, 1}));
}

TEST(BandSystem, OfOneEquationDivides) {
  BandSystem system(1, 0, 0);
  system.At(0, 0) = 4;
  EXPECT_EQ(std::move(system).Solve({10}), (std::vector<double>{2.5}));
}

RC_GTEST_PROP(BandSystem, RaisesDivisionByZeroForAnUnknownThatNoEquationHas, ()) {
  const Shape shape = PickShape();
  Matrix matrix = PickMatrix(shape);
  const std::size_t without = *rc::gen::inRange<std::size_t>(0, shape.Size);
  for (std::vector<double>& row : matrix) {
    row[without] = 0;
  }
  const std::vector<double> right = PickRight(shape.Size);
  RC_ASSERT(ErrorOf([&] { Banded(matrix, shape.Below, shape.Above).Solve(right); }) == 11);
}

TEST(BandSystem, RaisesDivisionByZeroForTwoEqualEquations) {
  const Matrix matrix{{1, 2, 0}, {3, 4, 5}, {3, 4, 5}};
  EXPECT_EQ(ErrorOf([&] { Banded(matrix, 2, 2).Solve({1, 2, 3}); }), 11);
}

TEST(BandSystem, RaisesOverflowBeyondTheRangeOfDouble) {
  const Matrix matrix{{1e-200, 0}, {0, 1}};
  EXPECT_EQ(ErrorOf([&] { Banded(matrix, 1, 1).Solve({1e200, 1}); }), 6);
}

}  // namespace

}  // namespace trelonit::test
