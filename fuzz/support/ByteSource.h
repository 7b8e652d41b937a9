#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace trelonit::fuzz {

/// Turns the bytes of an input into values, one after the other. Past its end every value is 0,
/// false or empty, so that any bytes make an input and a shorter one makes a simpler case.
class ByteSource {
 public:
  explicit ByteSource(std::string_view bytes) : rest_(bytes) {}

  bool IsEmpty() const { return rest_.empty(); }
  std::uint8_t Byte();
  /// 0 up to below the bound, which is at most 256.
  std::size_t Below(std::size_t bound) { return Byte() % bound; }
  bool Flag() { return (Byte() & 1U) != 0; }
  std::int16_t Whole16();
  std::int32_t Whole32();
  /// Any double: the ends of the range and what is no number, plain decimals, powers of ten, or
  /// eight bytes as they stand.
  double Number();
  /// A byte tells the length.
  std::string Text();

 private:
  std::string_view rest_;
};

}  // namespace trelonit::fuzz
