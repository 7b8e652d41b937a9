#include "editor/rtf/RtfWriter.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <map>
#include <string_view>
#include <vector>

#include "editor/rtf/RtfLimits.h"
#include "platform/text/CodePage1251.h"
#include "platform/text/Text.h"

namespace trelonit {

namespace {

constexpr Color colourParts = 0x00FFFFFF;

/// Things numbered in the order of their first use.
template <class T>
class Numbered {
 public:
  std::size_t NumberOf(const T& thing) {
    const auto [place, fresh] = numbers_.emplace(thing, things_.size());
    if (fresh) {
      things_.push_back(thing);
    }
    return place->second;
  }
  const std::vector<T>& InOrder() const { return things_; }

 private:
  std::map<T, std::size_t> numbers_;
  std::vector<T> things_;
};

void AppendHex(std::string& rtf, unsigned char byte) {
  constexpr std::string_view digits = "0123456789abcdef";
  rtf += "\\'";
  rtf += digits[byte / 16];
  rtf += digits[byte % 16];
}

void AppendUnit(std::string& rtf, char16_t unit) {
  if (unit == u'\\' || unit == u'{' || unit == u'}') {
    rtf += '\\';
    rtf += static_cast<char>(unit);
  } else if (unit == u'\t') {
    rtf += "\\tab ";
  } else if (unit >= 0x20 && unit < 0x7F) {
    rtf += static_cast<char>(unit);
  } else if (const unsigned char byte = ToCodePage1251(unit); byte >= 0x80) {
    AppendHex(rtf, byte);
  } else {
    // The number is a signed one of 16 bits.
    rtf += "\\u" + std::to_string(static_cast<std::int16_t>(unit)) + "?";
  }
}

void AppendFontName(std::string& rtf, std::string_view name) {
  for (const char32_t character : Characters(name)) {
    if (character == U';') {
      AppendHex(rtf, ';');  // bare, it would end the name
    } else if (character > 0xFFFF) {
      AppendUnit(rtf, static_cast<char16_t>(0xD800 + ((character - 0x10000) >> 10)));
      AppendUnit(rtf, static_cast<char16_t>(0xDC00 + (character & 0x3FF)));
    } else {
      AppendUnit(rtf, static_cast<char16_t>(character));
    }
  }
}

std::int32_t HalfPoints(double size) {
  if (std::isnan(size)) {
    return rtfPlainSize;
  }
  return static_cast<std::int32_t>(
      std::lround(std::clamp(size * 2, 1.0, static_cast<double>(rtfLargestSize))));
}

void AppendNumbered(std::string& rtf, std::string_view word, std::int64_t number) {
  rtf += word;
  rtf += std::to_string(number);
}

/// Whether the text may hold characters of an East Asian or a complex script, halves of surrogate
/// pairs among them. Word processors keep their font apart from that of all other characters.
bool MayHoldOtherScripts(std::u16string_view text) {
  return std::any_of(text.begin(), text.end(), [](char16_t unit) {
    const bool european = unit < 0x0590 || (unit >= 0x1E00 && unit < 0x2E80);
    return !european;
  });
}

std::string_view AlignmentWord(ParagraphAlignment alignment) {
  switch (alignment) {
    case ParagraphAlignment::Centre:
      return "\\qc";
    case ParagraphAlignment::Right:
      return "\\qr";
    case ParagraphAlignment::Justified:
      return "\\qj";
    default:
      return "";
  }
}

class Writer {
 public:
  std::string Write(const RichDocument& document);

 private:
  void WriteParagraph(const RichParagraph& paragraph);
  void WriteFormat(const CharFormat& format, bool otherScripts);
  void WriteOtherScripts(const CharFormat& format);
  std::string Tables() const;

