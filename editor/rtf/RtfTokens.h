#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

namespace trelonit {

/// One piece of rich text format.
struct RtfToken {
  enum class Kind {
    End,
    GroupStart,
    GroupEnd,
    Word,     ///< a control word: Word, Parameter
    Symbol,   ///< a backslash and one character that is no letter: Byte
    Hex,      ///< a byte by its two digits: Byte
    Literal,  ///< a byte of plain text: Byte
  };
  Kind Is = Kind::End;
  std::string_view Word;
  std::optional<std::int32_t> Parameter;  ///< held at the ends of 32 bits
  unsigned char Byte = 0;
};

/// Cuts bytes into tokens, whatever they are; every call is constant work apart from the token's
/// own length. Line ends of the file and other control bytes than the tab are no tokens. The bytes
/// that follow \bin are passed over with it, so that no data is ever taken for text.
class RtfTokens {
 public:
  explicit RtfTokens(std::string_view bytes) : bytes_(bytes) {}

  /// Kind End for ever once the bytes are used up.
  RtfToken Next();

 private:
  RtfToken Escaped();
  RtfToken ControlWord();
  std::optional<std::int32_t> Parameter();

  std::string_view bytes_;
  std::size_t place_ = 0;
};

}  // namespace trelonit
