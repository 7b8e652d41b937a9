#include "variants/PlotAxis.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "platform/values/Elementary.h"

namespace trelonit {

namespace {

/// Colours that people with any sight tell apart (after Okabe and Ito), and none of the page's own.
constexpr std::array colours{"#0072b2", "#d55e00", "#009e73", "#cc79a7",
                             "#e69f00", "#56b4e9", "#7f7f7f"};

}  // namespace

PlotAxis::PlotAxis(double least, double greatest) {
  constexpr double wished = 6;
  const double range = std::max(greatest - least, std::max(std::abs(greatest), 1.0) * 1e-6);
  const double power = portable::PowerOfTen(std::floor(std::log10(range / wished)));
  Step = power;
  for (const double times : {2.0, 5.0, 10.0}) {
    if (range / Step > wished) {
      Step = power * times;
    }
  }
  From = std::floor(least / Step) * Step;
  Steps = std::max(1, static_cast<int>(std::ceil((greatest - From) / Step - 1e-9)));
}

int PlotAxis::Decimals() const {
  return std::clamp(static_cast<int>(-std::floor(std::log10(Step) + 1e-9)), 0, 9);
}

const char* PlotColour(std::size_t kind) {
  return colours[kind % colours.size()];
}

}  // namespace trelonit
