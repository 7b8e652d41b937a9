#pragma once

#include <QIcon>

namespace trelonit {

/// A drawing of the program as an icon: sharp at every size, in the colours of the present theme.
QIcon PictureIcon(const QString& file);

}  // namespace trelonit
