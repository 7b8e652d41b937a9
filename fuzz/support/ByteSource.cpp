#include "fuzz/support/ByteSource.h"

#include <array>
#include <bit>
#include <cmath>
#include <limits>

namespace trelonit::fuzz {

namespace {

using Limits = std::numeric_limits<double>;

constexpr std::array<double, 16> edges{0.0,
                                       -0.0,
                                       1,
                                       -1,
                                       Limits::max(),
                                       Limits::lowest(),
                                       Limits::min(),
                                       -Limits::min(),
                                       Limits::denorm_min(),
                                       -Limits::denorm_min(),
                                       Limits::infinity(),
                                       -Limits::infinity(),
                                       Limits::quiet_NaN(),
                                       Limits::epsilon(),
                                       0x1p31,
                                       0x1p63};

}  // namespace

std::uint8_t ByteSource::Byte() {
  if (rest_.empty()) {
    return 0;
  }
  const auto byte = static_cast<std::uint8_t>(rest_.front());
  rest_.remove_prefix(1);
  return byte;
}

std::int16_t ByteSource::Whole16() {
  const unsigned low = Byte();
  return static_cast<std::int16_t>(low | unsigned{Byte()} << 8U);
}

std::int32_t ByteSource::Whole32() {
  const auto low = static_cast<std::uint16_t>(Whole16());
  const auto high = static_cast<std::uint16_t>(Whole16());
  return static_cast<std::int32_t>(low | std::uint32_t{high} << 16U);
}

double ByteSource::Number() {
  constexpr double hundredths = 100;
  const std::uint8_t kind = Byte();
  switch (kind % 4) {
    case 0:
      return edges.at(Below(edges.size()));
    case 1:
      return Whole16() / hundredths;
    case 2: {
      constexpr int values = 256;
      const int byte = Byte();
      const int power = byte < values / 2 ? byte : byte - values;
      return Whole16() * std::pow(10.0, power * 2);
    }
    default: {
      const auto low = static_cast<std::uint32_t>(Whole32());
      const auto high = static_cast<std::uint32_t>(Whole32());
      return std::bit_cast<double>(low | std::uint64_t{high} << 32U);
    }
  }
}

std::string ByteSource::Text() {
  const std::size_t length = Byte();
  std::string text(rest_.substr(0, length));
  rest_.remove_prefix(text.size());
  return text;
}

}  // namespace trelonit::fuzz
