#pragma once

#include <string>

#include "drawing/sheet/DrawingSheet.h"

namespace trelonit {

/// The bytes of an SVG file with the drawing on one page, to scale; a unit is a millimetre. Letters
/// are outlines, so that they look the same wherever the file is opened; what they say stands
/// beside them for whoever cannot see them. The same bytes on every machine. Raises 6 for a drawing
/// that leads beyond the range of Double.
std::string WriteDrawingSvg(const Drawing& drawing, const SheetChoice& choice = {});

}  // namespace trelonit
