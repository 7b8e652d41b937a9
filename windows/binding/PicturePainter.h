#pragma once

#include <QColor>
#include <QPainter>
#include <functional>

#include "resources/CompiledPictures.h"

namespace trelonit {

/// The picture with this name; null where there is none.
const CompiledPicture* FindPicture(std::string_view name);

/// Paints a picture of the program into a rectangle, whatever its proportions. The colours are the
/// caller's.
void PaintPicture(QPainter& painter, const QRectF& place, const CompiledPicture& picture,
                  const std::function<QColor(const PictureColor&)>& colorOf);

}  // namespace trelonit
