#pragma once

#include <cstddef>

namespace trelonit {

/// An axis of a plot, from a round number to a round one, with a mark at each step.
struct PlotAxis {
  double From = 0;
  double Step = 1;
  int Steps = 1;

  PlotAxis(double least, double greatest);
  double At(int step) const { return From + Step * step; }
  double Share(double value) const { return (value - From) / (Step * Steps); }
  int Decimals() const;
};

/// The colour of the kinds in their order, "#rrggbb". There are seven, then they begin anew.
const char* PlotColour(std::size_t kind);

}  // namespace trelonit
