#include "opinion/BandSystem.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "platform/values/Arithmetic.h"

namespace trelonit {

BandSystem::BandSystem(std::size_t size, std::size_t below, std::size_t above)
    : size_(size),
      below_(below),
      above_(above + below),
      width_(below_ + 1 + above_),
      cells_(size * width_) {}

double& BandSystem::At(std::size_t row, std::size_t column) {
  return cells_[row * width_ + (column + below_ - row)];
}

void BandSystem::BringPivotUp(std::size_t column, std::size_t lastRow, std::vector<double>& right) {
  std::size_t pivot = column;
  for (std::size_t row = column + 1; row <= lastRow; ++row) {
    if (std::abs(At(row, column)) > std::abs(At(pivot, column))) {
      pivot = row;
    }
  }
  if (At(pivot, column) == 0) {
    RaiseDivisionByZero();
  }
  if (pivot != column) {
    std::swap_ranges(&At(column, column), &At(column, column + above_) + 1, &At(pivot, column));
    std::swap(right[column], right[pivot]);
  }
}

std::vector<double> BandSystem::Solve(std::vector<double> right) && {
  for (std::size_t column = 0; column < size_; ++column) {
    const std::size_t lastRow = std::min(column + below_, size_ - 1);
    BringPivotUp(column, lastRow, right);
    const double* const pivotRow = &At(column, column);
    for (std::size_t row = column + 1; row <= lastRow; ++row) {
      double* const cells = &At(row, column);
      if (const double factor = cells[0] / pivotRow[0]; factor != 0) {
        for (std::size_t k = 1; k <= above_; ++k) {
          cells[k] -= factor * pivotRow[k];
        }
        right[row] -= factor * right[column];
      }
    }
  }
  for (std::size_t row = size_; row-- > 0;) {
    const std::size_t lastColumn = std::min(row + above_, size_ - 1);
    for (std::size_t column = row + 1; column <= lastColumn; ++column) {
      right[row] -= At(row, column) * right[column];
    }
    right[row] = Finite(right[row] / At(row, row));
  }
  return right;
}

}  // namespace trelonit
