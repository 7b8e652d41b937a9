#pragma once

#include <cstdint>

namespace trelonit {

/// Option indices and other small whole numbers: 16 bits.
using Integer = std::int16_t;

/// Counters, subscripts and record numbers: 32 bits.
using Long = std::int32_t;

/// Half-to-even rounding. Both raise Overflow (6) beyond the range of their type.
Integer RoundToInteger(double value);
Long RoundToLong(double value);

}  // namespace trelonit
