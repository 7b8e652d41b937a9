#pragma once

#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "drawing/host/Drawing.h"
#include "drawing/host/TitleBlock.h"

namespace trelonit::test {

/// Lines and texts on the two layers of the program's drawings, both styles there.
inline Drawing EmptySheet() {
  Drawing drawing;
  drawing.Name = "Drawing1.dwg";
  drawing.Layers.push_back({.Name = "Main", .Lineweight = 50});
  drawing.Layers.push_back({.Name = "Dimension", .Lineweight = 13});
  drawing.TextStyles.push_back({.Name = "Dimensional", .ObliqueAngle = 0.262, .Width = 0.55});
  return drawing;
}

inline DrawingLine LineOn(const std::string& layer, PlacePoint start, PlacePoint end) {
  return {.Start = start, .End = end, .Layer = layer};
}

inline DrawingText TextAt(const std::string& text, PlacePoint point, double height,
                          TextAlignment alignment, double rotation = 0,
                          const std::string& style = "STANDARD") {
  return {.Text = text,
          .InsertionPoint = point,
          .Height = height,
          .Rotation = rotation,
          .Alignment = alignment,
          .TextAlignmentPoint = point,
          .Style = style,
          .Layer = "Dimension"};
}

/// The same with something on it.
inline Drawing With(std::vector<DrawingEntity> entities) {
  Drawing drawing = EmptySheet();
  drawing.ModelSpace = std::move(entities);
  return drawing;
}

/// One line of 10 m with a text over it.
inline std::shared_ptr<Drawing> SmallDrawing(const std::string& name = "Drawing1.dwg") {
  auto drawing = std::make_shared<Drawing>(EmptySheet());
  drawing->Name = name;
  drawing->ModelSpace.push_back(LineOn("Main", {0, 0}, {10000, 0}));
  drawing->ModelSpace.push_back(
      TextAt("L = 10.00", {5000, 0}, 300, TextAlignment::BottomCentre, 0, "Dimensional"));
  return drawing;
}

/// A title block with something in every field.
inline TitleBlock FilledTitleBlock() {
  return {.Code = "15-2026-КМ",
          .Project = "Склад готовой продукции",
          .Building = "Корпус 2",
          .Images = "Ферма ФС1",
          .Organisation = "Проектное бюро",
          .Author = "Иванов",
          .Checker = "Петров",
          .Date = "22.11.26",
          .Stage = "Р",
          .Sheet = "3",
          .Sheets = "12"};
}

/// The same with a name that takes two lines and a word too long for its field.
inline TitleBlock CrowdedTitleBlock() {
  TitleBlock block = FilledTitleBlock();
  block.Project =
      "Реконструкция производственной базы предприятия с заменой покрытия над главным пролетом "
      "цеха";
  block.Organisation = "Проектгражданпромстройконструкция";
  return block;
}

}  // namespace trelonit::test
