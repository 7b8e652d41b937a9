#pragma once

#include <string>

#include "drawing/host/Drawing.h"

namespace trelonit {

/// The drawing as a DXF file of version AC1021 (UTF-8), in millimetres. Each dimension gets an
/// anonymous block with its picture. Raises 6 for a number that is not finite, 5 for an entity
/// whose layer or style is not in the drawing; nothing is written then.
std::string WriteDxf(const Drawing& drawing);

}  // namespace trelonit
