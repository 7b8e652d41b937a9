#include "drawing/scheme/SchemeDrawing.h"

#include "platform/system/AutomationMembers.h"

namespace trelonit {

namespace {

/// Arrows and texts have fixed sizes on paper, and the text is 5 high there.
Real DimensionScale(const SchemeSheet& sheet) {
  return sheet.t / 5;
}

}  // namespace

DrawingPoint PointAt(const SheetPoint& point) {
  return PointAt(point.X, point.Y);
}

void SetDimensionScale(const SchemeSheet& sheet, const AutomationHandle& space) {
  CallMember(ObjectMember(space, "Document"), "SetVariable",
             {std::string("DIMSCALE"), double(DimensionScale(sheet))});
}

void DrawDimensions(const DrawingTools& tools, const SchemeLayout& layout, const SchemeSheet& sheet,
                    const AutomationHandle& space) {
  for (const SchemeDimension& place : layout.Dimensions) {
    const AutomationHandle dimension = tools.ACAD.DrawDimension(
        space, PointAt(place.From), PointAt(place.To), PointAt(place.Location), place.Rotation);
    SetMember(dimension, "TextStyle", std::string("Dimensional"));
    SetMember(dimension, "ArrowheadSize", Long{4});
    SetMember(dimension, "TextGap", Long{1});
    SetMember(dimension, "TextHeight", Long{5});
    SetMember(dimension, "ScaleFactor", double(DimensionScale(sheet)));
    SetMember(dimension, "TextInsideAlign", false);
    SetMember(dimension, "TextInside", true);
    SetMember(dimension, "PrimaryUnitsPrecision", Long{0});
  }
}

void DrawTitle(const DrawingTools& tools, const std::string& title, double rise,
               const SchemeSheet& sheet, const AutomationHandle& space) {
  tools.ACAD.DrawText(space, PointAt(sheet.L / 2, sheet.Upper + rise * sheet.t), title, 0,
                      2 * sheet.t);
}

}  // namespace trelonit
