#pragma once

#include <QColor>
#include <QLineF>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>
#include <QPolygonF>
#include <QTransform>
#include <string_view>
#include <vector>

#include "drawing/sheet/PlacedDrawing.h"

namespace trelonit {

// Drawings in lines, letters and arrows of Qt. Needs no widgets; letters of a font need an
// application with fonts (QGuiApplication).

/// How a drawing is to be painted.
struct DrawingLook {
  /// Drawing units, Y upwards, to the painter's own coordinates.
  QTransform FromDrawing;
  /// The painter's units in a millimetre of line weight, which no zoom changes.
  double UnitsPerMillimetre = 1;
  /// The thinnest line, in the painter's units.
  double ThinnestLine = 0;
  /// Lines are whole pixels wide, and level and upright ones lie on them, which keeps them sharp;
  /// the painter's units are pixels then.
  bool OnPixels = false;
  /// What lies outside is left out, in the painter's units; empty for no limit.
  QRectF Visible;
  /// Black, and only the layers that are plotted; otherwise the colours of the palette.
  bool OnPaper = false;
  QPalette Palette;
  /// The height down to which letters may be made smaller where texts are crowded, in the painter's
  /// units; texts that cover each other even so are left out. 0 for texts as the drawing tells
  /// them.
  double SmallestLetters = 0;
  /// Letters of a font, that can be searched for and copied, instead of outlines. They take the
  /// same room.
  bool RealLetters = false;
};

/// The colour of a layer on screen, to be read on the palette's base.
QColor LayerColor(std::string_view layer, const QPalette& palette);

QTransform AsQt(const PlaneTransform& transform);
QRectF AsQt(const PlaneBox& box);

/// A drawing made ready to be painted often.
class DrawingPainter {
 public:
  /// Takes the drawing apart, see PlacedDrawing.
  explicit DrawingPainter(const Drawing& drawing);

  const PlacedDrawing& Placed() const { return placed_; }
  /// The box round what is shown, or what is plotted; Y upwards.
  QRectF Bounds(bool onPaper) const { return AsQt(placed_.Bounds(onPaper)); }

  void Paint(QPainter& painter, const DrawingLook& look) const;

  /// The rooms of the texts as they are painted, in drawing units.
  std::vector<QPolygonF> TextRooms(const DrawingLook& look) const;

 private:
  static void PaintStrokes(QPainter& painter, const PlacedLayer& layer, const DrawingLook& look);
  static void PaintArrows(QPainter& painter, const PlacedLayer& layer, const DrawingLook& look);
  /// The factors belong to the layer's texts; null where each is as high as it is told.
  static void PaintTexts(QPainter& painter, const PlacedLayer& layer,
                         const std::vector<QPainterPath>& outlines, const DrawingLook& look,
                         const double* factors);
  /// By the texts of the layers that are painted; null where the look leaves texts alone.
  const double* FactorsFor(const DrawingLook& look) const;

  PlacedDrawing placed_;
  /// Of the texts, by layer.
  std::vector<std::vector<QPainterPath>> outlines_;
};

}  // namespace trelonit
