#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "platform/values/Integers.h"

namespace trelonit {

// A drawing of the built-in drawing host: what its documents hold, as plain records. Lengths are
// drawing units (millimetres), angles radians, texts UTF-8. Names of layers and styles are compared
// without regard to case, as in the drawing format.

struct PlacePoint {
  double X = 0;
  double Y = 0;
  double Z = 0;

  friend bool operator==(const PlacePoint&, const PlacePoint&) = default;
};

/// The line weight that stands for the drawing's own, 0.25 mm.
constexpr Long defaultLineweight = -3;

struct DrawingLayer {
  std::string Name;
  bool Freeze = false;
  bool LayerOn = true;
  std::string Linetype = "CONTINUOUS";
  Long Lineweight = defaultLineweight;  ///< hundredths of a millimetre
  bool Lock = false;
  bool Plottable = true;
};

struct DrawingTextStyle {
  std::string Name;
  double ObliqueAngle = 0;  ///< radians
  double Width = 1;         ///< factor
};

/// The dimension variables that a dimension style holds, in the names of the drawing format.
struct DimensionVariables {
  double DIMSCALE = 1;
  double DIMDLI = 3.75;
  double DIMEXE = 1.25;
  double DIMEXO = 0.625;
  Long DIMDEC = 2;
  double DIMGAP = 0.625;
  Long DIMTIH = 0;  ///< 1: text inside is horizontal
  Long DIMTAD = 1;  ///< 0: text in the line, otherwise above it
  double DIMTXT = 2.5;
  double DIMASZ = 2.5;
  std::string DIMTXSTY = "STANDARD";
  std::string DIMBLK;  ///< empty: closed filled arrow, the only one there is

  friend bool operator==(const DimensionVariables&, const DimensionVariables&) = default;
};

struct DrawingDimStyle {
  std::string Name;
  DimensionVariables Variables;
};

struct DrawingLine {
  PlacePoint Start;
  PlacePoint End;
  std::string Layer = "0";
};

/// How a text lies on its alignment point, in the numbers of the host's interface.
enum class TextAlignment : Long {
  Left = 0,
  Centre = 1,
  Right = 2,
  Middle = 4,
  TopLeft = 6,
  TopCentre = 7,
  TopRight = 8,
  MiddleLeft = 9,
  MiddleCentre = 10,
  MiddleRight = 11,
  BottomLeft = 12,
  BottomCentre = 13,
  BottomRight = 14,
};

struct DrawingText {
  std::string Text;
  PlacePoint InsertionPoint;
  double Height = 1;  ///< of capital letters
  double Rotation = 0;
  TextAlignment Alignment = TextAlignment::Left;
  /// Counts for every alignment but Left.
  PlacePoint TextAlignmentPoint;
  std::string Style = "STANDARD";
  std::string Layer = "0";
};

/// A rotated dimension with its own values of the style's variables.
struct DrawingDimension {
  PlacePoint Point1;  ///< where the first extension line begins
  PlacePoint Point2;
  PlacePoint Location;  ///< on the dimension line
  double Rotation = 0;  ///< of the dimension line
  std::string Style = "STANDARD";
  std::string Layer = "0";
  std::string TextStyle = "STANDARD";
  double ArrowheadSize = 2.5;
  double TextGap = 0.625;
  double TextHeight = 2.5;
  /// Of all sizes of the dimension's look; the measured length is not scaled.
  double ScaleFactor = 1;
  bool TextInsideAlign = false;  ///< text between the extension lines is horizontal
  bool TextInside = false;       ///< text stays between the extension lines, room or not
  Long PrimaryUnitsPrecision = 2;
  /// The variables that have no property of their own, as they were when it was drawn.
  DimensionVariables Variables;
};

using DrawingEntity = std::variant<DrawingLine, DrawingText, DrawingDimension>;

/// One document.
struct Drawing {
  std::string Name;  ///< "Drawing1.dwg" and so on
  std::vector<DrawingLayer> Layers{{.Name = "0"}};
  std::vector<DrawingTextStyle> TextStyles{{.Name = "STANDARD"}};
  std::vector<DrawingDimStyle> DimStyles{{.Name = "STANDARD"}};
  std::string ActiveLayer = "0";
  std::string ActiveTextStyle = "STANDARD";
  std::string ActiveDimStyle = "STANDARD";
  DimensionVariables Variables;  ///< what SetVariable has set
  std::vector<DrawingEntity> ModelSpace;
};

/// A name as it is compared: Latin and Russian letters as capitals.
std::string FoldedName(std::string_view name);
bool SameName(std::string_view name1, std::string_view name2);

/// The first record with this name; null without one.
template <class Record>
const Record* FindNamed(const std::vector<Record>& records, std::string_view name) {
  for (const Record& record : records) {
    if (SameName(record.Name, name)) {
      return &record;
    }
  }
  return nullptr;
}

const DrawingLayer* FindLayer(const Drawing& drawing, std::string_view name);
const DrawingTextStyle* FindTextStyle(const Drawing& drawing, std::string_view name);
const DrawingDimStyle* FindDimStyle(const Drawing& drawing, std::string_view name);

/// Whether what lies on the layer is to be seen: the layer is on and not frozen. A layer that is
/// not there hides nothing.
bool IsShown(const Drawing& drawing, std::string_view layer);
/// The same on paper.
bool IsPlotted(const Drawing& drawing, std::string_view layer);
/// Millimetres on paper.
double StrokeWidth(const Drawing& drawing, std::string_view layer);

/// The layer that an entity of any kind lies on.
const std::string& LayerOf(const DrawingEntity& entity);

}  // namespace trelonit
