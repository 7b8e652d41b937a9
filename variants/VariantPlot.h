#pragma once

#include <string>
#include <vector>

#include "variants/Variant.h"

namespace trelonit {

/// What a plot shows of a variant.
struct PlotPoint {
  double Across = 0;  ///< height or deflection, metres
  double Mass = 0;    ///< tonnes
  Long Kind = 0;      ///< its colour: panel count or scheme
  std::uint64_t Number = 0;
};

/// What the plot says of the two.
struct PlotLabels {
  std::string Across = "Высота, м";
  std::string Kind = "Число панелей";
};

/// Mass over height, or over what the labels say, as a picture (SVG), a colour for each kind, with
/// the front marked: those of which none is better in both. A picture without points says so.
std::string PlotAsSvg(const std::vector<PlotPoint>& points, const std::vector<PlotPoint>& front,
                      const PlotLabels& labels = {});

inline PlotPoint PointOf(const Variant& variant) {
  return {.Across = variant.Inputs.Hight,
          .Mass = variant.Mass,
          .Kind = variant.Inputs.PanelNum,
          .Number = variant.Number};
}

}  // namespace trelonit
