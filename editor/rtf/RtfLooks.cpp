#include "editor/rtf/RtfLooks.h"

#include <algorithm>

#include "editor/rtf/RtfCodePages.h"

namespace trelonit {

namespace {

std::int32_t SizeOf(std::int32_t number) {
  return number > 0 ? std::min(number, rtfLargestSize) : rtfPlainSize;
}

/// The words for one script's own look; among the main script's characters they say nothing.
void ApplyOwnLook(RtfCharState& characters, RtfAction action, std::int32_t number, bool on) {
  if (characters.Script == RtfScript::Main) {
    return;
  }
  RtfScriptLook& own = characters.OwnLook();
  switch (action) {
    case RtfAction::OwnBold:
      own.Bold = on;
      return;
    case RtfAction::OwnItalic:
      own.Italic = on;
      return;
    case RtfAction::OwnFont:
      own.Font = number;
      return;
    case RtfAction::OwnFontSize:
      own.Size = SizeOf(number);
      return;
    default:
      return;
  }
}

}  // namespace

void ApplyLook(RtfCharState& characters, const RtfKeyword& keyword,
               std::optional<std::int32_t> parameter) {
  const std::int32_t number = parameter.value_or(0);
  // A word that is switched off has the parameter 0.
  const bool on = parameter != 0;
  switch (keyword.Action) {
    case RtfAction::Plain:
      characters = {};
      return;
    case RtfAction::Script:
      characters.Script = static_cast<RtfScript>(keyword.Value);
      return;
    // A word for all scripts that stands behind one for the present script alone replaces it.
    case RtfAction::Bold:
      characters.Bold = on;
      characters.OwnLook().Bold.reset();
      return;
    case RtfAction::Italic:
      characters.Italic = on;
      characters.OwnLook().Italic.reset();
      return;
    case RtfAction::Underline:
      characters.Underline = on;
      return;
    case RtfAction::UnderlineNone:
      characters.Underline = false;
      return;
    case RtfAction::StrikeThru:
      characters.StrikeThru = on;
      return;
    case RtfAction::Hidden:
      characters.Hidden = on;
      return;
    case RtfAction::Font:
      characters.Font = number;
      characters.OwnLook().Font.reset();
      return;
    case RtfAction::FontSize:
      characters.Size = SizeOf(number);
      characters.OwnLook().Size.reset();
      return;
    case RtfAction::TextColour:
      characters.Colour = number;
      return;
    default:
      ApplyOwnLook(characters, keyword.Action, number, on);
  }
}

void RtfTables::TakeColourPart(RtfAction action, std::int32_t value) {
  const auto setPart = [this, value](unsigned shift) {
    const auto part = static_cast<Color>(std::clamp(value, 0, 255));
    const Color others = colourInReading_.value_or(colorBlack) & ~(Color{255} << shift);
    colourInReading_ = others | (part << shift);
  };
  switch (action) {
    case RtfAction::Red:
      return setPart(0);
    case RtfAction::Green:
      return setPart(8);
    case RtfAction::Blue:
      return setPart(16);
    default:
      return;
  }
}

void RtfTables::CompleteColour() {
  colours_.push_back(colourInReading_.value_or(colorBlack));
  colourInReading_.reset();
}

CharFormat RtfTables::FormatOf(const RtfCharState& characters) const {
  CharFormat format;
  if (const RtfFont* font = FontOf(characters)) {
    format.FontName = font->Name;
  }
  const RtfScriptLook& own = characters.OwnLook();
  format.FontSize = own.Size.value_or(characters.Size) / 2.0;
  format.Bold = own.Bold.value_or(characters.Bold);
  format.Italic = own.Italic.value_or(characters.Italic);
  format.Underline = characters.Underline;
  format.StrikeThru = characters.StrikeThru;
  const auto colour = static_cast<std::size_t>(std::max(characters.Colour, 0));
  format.TextColor = colour < colours_.size() ? colours_[colour] : colorBlack;
  return format;
}

char16_t RtfTables::Decode(unsigned char byte, const RtfCharState& characters) const {
  if (byte < 0x80) {
    return byte;  // the same in every page
  }
  const RtfFont* font = FontOf(characters);
  return FromCodePage(font == nullptr ? CodePage : font->CodePage.value_or(CodePage), byte);
}

char16_t RtfTables::DecodeInFontTable(unsigned char byte) const {
  return FromCodePage(Fonts.CodePageInReading().value_or(CodePage), byte);
}

const RtfFont* RtfTables::FontOf(const RtfCharState& characters) const {
  const RtfScriptLook& own = characters.OwnLook();
  const RtfFont* font = Fonts.Find(own.Font ? *own.Font : characters.Font.value_or(DefaultFont));
  return font == nullptr ? Fonts.Find(DefaultFont) : font;
}

}  // namespace trelonit
