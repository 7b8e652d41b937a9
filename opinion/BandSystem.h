#pragma once

#include <cstddef>
#include <vector>

namespace trelonit {

/// Linear equations whose coefficients stand near the diagonal: row r has some only in the columns
/// r - below to r + above. Eliminated with row exchange, in time proportional to the size.
class BandSystem {
 public:
  BandSystem(std::size_t size, std::size_t below, std::size_t above);

  /// A coefficient inside the band.
  double& At(std::size_t row, std::size_t column);

  /// The unknowns for this right side; the coefficients are used up. Raises 11 where the equations
  /// have no single answer, 6 where it is beyond the range of Double.
  std::vector<double> Solve(std::vector<double> right) &&;

 private:
  void BringPivotUp(std::size_t column, std::size_t lastRow, std::vector<double>& right);

  std::size_t size_;
  std::size_t below_;
  /// Row exchange moves a row up by at most the lower band, and its end with it.
  std::size_t above_;
  /// Every row has its whole band; what stands beyond the last column there is never asked for.
  std::size_t width_;
  std::vector<double> cells_;
};

}  // namespace trelonit
