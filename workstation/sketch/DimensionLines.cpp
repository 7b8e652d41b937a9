#include "workstation/sketch/DimensionLines.h"

namespace trelonit {

namespace {

constexpr double tickHalf = 4;
/// How far lines go on beyond a tick.
constexpr double overshoot = 4;
constexpr double gapAtTruss = 5;
constexpr double gapOfText = 4;

}  // namespace

void DimensionLines::Tick(SketchPoint at, SketchInk ink) {
  Line(at + SketchPoint{-tickHalf, tickHalf}, at + SketchPoint{tickHalf, -tickHalf}, ink);
}

void DimensionLines::Text(const std::string& text, SketchPoint middle, SketchInk ink,
                          bool upright) {
  list_.Texts.push_back({.Of = ink,
                         .Text = text,
                         .Middle = middle,
                         .Width = canvas_.WidthOf(text),
                         .Upright = upright});
}

void DimensionLines::Across(double left, double right, double y, double measuredY,
                            const std::string& text, SketchInk ink, Overflow overflow) {
  Line({left - overshoot, y}, {right + overshoot, y}, ink);
  for (const double x : {left, right}) {
    Line({x, measuredY + gapAtTruss}, {x, y + overshoot}, ink);
    Tick({x, y}, ink);
  }
  double middle = (left + right) / 2;
  const double half = canvas_.WidthOf(text) / 2 + gapOfText;
  if (2 * half > right - left) {
    if (overflow == Overflow::IsLeftOut) {
      return;
    }
    if (overflow == Overflow::ToTheLeft) {
      middle = left - half;
    } else if (overflow == Overflow::ToTheRight) {
      middle = right + half;
    }
  }
  Text(text, {middle, y - canvas_.LineHeight / 2 - 1}, InkOfText(ink));
}

void DimensionLines::Down(double x, double top, double bottom, double measuredX,
                          const std::string& text, SketchInk ink) {
  Line({x, top - overshoot}, {x, bottom + overshoot}, ink);
  for (const double y : {top, bottom}) {
    Line({x - overshoot, y}, {measuredX - gapAtTruss, y}, ink);
    Tick({x, y}, ink);
  }
  Text(text, {x - canvas_.LineHeight / 2 - 1, (top + bottom) / 2}, InkOfText(ink), true);
}

}  // namespace trelonit
