#pragma once

#include "drawing/host/DrawingPicture.h"

namespace trelonit {

/// The look of a rotated dimension, one text in it.
EntityPicture PictureOfDimension(const Drawing& drawing, const DrawingDimension& dimension);

/// Where the second extension line meets the dimension line: the definition point of the drawing
/// format.
PlacePoint SecondFoot(const DrawingDimension& dimension);

}  // namespace trelonit
