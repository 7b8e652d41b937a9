#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "platform/text/NumberText.h"
#include "workstation/loads/LoadTable.h"

namespace trelonit {

/// What a line or a text of the picture is; a window gives it its colour.
enum class LoadInk { Bar, Support, Load, OwnWeight, Chosen };

struct LoadLine {
  double X1 = 0, Y1 = 0, X2 = 0, Y2 = 0;
  LoadInk Ink = LoadInk::Bar;
};

/// A hatched bar of a distributed load.
struct LoadBand {
  double X = 0, Y = 0, Width = 0, Height = 0;
  LoadInk Ink = LoadInk::Load;
};

/// A text round the middle (X, Y); an upright one reads from below.
struct LoadText {
  double X = 0, Y = 0;
  std::string Text;
  LoadInk Ink = LoadInk::Load;
  bool Upright = false;
};

/// The whole truss to scale with the loads of both chords; own weight apart from the user's. In the
/// units of the window, Y downward.
struct LoadPicture {
  std::vector<LoadLine> Lines;
  std::vector<LoadBand> Bands;
  std::vector<LoadText> Texts;
  /// Where the places are: joints, then panels by their middle.
  struct Target {
    LoadSpot Spot;
    double X = 0, Y = 0;
  };
  std::vector<Target> Targets;
  /// Metres of truss a unit of the window stands for; 0 where there is no truss.
  double Scale = 0;
};

struct LoadPictureSize {
  double Width = 0;
  double Height = 0;
  double LineHeight = 0;  ///< of a text
  std::function<double(const std::string&)> WidthOf;
};

/// The picture of a truss of these sizes. A geometry that makes no truss gives an empty one.
LoadPicture DrawLoads(const TreloData& truss, const OwnWeightState& ownWeight,
                      const std::optional<LoadSpot>& chosen, const LoadPictureSize& size,
                      const NumberLocale& locale);

/// The place that is meant by a press there: the nearest one, a joint before a panel.
std::optional<LoadSpot> SpotAt(const LoadPicture& picture, double x, double y);

}  // namespace trelonit
