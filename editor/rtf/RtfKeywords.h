#pragma once

#include <cstdint>
#include <string_view>

namespace trelonit {

/// The scripts whose characters may look different within one run.
enum class RtfScript { Main, EastAsian, Complex };

/// What a control word does.
enum class RtfAction {
  Nothing,        ///< a word that does not matter here; its group is read
  SkipGroup,      ///< the rest of the group holds no text of the document
  FontTable,      ///< the rest of the group is the table of fonts
  ColourTable,    ///< the rest of the group is the table of colours
  PlainFontName,  ///< the rest of the group is a font's name without its script
  CodePage,       ///< the document's code page: parameter, else value
  DefaultFont,
  FallbackLength,  ///< how many characters follow a Unicode escape for older readers
  Unicode,
  Character,  ///< the character with the value's number
  LineEnd,
  PageEnd,
  Plain,
  ParagraphPlain,
  Bold,
  Italic,
  Underline,
  UnderlineNone,
  StrikeThru,
  Hidden,
  Font,
  FontSize,
  Script,   ///< what follows is of the script with this value: a RtfScript
  OwnBold,  ///< these four: the look of the present script alone
  OwnItalic,
  OwnFont,
  OwnFontSize,
  TextColour,
  Alignment,  ///< value: a ParagraphAlignment
  TabStop,
  FontCharset,
  FontCodePage,
  Red,
  Green,
  Blue,
};

struct RtfKeyword {
  std::string_view Word;
  RtfAction Action = RtfAction::Nothing;
  std::int32_t Value = 0;
};

/// What the word does; action Nothing for an unknown one.
RtfKeyword FindRtfKeyword(std::string_view word);

}  // namespace trelonit
