#pragma once

#include <QColor>
#include <QLineF>
#include <QPainter>
#include <QPalette>
#include <QPolygonF>
#include <QTransform>
#include <optional>
#include <string_view>
#include <vector>

#include "drawing/host/DrawingPicture.h"
#include "windows/drawing/DrawingLetters.h"
#include "windows/drawing/TextFitting.h"

namespace trelonit {

// Drawings in lines, letters and arrows of Qt. Needs no widgets, only an application with fonts
// (QGuiApplication).

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
  /// Letters of a font, that can be searched for and copied, instead of their outlines.
  bool RealLetters = false;
};

/// The colour of a layer on screen, to be read on the palette's base.
QColor LayerColor(std::string_view layer, const QPalette& palette);

/// A drawing made ready to be painted often.
class DrawingPainter {
 public:
  /// Takes the drawing apart; its layers are looked at anew with every painting, so that they can
  /// be switched. The drawing outlives the painter; after any other change a new painter is needed.
  /// Raises 6 for a drawing that leads beyond the range of Double.
  explicit DrawingPainter(const Drawing& drawing);

  /// The box round what is shown, or what is plotted; Y upwards. A unit square for an empty
  /// drawing.
  QRectF Bounds(bool onPaper) const;

  /// The smallest text on paper, in drawing units; 0 without texts.
  double SmallestText() const;

  void Paint(QPainter& painter, const DrawingLook& look) const;

  /// How the texts are made to fit on paper where no letters may be smaller than this, in drawing
  /// units.
  const TextFit& FitOnPaper(double smallest) const { return Fit(smallest, true); }
  /// The rooms of the texts as they are painted, in drawing units.
  std::vector<QPolygonF> TextRooms(const DrawingLook& look) const;

 private:
  struct Text {
    QString Letters;
    QPainterPath Outline;
    /// From the outline to drawing units.
    QTransform Place;
    QRectF Box;
    TextRoom Room;
  };
  struct Layer {
    std::string Name;
    std::vector<QLineF> Strokes;
    std::vector<QPolygonF> Arrows;
    std::vector<Text> Texts;
    QRectF Box;
  };

  Layer& LayerNamed(const std::string& name);
  void Add(const EntityPicture& picture, DrawingLetters& letters);
  Text Placed(const PictureText& text, DrawingLetters& letters) const;
  bool IsPainted(const Layer& layer, bool onPaper) const;
  static void PaintStrokes(QPainter& painter, const Layer& layer, const DrawingLook& look);
  static void PaintArrows(QPainter& painter, const Layer& layer, const DrawingLook& look);
  /// The factors belong to the layer's texts; null where each is as high as it is told.
  void PaintTexts(QPainter& painter, const Layer& layer, const DrawingLook& look,
                  const double* factors) const;
  const TextFit& Fit(double smallest, bool onPaper) const;
  /// The lines that are shown as such.
  std::vector<QLineF> Bars() const;
  /// By the texts of the layers that are painted; null where the look leaves texts alone.
  const double* FactorsFor(const DrawingLook& look) const;

  const Drawing& drawing_;
  std::vector<Layer> layers_;
  QFont font_;
  /// Of the last fit: a view is painted again and again at one scale.
  struct KnownFit {
    double Smallest = 0;
    bool OnPaper = false;
    std::vector<bool> Layers;
    TextFit Fit;
  };
  mutable std::optional<KnownFit> fit_;
};

}  // namespace trelonit
