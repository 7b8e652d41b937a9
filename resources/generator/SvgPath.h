#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace trelonit::packer {

/// An outline of lines and curves in absolute coordinates.
struct SvgPath {
  std::string Verbs;  ///< M and L have a point each, C has three, Z none
  std::vector<double> Numbers;
};

/// The numbers of a list that blanks or commas part. Raises std::runtime_error for what is none.
std::vector<double> ReadNumbers(std::string_view text);

/// Reads path data; arcs become curves. Raises std::runtime_error for what is none.
SvgPath ReadPath(std::string_view data);

}  // namespace trelonit::packer
