#pragma once

#include <QIcon>

namespace trelonit {

class PaintingAside;

/// A drawing of the program as an icon: sharp at every size, in the colours of the present theme.
QIcon PictureIcon(const QString& file);

/// The same, painted on another thread in the sizes in which window systems ask for the icon of a
/// window.
QIcon WindowPictureIcon(const QString& file, PaintingAside& aside);

}  // namespace trelonit
