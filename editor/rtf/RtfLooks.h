#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

#include "editor/document/RichDocument.h"
#include "editor/rtf/RtfFonts.h"
#include "editor/rtf/RtfKeywords.h"
#include "editor/rtf/RtfLimits.h"

namespace trelonit {

/// Where the characters of a script look different from the others.
struct RtfScriptLook {
  std::optional<std::int32_t> Font;
  std::optional<std::int32_t> Size;  ///< half points
  std::optional<bool> Bold;
  std::optional<bool> Italic;
};

/// The looks of characters as the words set them: by numbers of the document's tables.
struct RtfCharState {
  std::optional<std::int32_t> Font;  ///< nothing: the document's default font
  std::int32_t Size = rtfPlainSize;  ///< half points
  std::int32_t Colour = 0;           ///< number in the table of colours
  bool Bold = false;
  bool Italic = false;
  bool Underline = false;
  bool StrikeThru = false;
  bool Hidden = false;
  RtfScript Script = RtfScript::Main;
  std::array<RtfScriptLook, 3> OfScript;  ///< by script; the main one's has nothing

  RtfScriptLook& OwnLook() { return OfScript[static_cast<std::size_t>(Script)]; }
  const RtfScriptLook& OwnLook() const { return OfScript[static_cast<std::size_t>(Script)]; }
};

/// Does what the word says to the looks.
void ApplyLook(RtfCharState& characters, const RtfKeyword& keyword,
               std::optional<std::int32_t> parameter);

/// The tables that the looks and the bytes of the text refer to.
class RtfTables {
 public:
  /// Code page of bytes whose font names none.
  std::int32_t CodePage = 1252;
  std::int32_t DefaultFont = 0;
  RtfFonts Fonts;

  /// A word of the table of colours. Parts beyond 0 to 255 are held at the ends.
  void TakeColourPart(RtfAction action, std::int32_t value);
  /// A colour without parts is the text's own, black.
  void CompleteColour();

  /// What has no entry in its table looks as the default does.
  CharFormat FormatOf(const RtfCharState& characters) const;
  /// The character of a byte of the text. The font's script comes first: Word names code page 1252
  /// above a text in a Cyrillic font.
  char16_t Decode(unsigned char byte, const RtfCharState& characters) const;
  /// The character of a byte of a font's name in the table.
  char16_t DecodeInFontTable(unsigned char byte) const;

 private:
  const RtfFont* FontOf(const RtfCharState& characters) const;

  std::vector<Color> colours_;
  std::optional<Color> colourInReading_;
};

}  // namespace trelonit
