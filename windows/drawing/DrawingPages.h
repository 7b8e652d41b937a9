#pragma once

#include <QPageLayout>
#include <QPainter>
#include <QSizeF>
#include <string>

#include "drawing/sheet/DrawingSheet.h"
#include "windows/drawing/DrawingPainter.h"

namespace trelonit {

// Sheets by Qt: on a printer, as pages of a document, as pixels. Needs no widgets, only an
// application with fonts (QGuiApplication).

/// The page of a sheet, without margins of its own.
QPageLayout LayoutOf(const DrawingSheet& sheet);

QSizeF AsQt(PaperSides paper);

/// Paints the page; its upper left corner is the painter's origin.
void PaintSheet(QPainter& painter, const DrawingPainter& drawing, const DrawingSheet& sheet,
                double unitsPerMillimetre, bool realLetters);

// The bytes of a file with one page. They raise 6 like the routines of the sheet and 57 where there
// is no memory for the page.

/// Letters are those of a font: they can be searched for.
std::string WriteDrawingPdf(const Drawing& drawing, const SheetChoice& choice = {});
/// In shades of grey, 200 points an inch.
std::string WriteDrawingPng(const Drawing& drawing, const SheetChoice& choice = {});

}  // namespace trelonit
