#pragma once

#include <iomanip>
#include <iostream>
#include <string>

namespace trelonit::bench {

/// The figures with their limits, a line each.
class Table {
 public:
  void Row(const std::string& what, double figure, double limit, const std::string& unit) {
    const bool kept = figure <= limit;
    allKept_ = allKept_ && kept;
    std::cout << std::left << std::setw(62) << what << std::right << std::fixed
              << std::setprecision(2) << std::setw(9) << figure << " " << std::left << std::setw(4)
              << unit << "limit " << std::setprecision(1) << std::setw(6) << limit
              << (kept ? "kept" : "EXCEEDED") << std::endl;
  }
  bool AllKept() const { return allKept_; }

 private:
  bool allKept_ = true;
};

}  // namespace trelonit::bench
