#pragma once

#include <cstddef>
#include <cstdint>

namespace trelonit {

// What is copied into every run or paragraph is limited, so that a document needs memory in
// proportion to its file. The reader cuts what lies beyond; the writer writes none of it.

constexpr std::size_t rtfLongestFontName = 63;  ///< UTF-16 units
constexpr std::size_t rtfMostTabStops = 32;     ///< a paragraph
constexpr std::int32_t rtfLargestSize = 3276;   ///< half points
constexpr std::int32_t rtfPlainSize = 24;       ///< half points, where a text names no size
constexpr std::size_t rtfDeepestGroup = 1000;

}  // namespace trelonit
