#pragma once

#include <cstdint>
#include <random>
#include <vector>

namespace trelonit::verification {

/// Random choices that are the same on every machine.
class Chance {
 public:
  explicit Chance(std::uint64_t seed) : engine_(seed) {}

  /// From the range, both ends included.
  int Whole(int low, int high) {
    return low + static_cast<int>(engine_() % static_cast<std::uint64_t>(high - low + 1));
  }
  /// In steps of a millionth of the range.
  double Between(double low, double high) { return low + (high - low) * Whole(0, 1000000) / 1e6; }
  template <class T>
  const T& Of(const std::vector<T>& values) {
    return values[static_cast<std::size_t>(Whole(0, static_cast<int>(values.size()) - 1))];
  }
  bool OneIn(int count) { return Whole(1, count) == 1; }

 private:
  std::mt19937_64 engine_;
};

}  // namespace trelonit::verification
