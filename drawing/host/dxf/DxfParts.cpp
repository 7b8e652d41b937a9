#include "drawing/host/dxf/DxfParts.h"

#include <algorithm>

#include "platform/errors/RuntimeError.h"

namespace trelonit {

namespace {

void Require(bool known) {
  if (!known) {
    throw RuntimeError(ErrorNumber::InvalidProcedureCall);
  }
}

}  // namespace

DxfParts::DxfParts(const Drawing& source) : Source(source) {
  CheckNames();
  Bounds = BoundsOf(source);
  Root = NewHandle();
  ModelSpace = NewHandle();
  PaperSpace = NewHandle();
  for (std::size_t style = 0; style < source.TextStyles.size(); ++style) {
    TextStyles.push_back(NewHandle());
  }
  for (const DrawingEntity& entity : source.ModelSpace) {
    if (std::holds_alternative<DrawingDimension>(entity)) {
      DimensionBlocks.push_back(NewHandle());
    }
  }
}

DxfHandle DxfParts::TextStyleHandle(std::string_view name) const {
  const DrawingTextStyle* style = FindTextStyle(Source, name);
  Require(style != nullptr);
  return TextStyles[static_cast<std::size_t>(style - Source.TextStyles.data())];
}

void DxfParts::CheckNames() const {
  for (const DrawingEntity& entity : Source.ModelSpace) {
    Require(FindLayer(Source, LayerOf(entity)) != nullptr);
    if (const auto* text = std::get_if<DrawingText>(&entity)) {
      Require(FindTextStyle(Source, text->Style) != nullptr);
    } else if (const auto* dimension = std::get_if<DrawingDimension>(&entity)) {
      Require(FindTextStyle(Source, dimension->TextStyle) != nullptr);
      Require(FindDimStyle(Source, dimension->Style) != nullptr);
    }
  }
}

std::string DimensionBlockName(std::size_t dimension) {
  return "*D" + std::to_string(dimension + 1);
}

}  // namespace trelonit
