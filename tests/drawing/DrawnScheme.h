#pragma once

#include <string>
#include <utility>
#include <vector>

#include "tests/analysis/Designs.h"
#include "tests/drawing/DrawingDesk.h"

namespace trelonit::test {

/// X and Y on the sheet, millimetres.
using Place = std::pair<double, double>;

struct DrawnLabel {
  std::string Text;
  Place At;
  double Rotation = 0;
};

struct DrawnBar {
  Place From;
  Place To;
  std::vector<DrawnLabel> Labels;
};

/// A model space as it was filled: the bars with their labels, which come before the first
/// dimension, and how many objects there are.
struct DrawnScheme {
  std::vector<DrawnBar> Bars;
  std::vector<std::pair<Place, Place>> Dimensions;
  std::size_t Lines = 0;
  std::size_t Texts = 0;
};

DrawnScheme ReadScheme(RecordingHost& host);

/// A solved design and both of its drawings.
struct DrawnTruss {
  explicit DrawnTruss(const TreloData& data);

  TreloData Data;
  TreloResult Result;
  DrawnScheme Force;
  DrawnScheme Geometry;
};

/// Nodes of the truss, left to right, with heights above the lower chord; worked out from span, end
/// panel and panel count alone. Millimetres.
struct TrussNodes {
  explicit TrussNodes(const TreloData& data);
  std::vector<Place> Upper;
  std::vector<Place> Lower;
};

enum class BarKind { UpperChord, LowerChord, Diagonal, Vertical };

/// By the levels of its ends.
BarKind KindOf(const DrawnBar& bar, double upperLevel);

/// The bars of a kind, left to right.
std::vector<DrawnBar> BarsOf(const DrawnScheme& scheme, BarKind kind, double upperLevel);

}  // namespace trelonit::test
