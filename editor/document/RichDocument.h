#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "platform/forms/Controls.h"

namespace trelonit {

/// How characters look.
struct CharFormat {
  std::string FontName = "Lucida Console";
  double FontSize = 9;  ///< points
  bool Bold = false;
  bool Italic = false;
  bool Underline = false;
  bool StrikeThru = false;
  Color TextColor = colorBlack;

  friend bool operator==(const CharFormat&, const CharFormat&) = default;
};

/// Characters that look alike.
struct TextRun {
  std::u16string Text;
  CharFormat Format;

  friend bool operator==(const TextRun&, const TextRun&) = default;
};

enum class ParagraphAlignment { Left, Centre, Right, Justified };

/// A paragraph without its line end.
struct RichParagraph {
  std::vector<TextRun> Runs;
  ParagraphAlignment Alignment = ParagraphAlignment::Left;
  std::vector<std::int32_t> TabStops;  ///< twips from the left margin, ascending

  friend bool operator==(const RichParagraph&, const RichParagraph&) = default;
};

/// A rich text. There is always one paragraph, if only an empty one; between two paragraphs stands
/// a line end, which counts as two characters (carriage return, line feed) wherever positions are
/// counted.
struct RichDocument {
  std::vector<RichParagraph> Paragraphs{1};

  friend bool operator==(const RichDocument&, const RichDocument&) = default;
};

}  // namespace trelonit
