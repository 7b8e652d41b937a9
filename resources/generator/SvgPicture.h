#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "resources/CompiledPictures.h"

namespace trelonit::packer {

/// A shape of a drawing, as PictureShape has it.
struct SvgShape {
  PictureShape::Kind Is = PictureShape::Kind::Path;
  PictureColor Fill;
  PictureColor Stroke;
  double StrokeWidth = 1;
  bool EvenOdd = false;
  bool RoundCaps = false;
  bool RoundJoins = false;
  std::vector<double> Dashes;
  std::string Verbs;
  std::vector<double> Numbers;
  std::string Letters;
};

struct SvgPicture {
  double Left = 0;
  double Top = 0;
  double Width = 0;
  double Height = 0;
  std::vector<SvgShape> Shapes;
};

/// Reads the part of SVG that the program's drawings keep to: groups, paths, circles, boxes and
/// slanting letters with plain colours. Raises std::runtime_error for anything else, so that
/// nothing is left out in silence.
SvgPicture ReadSvg(std::string_view text);

}  // namespace trelonit::packer
