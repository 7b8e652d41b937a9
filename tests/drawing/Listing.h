#pragma once

#include <string>
#include <vector>

namespace trelonit::test {

/// Calls of the host that a listing stands for, a line of it a thing drawn (millimetres, radians):
///
///   scale  SIZE                          the drawing's dimension scale
///   bar    X1 Y1  X2 Y2  XM YM  ROT |force|       a bar with one label in its middle
///   bar    X1 Y1  X2 Y2  XM YM  ROT |length|name| a bar with two labels
///   dim    X1 Y1  X2 Y2  XL YL  ROT      a dimension with its location
///   text   X Y  HEIGHT |text|
///   line   X1 Y1  X2 Y2
///
/// Bars have labels 200 high, dimensions the scale 40. Objects are numbered on over the listing;
/// the space is that of the first document.
std::vector<std::string> CallsOf(const std::string& listing);

}  // namespace trelonit::test
