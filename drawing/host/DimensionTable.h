#pragma once

#include <array>
#include <limits>
#include <string_view>
#include <variant>

#include "drawing/host/Drawing.h"

namespace trelonit {

/// A dimension variable by name and by group code of the drawing format.
struct DimensionVariable {
  std::string_view Name;
  int Code;
  std::variant<double DimensionVariables::*, Long DimensionVariables::*,
               std::string DimensionVariables::*>
      Field;
  double Least = 0;  ///< of a number
  double Greatest = std::numeric_limits<double>::max();
};

/// The variables that the host keeps, in the order of their codes. DIMTXSTY names a text style,
/// which the format refers to by handle; DIMBLK stays empty and is not written into styles.
constexpr std::array<DimensionVariable, 12> dimensionTable{{
    // Zero would ask for the scale of a view on paper, of which there is none.
    {"DIMSCALE", 40, &DimensionVariables::DIMSCALE, std::numeric_limits<double>::min()},
    {"DIMASZ", 41, &DimensionVariables::DIMASZ},
    {"DIMEXO", 42, &DimensionVariables::DIMEXO},
    {"DIMDLI", 43, &DimensionVariables::DIMDLI},
    {"DIMEXE", 44, &DimensionVariables::DIMEXE},
    {"DIMTIH", 73, &DimensionVariables::DIMTIH, 0, 1},
    {"DIMTAD", 77, &DimensionVariables::DIMTAD, 0, 4},
    // Below zero it asks for a frame round the text.
    {"DIMGAP", 147, &DimensionVariables::DIMGAP, std::numeric_limits<double>::lowest()},
    {"DIMTXT", 140, &DimensionVariables::DIMTXT, std::numeric_limits<double>::min()},
    {"DIMDEC", 271, &DimensionVariables::DIMDEC, 0, 8},
    {"DIMTXSTY", 340, &DimensionVariables::DIMTXSTY},
    {"DIMBLK", 342, &DimensionVariables::DIMBLK},
}};

/// The variables of a dimension with its own properties among them.
DimensionVariables EffectiveVariables(const DrawingDimension& dimension);

}  // namespace trelonit
