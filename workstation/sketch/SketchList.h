#pragma once

#include <functional>
#include <string>
#include <vector>

namespace trelonit {

// A drawing as a list of what it consists of, for a window to paint. Y points downward as on a
// screen, lengths are points of the canvas.

/// What a mark stands for; the window gives each its colour and width.
enum class SketchInk { Chord, Web, Joint, Support, Edge, Dimension, Text, Caution, Fault };

struct SketchPoint {
  double X = 0;
  double Y = 0;

  friend SketchPoint operator+(SketchPoint a, SketchPoint b) { return {a.X + b.X, a.Y + b.Y}; }
};

struct SketchStroke {
  SketchInk Of = SketchInk::Chord;
  SketchPoint A;
  SketchPoint B;
};

/// Radians, counted from the right, clockwise on a screen.
struct SketchArc {
  SketchInk Of = SketchInk::Dimension;
  SketchPoint Centre;
  double Radius = 0;
  double From = 0;
  double To = 0;
};

/// A filled outline.
struct SketchShape {
  SketchInk Of = SketchInk::Support;
  std::vector<SketchPoint> Corners;
};

struct SketchDisc {
  SketchInk Of = SketchInk::Joint;
  SketchPoint Centre;
  double Radius = 0;
};

/// A line of text round its middle.
struct SketchText {
  SketchInk Of = SketchInk::Text;
  std::string Text;
  SketchPoint Middle;
  double Width = 0;
  /// Reads from below upward.
  bool Upright = false;
};

struct SketchList {
  std::vector<SketchStroke> Strokes;
  std::vector<SketchArc> Arcs;
  std::vector<SketchShape> Shapes;
  std::vector<SketchDisc> Discs;
  std::vector<SketchText> Texts;
};

/// What a drawing is to fit into.
struct SketchCanvas {
  double Width = 0;
  double Height = 0;
  double LineHeight = 0;
  std::function<double(const std::string&)> WidthOf;
};

}  // namespace trelonit
