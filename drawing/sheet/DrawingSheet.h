#pragma once

#include <cstddef>
#include <optional>
#include <string>

#include "drawing/host/TitleBlock.h"
#include "drawing/sheet/PlacedDrawing.h"

namespace trelonit {

// Drawings on paper, to scale and in black, whoever writes or prints the sheets.

/// Sheets by GOST 2.301, all of them lying.
enum class PaperFormat { A4, A3, A2, A1, A0 };

/// Millimetres.
struct PaperSides {
  double Width = 0;
  double Height = 0;

  friend bool operator==(const PaperSides&, const PaperSides&) = default;
};
PaperSides PaperSize(PaperFormat format);

/// One page with a drawing in a frame by GOST 2.301 and its scale in the lower right corner.
struct DrawingSheet {
  PaperSides Paper;
  double Scale = 1;  ///< drawing units to a millimetre of paper: 50 for 1:50
  /// In the lower right corner, in the place of the scale, where the paper has room for it.
  std::optional<TitleBlock> Title = {};

  /// "М 1:50"
  std::string ScaleNote() const;
};

/// The paper with the greatest standard scale (GOST 2.302, none that enlarges) at which the drawing
/// fits into the frame. Raises 6 for a drawing whose size is beyond the range of Double.
DrawingSheet SheetOn(const PlacedDrawing& drawing, PaperSides paper,
                     const std::optional<TitleBlock>& title = {});

/// How many texts the sheet leaves out that a larger one could show: where they are crowded,
/// letters are made smaller down to 2.5 mm, which GOST 2.304 takes for the smallest, and no
/// further.
std::size_t TextsLeftOut(const PlacedDrawing& drawing, const DrawingSheet& sheet);

/// The same as SheetOn on the smallest sheet that shows all texts at least 2.5 mm high; nothing
/// where none does.
std::optional<DrawingSheet> SheetWithAllTexts(const PlacedDrawing& drawing,
                                              const std::optional<TitleBlock>& title = {});

/// That sheet, or A3.
DrawingSheet SheetFor(const PlacedDrawing& drawing, const std::optional<TitleBlock>& title = {});

/// What the user wants of a sheet.
struct SheetChoice {
  std::optional<PaperFormat> Paper;  ///< without one that which SheetFor takes
  std::optional<TitleBlock> Title = {};
};
DrawingSheet ChosenSheet(const PlacedDrawing& drawing, const SheetChoice& choice);

/// What stands on a sheet beside the drawing, in millimetres of paper from its lower left corner:
/// the frame, with the scale or with the title block.
struct SheetDress {
  Drawing Frame;
  std::optional<Drawing> Title;
};
SheetDress DressOf(const DrawingSheet& sheet);

// The ways to millimetres of paper from its upper left corner, Y downwards.
PlaneTransform DressOnPaper(const DrawingSheet& sheet);
PlaneTransform DrawingOnPaper(const PlacedDrawing& drawing, const DrawingSheet& sheet);

/// The smallest letters of a drawing on paper by GOST 2.304, in millimetres.
constexpr double smallestLettersOnPaper = 2.5;

}  // namespace trelonit
