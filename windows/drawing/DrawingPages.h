#pragma once

#include <QPageLayout>
#include <QPainter>
#include <QSizeF>
#include <optional>
#include <string>

#include "drawing/host/TitleBlock.h"
#include "windows/drawing/DrawingPainter.h"

namespace trelonit {

// Drawings on paper, to scale and in black. Needs no widgets, only an application with fonts
// (QGuiApplication).

/// Sheets by GOST 2.301, all of them lying.
enum class PaperFormat { A4, A3, A2, A1, A0 };

/// Millimetres.
QSizeF PaperSize(PaperFormat format);

/// One page with a drawing in a frame by GOST 2.301 and its scale in the lower right corner.
struct DrawingSheet {
  QSizeF Paper;      ///< millimetres
  double Scale = 1;  ///< drawing units to a millimetre of paper: 50 for 1:50
  /// In the lower right corner, in the place of the scale, where the paper has room for it.
  std::optional<TitleBlock> Title = {};

  /// "М 1:50"
  std::string ScaleNote() const;
};

/// The paper with the greatest standard scale (GOST 2.302, none that enlarges) at which the drawing
/// fits into the frame. Raises 6 for a drawing whose size is beyond the range of Double.
DrawingSheet SheetOn(const DrawingPainter& drawing, QSizeF paper,
                     const std::optional<TitleBlock>& title = {});

/// How many texts the sheet leaves out that a larger one could show: where they are crowded,
/// letters are made smaller down to 2.5 mm, which GOST 2.304 takes for the smallest, and no
/// further.
std::size_t TextsLeftOut(const DrawingPainter& drawing, const DrawingSheet& sheet);

/// The same as SheetOn on the smallest sheet that shows all texts at least 2.5 mm high; nothing
/// where none does.
std::optional<DrawingSheet> SheetWithAllTexts(const DrawingPainter& drawing,
                                              const std::optional<TitleBlock>& title = {});

/// That sheet, or A3.
DrawingSheet SheetFor(const DrawingPainter& drawing, const std::optional<TitleBlock>& title = {});

/// What the user wants of a sheet.
struct SheetChoice {
  std::optional<PaperFormat> Paper;  ///< without one that which SheetFor takes
  std::optional<TitleBlock> Title = {};
};
DrawingSheet ChosenSheet(const DrawingPainter& drawing, const SheetChoice& choice);

/// The page of a sheet, without margins of its own.
QPageLayout LayoutOf(const DrawingSheet& sheet);

/// Paints the page; its upper left corner is the painter's origin.
void PaintSheet(QPainter& painter, const DrawingPainter& drawing, const DrawingSheet& sheet,
                double unitsPerMillimetre, bool realLetters);

// The bytes of a file with one page. They raise 6 like
// the routines above and 57 where there is no memory for the page.

/// Letters are those of a font: they can be searched for.
std::string WriteDrawingPdf(const Drawing& drawing, const SheetChoice& choice = {});
/// Letters are outlines: they look the same wherever the file is opened.
std::string WriteDrawingSvg(const Drawing& drawing, const SheetChoice& choice = {});
/// In shades of grey, 200 points an inch.
std::string WriteDrawingPng(const Drawing& drawing, const SheetChoice& choice = {});

}  // namespace trelonit
