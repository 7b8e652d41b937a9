#pragma once

#include <optional>
#include <string>
#include <vector>

#include "drawing/host/DrawingPicture.h"
#include "drawing/sheet/Letters.h"
#include "drawing/sheet/TextFitting.h"

namespace trelonit {

/// A text with its letters where they stand.
struct PlacedText {
  std::string Letters;
  LetterOutline Outline;
  PlaneTransform Place;  ///< from the outline to drawing units
  PlaneBox Box;          ///< round what is to be seen of it
  TextRoom Room;
};

struct PlacedLayer {
  std::string Name;
  std::vector<PlaneLine> Strokes;
  std::vector<std::array<PlanePoint, 3>> Arrows;  ///< filled
  std::vector<PlacedText> Texts;
  std::optional<PlaneBox> Box;
};

/// A drawing taken apart into strokes, arrows and letters, in drawing units with Y upwards: what
/// screen, paper and vector files are made of.
class PlacedDrawing {
 public:
  /// The drawing's layers are looked at anew with every question, so that they can be switched. It
  /// outlives what is made of it; after any other change this has to be made again. Raises 6 for a
  /// drawing that leads beyond the range of Double.
  explicit PlacedDrawing(const Drawing& drawing);

  const Drawing& Source() const { return drawing_; }
  const std::vector<PlacedLayer>& Layers() const { return layers_; }
  /// Whether a layer is plotted, or shown on screen.
  bool IsPainted(const PlacedLayer& layer, bool onPaper) const;

  /// The box round what is shown, or what is plotted. A unit square for an empty drawing.
  PlaneBox Bounds(bool onPaper) const;

  /// The smallest text on paper, in drawing units; 0 without texts.
  double SmallestText() const;

  /// How the texts of the painted layers, in turn, are made to fit where no letters may be smaller
  /// than this, in drawing units.
  const TextFit& Fit(double smallest, bool onPaper) const;

 private:
  PlacedLayer& LayerNamed(const std::string& name);
  void Add(const EntityPicture& picture);
  PlacedText Placed(const PictureText& text) const;
  /// The lines that are shown as such.
  std::vector<PlaneLine> Bars() const;

  const Drawing& drawing_;
  std::vector<PlacedLayer> layers_;
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