  std::string body_;
  Numbered<std::string> fonts_;
  Numbered<Color> colours_;
};

std::string Writer::Write(const RichDocument& document) {
  for (const RichParagraph& paragraph : document.Paragraphs) {
    WriteParagraph(paragraph);
  }
  // Without a paper a reader takes American letter paper, without a language its own, which some
  // take from here and some from the style of all text. LibreOffice takes a text that names no
  // generator for an old one of Word and puts narrow blanks between several blanks.
  return "{\\rtf1\\ansi\\ansicpg1251\\uc1\\deff0\\deflang1049" + Tables() +
         "{\\stylesheet{\\lang1049 Normal;}}\r\n{\\*\\generator "
         "Trelonit;}\\paperw11906\\paperh16838\r\n" +
         body_ + "}\r\n";
}

void Writer::WriteParagraph(const RichParagraph& paragraph) {
  body_ += "\\pard";
  body_ += AlignmentWord(paragraph.Alignment);
  const std::size_t stops = std::min(paragraph.TabStops.size(), rtfMostTabStops);
  for (std::size_t stop = 0; stop < stops; ++stop) {
    AppendNumbered(body_, "\\tx", paragraph.TabStops[stop]);
  }
  for (const TextRun& run : paragraph.Runs) {
    if (run.Text.empty()) {
      continue;
    }
    WriteFormat(run.Format, MayHoldOtherScripts(run.Text));
    for (const char16_t unit : run.Text) {
      AppendUnit(body_, unit);
    }
  }
  // The last paragraph has its mark too, as every word processor writes it.
  body_ += "\\par\r\n";
}

/// The looks of the scripts that the words for all the others do not reach.
void Writer::WriteOtherScripts(const CharFormat& format) {
  const auto font = static_cast<std::int64_t>(fonts_.NumberOf(format.FontName));
  AppendNumbered(body_, "\\rtlch\\af", font);
  AppendNumbered(body_, "\\afs", HalfPoints(format.FontSize));
  body_ += format.Bold ? "\\ab" : "";
  body_ += format.Italic ? "\\ai" : "";
  AppendNumbered(body_, "\\ltrch\\dbch\\af", font);
  body_ += "\\loch";
}

void Writer::WriteFormat(const CharFormat& format, bool otherScripts) {
  body_ += "\\plain";
  if (otherScripts) {
    WriteOtherScripts(format);
  }
  AppendNumbered(body_, "\\f", static_cast<std::int64_t>(fonts_.NumberOf(format.FontName)));
  AppendNumbered(body_, "\\fs", HalfPoints(format.FontSize));
  body_ += format.Bold ? "\\b" : "";
  body_ += format.Italic ? "\\i" : "";
  body_ += format.Underline ? "\\ul" : "";
  body_ += format.StrikeThru ? "\\strike" : "";
  // Black and the desktop's colours are the text's own colour, number 0 of the table.
  const Color colour =
      (format.TextColor & systemColor) != 0 ? colorBlack : format.TextColor & colourParts;
  if (colour != colorBlack) {
    AppendNumbered(body_, "\\cf", static_cast<std::int64_t>(colours_.NumberOf(colour)) + 1);
  }
  body_ += ' ';
}

std::string Writer::Tables() const {
  std::string tables = "{\\fonttbl";
  std::int64_t number = 0;
  for (const std::string& name : fonts_.InOrder()) {
    AppendNumbered(tables, "{\\f", number++);
    tables += "\\fnil\\fcharset204 ";
    AppendFontName(tables, name);
    tables += ";}";
  }
  tables += "}\r\n{\\colortbl ;";
  for (const Color colour : colours_.InOrder()) {
    AppendNumbered(tables, "\\red", colour & 0xFF);
    AppendNumbered(tables, "\\green", (colour >> 8) & 0xFF);
    AppendNumbered(tables, "\\blue", (colour >> 16) & 0xFF);
    tables += ';';
  }
  return tables + "}\r\n";
}

}  // namespace

std::string WriteRtf(const RichDocument& document) {
  return Writer().Write(document);
}

}  // namespace trelonit
