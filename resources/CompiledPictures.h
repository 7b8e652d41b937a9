#pragma once

#include <cstdint>
#include <string_view>

#include "resources/Carried.h"

namespace trelonit {

// The drawings of resources/pictures as the build has compiled them: what is to be painted, with
// nothing left to read or to find out at run time. Lengths are those of the drawing's own view box.

/// What a colour of a drawing stands for; the theme of the desktop decides how it looks.
enum class PictureRole : std::uint8_t { None, Ink, Load, Section, Quiet, Warning, Caution, Own };

struct PictureColor {
  PictureRole Role = PictureRole::None;
  /// Red, green and blue, as the drawing has it.
  std::uint32_t Rgb = 0;
};

struct PictureShape {
  /// Path: Verbs, each M or L with a point, C with three, Z with none. Circle: centre, radius.
  /// Box: left, top, width, height, radius of its corners. Letters: the middle of the base line,
  /// the size.
  enum class Kind : std::uint8_t { Path, Circle, Box, Letters };

  Kind Is = Kind::Path;
  PictureColor Fill;
  PictureColor Stroke;
  double StrokeWidth = 1;
  bool EvenOdd = false;
  bool RoundCaps = false;
  bool RoundJoins = false;
  Carried<double> Dashes;  ///< line and gap in turns
  std::string_view Verbs;
  Carried<double> Numbers;
  std::string_view Letters;  ///< slanting
};

struct CompiledPicture {
  std::string_view Name;  ///< of the file, without ".svg"
  double Left = 0;
  double Top = 0;
  double Width = 0;
  double Height = 0;
  Carried<PictureShape> Shapes;
};

/// All of them, by name.
Carried<CompiledPicture> CompiledPictures();

}  // namespace trelonit
