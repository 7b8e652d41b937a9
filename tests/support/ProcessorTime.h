#pragma once

#include <ctime>

namespace trelonit::test {

/// Of the processor, so that a machine with other work changes little.
template <class Work>
double SecondsOf(Work&& work) {
  const std::clock_t start = std::clock();
  work();
  return static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
}

}  // namespace trelonit::test
