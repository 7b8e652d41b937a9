#pragma once

namespace trelonit {

// The logic measures windows in twips, Qt in pixels, paper in millimetres.
constexpr double twipsPerPixel = 15;
constexpr double millimetresPerInch = 25.4;

/// The icons of a window's tool bar, pixels.
constexpr int toolSize = 22;

}  // namespace trelonit
