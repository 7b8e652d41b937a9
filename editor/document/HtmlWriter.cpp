#include "editor/document/HtmlWriter.h"

#include <cstddef>
#include <functional>
#include <locale>
#include <map>
#include <optional>
#include <sstream>
#include <string_view>
#include <tuple>
#include <vector>

#include "editor/document/FontFamilies.h"
#include "editor/document/TextUnits.h"
#include "platform/text/MarkupText.h"
#include "platform/text/Text.h"

namespace trelonit {

namespace {

std::string HexColour(Color colour) {
  constexpr std::string_view digits = "0123456789abcdef";
  std::string text = "#";
  for (const unsigned shift : {0U, 8U, 16U}) {
    text += digits[(colour >> (shift + 4)) & 0xF];
    text += digits[(colour >> shift) & 0xF];
  }
  return text;
}

std::string NumberText(double number) {
  std::ostringstream text;
  text.imbue(std::locale::classic());
  text << number;
  return text.str();
}

/// A family's name as a string of a style sheet, which nothing in it can end.
std::string Quoted(std::string_view name) {
  std::string text = "\"";
  for (const char character : name) {
    if (static_cast<unsigned char>(character) >= ' ' && character != '"' && character != '\\' &&
        character != '<') {
      text += character;
    }
  }
  return text + '"';
}

std::string StyleOf(const CharFormat& format) {
  std::string style = "font: ";
  style += format.Italic ? "italic " : "";
  style += format.Bold ? "bold " : "";
  style += NumberText(format.FontSize) + "pt " + Quoted(format.FontName);
  style += IsFixedWidthFamily(format.FontName) ? ", monospace;" : ", sans-serif;";
  if (format.Underline || format.StrikeThru) {
    style += " text-decoration:";
    style += format.Underline ? " underline" : "";
    style += format.StrikeThru ? " line-through" : "";
    style += ';';
  }
  // Black is the page's own ink.
  if (format.TextColor != colorBlack && (format.TextColor & systemColor) == 0) {
    style += " color: " + HexColour(format.TextColor) + ';';
  }
  return style;
}

std::string_view AlignmentClass(ParagraphAlignment alignment) {
  switch (alignment) {
    case ParagraphAlignment::Centre:
      return " class=\"centre\"";
    case ParagraphAlignment::Right:
      return " class=\"right\"";
    case ParagraphAlignment::Justified:
      return " class=\"justified\"";
    default:
      return "";
  }
}

class Writer {
 public:
  std::string Write(const RichDocument& document, std::string_view title);

 private:
  void WriteParagraph(const RichParagraph& paragraph);
  std::size_t ClassOf(const CharFormat& format);

  std::string body_;
  std::map<std::string, std::size_t, std::less<>> classes_;
  std::vector<std::string> styles_;
  struct Look {
    CharFormat Format;
    std::size_t Class;
  };
  // Neighbouring runs often look alike: the class of the last one is known.
  std::optional<Look> last_;
};

std::size_t Writer::ClassOf(const CharFormat& format) {
  if (!last_ || last_->Format != format) {
    const std::string style = StyleOf(format);
    const auto [place, fresh] = classes_.emplace(style, styles_.size());
    if (fresh) {
      styles_.push_back(style);
    }
    last_ = {format, place->second};
  }
  return last_->Class;
}

void Writer::WriteParagraph(const RichParagraph& paragraph) {
  body_ += "<p";
  body_ += AlignmentClass(paragraph.Alignment);
  body_ += '>';
  bool empty = true;
  for (const TextRun& run : paragraph.Runs) {
    if (run.Text.empty()) {
      continue;
    }
    empty = false;
    body_ += "<span class=\"f" + std::to_string(ClassOf(run.Format) + 1) + "\">";
    AppendMarkup(body_, Utf8(run.Text));
    body_ += "</span>";
  }
  // Without anything in it a paragraph has no height.
  body_ += empty ? "<br></p>\n" : "</p>\n";
}

std::string Writer::Write(const RichDocument& document, std::string_view title) {
  for (const RichParagraph& paragraph : document.Paragraphs) {
    WriteParagraph(paragraph);
  }
  std::string page =
      "<!DOCTYPE html>\n<html lang=\"ru\">\n<head>\n<meta charset=\"utf-8\">\n<title>";
  AppendMarkup(page, title);
  page += "</title>\n<style>\np { margin: 0; white-space: pre-wrap; tab-size: 0.5in; }\n";
  page += "p.centre { text-align: center; }\np.right { text-align: right; }\n";
  page += "p.justified { text-align: justify; }\n";
  for (std::size_t index = 0; index < styles_.size(); ++index) {
    page += ".f" + std::to_string(index + 1) + " { " + styles_[index] + " }\n";
  }
  return page + "</style>\n</head>\n<body>\n" + body_ + "</body>\n</html>\n";
}

}  // namespace

std::string WriteHtml(const RichDocument& document, const std::string& title) {
  return Writer().Write(document, title);
}

}  // namespace trelonit
