#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "drawing/host/Drawing.h"
#include "drawing/host/DrawingPicture.h"
#include "drawing/host/dxf/DxfPairs.h"

namespace trelonit {

/// A drawing on its way into a file: what the sections must know of each other.
class DxfParts {
 public:
  /// Raises 5 for an entity whose layer or style is not in the drawing, 6 for a number that is not
  /// finite.
  explicit DxfParts(const Drawing& source);

  const Drawing& Source;
  DrawingBounds Bounds;
  DxfPairs Out;
  DxfHandle Root;  ///< of all dictionaries
  DxfHandle ModelSpace;
  DxfHandle PaperSpace;
  /// Of the text styles, in their order.
  std::vector<DxfHandle> TextStyles;
  /// Of the dimensions' block records, in the order of the dimensions.
  std::vector<DxfHandle> DimensionBlocks;

  DxfHandle NewHandle() { return next_++; }
  /// The first that no object has.
  DxfHandle FreeHandle() const { return next_; }

  /// Raises 5 for a style that is not in the drawing.
  DxfHandle TextStyleHandle(std::string_view name) const;

 private:
  void CheckNames() const;

  DxfHandle next_ = 1;
};

/// The name of the block with the picture of a dimension, counted from 0.
std::string DimensionBlockName(std::size_t dimension);

/// The version, units, extents and current settings of the drawing.
void WriteHeader(const DxfParts& parts, DxfPairs& out);
void WriteTables(DxfParts& parts);
/// The content of a dimension style.
void WriteStyleVariables(DxfParts& parts, const DimensionVariables& variables);
/// What a dimension has otherwise than its style.
void WriteStyleOverrides(DxfParts& parts, const DrawingDimension& dimension);
void WriteBlocks(DxfParts& parts);
void WriteEntities(DxfParts& parts);

}  // namespace trelonit
