#include "editor/rtf/RtfTokens.h"

#include <algorithm>
#include <limits>

#include "platform/text/Text.h"

namespace trelonit {

namespace {

bool IsDigit(char byte) {
  return byte >= '0' && byte <= '9';
}

/// Nothing for what is no hexadecimal digit.
std::optional<int> HexValue(char byte) {
  if (IsDigit(byte)) {
    return byte - '0';
  }
  const char lower = LowerLatin(byte);
  return lower >= 'a' && lower <= 'f' ? std::optional(lower - 'a' + 10) : std::nullopt;
}

RtfToken KindToken(RtfToken::Kind kind) {
  RtfToken token;
  token.Is = kind;
  return token;
}

RtfToken ByteToken(RtfToken::Kind kind, unsigned char byte) {
  RtfToken token = KindToken(kind);
  token.Byte = byte;
  return token;
}

}  // namespace

RtfToken RtfTokens::Next() {
  while (place_ < bytes_.size()) {
    const char byte = bytes_[place_++];
    switch (byte) {
      case '{':
        return KindToken(RtfToken::Kind::GroupStart);
      case '}':
        return KindToken(RtfToken::Kind::GroupEnd);
      case '\\':
        return Escaped();
      default:
        const auto value = static_cast<unsigned char>(byte);
        if (value >= 0x20 || value == '\t') {
          return ByteToken(RtfToken::Kind::Literal, value);
        }
    }
  }
  return {};
}

RtfToken RtfTokens::Escaped() {
  if (place_ == bytes_.size()) {
    return {};
  }
  const char byte = bytes_[place_];
  if (IsLatinLetter(byte)) {
    return ControlWord();
  }
  ++place_;
  if (byte == '\'' && bytes_.size() - place_ >= 2) {
    const std::optional<int> high = HexValue(bytes_[place_]);
    const std::optional<int> low = HexValue(bytes_[place_ + 1]);
    if (high && low) {
      place_ += 2;
      return ByteToken(RtfToken::Kind::Hex, static_cast<unsigned char>(*high * 16 + *low));
    }
  }
  return ByteToken(RtfToken::Kind::Symbol, static_cast<unsigned char>(byte));
}

RtfToken RtfTokens::ControlWord() {
  const std::size_t start = place_;
  while (place_ < bytes_.size() && IsLatinLetter(bytes_[place_])) {
    ++place_;
  }
  RtfToken token = KindToken(RtfToken::Kind::Word);
  token.Word = bytes_.substr(start, place_ - start);
  token.Parameter = Parameter();
  // One blank ends the word and belongs to it.
  if (place_ < bytes_.size() && bytes_[place_] == ' ') {
    ++place_;
  }
  if (token.Word == "bin") {
    const auto length = static_cast<std::size_t>(std::max(token.Parameter.value_or(0), 0));
    place_ = std::min(place_ + length, bytes_.size());
  }
  return token;
}

std::optional<std::int32_t> RtfTokens::Parameter() {
  std::size_t digit = place_;
  const bool negative = digit < bytes_.size() && bytes_[digit] == '-';
  if (negative) {
    ++digit;
  }
  if (digit == bytes_.size() || !IsDigit(bytes_[digit])) {
    return std::nullopt;
  }
  constexpr std::int64_t lowest = std::numeric_limits<std::int32_t>::min();
  constexpr std::int64_t highest = std::numeric_limits<std::int32_t>::max();
  std::int64_t value = 0;
  for (; digit < bytes_.size() && IsDigit(bytes_[digit]); ++digit) {
    // One above the highest, so that the lowest can still be reached by the sign.
    value = std::min(value * 10 + (bytes_[digit] - '0'), highest + 1);
  }
  place_ = digit;
  return static_cast<std::int32_t>(std::clamp(negative ? -value : value, lowest, highest));
}

}  // namespace trelonit
