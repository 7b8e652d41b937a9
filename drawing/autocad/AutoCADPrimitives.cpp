#include <variant>

#include "drawing/autocad/clsAutoCAD.h"
#include "platform/errors/Guard.h"
#include "platform/errors/RuntimeError.h"
#include "platform/system/AutomationMembers.h"

namespace trelonit {

namespace {

constexpr const char* primitiveTitle = "ACADClass";
constexpr const char* dimensionTitle = "AutoCAD Class";
constexpr const char* barLayer = "Main";
constexpr const char* noteLayer = "Dimension";

AutomationValue Coordinates(const DrawingPoint& point) {
  return std::vector<double>(point.begin(), point.end());
}

DrawingPoint MiddleOf(const DrawingPoint& point1, const DrawingPoint& point2) {
  DrawingPoint middle(0, 2);
  for (Long axis = 0; axis <= 2; ++axis) {
    middle[axis] = (Real(point1[axis]) + Real(point2[axis])) / 2;
  }
  return middle;
}

bool HasPointBounds(const DrawingPoint& point) {
  return point.IsAllocated() && point.LowerBound() == 0 && point.UpperBound() == 2;
}

}  // namespace

DrawingPoint PointAt(Real x, Real y) {
  DrawingPoint point(0, 2);
  point[0] = x;
  point[1] = y;
  return point;
}

AutomationHandle clsAutoCAD::DrawLine(const AutomationHandle& space, const DrawingPoint& point1,
                                      const DrawingPoint& point2) const {
  AutomationHandle line;
  PassOver([&] {
    line = CallForObject(space, "AddLine", {Coordinates(point1), Coordinates(point2)});
  });
  if (line == nullptr) {
    Report(primitiveTitle, "Не удалось создать линию по указанным координатам!");
  }
  // Goes on without a line, too: what then fails here is told as well. A call by name gives its
  // object or raises, never both, so an error beside an object can only come from the layer.
  try {
    SetMember(line, "Layer", std::string(barLayer));
  } catch (const RuntimeError& error) {
    Report(primitiveTitle,
           "Err # " + std::to_string(error.Number()) + " err discription : " + error.Description());
  }
  return line;
}

AutomationHandle clsAutoCAD::PlaceText(const AutomationHandle& space, const std::string& text,
                                       const DrawingPoint& point, Alignment alignment,
                                       double rotation, double textHeight) const {
  AutomationHandle placed;
  PassOver([&] {
    placed = CallForObject(space, "AddText", {text, Coordinates(point), textHeight});
  });
  if (placed == nullptr) {
    Report(primitiveTitle, "Не удалось создать текст по указанным координатам!");
    return placed;
  }
  // One property that fails does not keep the others from being set; the user is told once.
  bool allSet = true;
  const auto set = [&](const char* member, const AutomationValue& value) {
    allSet = PassOver([&] { SetMember(placed, member, value); }) && allSet;
  };
  set("Alignment", static_cast<Long>(alignment));
  set("Rotation", rotation);
  set("TextAlignmentPoint", Coordinates(point));
  set("Layer", std::string(noteLayer));
  if (!allSet) {
    Report(primitiveTitle, "Не удалось задать тексту точку вставки!");
  }
  return placed;
}

std::string clsAutoCAD::LabelNumber(double value) const {
  return FormatShown(ParseNumber(NumberToText(value, locale_), locale_), 2, locale_);
}

LabelledLine clsAutoCAD::DrawLineAndText(const AutomationHandle& space, const DrawingPoint& point1,
                                         const DrawingPoint& point2, double value, double rotation,
                                         double textHeight) const {
  LabelledLine drawn;
  drawn.Line = DrawLine(space, point1, point2);
  drawn.Text = PlaceText(space, LabelNumber(value), MiddleOf(point1, point2),
                         Alignment::BottomCentre, rotation, textHeight);
  return drawn;
}

LabelledLine clsAutoCAD::DrawLineAnd2Text(const AutomationHandle& space, const DrawingPoint& point1,
                                          const DrawingPoint& point2, double length,
                                          const std::string& name, double rotation,
                                          double textHeight, bool paired) const {
  LabelledLine drawn;
  drawn.Line = DrawLine(space, point1, point2);
  const DrawingPoint middle = MiddleOf(point1, point2);
  PlaceText(space, "L = " + LabelNumber(length) + " м ", middle, Alignment::TopCentre, rotation,
            textHeight);
  drawn.Text = PlaceText(space, paired ? "2 * " + name : name, middle, Alignment::BottomCentre,
                         rotation, textHeight);
  return drawn;
}

AutomationHandle clsAutoCAD::DrawText(const AutomationHandle& space, const DrawingPoint& point,
                                      const std::string& text, double rotation,
                                      double textHeight) const {
  return PlaceText(space, text, point, Alignment::BottomCentre, rotation, textHeight);
}

AutomationHandle clsAutoCAD::DrawDimension(const AutomationHandle& space,
                                           const DrawingPoint& point1, const DrawingPoint& point2,
                                           const DrawingPoint& location, double rotation) const {
  if (!HasPointBounds(point1) || !HasPointBounds(point2) || !HasPointBounds(location)) {
    Report(dimensionTitle, "Некорректно заданы точки простановки размера");
    return nullptr;
  }
  if (space == nullptr) {
    Report(dimensionTitle, "Не передана ссылка на пространство модели");
    return nullptr;
  }
  AutomationHandle dimension;
  Guard(messages_, dimensionTitle, [&] {
    dimension =
        CallForObject(space, "AddDimRotated",
                      {Coordinates(point1), Coordinates(point2), Coordinates(location), rotation});
    SetMember(dimension, "Layer", std::string(noteLayer));
  });
  return dimension;
}

}  // namespace trelonit
