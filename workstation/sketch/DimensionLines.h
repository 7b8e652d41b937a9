#pragma once

#include <string>

#include "workstation/sketch/SketchList.h"

namespace trelonit {

/// Puts dimensions as a building drawing has them into a list: a line between two extension lines,
/// with a slanting tick at each end and the figure over it.
class DimensionLines {
 public:
  DimensionLines(SketchList& list, const SketchCanvas& canvas) : list_(list), canvas_(canvas) {}

  /// Where a figure that is wider than its line goes.
  enum class Overflow { Stays, IsLeftOut, ToTheLeft, ToTheRight };

  /// From left to right at this height, with extension lines up to where the measured points are.
  void Across(double left, double right, double y, double measuredY, const std::string& text,
              SketchInk ink = SketchInk::Dimension, Overflow overflow = Overflow::Stays);
  /// From top to bottom at this place, with extension lines to the right.
  void Down(double x, double top, double bottom, double measuredX, const std::string& text,
            SketchInk ink = SketchInk::Dimension);

  void Text(const std::string& text, SketchPoint middle, SketchInk ink, bool upright = false);
  void Line(SketchPoint a, SketchPoint b, SketchInk ink) { list_.Strokes.push_back({ink, a, b}); }

 private:
  void Tick(SketchPoint at, SketchInk ink);
  static SketchInk InkOfText(SketchInk ink) {
    return ink == SketchInk::Dimension ? SketchInk::Text : ink;
  }

  SketchList& list_;
  const SketchCanvas& canvas_;
};

}  // namespace trelonit
