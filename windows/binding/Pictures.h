#pragma once

#include <QPainter>
#include <QPalette>
#include <QString>

#include "platform/forms/Resources.h"

namespace trelonit {

/// The file of resources/pictures for a picture number; empty for an empty picture.
QString PictureFile(const Picture& picture);

/// The small picture of a scheme, 1 to 10.
QString SchemePictureFile(Long scheme);

/// Draws the picture of the file, or of that name, as large as fits into the rectangle, centred,
/// sharp at every scaling. Black becomes the palette's text colour, so that it can be read on a
/// dark desktop too.
void DrawPicture(QPainter& painter, const QRectF& place, const QString& file,
                 const QPalette& palette, bool enabled = true);

/// Whether the desktop's theme is a dark one.
bool IsDark(const QPalette& palette);

/// The red of selections and of what exceeds a limit, readable on the palette's base.
QColor WarningColor(const QPalette& palette);
/// What asks for care.
QColor CautionColor(const QPalette& palette);
/// Behind what the user has chosen in a picture.
QColor MarkColor(const QPalette& palette);
/// Bars in tension.
QColor TensionColor(const QPalette& palette);
/// Bars in compression.
QColor CompressionColor(const QPalette& palette);
/// Loads, as in the pictures.
QColor LoadColor(const QPalette& palette);
/// What keeps its limit.
QColor PassedColor(const QPalette& palette);
/// What is cut through in the drawing of a section, as in the pictures.
QColor SteelColor(const QPalette& palette);
/// Words aside: paler than the others and still to be read.
QColor AsideColor(const QPalette& palette);
/// Axes, dimensions and bars without force.
QColor QuietColor(const QPalette& palette);

}  // namespace trelonit
