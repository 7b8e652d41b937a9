#pragma once

#include <string>
#include <vector>

namespace trelonit::bench {

/// What one run of a program cost.
struct ProcessCost {
  double Milliseconds = 0;
  double Megabytes = 0;  ///< peak resident memory
};

/// Runs the program with its output thrown away. Ends the process when it fails.
ProcessCost RunProcess(const std::vector<std::string>& arguments);

}  // namespace trelonit::bench
