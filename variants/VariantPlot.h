#pragma once

#include <string>
#include <vector>

#include "variants/Variant.h"

namespace trelonit {

/// What a plot shows of a variant.
struct PlotPoint {
  double Height = 0;  ///< metres
  double Mass = 0;    ///< tonnes
  Long Panels = 0;    ///< its colour
};

/// Mass over height as a picture (SVG), a colour for each panel count, with the front marked:
/// those of which none is both lower and lighter. A picture without points says so.
std::string PlotAsSvg(const std::vector<PlotPoint>& points, const std::vector<PlotPoint>& front);

inline PlotPoint PointOf(const Variant& variant) {
  return {.Height = variant.Inputs.Hight, .Mass = variant.Mass, .Panels = variant.Inputs.PanelNum};
}

}  // namespace trelonit
