#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <string>
#include <string_view>

#include "platform/text/Text.h"

namespace trelonit {

/// A text field of exactly N characters: longer texts are cut, shorter ones padded with blanks on
/// the right. Two fields are equal when all N characters are. Holds its characters in place, so
/// that records stay plain values without allocations. Characters outside the basic plane (which
/// code page 1251 has none of) are held as U+FFFD.
template <std::size_t N>
class FixedText {
 public:
  FixedText() { characters_.fill(u' '); }
  FixedText(std::string_view text) : FixedText() {
    const std::u32string source = Characters(text);
    for (std::size_t place = 0; place < std::min(N, source.size()); ++place) {
      characters_[place] =
          source[place] > 0xFFFF ? u'\uFFFD' : static_cast<char16_t>(source[place]);
    }
  }
  FixedText(const char* text) : FixedText(std::string_view(text)) {}

  static constexpr std::size_t Length() { return N; }

  const std::array<char16_t, N>& Raw() const { return characters_; }
  std::array<char16_t, N>& Raw() { return characters_; }

  /// All N characters, trailing blanks included, as UTF-8.
  std::string Padded() const {
    std::string text;
    for (const char16_t character : characters_) {
      AppendUtf8(text, character);
    }
    return text;
  }

  /// Without the trailing blanks: what lists and labels show.
  std::string Trimmed() const { return std::string(TrimRight(Padded())); }

  friend bool operator==(const FixedText&, const FixedText&) = default;

 private:
  std::array<char16_t, N> characters_;
};

}  // namespace trelonit
